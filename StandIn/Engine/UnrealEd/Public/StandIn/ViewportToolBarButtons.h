// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/SWidget.h"

// Lets a program that plays a person find the buttons of viewport toolbars by their labels. Not part of the engine.

namespace StandIn
{
/** What a person sees of one button of a viewport's toolbar. */
struct FViewportToolBarButton
{
	/** Label as it reads now. */
	FString Label;

	/** The button's widget. */
	TSharedPtr<SWidget> Widget;

	/** Centre of the button in desktop pixels, where a click presses it. */
	FVector2D Centre;

	/** True while its menu is open. */
	bool bMenuOpen;
};

/** All buttons of viewport toolbars below a widget, from left to right; positions are those of the last arrangement. */
UNREALED_API TArray<FViewportToolBarButton> ListViewportToolBarButtons(const TSharedRef<SWidget>& Root);
}
