// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "IAssetTools.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"

// Module of the asset tools. While the module is loaded its tools are there; after it is unloaded everything registered is gone.

/** The module "AssetTools". */
class ASSETTOOLS_API FAssetToolsModule : public IModuleInterface
{
public:
	FAssetToolsModule();
	virtual ~FAssetToolsModule();

	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	/** The tools. */
	virtual IAssetTools& Get() const;

	/** The module, loaded if it is not. */
	static FAssetToolsModule& GetModule()
	{
		static const FName ModuleName = TEXT("AssetTools");
		return FModuleManager::LoadModuleChecked<FAssetToolsModule>(ModuleName);
	}

private:
	IAssetTools* AssetTools;
};
