// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Interfaces/IPluginManager.h"

/** A found plug-in. */
class FPlugin final : public IPlugin
{
public:
	FPlugin(const FString& InFileName, const FPluginDescriptor& InDescriptor, EPluginType InType);

	virtual const FString& GetName() const override { return Name; }
	virtual const FString& GetFriendlyName() const override;
	virtual const FString& GetDescriptorFileName() const override { return FileName; }
	virtual FString GetBaseDir() const override;
	virtual FString GetContentDir() const override;
	virtual FString GetMountedAssetPath() const override;
	virtual EPluginType GetType() const override { return Type; }
	virtual bool IsEnabled() const override { return bEnabled; }
	virtual bool IsEnabledByDefault(const bool bAllowEnginePluginsEnabledByDefault) const override;
	virtual bool IsHidden() const override { return Descriptor.bIsHidden; }
	virtual bool CanContainContent() const override { return Descriptor.bCanContainContent; }
	virtual EPluginLoadedFrom GetLoadedFrom() const override;
	virtual const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }

	FString Name;
	FString FileName;
	FPluginDescriptor Descriptor;
	EPluginType Type;
	bool bEnabled;
};

/** The plug-in manager. */
class FPluginManager final : public IPluginManager
{
public:
	FPluginManager();

	virtual void RefreshPluginsList() override;
	virtual bool LoadModulesForEnabledPlugins(const ELoadingPhase::Type LoadingPhase) override;
	virtual TSharedPtr<IPlugin> FindPlugin(const FString& Name) override;
	virtual TSharedPtr<IPlugin> FindPluginFromPath(const FString& PluginPath) override;
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPlugins() override;
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPluginsWithContent() const override;
	virtual TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() override;
	virtual bool AddPluginSearchPath(const FString& ExtraDiscoveryPath, bool bRefresh) override;
	virtual FLoadingModulesForPhaseEvent& OnLoadingPhaseComplete() override { return LoadingPhaseComplete; }

private:
	void FindPluginsIn(const FString& Directory, EPluginType Type, TArray<TSharedRef<FPlugin>>& InOutFound) const;
	void EnablePlugins();
	bool EnablePlugin(const FString& Name, const FString& WantedBy, bool bOptional);
	void AddBinariesDirectories();
	bool LoadPluginModules(FPlugin& Plugin, ELoadingPhase::Type LoadingPhase);
	TSharedPtr<FPlugin> Find(const FString& Name) const;

	/** Found plug-ins, sorted by name. */
	TArray<TSharedRef<FPlugin>> Plugins;
	TArray<FString> ExtraSearchPaths;
	/** Binaries folders given to the module manager by the last refresh. */
	TArray<FString> BinariesDirectories;
	FLoadingModulesForPhaseEvent LoadingPhaseComplete;
};
