// Copyright The Tintmill authors. All rights reserved.

#include "SLevelViewportToolBar.h"
#include "LevelEditorMenuContext.h"
#include "LevelEditorViewport.h"
#include "LevelViewportMenus.h"
#include "SEditorViewportToolbarMenu.h"
#include "SLevelEditorViewportViewMenu.h"
#include "SLevelViewport.h"
#include "StandIn/BrushShape.h"
#include "Styling/CoreStyle.h"
#include "ToolMenus.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SToolTip.h"

#define LOCTEXT_NAMESPACE "LevelViewportToolBar"

void SLevelViewportToolBar::Construct(const FArguments& InArgs)
{
	check(InArgs._Viewport.IsValid());
	Viewport = InArgs._Viewport;
	SViewportToolBar::Construct(SViewportToolBar::FArguments());
	const TSharedRef<SViewportToolBar> This = SharedThis(this);
	const TSharedRef<SLevelEditorViewportViewMenu> ViewMenu = SNew(SLevelEditorViewportViewMenu, InArgs._Viewport.ToSharedRef(), This);
	ViewMenuButton = ViewMenu;
	SetVisibility(EVisibility::SelfHitTestInvisible);
	const FMargin Gap(0.0f, 0.0f, 2.0f, 0.0f);
	const auto GetMenu = [this](FName MenuName) { return FOnGetContent::CreateSP(this, &SLevelViewportToolBar::MakeMenu, MenuName); };
	// clang-format off
	ChildSlot
	.VAlign(VAlign_Top)
	.Padding(FMargin(4.0f))
	[
		SNew(SHorizontalBox)
		.Visibility(EVisibility::SelfHitTestInvisible)
		+ SHorizontalBox::Slot().FillWidth(1.0f).HAlign(HAlign_Left)
		[
			SNew(SHorizontalBox)
			.Visibility(EVisibility::SelfHitTestInvisible)
			.Clipping(EWidgetClipping::ClipToBounds)
			+ SHorizontalBox::Slot().AutoWidth().Padding(Gap)
			[
				SNew(SEditorViewportToolbarMenu)
				.ParentToolBar(This)
				.Label(LOCTEXT("OptionsMenu", "\u25BC"))
				.OnGetMenuContent(GetMenu(LevelViewportMenus::GetOptionsName()))
			]
			+ SHorizontalBox::Slot().AutoWidth().Padding(Gap)
			[
				SNew(SEditorViewportToolbarMenu)
				.ParentToolBar(This)
				.Label(this, &SLevelViewportToolBar::GetCameraLabel)
				.OnGetMenuContent(GetMenu(LevelViewportMenus::GetCameraName()))
			]
			+ SHorizontalBox::Slot().AutoWidth().Padding(Gap)
			[
				ViewMenu
			]
			+ SHorizontalBox::Slot().AutoWidth().Padding(Gap)
			[
				SNew(SEditorViewportToolbarMenu)
				.ParentToolBar(This)
				.Label(LOCTEXT("ShowMenuTitle", "Show"))
				.OnGetMenuContent(GetMenu(LevelViewportMenus::GetShowName()))
			]
		]
		+ SHorizontalBox::Slot().AutoWidth()
		[
			MakeMaximizeButton()
		]
	];
	// clang-format on
}

TSharedRef<SWidget> SLevelViewportToolBar::MakeMaximizeButton()
{
	// clang-format off
	return SNew(SButton)
		.ButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("ViewportToolBar.Button"))
		.ContentPadding(FMargin(4.0f, 3.0f))
		.Tag("Maximize")
		.ToolTip(TSharedPtr<IToolTip>(SNew(SToolTip).Text(this, &SLevelViewportToolBar::GetMaximizeToolTip)))
		.OnClicked(this, &SLevelViewportToolBar::OnToggleMaximize)
		[
			SNew(SBox)
			.Visibility(EVisibility::HitTestInvisible)
			.WidthOverride(14.0f)
			.HeightOverride(14.0f)
			[
				SNew(SImage).Image(this, &SLevelViewportToolBar::GetMaximizeImage)
			]
		];
	// clang-format on
}

TSharedRef<SWidget> SLevelViewportToolBar::MakeMenu(FName MenuName)
{
	LevelViewportMenus::Register();
	ULevelViewportToolBarContext* Context = NewObject<ULevelViewportToolBarContext>();
	Context->LevelViewportToolBarWidget = SharedThis(this);
	FToolMenuContext MenuContext(Context);
	if (const TSharedPtr<SLevelViewport> Pinned = Viewport.Pin())
	{
		MenuContext.AppendCommandList(Pinned->GetCommandList());
	}
	return UToolMenus::Get()->GenerateWidget(MenuName, MenuContext);
}

FReply SLevelViewportToolBar::OnToggleMaximize()
{
	if (const TSharedPtr<SLevelViewport> Pinned = Viewport.Pin())
	{
		Pinned->OnToggleMaximize();
	}
	return FReply::Handled();
}

const FSlateBrush* SLevelViewportToolBar::GetMaximizeImage() const
{
	const TSharedPtr<SLevelViewport> Pinned = Viewport.Pin();
	return FCoreStyle::Get().GetBrush(Pinned.IsValid() && Pinned->IsMaximized() ? "ViewportToolBar.Restore" : "ViewportToolBar.Maximize");
}

FText SLevelViewportToolBar::GetMaximizeToolTip() const
{
	const TSharedPtr<SLevelViewport> Pinned = Viewport.Pin();
	return Pinned.IsValid() && Pinned->IsMaximized() ? LOCTEXT("Restore_ToolTip", "Restores this viewport")
													 : LOCTEXT("Maximize_ToolTip", "Maximizes this viewport");
}

FText SLevelViewportToolBar::GetCameraLabel() const
{
	const TSharedPtr<SLevelViewport> Pinned = Viewport.Pin();
	const ELevelViewportType Type = Pinned.IsValid() ? Pinned->GetLevelViewportClient().GetViewportType() : LVT_Perspective;
	switch (Type)
	{
	case LVT_Perspective:
		return LOCTEXT("CameraMenuTitle_Perspective", "Perspective");
	case LVT_OrthoXY:
		return LOCTEXT("CameraMenuTitle_Top", "Top");
	case LVT_OrthoNegativeXY:
		return LOCTEXT("CameraMenuTitle_Bottom", "Bottom");
	case LVT_OrthoYZ:
		return LOCTEXT("CameraMenuTitle_Left", "Left");
	case LVT_OrthoNegativeYZ:
		return LOCTEXT("CameraMenuTitle_Right", "Right");
	case LVT_OrthoXZ:
		return LOCTEXT("CameraMenuTitle_Front", "Front");
	case LVT_OrthoNegativeXZ:
		return LOCTEXT("CameraMenuTitle_Back", "Back");
	default:
		return LOCTEXT("CameraMenuTitle_Ortho", "Orthographic");
	}
}

#undef LOCTEXT_NAMESPACE
