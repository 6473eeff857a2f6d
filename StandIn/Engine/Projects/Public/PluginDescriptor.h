// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "ModuleDescriptor.h"
#include "PluginReferenceDescriptor.h"

// The content of a .uplugin file. Left out: localisation targets and build steps (accepted and ignored), saving.

/** Whether a descriptor says that its plug-in is on unless asked otherwise. */
enum class EPluginEnabledByDefault : uint8
{
	Unspecified,
	Enabled,
	Disabled
};

/** The content of a .uplugin file. */
struct PROJECTS_API FPluginDescriptor
{
	FPluginDescriptor();

	int32 Version;
	FString VersionName;
	FString FriendlyName;
	FString Description;
	FString Category;
	FString CreatedBy;
	FString CreatedByURL;
	FString DocsURL;
	FString MarketplaceURL;
	FString SupportURL;
	FString EngineVersion;
	TArray<FString> SupportedTargetPlatforms;
	TArray<FModuleDescriptor> Modules;
	TArray<FPluginReferenceDescriptor> Plugins;
	EPluginEnabledByDefault EnabledByDefault;
	bool bCanContainContent;
	bool bIsBetaVersion;
	bool bIsExperimentalVersion;
	bool bInstalled;
	bool bRequiresBuildPlatform;
	bool bIsHidden;

	/** Says whether the plug-in is for a platform ("Win64", "Linux"). */
	bool SupportsTargetPlatform(const FString& Platform) const;

	/** Reads a descriptor file; on failure the reason names file, line and what is wrong. */
	bool Load(const FString& FileName, FText& OutFailReason);
	/** Reads a descriptor's text; on failure the reason names the line and what is wrong. */
	bool Read(const FString& Text, FText& OutFailReason);
};
