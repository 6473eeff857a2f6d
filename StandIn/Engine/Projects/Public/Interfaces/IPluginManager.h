// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "ModuleDescriptor.h"
#include "PluginDescriptor.h"

// Plug-ins: found below <Engine>/Plugins and <Project>/Plugins at any depth, by their .uplugin files. A descriptor that
// cannot be read gives one notice with file and line and is left out. A plug-in in the project wins over one of the same name
// in the engine. The project file's "Plugins" list turns plug-ins on and off.
// Left out: pak files, mods, content mounting, mounting while the editor runs, version compatibility.

enum class EPluginLoadedFrom
{
	Engine,
	Project
};

enum class EPluginType
{
	Engine,
	Enterprise,
	Project,
	External,
	Mod
};

/** A found plug-in. */
class IPlugin
{
public:
	virtual ~IPlugin() {}

	/** Base name of the descriptor file. */
	virtual const FString& GetName() const = 0;
	/** The descriptor's friendly name, or the name when it has none. */
	virtual const FString& GetFriendlyName() const = 0;
	/** Absolute path of the descriptor file. */
	virtual const FString& GetDescriptorFileName() const = 0;
	/** Folder of the descriptor file, without trailing slash. */
	virtual FString GetBaseDir() const = 0;
	/** `<BaseDir>/Content`. */
	virtual FString GetContentDir() const = 0;
	/** `/<Name>/`. */
	virtual FString GetMountedAssetPath() const = 0;
	virtual EPluginType GetType() const = 0;
	virtual bool IsEnabled() const = 0;
	/** Says whether the plug-in is on when nothing asks for it. */
	virtual bool IsEnabledByDefault(const bool bAllowEnginePluginsEnabledByDefault) const = 0;
	virtual bool IsHidden() const = 0;
	virtual bool CanContainContent() const = 0;
	virtual EPluginLoadedFrom GetLoadedFrom() const = 0;
	virtual const FPluginDescriptor& GetDescriptor() const = 0;
};

/** Finds plug-ins, decides which are on and loads their modules. */
class PROJECTS_API IPluginManager
{
public:
	virtual ~IPluginManager() {}

	/** The one plug-in manager; the first call looks for plug-ins. */
	static IPluginManager& Get();

	/** Looks for plug-ins again, for the present project file; modules that are loaded stay loaded. */
	virtual void RefreshPluginsList() = 0;
	/** Loads the modules of a phase of all plug-ins that are on; at the first that fails it stops with a notice and returns false. */
	virtual bool LoadModulesForEnabledPlugins(const ELoadingPhase::Type LoadingPhase) = 0;
	/** The plug-in of this name, case-insensitively, on or off; null when there is none. */
	virtual TSharedPtr<IPlugin> FindPlugin(const FString& Name) = 0;
	/** The plug-in a file lies in; null when there is none. */
	virtual TSharedPtr<IPlugin> FindPluginFromPath(const FString& PluginPath) = 0;
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPlugins() = 0;
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPluginsWithContent() const = 0;
	virtual TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() = 0;
	/** Adds a folder in which plug-ins are looked for, after those of engine and project; false when it was added before. */
	virtual bool AddPluginSearchPath(const FString& ExtraDiscoveryPath, bool bRefresh = true) = 0;

	DECLARE_EVENT_TwoParams(IPluginManager, FLoadingModulesForPhaseEvent, ELoadingPhase::Type, bool);

	/** Fires after the modules of a phase have been loaded; the flag says whether all could be. */
	virtual FLoadingModulesForPhaseEvent& OnLoadingPhaseComplete() = 0;
};
