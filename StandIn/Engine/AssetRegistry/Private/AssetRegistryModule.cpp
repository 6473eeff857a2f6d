// Copyright The Tintmill authors. All rights reserved.

#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetRegistryImpl.h"
#include "StandIn/Registrations.h"

IMPLEMENT_MODULE(FAssetRegistryModule, AssetRegistry)

namespace AssetRegistryPrivate
{
namespace
{
IAssetRegistry*& GetRegistryPointer()
{
	static IAssetRegistry* Registry = nullptr;
	return Registry;
}
}
}

IAssetRegistry* IAssetRegistry::Get()
{
	return AssetRegistryPrivate::GetRegistryPointer();
}

IAssetRegistry& IAssetRegistry::GetChecked()
{
	IAssetRegistry* Registry = Get();
	check(Registry);
	return *Registry;
}

void FAssetRegistryModule::StartupModule()
{
	AssetRegistry = new FAssetRegistryImpl;
	AssetRegistryPrivate::GetRegistryPointer() = AssetRegistry;
	StandIn::AddRegistry(TEXT("AssetRegistry"), [](TArray<StandIn::FRegistration>& OutRegistrations) {
		IAssetRegistry& Registry = IAssetRegistry::GetChecked();
		StandIn::ListBindings(TEXT("IAssetRegistry::OnAssetAdded"), Registry.OnAssetAdded(), OutRegistrations);
		StandIn::ListBindings(TEXT("IAssetRegistry::OnAssetRemoved"), Registry.OnAssetRemoved(), OutRegistrations);
		StandIn::ListBindings(TEXT("IAssetRegistry::OnAssetRenamed"), Registry.OnAssetRenamed(), OutRegistrations);
		StandIn::ListBindings(TEXT("IAssetRegistry::OnAssetUpdated"), Registry.OnAssetUpdated(), OutRegistrations);
		StandIn::ListBindings(TEXT("IAssetRegistry::OnPathAdded"), Registry.OnPathAdded(), OutRegistrations);
		StandIn::ListBindings(TEXT("IAssetRegistry::OnPathRemoved"), Registry.OnPathRemoved(), OutRegistrations);
		StandIn::ListBindings(TEXT("IAssetRegistry::OnFilesLoaded"), Registry.OnFilesLoaded(), OutRegistrations);
		StandIn::ListBindings(TEXT("IAssetRegistry::OnInMemoryAssetCreated"), Registry.OnInMemoryAssetCreated(), OutRegistrations);
		StandIn::ListBindings(TEXT("IAssetRegistry::OnInMemoryAssetDeleted"), Registry.OnInMemoryAssetDeleted(), OutRegistrations);
	});
}

void FAssetRegistryModule::ShutdownModule()
{
	StandIn::RemoveRegistry(TEXT("AssetRegistry"));
	AssetRegistryPrivate::GetRegistryPointer() = nullptr;
	delete AssetRegistry;
	AssetRegistry = nullptr;
}

IAssetRegistry& FAssetRegistryModule::Get() const
{
	check(AssetRegistry);
	return *AssetRegistry;
}

IAssetRegistry& FAssetRegistryModule::GetRegistry()
{
	return FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get();
}
