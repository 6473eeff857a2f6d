// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SWidget.h"

// Lets a program that plays a person find the rows of open menus by their labels. Not part of the engine.

namespace StandIn
{
/** What a person sees of one row of a menu. */
struct FMenuRow
{
	/** Label as it reads now; empty for a row that shows a widget of its own. */
	FString Label;

	/** Text of the tool tip as it reads now. */
	FString ToolTip;

	/** Text of the key that runs the entry, or empty. */
	FString InputText;

	/** The row's widget. */
	TSharedPtr<SWidget> Widget;

	/** Centre of the row in desktop pixels, where a click chooses it. */
	FVector2D Centre;

	/** Centre of the check column in desktop pixels. */
	FVector2D CheckCentre;

	/** True if the row can be chosen. */
	bool bEnabled;

	/** True if the row is drawn highlighted. */
	bool bHighlighted;

	/** True if the row shows a check mark column of its own: a tick box, a ring or a bare tick. */
	bool bHasCheck;

	/** Check state as it is drawn. */
	ECheckBoxState CheckState;

	/** True if the row's action runs again while its key is held. */
	bool bRepeats;

	/** True if the row opens a submenu. */
	bool bHasSubMenu;

	/** True if that submenu is open. */
	bool bSubMenuOpen;
};

/** All rows of menus below a widget, from top to bottom; positions are those of the last arrangement. */
SLATE_API TArray<FMenuRow> ListMenuRows(const TSharedRef<SWidget>& Root);

/** All headings of menu sections below a widget, from top to bottom. */
SLATE_API TArray<FString> ListMenuHeadings(const TSharedRef<SWidget>& Root);
}
