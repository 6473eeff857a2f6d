// Copyright The Tintmill authors. All rights reserved.

#include "ModuleDescriptor.h"

#include "HAL/PlatformMisc.h"

namespace
{
const TCHAR* const LoadingPhaseNames[] = {TEXT("EarliestPossible"), TEXT("PostConfigInit"), TEXT("PostSplashScreen"),
	TEXT("PreEarlyLoadingScreen"), TEXT("PreLoadingScreen"), TEXT("PreDefault"), TEXT("Default"), TEXT("PostDefault"),
	TEXT("PostEngineInit"), TEXT("None")};

const TCHAR* const HostTypeNames[] = {TEXT("Runtime"), TEXT("RuntimeNoCommandlet"), TEXT("RuntimeAndProgram"), TEXT("CookedOnly"),
	TEXT("UncookedOnly"), TEXT("Developer"), TEXT("DeveloperTool"), TEXT("Editor"), TEXT("EditorNoCommandlet"), TEXT("EditorAndProgram"),
	TEXT("Program"), TEXT("ServerOnly"), TEXT("ClientOnly"), TEXT("ClientOnlyNoCommandlet")};

static_assert(sizeof(LoadingPhaseNames) / sizeof(LoadingPhaseNames[0]) == ELoadingPhase::Max, "A phase has no name.");
static_assert(sizeof(HostTypeNames) / sizeof(HostTypeNames[0]) == EHostType::Max, "A type has no name.");

int32 FindDescriptorName(const TCHAR* const* Names, int32 NumNames, const TCHAR* Text)
{
	int32 Index = 0;
	while (Index < NumNames && !(FString(Names[Index]) == Text))
	{
		++Index;
	}
	return Index;
}
}

ELoadingPhase::Type ELoadingPhase::FromString(const TCHAR* Text)
{
	return ELoadingPhase::Type(FindDescriptorName(LoadingPhaseNames, ELoadingPhase::Max, Text));
}

const TCHAR* ELoadingPhase::ToString(const ELoadingPhase::Type Value)
{
	check(Value >= 0 && Value < ELoadingPhase::Max);
	return LoadingPhaseNames[Value];
}

EHostType::Type EHostType::FromString(const TCHAR* Text)
{
	return EHostType::Type(FindDescriptorName(HostTypeNames, EHostType::Max, Text));
}

const TCHAR* EHostType::ToString(const EHostType::Type Value)
{
	check(Value >= 0 && Value < EHostType::Max);
	return HostTypeNames[Value];
}

FModuleDescriptor::FModuleDescriptor(const FName InName, EHostType::Type InType, ELoadingPhase::Type InLoadingPhase)
	: Name(InName)
	, Type(InType)
	, LoadingPhase(InLoadingPhase)
{}

bool FModuleDescriptor::IsCompiledInCurrentConfiguration() const
{
	const FString Platform = FPlatformMisc::GetUBTPlatform();
	if ((WhitelistPlatforms.Num() > 0 && !WhitelistPlatforms.Contains(Platform)) || BlacklistPlatforms.Contains(Platform))
	{
		return false;
	}
	switch (Type)
	{
	case EHostType::CookedOnly:
	case EHostType::Program:
	case EHostType::ServerOnly:
		return false;
	default:
		return true;
	}
}

bool FModuleDescriptor::IsLoadedInCurrentConfiguration() const
{
	const bool bNotInCommandlet =
		Type == EHostType::RuntimeNoCommandlet || Type == EHostType::EditorNoCommandlet || Type == EHostType::ClientOnlyNoCommandlet;
	return IsCompiledInCurrentConfiguration() && !(bNotInCommandlet && IsRunningCommandlet());
}

void FModuleDescriptor::LoadModulesForPhase(
	ELoadingPhase::Type LoadingPhase, const TArray<FModuleDescriptor>& Modules, TMap<FName, EModuleLoadResult>& ModuleLoadErrors)
{
	for (const FModuleDescriptor& Descriptor : Modules)
	{
		if (Descriptor.LoadingPhase != LoadingPhase || !Descriptor.IsLoadedInCurrentConfiguration()
			|| FModuleManager::Get().IsModuleLoaded(Descriptor.Name))
		{
			continue;
		}
		EModuleLoadResult Result = EModuleLoadResult::Success;
		if (!FModuleManager::Get().LoadModuleWithFailureReason(Descriptor.Name, Result))
		{
			ModuleLoadErrors.Add(Descriptor.Name, Result);
		}
	}
}
