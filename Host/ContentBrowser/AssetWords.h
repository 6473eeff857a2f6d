// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/ContentItem.h"

class IAssetTypeActions;

// What the content browser says of an asset.

namespace TintmillHost
{
/** The actions of an asset's type; null if it has none. */
TSharedPtr<IAssetTypeActions> FindTypeActions(const UClass* Class);

/** The class of an item; null for folders and for classes that are not loaded. */
const UClass* GetItemClass(const FContentItem& Item);

/** The name of an asset's type. */
FText GetTypeName(const FContentItem& Item);

/** Why an asset that is in memory cannot be used; empty if it can. */
FString GetAssetProblem(const FContentItem& Item);
}
