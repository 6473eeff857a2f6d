// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Logging/LogMacros.h"
#include "Misc/AssertionMacros.h"
#include "Modules/Boilerplate/ModuleBoilerplate.h"
#include "Modules/ModuleInterface.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

// Loading, starting, stopping and unloading modules. A module is looked for among the statically linked ones first, then as
// a shared library in the folder of the engine's binaries and the folders added with AddBinariesDirectory.
// Left out: hot reload, module manifests and build ids (any library of the right name is taken), console commands, game
// binaries. StandIn/ModuleHooks.h lets the object system drop a library's classes before it is unmapped.

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogModuleManager, Log, All);

/** Why loading a module failed. */
enum class EModuleLoadResult
{
	Success,
	FileNotFound,
	FileIncompatible,
	CouldNotBeLoadedByOS,
	FailedToInitialize
};

/** What OnModulesChanged reports. */
enum class EModuleChangeReason
{
	ModuleLoaded,
	ModuleUnloaded,
	/** New module folders were added. */
	PluginDirectoryChanged
};

/** A module as listed by QueryModules. */
struct FModuleStatus
{
	FString Name;
	/** Library file, empty for a statically linked module. */
	FString FilePath;
	bool bIsLoaded = false;
	bool bIsGameModule = false;
};

/** Loads, finds and unloads modules. */
class CORE_API FModuleManager
{
public:
	/** The one module manager; it lives until the process ends. */
	static FModuleManager& Get();

	FModuleManager(const FModuleManager&) = delete;
	FModuleManager& operator=(const FModuleManager&) = delete;

	DECLARE_DELEGATE_RetVal(IModuleInterface*, FInitializeStaticallyLinkedModule);
	DECLARE_EVENT_TwoParams(FModuleManager, FModulesChangedEvent, FName, EModuleChangeReason);
	DECLARE_EVENT_TwoParams(FModuleManager, ProcessLoadedObjectsEvent, FName, bool);

	/** Shuts a module down and destroys its object but leaves its library mapped; nothing for a module that is not loaded. */
	void AbandonModule(const FName InModuleName);

	/** Makes a module known without loading it. */
	void AddModule(const FName InModuleName);

	/** The loaded module's object, or null. */
	IModuleInterface* GetModule(const FName InModuleName);

	/** Says whether a module is loaded; true during its own StartupModule. */
	bool IsModuleLoaded(const FName InModuleName) const;

	/** Returns the module's object, loading and starting it if needed; null, with a LogModuleManager warning, on failure. */
	IModuleInterface* LoadModule(const FName InModuleName);

	/** LoadModule whose failure is fatal. */
	IModuleInterface& LoadModuleChecked(const FName InModuleName);

	/** LoadModule that says why it failed. */
	IModuleInterface* LoadModuleWithFailureReason(const FName InModuleName, EModuleLoadResult& OutFailureReason);

	/** Shuts a module down, destroys its object and, unless at shutdown, unmaps its library; false when it is not loaded. */
	bool UnloadModule(const FName InModuleName, bool bIsShutdown = false);

	/** Shuts down all modules that allow it, last started first; libraries stay mapped. */
	void UnloadModulesAtShutdown();

	/** Lists the known modules, by name. */
	void QueryModules(TArray<FModuleStatus>& OutModuleStatuses) const;

	/** Describes one known module; false for an unknown one. */
	bool QueryModule(const FName InModuleName, FModuleStatus& OutModuleStatus) const;

	/** Says whether a module could be loaded; gives its library's path, empty for a statically linked one. */
	bool ModuleExists(const TCHAR* ModuleName, FString* OutModuleFilePath = nullptr) const;

	/** Number of known modules. */
	int32 GetModuleCount() const;

	/** Library file of a loaded module; a fatal check for an unknown one. */
	FString GetModuleFilename(FName ModuleName) const;

	/** Adds a folder in which libraries are looked for, searched after those added before; adding it again changes nothing. */
	void AddBinariesDirectory(const TCHAR* InDirectory, bool bIsGameDirectory);

	/** Forgets cached library paths; nothing is cached here. */
	void ResetModulePathsCache() {}

	/** Lets newly loaded objects be processed from now on; broadcasts for what is there already. */
	void StartProcessingNewlyLoadedObjects();

	/** Called by FStaticallyLinkedModuleRegistrant. */
	void RegisterStaticallyLinkedModule(const FName InModuleName, const FInitializeStaticallyLinkedModule& InInitializerDelegate);

	/** Fires after a module has been loaded or unloaded. */
	FModulesChangedEvent& OnModulesChanged() { return ModulesChangedEvent; }

	/** Fires with a module's name (None before a load) when its library is mapped and its module object not yet made. */
	ProcessLoadedObjectsEvent& OnProcessLoadedObjectsCallback() { return ProcessLoadedObjectsCallback; }

	/** Returns a module as its own type, loading it if needed; fatal on failure. The type is not checked. */
	template <typename TModuleInterface>
	static TModuleInterface& LoadModuleChecked(const FName InModuleName)
	{
		IModuleInterface& ModuleInterface = FModuleManager::Get().LoadModuleChecked(InModuleName);
		return static_cast<TModuleInterface&>(ModuleInterface);
	}

	/** Returns a module as its own type, loading it if needed, or null. The type is not checked. */
	template <typename TModuleInterface>
	static TModuleInterface* LoadModulePtr(const FName InModuleName)
	{
		return static_cast<TModuleInterface*>(FModuleManager::Get().LoadModule(InModuleName));
	}

	/** Returns a loaded module as its own type; fatal when it is not loaded. The type is not checked. */
	template <typename TModuleInterface>
	static TModuleInterface& GetModuleChecked(const FName ModuleName)
	{
		FModuleManager& ModuleManager = FModuleManager::Get();
		checkf(ModuleManager.IsModuleLoaded(ModuleName), TEXT("Tried to get module interface for unloaded module: '%s'"),
			*(ModuleName.ToString()));
		return static_cast<TModuleInterface&>(*ModuleManager.GetModule(ModuleName));
	}

	/** Returns a loaded module as its own type, or null. The type is not checked. */
	template <typename TModuleInterface>
	static TModuleInterface* GetModulePtr(const FName ModuleName)
	{
		return static_cast<TModuleInterface*>(FModuleManager::Get().GetModule(ModuleName));
	}

private:
	friend struct FModuleManagerAccess;

	/** One known module. */
	struct FModuleInfo
	{
		FString Filename;
		void* Handle = nullptr;
		TUniquePtr<IModuleInterface> Module;
		/** Position in the order of finished start-ups. */
		int32 LoadOrder = 0;
		bool bIsReady = false;
	};
	typedef TSharedPtr<FModuleInfo> FModuleInfoPtr;

	FModuleManager();
	~FModuleManager();

	FModuleInfoPtr FindModule(FName InModuleName) const;
	FModuleInfoPtr FindOrAddModule(FName InModuleName);
	FString FindModuleFile(const FString& ModuleName) const;
	IModuleInterface* StartModule(FName InModuleName, FModuleInfo& Info, IModuleInterface* Module, EModuleLoadResult& OutResult);
	void UnmapModule(FName InModuleName, FModuleInfo& Info);
	IModuleInterface* LoadLibraryModule(FName InModuleName, FModuleInfo& Info, EModuleLoadResult& OutResult);

	TMap<FName, FModuleInfoPtr> Modules;
	TMap<FName, FInitializeStaticallyLinkedModule> StaticallyLinkedModuleInitializers;
	TArray<FString> BinariesDirectories;
	FModulesChangedEvent ModulesChangedEvent;
	ProcessLoadedObjectsEvent ProcessLoadedObjectsCallback;
	int32 CurrentLoadOrder;
	bool bCanProcessNewlyLoadedObjects;
};

/** Announces a module that is linked into the program or library itself. */
template <class ModuleClass>
class FStaticallyLinkedModuleRegistrant
{
public:
	/** Registers the module under this name. */
	FStaticallyLinkedModuleRegistrant(const TCHAR* InModuleName)
	{
		FModuleManager::Get().RegisterStaticallyLinkedModule(
			FName(InModuleName), FModuleManager::FInitializeStaticallyLinkedModule::CreateStatic(&InitializeModule));
	}

private:
	static IModuleInterface* InitializeModule() { return new ModuleClass(); }
};

/** A module that does nothing of its own. */
class FDefaultModuleImpl : public IModuleInterface
{};

/** A game module that does nothing of its own. */
class FDefaultGameModuleImpl : public FDefaultModuleImpl
{
public:
	virtual bool IsGameModule() const override { return true; }
};

#if IS_MONOLITHIC
/** Makes a class the object of a module; the name stands without quotes and is the one of the module's folder. */
#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName) \
	static FStaticallyLinkedModuleRegistrant<ModuleImplClass> ModuleRegistrant##ModuleName(TEXT(#ModuleName)); \
	extern "C" void IMPLEMENT_MODULE_##ModuleName() {} \
	PER_MODULE_BOILERPLATE_ANYLINK(ModuleImplClass, ModuleName)
#else
/** Makes a class the object of a module; the name stands without quotes and is the one of the module's folder. */
#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName) \
	extern "C" DLLEXPORT IModuleInterface* InitializeModule() \
	{ \
		return new ModuleImplClass(); \
	} \
	extern "C" void IMPLEMENT_MODULE_##ModuleName() {} \
	PER_MODULE_BOILERPLATE \
	PER_MODULE_BOILERPLATE_ANYLINK(ModuleImplClass, ModuleName)
#endif

/** IMPLEMENT_MODULE for a module with game code. */
#define IMPLEMENT_GAME_MODULE(ModuleImplClass, ModuleName) IMPLEMENT_MODULE(ModuleImplClass, ModuleName)
