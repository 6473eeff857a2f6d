// Copyright The Tintmill authors. All rights reserved.

#include "AssetToolsModule.h"
#include "AssetTools.h"
#include "StandIn/Registrations.h"

IMPLEMENT_MODULE(FAssetToolsModule, AssetTools)

namespace AssetToolsModulePrivate
{
FAssetTools*& Current()
{
	static FAssetTools* Tools = nullptr;
	return Tools;
}

void ListRegistered(TArray<StandIn::FRegistration>& OutRegistrations)
{
	if (const FAssetTools* Tools = Current())
	{
		for (const TSharedRef<IAssetTypeActions>& Actions : Tools->GetAllActions())
		{
			OutRegistrations.Add(StandIn::FRegistration{TEXT("AssetTypeActions"), Actions->GetName().ToString(), &Actions.Get()});
		}
	}
}
}

FAssetToolsModule::FAssetToolsModule()
	: AssetTools(nullptr)
{}

FAssetToolsModule::~FAssetToolsModule() {}

void FAssetToolsModule::StartupModule()
{
	static bool bListed = false;
	if (!bListed)
	{
		bListed = true;
		StandIn::AddRegistry(TEXT("AssetTypeActions"), &AssetToolsModulePrivate::ListRegistered);
	}
	AssetToolsModulePrivate::Current() = new FAssetTools();
	AssetTools = AssetToolsModulePrivate::Current();
}

void FAssetToolsModule::ShutdownModule()
{
	AssetToolsModulePrivate::Current() = nullptr;
	delete AssetTools;
	AssetTools = nullptr;
}

IAssetTools& FAssetToolsModule::Get() const
{
	check(AssetTools);
	return *AssetTools;
}
