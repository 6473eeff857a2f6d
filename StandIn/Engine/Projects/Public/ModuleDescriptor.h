// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleManager.h"

// One module's entry in a plug-in or project descriptor. Left out: target lists, additional dependencies, build checks.

namespace ELoadingPhase
{
/** When a module is loaded during start-up, in order. */
enum Type
{
	EarliestPossible,
	PostConfigInit,
	PostSplashScreen,
	PreEarlyLoadingScreen,
	PreLoadingScreen,
	PreDefault,
	Default,
	PostDefault,
	PostEngineInit,
	/** Never loaded by itself. */
	None,
	Max
};

/** The phase of a name, case-insensitively; Max for an unknown one. */
PROJECTS_API ELoadingPhase::Type FromString(const TCHAR* Text);
/** The name of a phase. */
PROJECTS_API const TCHAR* ToString(const ELoadingPhase::Type Value);
}

namespace EHostType
{
/** Which programs load a module. */
enum Type
{
	Runtime,
	RuntimeNoCommandlet,
	RuntimeAndProgram,
	CookedOnly,
	UncookedOnly,
	Developer,
	DeveloperTool,
	Editor,
	EditorNoCommandlet,
	EditorAndProgram,
	Program,
	ServerOnly,
	ClientOnly,
	ClientOnlyNoCommandlet,
	Max
};

/** The type of a name, case-insensitively; Max for an unknown one. */
PROJECTS_API EHostType::Type FromString(const TCHAR* Text);
/** The name of a type. */
PROJECTS_API const TCHAR* ToString(const EHostType::Type Value);
}

/** One module of a plug-in or project. */
struct PROJECTS_API FModuleDescriptor
{
	FModuleDescriptor(const FName InName = NAME_None, EHostType::Type InType = EHostType::Runtime,
		ELoadingPhase::Type InLoadingPhase = ELoadingPhase::Default);

	FName Name;
	EHostType::Type Type;
	ELoadingPhase::Type LoadingPhase;
	/** Platforms ("Win64", "Linux") the module is for; empty for all. */
	TArray<FString> WhitelistPlatforms;
	/** Platforms the module is not for. */
	TArray<FString> BlacklistPlatforms;

	/** Says whether the platform and the editor could have this module. */
	bool IsCompiledInCurrentConfiguration() const;
	/** Says whether this run of the editor loads the module. */
	bool IsLoadedInCurrentConfiguration() const;
	/** Loads the modules of a phase; adds the failed ones with their reasons. */
	static void LoadModulesForPhase(
		ELoadingPhase::Type LoadingPhase, const TArray<FModuleDescriptor>& Modules, TMap<FName, EModuleLoadResult>& ModuleLoadErrors);
};
