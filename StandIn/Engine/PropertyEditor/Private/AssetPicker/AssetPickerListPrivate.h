// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "IAssetTypeActions.h"

/** Measures and helpers of the asset list, in Slate units. */
namespace AssetPickerListPrivate
{
constexpr float RowHeight = 40.0f;
constexpr float ThumbnailSize = 32.0f;
constexpr float StripHeight = 3.0f;
constexpr float ScrollBarWidth = 8.0f;

/** The actions of an asset's type, or null. */
TSharedPtr<IAssetTypeActions> FindActions(const FAssetData& Asset);
}
