// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/ObjectSystem.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/ModuleHooks.h"
#include "StandIn/ReflectionData.h"
#include "StandIn/Registrations.h"
#include "UObject/MetaData.h"
#include "UObject/NativeTypes.h"
#include "UObject/ObjectRemoval.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/UnrealType.h"

namespace StandInPrivate
{
namespace
{
struct FObjectSystem
{
	bool bInitialized = false;
	bool bBound = false;
	UPackage* TransientPackage = nullptr;
};

FObjectSystem& GetSystem()
{
	static FObjectSystem System;
	return System;
}

FString GetScriptPackageName(const FName& ModuleName)
{
	return FString(TEXT("/Script/")) + ModuleName.ToString();
}

void OnModuleUnloading(FName ModuleName)
{
	StandIn::DropModuleTypes(ModuleName);
}

void BindEvents()
{
	FObjectSystem& System = GetSystem();
	if (!System.bBound)
	{
		System.bBound = true;
		FModuleManager::Get().OnProcessLoadedObjectsCallback().AddStatic(&ProcessNewlyLoadedUObjects);
		StandIn::OnModuleBinaryUnloading().AddStatic(&OnModuleUnloading);
		FCoreDelegates::OnExit.AddStatic(&StandIn::ShutdownObjectSystem);
		StandIn::AddDelegate(TEXT("FCoreUObjectDelegates::OnObjectPropertyChanged"), FCoreUObjectDelegates::OnObjectPropertyChanged);
		StandIn::AddDelegate(TEXT("FCoreUObjectDelegates::OnAssetLoaded"), FCoreUObjectDelegates::OnAssetLoaded);
		StandIn::AddDelegate(
			TEXT("FCoreUObjectDelegates::GetPreGarbageCollectDelegate"), FCoreUObjectDelegates::GetPreGarbageCollectDelegate());
		StandIn::AddDelegate(TEXT("FCoreUObjectDelegates::GetPostGarbageCollect"), FCoreUObjectDelegates::GetPostGarbageCollect());
		StandIn::AddRegistry(TEXT("AssetFileTypes"), [](TArray<StandIn::FRegistration>& OutRegistrations) {
			for (const StandIn::FAssetFileType& Type : StandIn::GetAssetFileTypes())
			{
				OutRegistrations.Add(StandIn::FRegistration{TEXT("AssetFileTypes"), Type.Extension, nullptr});
			}
		});
	}
}

TArray<TPair<FString, FString>> ListMetaData(const TMap<FName, FString>* Map)
{
	TArray<TPair<FString, FString>> Result;
	if (Map != nullptr)
	{
		for (const TPair<FName, FString>& Entry : *Map)
		{
			Result.Add(TPair<FString, FString>(Entry.Key.ToString(), Entry.Value));
		}
	}
	return Result;
}
}
}

bool UObjectInitialized()
{
	return StandInPrivate::GetSystem().bInitialized;
}

UPackage* GetTransientPackage()
{
	return StandInPrivate::GetSystem().TransientPackage;
}

void ProcessNewlyLoadedUObjects(FName Package, bool bCanProcessNewlyLoadedObjects)
{
	if (!UObjectInitialized() || !bCanProcessNewlyLoadedObjects)
	{
		return;
	}
	StandInPrivate::NoteProcessExit();
	StandInPrivate::ConstructQueuedTypes();
	if (!Package.IsNone())
	{
		StandInPrivate::WakeNativeTypes(StandInPrivate::GetScriptPackageName(Package));
	}
	for (UClass* Class : StandInPrivate::GetAwakeClasses())
	{
		if (Class->ClassDefaultObject == nullptr)
		{
			StandInPrivate::CheckParentsAreAwake(Class);
			Class->GetDefaultObject();
		}
	}
}

namespace StandIn
{
void StartObjectSystem()
{
	StandInPrivate::FObjectSystem& System = StandInPrivate::GetSystem();
	if (System.bInitialized)
	{
		return;
	}
	System.bInitialized = true;
	StandInPrivate::WakeAllNativeTypes();
	System.TransientPackage = CreatePackage(TEXT("/Engine/Transient"));
	System.TransientPackage->SetFlags(RF_Transient);
	System.TransientPackage->AddToRoot();
	StandInPrivate::BindEvents();
	ProcessNewlyLoadedUObjects();
	FModuleManager::Get().StartProcessingNewlyLoadedObjects();
}

void ShutdownObjectSystem()
{
	StandInPrivate::FObjectSystem& System = StandInPrivate::GetSystem();
	if (!System.bInitialized)
	{
		return;
	}
	StandInPrivate::DestroyAllObjects();
	StandInPrivate::SleepAllNativeTypes();
	System.TransientPackage = nullptr;
	System.bInitialized = false;
}

int32 GetNumObjects()
{
	return GUObjectArray.GetObjectArrayNumMinusAvailable();
}

TArray<UObject*> ListObjects()
{
	TArray<UObject*> Result;
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		UObject* Object = (UObject*)GUObjectArray.IndexToObject(Index)->Object;
		if (Object != nullptr && !Object->IsNative() && !Object->IsTemplate() && !Object->IsA(UPackage::StaticClass())
			&& !Object->IsA(UMetaData::StaticClass()))
		{
			Result.Add(Object);
		}
	}
	return Result;
}

void DropModuleTypes(const FName& ModuleName)
{
	if (UObjectInitialized())
	{
		// What nothing refers to any more may hold bindings of the library; it goes while they can still be destroyed.
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		StandInPrivate::DropNativeTypes(StandInPrivate::GetScriptPackageName(ModuleName));
	}
}

TArray<TPair<FString, FString>> GetMetaDataInOrder(const UField* Type)
{
	return StandInPrivate::ListMetaData(UMetaData::GetMapForObject(Type));
}

TArray<TPair<FString, FString>> GetMetaDataInOrder(const FField* Field)
{
	return StandInPrivate::ListMetaData(Field->GetMetaDataMap());
}

EPropertyFlags GetDeclaredPropertyFlags(const FProperty* Property)
{
	return Property->GetPropertyFlags() & ~CPF_ComputedFlags;
}

EStructFlags GetDeclaredStructFlags(const UScriptStruct* Struct)
{
	const int32 Computed = STRUCT_CopyNative | STRUCT_IdenticalNative | STRUCT_IsPlainOldData | STRUCT_NoDestructor | STRUCT_ZeroConstructor
		| STRUCT_AddStructReferencedObjects;
	return EStructFlags(Struct->StructFlags & ~Computed);
}
}
