// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/SEditorFrame.h"

#include "Host/ContentBrowser/SContentBrowser.h"
#include "Host/Editor/Maps.h"
#include "Host/Frame/FrameMenus.h"
#include "Host/Frame/SPaneLines.h"
#include "Host/Frame/STabStrip.h"
#include "Host/Notices/SNoticeList.h"
#include "Host/OutputLog/SOutputLog.h"
#include "Host/Frame/FrameStyle.h"
#include "Host/Program/Strings.h"
#include "Host/StatusLine/SStatusLine.h"

#include "StandIn/LevelEditorPanes.h"
#include "ToolMenus.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SSplitter.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

// What the window is made of, from top to bottom.

#define LOCTEXT_NAMESPACE "TintmillHost"

namespace TintmillHost
{
namespace
{
// Heights of the window, in Slate units, below which a part hides, so that the panes keep some room.
constexpr float ToolBarHeight = 280.0f;
constexpr float TabRowHeight = 220.0f;
constexpr float StatusHeight = 160.0f;

/** Widths below which the project's name hides. */
constexpr float NameWidth = 420.0f;

FName TabName(int32 Tab)
{
	return FName(*FString::Printf(TEXT("Viewport %d"), Tab));
}

int32 TabNumber(FName Name)
{
	return FCString::Atoi(*Name.ToString().RightChop(9));
}

/** "Stage" for /Game/Maps/Stage. */
FText GetLevelName()
{
	const std::string Map = GetOpenMap();
	if (Map.starts_with("/Temp/"))
	{
		return LOCTEXT("Untitled", "Untitled");
	}
	return FText::FromString(FromUtf8(Map.substr(Map.rfind('/') + 1)));
}
}

TSharedRef<SWidget> SEditorFrame::MakeTabRow()
{
	FTabLook Level;
	Level.Name = "Level";
	Level.Label = TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateStatic(&GetLevelName));
	Level.Icon = Style.GetSmallIcon("Map");
	// clang-format off
	return SNew(SBorder)
		.BorderImage(FFrameStyle::GetTabWell())
		.Padding(FMargin(0.0f))
		.Visibility(this, &SEditorFrame::ShowAbove, TabRowHeight)
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			.Padding(FMargin(8.0f, 2.0f, 6.0f, 0.0f))
			[
				SNew(SBox)
				.WidthOverride(16.0f)
				.HeightOverride(16.0f)
				[
					SNew(SImage).Image(Style.GetSmallIcon("Layers"))
				]
			]
			+ SHorizontalBox::Slot()
			.FillWidth(1.0f)
			[
				SNew(STabStrip, std::vector<FTabLook>{Level}).Front(FName("Level"))
			]
		];
	// clang-format on
}

TSharedRef<SWidget> SEditorFrame::MakeMenuRow()
{
	MenuBar = UToolMenus::Get()->GenerateWidget(FrameMenus::MainMenu, FToolMenuContext(CommandList));
	// clang-format off
	return SNew(SBorder)
		.BorderImage(FFrameStyle::GetPanel())
		.Padding(FMargin(2.0f, 2.0f, 4.0f, 2.0f))
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.FillWidth(1.0f)
			.HAlign(HAlign_Left)
			[
				MenuBar.ToSharedRef()
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			[
				SNew(SBorder)
				.BorderImage(FFrameStyle::GetNameBox())
				.Padding(FMargin(10.0f, 1.0f, 10.0f, 2.0f))
				.Visibility_Lambda([this]() { return ShownIf(GetCachedGeometry().GetLocalSize().X >= NameWidth); })
				[
					SNew(STextBlock)
					.Text(FText::FromString(FromUtf8(Content.ProjectName)))
				]
			]
		];
	// clang-format on
}

TSharedRef<SWidget> SEditorFrame::MakeToolBar()
{
	// clang-format off
	return SNew(SBorder)
		.BorderImage(FFrameStyle::GetPanel())
		.Padding(FMargin(4.0f, 0.0f, 4.0f, 3.0f))
		.Visibility(this, &SEditorFrame::ShowAbove, ToolBarHeight)
		[
			UToolMenus::Get()->GenerateWidget(FrameMenus::ToolBar, FToolMenuContext(CommandList))
		];
	// clang-format on
}

TSharedRef<SWidget> SEditorFrame::MakeLevelArea(const TSharedRef<SWidget>& LevelEditor)
{
	std::vector<FTabLook> Tabs;
	for (int32 Tab = 1; Tab <= 4; ++Tab)
	{
		FTabLook Look;
		Look.Name = TabName(Tab);
		Look.Label = FText::FromName(TabName(Tab));
		Look.bClosable = Tab > 1;
		Look.Visibility = TAttribute<EVisibility>::Create(
			TAttribute<EVisibility>::FGetter::CreateLambda([Tab]() { return ShownIf(StandIn::GetViewportTabs().Contains(Tab)); }));
		Tabs.push_back(Look);
	}
	// clang-format off
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SNew(STabStrip, Tabs)
			.Visibility_Lambda([]() { return ShownIf(StandIn::IsLevelEditorOpen() && StandIn::GetViewportTabs().Num() > 1); })
			.Front_Lambda([]() { return TabName(StandIn::GetFrontViewportTab()); })
			.OnChosen_Lambda([](FName Name) { StandIn::OpenViewportTab(TabNumber(Name), "OnePane"); })
			.OnClosed_Lambda([](FName Name) { StandIn::CloseViewportTab(TabNumber(Name)); })
		]
		+ SVerticalBox::Slot()
		.FillHeight(1.0f)
		[
			SNew(SOverlay)
			+ SOverlay::Slot()
			[
				LevelEditor
			]
			+ SOverlay::Slot()
			[
				SNew(SPaneLines)
			]
		];
	// clang-format on
}

void SEditorFrame::AddPanel(const TSharedRef<SVerticalBox>& Column, const FName& Panel, const TSharedRef<SWidget>& Widget)
{
	Panels.emplace(Panel, Widget);
	// clang-format off
	Column->AddSlot()
	.FillHeight(1.0f)
	[
		SNew(SBox)
		.Visibility_Lambda([this, Panel]() { return ShownIf(State.FrontTab == ToUtf8(Panel.ToString())); })
		[
			Widget
		]
	];
	// clang-format on
}

TSharedRef<SWidget> SEditorFrame::MakeBottomArea()
{
	const auto MakeLook = [this](const FName& Name, const FText& Label, const FSlateBrush* Icon) {
		FTabLook Look;
		Look.Name = Name;
		Look.Label = Label;
		Look.Icon = Icon;
		Look.bClosable = true;
		Look.Visibility = TAttribute<EVisibility>::Create(
			TAttribute<EVisibility>::FGetter::CreateLambda([this, Name]() { return ShownIf(IsPanelOpen(Name)); }));
		return Look;
	};
	const std::vector<FTabLook> Tabs = {
		MakeLook(FrameMenus::BrowserPanel, Commands.ContentBrowser->GetLabel(), Style.GetSmallIcon("Folder")),
		MakeLook(FrameMenus::LogPanel, Commands.OutputLog->GetLabel(), Style.GetSmallIcon("Log"))};
	// clang-format off
	const TSharedRef<SVerticalBox> Column = SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SNew(STabStrip, Tabs)
			.Front_Lambda([this]() { return FName(*FromUtf8(State.FrontTab)); })
			.OnChosen_Lambda([this](FName Name) {
				State.FrontTab = ToUtf8(Name.ToString());
				Announce();
			})
			.OnClosed(this, &SEditorFrame::TogglePanel)
		];
	// clang-format on
	AddPanel(Column, FrameMenus::BrowserPanel, SNew(SContentBrowser));
	if (Content.Log)
	{
		AddPanel(Column, FrameMenus::LogPanel, SNew(SOutputLog).Log(Content.Log).Console(Content.Console));
	}
	return SNew(SBorder)
		.BorderImage(FFrameStyle::GetPanel())
		.Padding(FMargin(0.0f))
		.Visibility(this, &SEditorFrame::GetBottomVisibility)[Column];
}

TSharedRef<SWidget> SEditorFrame::MakeMiddle(const TSharedRef<SWidget>& LevelEditor)
{
	const TSharedRef<SSplitter> Middle = SNew(SSplitter)
											 .Orientation(Orient_Vertical)
											 .PhysicalSplitterHandleSize(5.0f)
											 .MinimumSlotHeight(60.0f)
											 .OnSplitterFinishedResizing(this, &SEditorFrame::Announce);
	const auto Share = [this](float (SEditorFrame::*Getter)() const) {
		return TAttribute<float>::Create(TAttribute<float>::FGetter::CreateSP(this, Getter));
	};
	// clang-format off
	Middle->AddSlot()
	.Value(Share(&SEditorFrame::GetLevelShare))
	.OnSlotResized(SSplitter::FOnSlotResized::CreateLambda([](float) {}))
	[
		MakeLevelArea(LevelEditor)
	];
	Middle->AddSlot()
	.Value(Share(&SEditorFrame::GetBottomShare))
	.OnSlotResized(SSplitter::FOnSlotResized::CreateSP(this, &SEditorFrame::OnBottomResized))
	[
		MakeBottomArea()
	];
	return SNew(SBorder)
		.BorderImage(FFrameStyle::GetTabWell())
		.Padding(FMargin(0.0f))
		[
			Middle
		];
	// clang-format on
}

TSharedRef<SWidget> SEditorFrame::MakeStatusLine()
{
	// clang-format off
	return SNew(SBox)
		.Visibility(this, &SEditorFrame::ShowAbove, StatusHeight)
		[
			SNew(SStatusLine)
			.ProjectName(FText::FromString(FromUtf8(Content.ProjectName)))
			.ProjectFolder(FText::FromString(FromUtf8(Content.ProjectFolder)))
			.ReadOnly_Lambda([this]() { return Content.IsReadOnly && Content.IsReadOnly(); })
			.OnNoticesClicked_Lambda([this]() { Notices->ShowAgain(); })
		];
	// clang-format on
}
}

#undef LOCTEXT_NAMESPACE
