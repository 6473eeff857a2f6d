// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/AssetData.h"
#include "Styling/SlateBrush.h"
#include "Templates/Function.h"

// Not in the engine: where thumbnails of assets come from, in place of thumbnail renderers. Without a source, and for assets it
// has nothing for, lists show the thumbnail of the asset's class.

namespace StandIn
{
/** Returns the brush of an asset's own thumbnail, or null; called whenever a row is painted, so it must not load anything. */
typedef TFunction<const FSlateBrush*(const FAssetData& Asset)> FAssetThumbnails;

/** Sets the source of thumbnails; an unset one ends it. */
PROPERTYEDITOR_API void SetAssetThumbnails(const FAssetThumbnails& InThumbnails);

/** Returns the brush of an asset's own thumbnail, or null. */
PROPERTYEDITOR_API const FSlateBrush* FindAssetThumbnail(const FAssetData& Asset);
}
