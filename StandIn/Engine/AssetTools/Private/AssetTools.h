// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "IAssetTools.h"

/** The one implementation of the asset tools. */
class FAssetTools : public IAssetTools
{
public:
	virtual void RegisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& NewActions) override;
	virtual void UnregisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& ActionsToRemove) override;
	virtual void GetAssetTypeActionsList(TArray<TWeakPtr<IAssetTypeActions>>& OutAssetTypeActionsList) const override;
	virtual TWeakPtr<IAssetTypeActions> GetAssetTypeActionsForClass(const UClass* Class) const override;
	virtual EAssetTypeCategories::Type RegisterAdvancedAssetCategory(FName CategoryKey, FText CategoryDisplayName) override;
	virtual EAssetTypeCategories::Type FindAdvancedAssetCategory(FName CategoryKey) const override;
	virtual UObject* CreateAsset(
		const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext) override;
	virtual void CreateUniqueAssetName(
		const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName) override;
	virtual void OpenEditorForAssets(const TArray<UObject*>& Assets) override;
	virtual TArray<UFactory*> GetNewAssetFactories() const override;

	/** Name of a category for people; empty if the bit is not used. */
	FText GetCategoryName(const uint32 Bit) const;

	/** The registered actions, for listing. */
	const TArray<TSharedRef<IAssetTypeActions>>& GetAllActions() const { return AllActions; }

private:
	struct FAdvancedCategory
	{
		FName Key;
		FText DisplayName;
		EAssetTypeCategories::Type Bit;
	};

	TArray<TSharedRef<IAssetTypeActions>> AllActions;
	TArray<FAdvancedCategory> AdvancedCategories;
};
