// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "AssetRegistry/AssetData.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"

// The asset registry's module, statically linked under the name "AssetRegistry". Left out: ticking, dependency queries.

/** Module of the asset registry. */
class ASSETREGISTRY_API FAssetRegistryModule : public IModuleInterface
{
public:
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	/** The registry. */
	virtual IAssetRegistry& Get() const;
	/** The registry; loads the module if need be. */
	static IAssetRegistry& GetRegistry();

	/** Tells the registry of a new asset in memory. */
	static void AssetCreated(UObject* NewAsset) { GetRegistry().AssetCreated(NewAsset); }
	/** Tells the registry of an asset that is being deleted. */
	static void AssetDeleted(UObject* DeletedAsset) { GetRegistry().AssetDeleted(DeletedAsset); }
	/** Tells the registry of an asset that has a new path. */
	static void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath)
	{
		GetRegistry().AssetRenamed(RenamedAsset, OldObjectPath);
	}
	/** Tells the registry of a package that is being deleted. */
	static void PackageDeleted(UPackage* DeletedPackage) { GetRegistry().PackageDeleted(DeletedPackage); }

private:
	IAssetRegistry* AssetRegistry = nullptr;
};
