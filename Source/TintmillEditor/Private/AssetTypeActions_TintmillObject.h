// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetTypeActions_Base.h"

struct FAssetData;
class IToolkitHost;
class UClass;
class UObject;

/** Presents look assets in the content browser and opens them in the look builder. */
class FAssetTypeActions_TintmillObject : public FAssetTypeActions_Base
{
public:
	//~ Begin IAssetTypeActions interface
	virtual FText GetName() const override;
	virtual UClass* GetSupportedClass() const override;
	virtual FColor GetTypeColor() const override;
	virtual void OpenAssetEditor(
		const TArray<UObject*>& InObjects, TSharedPtr<IToolkitHost> EditWithinLevelEditor = TSharedPtr<IToolkitHost>()) override;
	virtual uint32 GetCategories() override;
	virtual FText GetAssetDescription(const FAssetData& AssetData) const override;
	virtual bool IsImportedAsset() const override;
	//~ End IAssetTypeActions interface
};
