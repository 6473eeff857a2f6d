// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/AssetData.h"
#include "Widgets/SWidget.h"

// Lets a program that plays a person find what an open asset picker lists. Not part of the engine.

namespace StandIn
{
/** One asset that a picker lists. */
struct FAssetPickerRow
{
	/** The asset. */
	FAssetData Asset;

	/** Name as it reads. */
	FString Label;

	/** Name of the type as it reads. */
	FString TypeLabel;

	/** True if it is the one that Enter chooses. */
	bool bSelected;

	/** True if the row is inside the visible part of the list. */
	bool bVisible;

	/** Centre of the row in desktop pixels; a click there chooses the asset if the row is visible. */
	FVector2D Centre;
};

/** What the picker below a widget shows. */
struct FAssetPickerState
{
	/** True if there is a picker. */
	bool bFound;

	/** The listed assets from top to bottom. */
	TArray<FAssetPickerRow> Rows;

	/** Text at the bottom, for example "3 items". */
	FString CountText;

	/** The search box. */
	TSharedPtr<SWidget> SearchBox;

	/** Top left corner of the list in desktop pixels. */
	FVector2D ListTopLeft;

	/** Size of the list in desktop pixels. */
	FVector2D ListSize;
};

/** Finds the first picker below a widget and tells what it shows. */
PROPERTYEDITOR_API FAssetPickerState GetAssetPickerState(const TSharedRef<SWidget>& Root);

/** Scrolls the list of the first picker below a widget so that an asset's row is visible; false if it is not listed. */
PROPERTYEDITOR_API bool ScrollAssetPickerTo(const TSharedRef<SWidget>& Root, const FString& Label);
}
