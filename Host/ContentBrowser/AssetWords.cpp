// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/AssetWords.h"

#include "AssetToolsModule.h"
#include "IAssetTypeActions.h"
#include "StandIn/LookFiles.h"
#include "Templates/Casts.h"
#include "TintmillObject.h"

namespace TintmillHost
{
TSharedPtr<IAssetTypeActions> FindTypeActions(const UClass* Class)
{
	return Class == nullptr ? TSharedPtr<IAssetTypeActions>()
							: FAssetToolsModule::GetModule().Get().GetAssetTypeActionsForClass(Class).Pin();
}

const UClass* GetItemClass(const FContentItem& Item)
{
	return Item.Kind == EContentKind::Asset ? Item.Asset.GetClass() : Item.Class;
}

FText GetTypeName(const FContentItem& Item)
{
	const TSharedPtr<IAssetTypeActions> Actions = FindTypeActions(GetItemClass(Item));
	if (!Actions.IsValid())
	{
		return FText::FromName(Item.Asset.AssetClass);
	}
	const FText OwnName = Actions->GetDisplayNameFromAssetData(Item.Asset);
	return OwnName.IsEmpty() ? Actions->GetName() : OwnName;
}

FString GetAssetProblem(const FContentItem& Item)
{
	const UTintmillObject* const Look = Item.Kind == EContentKind::Asset ? Cast<UTintmillObject>(Item.Asset.FastGetAsset(false)) : nullptr;
	return Look == nullptr ? FString() : StandIn::GetLookProblem(Look);
}
}
