// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/ViewportToolBarButtons.h"
#include "Layout/Children.h"
#include "SEditorViewportToolbarMenu.h"

namespace ViewportToolBarButtonsPrivate
{
void Collect(const TSharedRef<SWidget>& Widget, const bool bInToolBar, TArray<StandIn::FViewportToolBarButton>& OutButtons)
{
	if (!Widget->GetVisibility().IsVisible())
	{
		return;
	}
	// Toolbars hold nothing that takes a press but their buttons.
	const bool bToolBar = bInToolBar || Widget->GetTypeAsString().EndsWith(TEXT("ViewportToolBar"));
	const bool bButton =
		Widget->GetType() == TEXT("SEditorViewportToolbarMenu") || Widget->GetTypeAsString().EndsWith(TEXT("ViewportViewMenu"));
	if (bToolBar && bButton)
	{
		const TSharedRef<SEditorViewportToolbarMenu> Button = StaticCastSharedRef<SEditorViewportToolbarMenu>(Widget);
		StandIn::FViewportToolBarButton Found;
		Found.Label = Button->GetLabel().ToString();
		Found.Widget = Button;
		Found.Centre = Button->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f));
		Found.bMenuOpen = Button->IsMenuOpen();
		OutButtons.Add(Found);
		return;
	}
	FChildren* Children = Widget->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		Collect(Children->GetChildAt(Index), bToolBar, OutButtons);
	}
}
}

TArray<StandIn::FViewportToolBarButton> StandIn::ListViewportToolBarButtons(const TSharedRef<SWidget>& Root)
{
	TArray<FViewportToolBarButton> Buttons;
	ViewportToolBarButtonsPrivate::Collect(Root, false, Buttons);
	return Buttons;
}
