// Copyright The Tintmill authors. All rights reserved.

#include "SLevelViewportToolBar.h"
#include "LevelEditorViewport.h"
#include "SEditorViewportToolbarMenu.h"
#include "SLevelEditorViewportViewMenu.h"
#include "SLevelViewport.h"
#include "Widgets/SBoxPanel.h"

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
	// clang-format off
	ChildSlot
	.HAlign(HAlign_Left)
	.VAlign(VAlign_Top)
	.Padding(FMargin(4.0f))
	[
		SNew(SHorizontalBox)
		.Visibility(EVisibility::SelfHitTestInvisible)
		+ SHorizontalBox::Slot().AutoWidth().Padding(Gap)
		[
			SNew(SEditorViewportToolbarMenu).ParentToolBar(This).Label(LOCTEXT("OptionsMenu", "\u25BC"))
		]
		+ SHorizontalBox::Slot().AutoWidth().Padding(Gap)
		[
			SNew(SEditorViewportToolbarMenu).ParentToolBar(This).Label(this, &SLevelViewportToolBar::GetCameraLabel)
		]
		+ SHorizontalBox::Slot().AutoWidth().Padding(Gap)
		[
			ViewMenu
		]
		+ SHorizontalBox::Slot().AutoWidth().Padding(Gap)
		[
			SNew(SEditorViewportToolbarMenu).ParentToolBar(This).Label(LOCTEXT("ShowMenuTitle", "Show"))
		]
	];
	// clang-format on
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
