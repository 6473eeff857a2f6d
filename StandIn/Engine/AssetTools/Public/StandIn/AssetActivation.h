// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/AssetData.h"
#include "IAssetTypeActions.h"

// The roads that a content browser takes when a person opens assets or makes a new one. Not part of the engine.

class UFactory;

namespace StandIn
{
/** Does what a double click on assets does: loads them, groups them by their actions and opens each group. */
ASSETTOOLS_API void ActivateAssets(const TArray<FAssetData>& Assets, EAssetTypeActivationMethod::Type ActivationMethod);

/** A new asset whose name the person has still to confirm; it is not made yet. */
struct FPendingNewAsset
{
	/** Factory object of its own, kept from collection until the end. */
	UFactory* Factory;

	/** Folder, for example "/Game/Looks". */
	FString PackagePath;

	/** Proposed name, free at the moment. */
	FString AssetName;
};

/** Begins a new asset with a factory of the class of the given default object; false if the factory cancels. */
ASSETTOOLS_API bool BeginNewAsset(UFactory* DefaultFactory, const FString& PackagePath, FPendingNewAsset& OutPending);

/** Makes the asset under the confirmed name and, if its factory asks for it, opens it; null if it was refused. */
ASSETTOOLS_API UObject* CommitNewAsset(FPendingNewAsset& Pending, const FString& AssetName);

/** Drops a new asset that the person did not confirm. */
ASSETTOOLS_API void CancelNewAsset(FPendingNewAsset& Pending);

/** One line of the new-asset menu. */
struct FNewAssetMenuEntry
{
	/** Default object of the factory. */
	UFactory* Factory;

	/** Name on the line. */
	FString Label;

	/** Name of the submenu, empty for the top level. */
	FString Category;
};

/** The new-asset menu as it stands now: basic ones at the top level, the others by category. */
ASSETTOOLS_API TArray<FNewAssetMenuEntry> ListNewAssetMenu();
}
