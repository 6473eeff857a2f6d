// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetTypeCategories.h"
#include "IAssetTypeActions.h"

class UFactory;

// Asset type actions, creating and opening of assets. A plain class here, not a reflected interface; importing, renaming,
// duplicating, differences and migration are left out.

/** The editor's tools for assets. */
class IAssetTools
{
public:
	virtual ~IAssetTools() {}

	/** Registers the actions of a type; holds them until the same reference is unregistered. */
	virtual void RegisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& NewActions) = 0;

	/** Unregisters the actions of a type; unknown ones are ignored. */
	virtual void UnregisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& ActionsToRemove) = 0;

	/** Adds all registered actions in the order of their registration. */
	virtual void GetAssetTypeActionsList(TArray<TWeakPtr<IAssetTypeActions>>& OutAssetTypeActionsList) const = 0;

	/** The actions whose class is the nearest ancestor; of several the one registered last; none gives an empty pointer. */
	virtual TWeakPtr<IAssetTypeActions> GetAssetTypeActionsForClass(const UClass* Class) const = 0;

	/** The bit of a category, made if the key is new; Misc when all bits are taken. */
	virtual EAssetTypeCategories::Type RegisterAdvancedAssetCategory(FName CategoryKey, FText CategoryDisplayName) = 0;

	/** The bit of a category, or Misc if the key is unknown. */
	virtual EAssetTypeCategories::Type FindAdvancedAssetCategory(FName CategoryKey) const = 0;

	/** Makes an asset in a folder such as "/Game/Looks"; null if the factory or a name that is taken refuses it. */
	virtual UObject* CreateAsset(
		const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext = NAME_None) = 0;

	/** Finds a free name: the plain one, then with 1, 2, … appended. */
	virtual void CreateUniqueAssetName(
		const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName) = 0;

	/** Opens assets for editing through the asset editor subsystem. */
	virtual void OpenEditorForAssets(const TArray<UObject*>& Assets) = 0;

	/** The default objects of all loaded factories that show in the new-asset menu. */
	virtual TArray<UFactory*> GetNewAssetFactories() const = 0;
};
