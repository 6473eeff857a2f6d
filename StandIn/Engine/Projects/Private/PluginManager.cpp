// Copyright The Tintmill authors. All rights reserved.

#include "PluginManager.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformMisc.h"
#include "HAL/PlatformProcess.h"
#include "JsonFields.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "StandIn/EnginePlugins.h"
#include "StandIn/ModuleHooks.h"
#include "StandIn/Notices.h"

DEFINE_LOG_CATEGORY_STATIC(LogPluginManager, Log, All);

namespace
{
/** Folders nest no deeper than this below a Plugins folder; links that lead round in circles end here. */
const int32 MaxPluginDepth = 12;

/** Where the engine's plug-ins are looked for; empty for the engine's own folder. */
FString& OtherEnginePluginsDir()
{
	static FString Directory;
	return Directory;
}

/** Finds descriptor files; a folder with one is not searched any further. */
void FindDescriptorFiles(const FString& Directory, int32 Depth, TArray<FString>& OutFiles)
{
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *FPaths::Combine(Directory, TEXT("*.uplugin")), true, false);
	for (const FString& Name : Names)
	{
		OutFiles.Add(FPaths::Combine(Directory, Name));
	}
	if (Names.Num() > 0 || Depth >= MaxPluginDepth)
	{
		return;
	}
	IFileManager::Get().FindFiles(Names, *FPaths::Combine(Directory, TEXT("*")), false, true);
	for (const FString& Name : Names)
	{
		FindDescriptorFiles(FPaths::Combine(Directory, Name), Depth + 1, OutFiles);
	}
}

/** Reads the "Plugins" list of the project file, if there is a project file. */
TArray<FPluginReferenceDescriptor> ReadProjectPlugins()
{
	TArray<FPluginReferenceDescriptor> References;
	const FString FileName = FPaths::GetProjectFilePath();
	if (FileName.IsEmpty() || !FPaths::FileExists(FileName))
	{
		return References;
	}
	FString Text;
	StandInPrivate::FJsonValue Root;
	StandInPrivate::FJsonError Error;
	FFileHelper::LoadFileToString(Text, *FileName);
	bool bGood = StandInPrivate::ReadJson(Text, Root, Error);
	if (bGood)
	{
		StandInPrivate::FJsonFields Fields(Root, Error);
		bGood = Root.Type == StandInPrivate::FJsonValue::EType::Object
			? StandInPrivate::TakePluginReferences(Fields, Error, References)
			: Fields.Fail(TEXT(""), TEXT("the file must hold an object in braces"));
	}
	if (!bGood)
	{
		References.Empty();
		StandIn::AddNotice(TEXT("Project:") + FileName,
			FString::Printf(
				TEXT("%s:%d: %s; the project's list of plug-ins is ignored until this is corrected."), *FileName, Error.Line, *Error.Text));
	}
	return References;
}

const TCHAR* DescribeLoadFailure(EModuleLoadResult Result)
{
	switch (Result)
	{
	case EModuleLoadResult::FileNotFound:
		return TEXT("its library was not found; build or install the plug-in again");
	case EModuleLoadResult::FileIncompatible:
		return TEXT("its library was made for another engine; build the plug-in again");
	case EModuleLoadResult::CouldNotBeLoadedByOS:
		return TEXT("the operating system could not load its library; the log says why");
	default:
		return TEXT("its library loaded but did not start; the log says why");
	}
}
}

FPlugin::FPlugin(const FString& InFileName, const FPluginDescriptor& InDescriptor, EPluginType InType)
	: Name(FPaths::GetBaseFilename(InFileName))
	, FileName(InFileName)
	, Descriptor(InDescriptor)
	, Type(InType)
	, bEnabled(false)
{}

const FString& FPlugin::GetFriendlyName() const
{
	return Descriptor.FriendlyName.IsEmpty() ? Name : Descriptor.FriendlyName;
}

FString FPlugin::GetBaseDir() const
{
	return FPaths::GetPath(FileName);
}

FString FPlugin::GetContentDir() const
{
	return GetBaseDir() + TEXT("/Content");
}

FString FPlugin::GetMountedAssetPath() const
{
	return TEXT("/") + Name + TEXT("/");
}

bool FPlugin::IsEnabledByDefault(const bool bAllowEnginePluginsEnabledByDefault) const
{
	if (Descriptor.EnabledByDefault != EPluginEnabledByDefault::Unspecified)
	{
		return Descriptor.EnabledByDefault == EPluginEnabledByDefault::Enabled
			&& (bAllowEnginePluginsEnabledByDefault || GetLoadedFrom() == EPluginLoadedFrom::Project);
	}
	return GetLoadedFrom() == EPluginLoadedFrom::Project;
}

EPluginLoadedFrom FPlugin::GetLoadedFrom() const
{
	return Type == EPluginType::Engine ? EPluginLoadedFrom::Engine : EPluginLoadedFrom::Project;
}

void StandIn::SetEnginePluginsDir(const FString& Directory)
{
	OtherEnginePluginsDir() = Directory;
}

IPluginManager& IPluginManager::Get()
{
	static FPluginManager* const Manager = new FPluginManager();
	return *Manager;
}

FPluginManager::FPluginManager()
{
	FPluginManager::RefreshPluginsList();
}

void FPluginManager::RefreshPluginsList()
{
	TArray<TSharedRef<FPlugin>> Found;
	// Earlier ones win over later ones of the same name.
	if (FPaths::IsProjectFilePathSet())
	{
		FindPluginsIn(FPaths::ProjectPluginsDir(), EPluginType::Project, Found);
	}
	const FString EnginePluginsDir = OtherEnginePluginsDir().IsEmpty() ? FPaths::EnginePluginsDir() : OtherEnginePluginsDir();
	FindPluginsIn(EnginePluginsDir, EPluginType::Engine, Found);
	for (const FString& Directory : ExtraSearchPaths)
	{
		FindPluginsIn(Directory, EPluginType::External, Found);
	}
	Found.Sort([](const TSharedRef<FPlugin>& A, const TSharedRef<FPlugin>& B) { return A->Name < B->Name; });
	Plugins = Found;
	EnablePlugins();
	AddBinariesDirectories();
}

void FPluginManager::FindPluginsIn(const FString& Directory, EPluginType Type, TArray<TSharedRef<FPlugin>>& InOutFound) const
{
	TArray<FString> Files;
	FindDescriptorFiles(FPaths::ConvertRelativePathToFull(Directory), 0, Files);
	for (const FString& File : Files)
	{
		const FString NoticeKey = TEXT("Plugin:") + File;
		FPluginDescriptor Descriptor;
		FText FailReason;
		if (!Descriptor.Load(File, FailReason))
		{
			StandIn::AddNotice(
				NoticeKey, FString::Printf(TEXT("%s; the plug-in is left out until this is corrected."), *FailReason.ToString()));
			continue;
		}
		StandIn::ClearNotice(NoticeKey);
		const TSharedRef<FPlugin> Plugin = MakeShared<FPlugin>(File, Descriptor, Type);
		const bool bIsKnown =
			InOutFound.ContainsByPredicate([&Plugin](const TSharedRef<FPlugin>& Other) { return Other->Name == Plugin->Name; });
		if (bIsKnown)
		{
			UE_LOG(LogPluginManager, Log, TEXT("Plug-in %s is left out: another one of its name was found before."), *File);
			continue;
		}
		InOutFound.Add(Plugin);
	}
}

TSharedPtr<FPlugin> FPluginManager::Find(const FString& Name) const
{
	for (const TSharedRef<FPlugin>& Plugin : Plugins)
	{
		if (Plugin->Name == Name)
		{
			return Plugin;
		}
	}
	return nullptr;
}

bool FPluginManager::EnablePlugin(const FString& Name, const FString& WantedBy, bool bOptional)
{
	const TSharedPtr<FPlugin> Plugin = Find(Name);
	if (!Plugin.IsValid() || !Plugin->Descriptor.SupportsTargetPlatform(FPlatformMisc::GetUBTPlatform()))
	{
		if (!bOptional)
		{
			StandIn::AddNotice(TEXT("Plugin.Missing:") + Name,
				FString::Printf(TEXT("%s asks for the plug-in %s, which is not installed for this platform; install it or take it out of "
									 "the \"Plugins\" list there."),
					*WantedBy, *Name));
		}
		return false;
	}
	if (!Plugin->bEnabled)
	{
		Plugin->bEnabled = true;
		for (const FPluginReferenceDescriptor& Reference : Plugin->Descriptor.Plugins)
		{
			if (Reference.bEnabled)
			{
				EnablePlugin(Reference.Name, Plugin->FileName, Reference.bOptional);
			}
		}
	}
	return true;
}

void FPluginManager::EnablePlugins()
{
	const TArray<FPluginReferenceDescriptor> References = ReadProjectPlugins();
	for (const FPluginReferenceDescriptor& Reference : References)
	{
		if (Reference.bEnabled)
		{
			EnablePlugin(Reference.Name, FPaths::GetProjectFilePath(), Reference.bOptional);
		}
	}
	for (const TSharedRef<FPlugin>& Plugin : Plugins)
	{
		const bool bIsMentioned = References.ContainsByPredicate(
			[&Plugin](const FPluginReferenceDescriptor& Reference) { return Reference.Name == Plugin->Name; });
		if (!bIsMentioned && Plugin->IsEnabledByDefault(true) && Plugin->Descriptor.SupportsTargetPlatform(FPlatformMisc::GetUBTPlatform()))
		{
			EnablePlugin(Plugin->Name, Plugin->FileName, true);
		}
	}
}

void FPluginManager::AddBinariesDirectories()
{
	for (const FString& Directory : BinariesDirectories)
	{
		StandIn::RemoveBinariesDirectory(Directory);
	}
	BinariesDirectories.Empty();
	for (const TSharedRef<FPlugin>& Plugin : Plugins)
	{
		if (Plugin->bEnabled && Plugin->Descriptor.Modules.Num() > 0)
		{
			const FString Directory = FPaths::Combine(Plugin->GetBaseDir(), TEXT("Binaries"), FPlatformProcess::GetBinariesSubdirectory());
			FModuleManager::Get().AddBinariesDirectory(*Directory, Plugin->GetLoadedFrom() == EPluginLoadedFrom::Project);
			BinariesDirectories.Add(Directory);
			UE_LOG(LogPluginManager, Log, TEXT("Mounting plugin %s"), *Plugin->Name);
		}
	}
}

bool FPluginManager::LoadPluginModules(FPlugin& Plugin, ELoadingPhase::Type LoadingPhase)
{
	TMap<FName, EModuleLoadResult> Errors;
	FModuleDescriptor::LoadModulesForPhase(LoadingPhase, Plugin.Descriptor.Modules, Errors);
	for (const TPair<FName, EModuleLoadResult>& Pair : Errors)
	{
		StandIn::AddNotice(TEXT("Plugin.Load:") + Plugin.Name,
			FString::Printf(TEXT("The plug-in %s (%s) does not work because its module %s could not be loaded: %s."), *Plugin.Name,
				*Plugin.FileName, *Pair.Key.ToString(), DescribeLoadFailure(Pair.Value)),
			StandIn::ENoticeKind::Error);
	}
	return Errors.Num() == 0;
}

bool FPluginManager::LoadModulesForEnabledPlugins(const ELoadingPhase::Type LoadingPhase)
{
	bool bSuccess = true;
	const TArray<TSharedRef<FPlugin>> Present = Plugins;
	for (const TSharedRef<FPlugin>& Plugin : Present)
	{
		if (Plugin->bEnabled && !LoadPluginModules(*Plugin, LoadingPhase))
		{
			bSuccess = false;
			break;
		}
	}
	LoadingPhaseComplete.Broadcast(LoadingPhase, bSuccess);
	return bSuccess;
}

TSharedPtr<IPlugin> FPluginManager::FindPlugin(const FString& Name)
{
	return Find(Name);
}

TSharedPtr<IPlugin> FPluginManager::FindPluginFromPath(const FString& PluginPath)
{
	for (const TSharedRef<FPlugin>& Plugin : Plugins)
	{
		if (FPaths::IsUnderDirectory(PluginPath, Plugin->GetBaseDir()))
		{
			return Plugin;
		}
	}
	return nullptr;
}

TArray<TSharedRef<IPlugin>> FPluginManager::GetEnabledPlugins()
{
	TArray<TSharedRef<IPlugin>> Found;
	for (const TSharedRef<FPlugin>& Plugin : Plugins)
	{
		if (Plugin->bEnabled)
		{
			Found.Add(Plugin);
		}
	}
	return Found;
}

TArray<TSharedRef<IPlugin>> FPluginManager::GetEnabledPluginsWithContent() const
{
	TArray<TSharedRef<IPlugin>> Found;
	for (const TSharedRef<FPlugin>& Plugin : Plugins)
	{
		if (Plugin->bEnabled && Plugin->CanContainContent())
		{
			Found.Add(Plugin);
		}
	}
	return Found;
}

TArray<TSharedRef<IPlugin>> FPluginManager::GetDiscoveredPlugins()
{
	TArray<TSharedRef<IPlugin>> Found;
	for (const TSharedRef<FPlugin>& Plugin : Plugins)
	{
		Found.Add(Plugin);
	}
	return Found;
}

bool FPluginManager::AddPluginSearchPath(const FString& ExtraDiscoveryPath, bool bRefresh)
{
	const FString Directory = FPaths::ConvertRelativePathToFull(ExtraDiscoveryPath);
	if (ExtraSearchPaths.ContainsByPredicate([&Directory](const FString& Other) { return FPaths::IsSamePath(Other, Directory); }))
	{
		return false;
	}
	ExtraSearchPaths.Add(Directory);
	if (bRefresh)
	{
		RefreshPluginsList();
	}
	return true;
}
