// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ScanProgress.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Modules/ModuleManager.h"

namespace TintmillHost
{
FScanProgress::FScanProgress()
{
	Modules = FModuleManager::Get().OnModulesChanged().AddLambda([this](FName Name, EModuleChangeReason Reason) {
		if (Reason == EModuleChangeReason::ModuleLoaded && Name == FName(TEXT("AssetRegistry")))
		{
			Watch();
		}
	});
	if (IAssetRegistry::Get() != nullptr)
	{
		Watch();
	}
}

FScanProgress::~FScanProgress()
{
	FModuleManager::Get().OnModulesChanged().Remove(Modules);
	if (IAssetRegistry* const Registry = IAssetRegistry::Get())
	{
		Registry->OnFileLoadProgressUpdated().Remove(Reports);
	}
}

void FScanProgress::Watch()
{
	Progress.emplace("Scanning the content folder");
	Reports = IAssetRegistry::GetChecked().OnFileLoadProgressUpdated().AddLambda(
		[this](const IAssetRegistry::FFileLoadProgressUpdateData& Data) { Progress->SetDone(Data.NumTotalAssets); });
}
}
