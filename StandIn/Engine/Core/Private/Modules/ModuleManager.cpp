// Copyright The Tintmill authors. All rights reserved.

#include "Modules/ModuleManager.h"

#include "CoreGlobals.h"
#include "HAL/LibraryAddress.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Paths.h"
#include "StandIn/ModuleHooks.h"
#include "StandIn/Registrations.h"

DEFINE_LOG_CATEGORY(LogModuleManager);

/** Lets the stand-in's hooks reach into the module manager. */
struct FModuleManagerAccess
{
	static void RemoveBinariesDirectory(const FString& Directory)
	{
		FModuleManager::Get().BinariesDirectories.RemoveAll(
			[&Directory](const FString& Other) { return FPaths::IsSamePath(Other, Directory); });
	}

	static bool IsMapped(FName ModuleName)
	{
		const FModuleManager::FModuleInfoPtr Info = FModuleManager::Get().FindModule(ModuleName);
		return Info.IsValid() && Info->Handle;
	}

	static bool IsInBinary(FName ModuleName, const void* Address)
	{
		const FModuleManager::FModuleInfoPtr Info = FModuleManager::Get().FindModule(ModuleName);
		return Info.IsValid() && Info->Handle && StandInPrivate::IsInLibrary(Info->Handle, Address);
	}

	static void ListModules(TArray<StandIn::FRegistration>& Out)
	{
		for (const TPair<FName, FModuleManager::FModuleInfoPtr>& Pair : FModuleManager::Get().Modules)
		{
			if (Pair.Value->Module.IsValid())
			{
				StandIn::FRegistration Entry;
				Entry.Registry = TEXT("Modules");
				Entry.Name = Pair.Key.ToString();
				Entry.Owner = Pair.Value->Module.Get();
				Out.Add(Entry);
			}
		}
	}
};

FModuleManager::FModuleManager()
	: CurrentLoadOrder(1)
	, bCanProcessNewlyLoadedObjects(false)
{
	StandIn::AddRegistry(TEXT("Modules"), [](TArray<StandIn::FRegistration>& Out) { FModuleManagerAccess::ListModules(Out); });
}

FModuleManager::~FModuleManager() {}

FModuleManager& FModuleManager::Get()
{
	static FModuleManager* const Manager = new FModuleManager();
	return *Manager;
}

FModuleManager::FModuleInfoPtr FModuleManager::FindModule(FName InModuleName) const
{
	const FModuleInfoPtr* const Found = Modules.Find(InModuleName);
	return Found ? *Found : FModuleInfoPtr();
}

FModuleManager::FModuleInfoPtr FModuleManager::FindOrAddModule(FName InModuleName)
{
	FModuleInfoPtr Info = FindModule(InModuleName);
	if (!Info.IsValid())
	{
		Info = MakeShared<FModuleInfo>();
		Modules.Add(InModuleName, Info);
	}
	if (!Info->Handle && !StaticallyLinkedModuleInitializers.Contains(InModuleName))
	{
		Info->Filename = FindModuleFile(InModuleName.ToString());
	}
	return Info;
}

void FModuleManager::AddModule(const FName InModuleName)
{
	FindOrAddModule(InModuleName);
}

FString FModuleManager::FindModuleFile(const FString& ModuleName) const
{
	const FString Leaf =
		FString(FPlatformProcess::GetModulePrefix()) + TEXT("UE4Editor-") + ModuleName + TEXT(".") + FPlatformProcess::GetModuleExtension();
	const FString InEngine = FPaths::Combine(FPlatformProcess::BaseDir(), Leaf);
	if (FPaths::FileExists(InEngine))
	{
		return InEngine;
	}
	for (const FString& Directory : BinariesDirectories)
	{
		const FString File = FPaths::Combine(Directory, Leaf);
		if (FPaths::FileExists(File))
		{
			return File;
		}
	}
	return InEngine;
}

IModuleInterface* FModuleManager::GetModule(const FName InModuleName)
{
	const FModuleInfoPtr Info = FindModule(InModuleName);
	return Info.IsValid() ? Info->Module.Get() : nullptr;
}

bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	const FModuleInfoPtr Info = FindModule(InModuleName);
	// While it starts up, a module is there for the game thread only.
	return Info.IsValid() && Info->Module.IsValid() && (Info->bIsReady || IsInGameThread());
}

IModuleInterface* FModuleManager::LoadModule(const FName InModuleName)
{
	EModuleLoadResult Result;
	return LoadModuleWithFailureReason(InModuleName, Result);
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	IModuleInterface* const Module = LoadModule(InModuleName);
	checkf(Module, TEXT("%s"), *InModuleName.ToString());
	return *Module;
}

IModuleInterface* FModuleManager::LoadModuleWithFailureReason(const FName InModuleName, EModuleLoadResult& OutFailureReason)
{
	OutFailureReason = EModuleLoadResult::Success;
	if (IModuleInterface* const Loaded = GetModule(InModuleName))
	{
		return Loaded;
	}
	check(IsInGameThread());
	const FModuleInfoPtr Info = FindOrAddModule(InModuleName);
	ProcessLoadedObjectsCallback.Broadcast(NAME_None, bCanProcessNewlyLoadedObjects);

	const FInitializeStaticallyLinkedModule* const Initializer = StaticallyLinkedModuleInitializers.Find(InModuleName);
	if (!Initializer)
	{
		return LoadLibraryModule(InModuleName, *Info, OutFailureReason);
	}
	const FInitializeStaticallyLinkedModule Initialize = *Initializer;
	ProcessLoadedObjectsCallback.Broadcast(InModuleName, bCanProcessNewlyLoadedObjects);
	return StartModule(InModuleName, *Info, Initialize.Execute(), OutFailureReason);
}

IModuleInterface* FModuleManager::LoadLibraryModule(FName InModuleName, FModuleInfo& Info, EModuleLoadResult& OutResult)
{
	typedef IModuleInterface* (*FInitializeModule)();
	const FString ModuleName = InModuleName.ToString();
	if (!Info.Handle)
	{
		if (!FPaths::FileExists(Info.Filename))
		{
			UE_LOG(LogModuleManager, Warning, TEXT("ModuleManager: Unable to load module '%s' because the file '%s' was not found."),
				*ModuleName, *Info.Filename);
			OutResult = EModuleLoadResult::FileNotFound;
			return nullptr;
		}
		Info.Handle = FPlatformProcess::GetDllHandle(*Info.Filename);
		if (!Info.Handle)
		{
			UE_LOG(LogModuleManager, Warning,
				TEXT("ModuleManager: Unable to load module '%s' because the file '%s' couldn't be loaded by the OS."), *ModuleName,
				*Info.Filename);
			OutResult = EModuleLoadResult::CouldNotBeLoadedByOS;
			return nullptr;
		}
	}
	ProcessLoadedObjectsCallback.Broadcast(InModuleName, bCanProcessNewlyLoadedObjects);
	const FInitializeModule Initialize =
		reinterpret_cast<FInitializeModule>(FPlatformProcess::GetDllExport(Info.Handle, TEXT("InitializeModule")));
	if (!Initialize)
	{
		UE_LOG(LogModuleManager, Warning,
			TEXT("ModuleManager: Unable to load module '%s' because InitializeModule function was not found."), *ModuleName);
		UnmapModule(InModuleName, Info);
		OutResult = EModuleLoadResult::FailedToInitialize;
		return nullptr;
	}
	return StartModule(InModuleName, Info, Initialize(), OutResult);
}

IModuleInterface* FModuleManager::StartModule(FName InModuleName, FModuleInfo& Info, IModuleInterface* Module, EModuleLoadResult& OutResult)
{
	if (!Module)
	{
		UE_LOG(LogModuleManager, Warning,
			TEXT("ModuleManager: Unable to load module '%s' because InitializeModule function failed (returned nullptr.)"),
			*InModuleName.ToString());
		UnmapModule(InModuleName, Info);
		OutResult = EModuleLoadResult::FailedToInitialize;
		return nullptr;
	}
	Info.bIsReady = false;
	Info.Module = TUniquePtr<IModuleInterface>(Module);
	Module->StartupModule();
	// Modules that were started from within StartupModule have got their numbers already.
	Info.LoadOrder = CurrentLoadOrder++;
	Info.bIsReady = true;
	ModulesChangedEvent.Broadcast(InModuleName, EModuleChangeReason::ModuleLoaded);
	OutResult = EModuleLoadResult::Success;
	return Module;
}

void FModuleManager::UnmapModule(FName InModuleName, FModuleInfo& Info)
{
	if (Info.Handle)
	{
		StandIn::OnModuleBinaryUnloading().Broadcast(InModuleName);
		FPlatformProcess::FreeDllHandle(Info.Handle);
		Info.Handle = nullptr;
	}
}

bool FModuleManager::UnloadModule(const FName InModuleName, bool bIsShutdown)
{
	const FModuleInfoPtr Info = FindModule(InModuleName);
	if (!Info.IsValid() || !Info->Module.IsValid())
	{
		return false;
	}
	Info->Module->PreUnloadCallback();
	Info->Module->ShutdownModule();
	Info->bIsReady = false;
	Info->Module.Reset();
	// At shutdown libraries stay, because others may still call into them on their way out.
	if (!bIsShutdown)
	{
		UnmapModule(InModuleName, *Info);
	}
	ModulesChangedEvent.Broadcast(InModuleName, EModuleChangeReason::ModuleUnloaded);
	return true;
}

void FModuleManager::AbandonModule(const FName InModuleName)
{
	const FModuleInfoPtr Info = FindModule(InModuleName);
	if (Info.IsValid() && Info->Module.IsValid())
	{
		Info->Module->ShutdownModule();
		Info->bIsReady = false;
		Info->Module.Reset();
		ModulesChangedEvent.Broadcast(InModuleName, EModuleChangeReason::ModuleUnloaded);
	}
}

void FModuleManager::UnloadModulesAtShutdown()
{
	struct FModuleToUnload
	{
		FName Name;
		int32 LoadOrder;

		bool operator<(const FModuleToUnload& Other) const { return LoadOrder > Other.LoadOrder; }
	};
	TArray<FModuleToUnload> ModulesToUnload;
	for (const TPair<FName, FModuleInfoPtr>& Pair : Modules)
	{
		if (Pair.Value->Module.IsValid() && Pair.Value->Module->SupportsAutomaticShutdown())
		{
			ModulesToUnload.Add(FModuleToUnload{Pair.Key, Pair.Value->LoadOrder});
		}
	}
	ModulesToUnload.Sort();
	for (const FModuleToUnload& Module : ModulesToUnload)
	{
		UE_LOG(LogModuleManager, Log, TEXT("Shutting down and abandoning module %s (%i)"), *Module.Name.ToString(), Module.LoadOrder);
		UnloadModule(Module.Name, true);
		UE_LOG(LogModuleManager, Verbose, TEXT("Returned from UnloadModule."));
	}
}

void FModuleManager::QueryModules(TArray<FModuleStatus>& OutModuleStatuses) const
{
	OutModuleStatuses.Empty();
	for (const TPair<FName, FModuleInfoPtr>& Pair : Modules)
	{
		FModuleStatus Status;
		QueryModule(Pair.Key, Status);
		OutModuleStatuses.Add(Status);
	}
	OutModuleStatuses.Sort([](const FModuleStatus& A, const FModuleStatus& B) { return A.Name < B.Name; });
}

bool FModuleManager::QueryModule(const FName InModuleName, FModuleStatus& OutModuleStatus) const
{
	const FModuleInfoPtr Info = FindModule(InModuleName);
	if (!Info.IsValid())
	{
		return false;
	}
	OutModuleStatus.Name = InModuleName.ToString();
	OutModuleStatus.FilePath = Info->Filename;
	OutModuleStatus.bIsLoaded = Info->Module.IsValid();
	OutModuleStatus.bIsGameModule = Info->Module.IsValid() && Info->Module->IsGameModule();
	return true;
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName, FString* OutModuleFilePath) const
{
	const bool bIsStatic = StaticallyLinkedModuleInitializers.Contains(FName(ModuleName));
	const FString File = bIsStatic ? FString() : FindModuleFile(ModuleName);
	const bool bExists = bIsStatic || FPaths::FileExists(File);
	if (bExists && OutModuleFilePath)
	{
		*OutModuleFilePath = File;
	}
	return bExists;
}

int32 FModuleManager::GetModuleCount() const
{
	return Modules.Num();
}

FString FModuleManager::GetModuleFilename(FName ModuleName) const
{
	const FModuleInfoPtr Info = FindModule(ModuleName);
	checkf(Info.IsValid(), TEXT("%s"), *ModuleName.ToString());
	return Info->Filename;
}

void FModuleManager::AddBinariesDirectory(const TCHAR* InDirectory, bool bIsGameDirectory)
{
	(void)bIsGameDirectory;
	const FString Directory = FPaths::ConvertRelativePathToFull(InDirectory);
	if (!BinariesDirectories.ContainsByPredicate([&Directory](const FString& Other) { return FPaths::IsSamePath(Other, Directory); }))
	{
		BinariesDirectories.Add(Directory);
		ModulesChangedEvent.Broadcast(NAME_None, EModuleChangeReason::PluginDirectoryChanged);
	}
}

void FModuleManager::StartProcessingNewlyLoadedObjects()
{
	bCanProcessNewlyLoadedObjects = true;
	ProcessLoadedObjectsCallback.Broadcast(NAME_None, true);
}

void FModuleManager::RegisterStaticallyLinkedModule(
	const FName InModuleName, const FInitializeStaticallyLinkedModule& InInitializerDelegate)
{
	StaticallyLinkedModuleInitializers.Add(InModuleName, InInitializerDelegate);
}

namespace StandIn
{
FOnModuleBinaryUnloading& OnModuleBinaryUnloading()
{
	static FOnModuleBinaryUnloading* const Event = new FOnModuleBinaryUnloading();
	return *Event;
}

void RemoveBinariesDirectory(const FString& Directory)
{
	FModuleManagerAccess::RemoveBinariesDirectory(FPaths::ConvertRelativePathToFull(Directory));
}

/** Reads the bindings of delegates. */
struct FDelegateAccess
{
	/** Where the code of a delegate's binding lies: its table of virtual functions, which the binary that bound it brought along. */
	static const void* FindCode(const FDelegateBase& Delegate)
	{
		const IDelegateInstance* const Instance = Delegate.GetDelegateInstanceProtected();
		return Instance ? *reinterpret_cast<const void* const*>(Instance) : nullptr;
	}
};

bool IsBoundByModule(const FDelegateBase& Delegate, FName ModuleName)
{
	const void* const Code = FDelegateAccess::FindCode(Delegate);
	return Code && FModuleManagerAccess::IsInBinary(ModuleName, Code);
}

bool IsModuleBinaryMapped(FName ModuleName)
{
	return FModuleManagerAccess::IsMapped(ModuleName);
}
}
