// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/SEditorFrame.h"

#include "Host/Frame/FrameMenus.h"
#include "Host/Frame/SPaneLines.h"
#include "Host/Notices/SNoticeList.h"
#include "Host/Frame/FrameStyle.h"
#include "Host/Program/Strings.h"

#include "Framework/Application/SlateApplication.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"

namespace TintmillHost
{
namespace
{
using FrameMenus::BrowserPanel;
using FrameMenus::LogPanel;

/** Height of the window, in Slate units, below which the lower area hides, so that the panes keep some room. */
constexpr float BottomHeight = 400.0f;

constexpr float MinBottomShare = 0.05f;
constexpr float MaxBottomShare = 0.95f;

}

SEditorFrame::~SEditorFrame()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().SetUnhandledKeyDownEventHandler(FOnKeyEvent());
	}
	FrameMenus::Unregister();
}

void SEditorFrame::Construct(const FArguments& InArgs)
{
	Content = InArgs._Content;
	BindCommands();
	FrameMenus::Register(SharedThis(this));
	FSlateApplication::Get().SetUnhandledKeyDownEventHandler(FOnKeyEvent::CreateSP(this, &SEditorFrame::OnUnhandledKey));
	// clang-format off
	ChildSlot
	[
		SNew(SOverlay)
		+ SOverlay::Slot()
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				MakeTabRow()
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				MakeMenuRow()
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				MakeToolBar()
			]
			+ SVerticalBox::Slot()
			.FillHeight(1.0f)
			[
				MakeMiddle(InArgs._LevelEditor.ToSharedRef())
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				MakeStatusLine()
			]
		]
		+ SOverlay::Slot()
		[
			SNew(SFocusLine)
		]
		+ SOverlay::Slot()
		.HAlign(HAlign_Fill)
		.VAlign(VAlign_Fill)
		.Padding(FMargin(0.0f, 0.0f, 0.0f, 24.0f))
		[
			SAssignNew(Notices, SNoticeList)
		]
	];
	// clang-format on
}

EVisibility SEditorFrame::ShowAbove(float Height) const
{
	// Before the first layout there is no height, and everything counts as having room.
	const float MyHeight = GetCachedGeometry().GetLocalSize().Y;
	return ShownIf(MyHeight <= 0.0f || MyHeight >= Height);
}

void SEditorFrame::OnBottomResized(float NewShare)
{
	State.BottomShare = FMath::Clamp(NewShare, MinBottomShare, MaxBottomShare);
}

bool SEditorFrame::IsPanelOpen(const FName& Panel) const
{
	return Panels.count(Panel) > 0 && (Panel == BrowserPanel ? State.bContentBrowserOpen : State.bOutputLogOpen);
}

bool SEditorFrame::IsBottomShown() const
{
	return (IsPanelOpen(BrowserPanel) || IsPanelOpen(LogPanel)) && ShowAbove(BottomHeight).IsVisible();
}

EVisibility SEditorFrame::GetBottomVisibility() const
{
	return ShownIf(IsBottomShown());
}

void SEditorFrame::SetState(const FFrameState& NewState)
{
	State.BottomShare =
		NewState.BottomShare >= MinBottomShare && NewState.BottomShare <= MaxBottomShare ? NewState.BottomShare : State.BottomShare;
	State.bContentBrowserOpen = NewState.bContentBrowserOpen;
	State.bOutputLogOpen = NewState.bOutputLogOpen;
	const FName Wanted(*FromUtf8(NewState.FrontTab));
	const FName Other = Wanted == BrowserPanel ? LogPanel : BrowserPanel;
	State.FrontTab =
		ToUtf8((IsPanelOpen(Wanted) || !IsPanelOpen(Other) ? (Panels.count(Wanted) ? Wanted : BrowserPanel) : Other).ToString());
}

void SEditorFrame::TogglePanel(FName Panel)
{
	FFrameState NewState = State;
	bool& bOpen = Panel == BrowserPanel ? NewState.bContentBrowserOpen : NewState.bOutputLogOpen;
	bOpen = !bOpen;
	if (bOpen)
	{
		NewState.FrontTab = ToUtf8(Panel.ToString());
	}
	SetState(NewState);
	Announce();
}

void SEditorFrame::ShowPanel(FName Panel)
{
	const auto Found = Panels.find(Panel);
	if (Found == Panels.end())
	{
		return;
	}
	FFrameState NewState = State;
	(Panel == BrowserPanel ? NewState.bContentBrowserOpen : NewState.bOutputLogOpen) = true;
	NewState.FrontTab = ToUtf8(Panel.ToString());
	if (NewState != State)
	{
		SetState(NewState);
		Announce();
	}
	FocusFirst(Found->second.ToSharedRef());
}
}
