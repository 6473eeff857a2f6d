// Copyright The Tintmill authors. All rights reserved.

#include "Misc/ConfigCacheIni.h"

#include "HAL/PlatformMisc.h"
#include "Logging/LogSuppressionInterface.h"
#include "Misc/CString.h"
#include "Misc/ConfigFileAccess.h"
#include "Misc/ConfigHierarchy.h"
#include "Misc/CoreDelegates.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY(LogConfig);

FConfigCacheIni::FConfigCacheIni(EConfigCacheType InType)
	: Type(InType)
	, bAreFileOperationsDisabled(false)
{}

FConfigCacheIni::~FConfigCacheIni()
{
	Flush(true);
}

void FConfigCacheIni::DisableFileOperations()
{
	bAreFileOperationsDisabled = true;
}

void FConfigCacheIni::EnableFileOperations()
{
	bAreFileOperationsDisabled = false;
}

bool FConfigCacheIni::AreFileOperationsDisabled()
{
	return bAreFileOperationsDisabled || Type == EConfigCacheType::Temporary;
}

FConfigFile* FConfigCacheIni::FindConfigFile(const FString& Filename)
{
	return TMap<FString, FConfigFile>::Find(Filename);
}

FConfigFile* FConfigCacheIni::Find(const FString& InFilename, bool CreateIfNotFound)
{
	if (InFilename.IsEmpty())
	{
		return nullptr;
	}
	if (FConfigFile* const Present = FindConfigFile(InFilename))
	{
		return Present;
	}
	if (const FString* const IniName = HierarchyNames.Find(InFilename))
	{
		LoadHierarchy(InFilename, FString(*IniName));
		return FindConfigFile(InFilename);
	}
	if (!CreateIfNotFound && (AreFileOperationsDisabled() || !FPaths::FileExists(InFilename)))
	{
		return nullptr;
	}
	FConfigFile& File = Add(InFilename, FConfigFile());
	if (!AreFileOperationsDisabled())
	{
		File.Read(InFilename);
	}
	return &File;
}

void FConfigCacheIni::Flush(bool bRead, const FString& Filename)
{
	if (!AreFileOperationsDisabled())
	{
		for (TPair<FString, FConfigFile>& Pair : *this)
		{
			if (Filename.IsEmpty() || Pair.Key == Filename)
			{
				Pair.Value.Write(Pair.Key);
			}
		}
	}
	if (bRead)
	{
		// A file that could not be saved stays in memory: it holds the only copy of what was changed.
		TArray<FString> Names;
		GetKeys(Names);
		for (const FString& Name : Names)
		{
			if ((Filename.IsEmpty() || Name == Filename) && !(FindConfigFile(Name)->Dirty && !FindConfigFile(Name)->NoSave))
			{
				Remove(Name);
			}
		}
	}
}

void FConfigCacheIni::LoadFile(const FString& InFilename, const FConfigFile* Fallback, const TCHAR* PlatformString)
{
	(void)PlatformString;
	FConfigFile File;
	if (Fallback)
	{
		FConfigFileAccess::SetHierarchy(File, MakeShared<FConfigFile>(*Fallback));
	}
	if (!AreFileOperationsDisabled())
	{
		File.Read(InFilename);
	}
	Add(InFilename, File);
}

void FConfigCacheIni::SetFile(const FString& InFilename, const FConfigFile* NewConfigFile)
{
	Add(InFilename, FConfigFile(*NewConfigFile));
}

void FConfigCacheIni::UnloadFile(const FString& Filename)
{
	Remove(Filename);
}

bool FConfigCacheIni::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename)
{
	const FConfigFile* const File = Find(Filename, false);
	return File && File->GetString(Section, Key, Value);
}

bool FConfigCacheIni::GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename)
{
	const FConfigFile* const File = Find(Filename, false);
	return File && File->GetInt(Section, Key, Value);
}

bool FConfigCacheIni::GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename)
{
	const FConfigFile* const File = Find(Filename, false);
	return File && File->GetFloat(Section, Key, Value);
}

bool FConfigCacheIni::GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = FCString::Atod(*Text);
	return true;
}

bool FConfigCacheIni::GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename)
{
	const FConfigFile* const File = Find(Filename, false);
	return File && File->GetBool(Section, Key, Value);
}

FString FConfigCacheIni::GetStr(const TCHAR* Section, const TCHAR* Key, const FString& Filename)
{
	FString Value;
	GetString(Section, Key, Value, Filename);
	return Value;
}

int32 FConfigCacheIni::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& Out_Arr, const FString& Filename)
{
	Out_Arr.Empty();
	const FConfigFile* const File = Find(Filename, false);
	return File ? File->GetArray(Section, Key, Out_Arr) : 0;
}

bool FConfigCacheIni::GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename)
{
	Result.Empty();
	const FConfigFile* const File = Find(Filename, false);
	const FConfigSection* const Found = File ? File->Find(Section) : nullptr;
	if (!Found)
	{
		return false;
	}
	for (const TPair<FName, FConfigValue>& Pair : *Found)
	{
		Result.Add(Pair.Key.ToString() + TEXT("=") + Pair.Value.GetValue());
	}
	return true;
}

FConfigSection* FConfigCacheIni::GetSectionPrivate(const TCHAR* Section, const bool Force, const bool Const, const FString& Filename)
{
	FConfigFile* const File = Find(Filename, Force);
	if (!File)
	{
		return nullptr;
	}
	FConfigSection* const Found = Force ? File->FindOrAddSection(Section) : File->Find(Section);
	if (Found && (Force || !Const))
	{
		File->Dirty = true;
	}
	return Found;
}

bool FConfigCacheIni::DoesSectionExist(const TCHAR* Section, const FString& Filename)
{
	return GetSectionPrivate(Section, false, true, Filename) != nullptr;
}

bool FConfigCacheIni::GetSectionNames(const FString& Filename, TArray<FString>& out_SectionNames)
{
	out_SectionNames.Empty();
	const FConfigFile* const File = Find(Filename, false);
	if (!File)
	{
		return false;
	}
	File->GetKeys(out_SectionNames);
	return true;
}

void FConfigCacheIni::GetConfigFilenames(TArray<FString>& ConfigFilenames)
{
	GetKeys(ConfigFilenames);
}

void FConfigCacheIni::SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename)
{
	if (FConfigFile* const File = Find(Filename, true))
	{
		File->SetString(Section, Key, Value);
	}
}

void FConfigCacheIni::SetInt(const TCHAR* Section, const TCHAR* Key, const int32 Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%d"), Value), Filename);
}

void FConfigCacheIni::SetFloat(const TCHAR* Section, const TCHAR* Key, const float Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%f"), Value), Filename);
}

void FConfigCacheIni::SetBool(const TCHAR* Section, const TCHAR* Key, const bool Value, const FString& Filename)
{
	SetString(Section, Key, Value ? TEXT("True") : TEXT("False"), Filename);
}

void FConfigCacheIni::SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename)
{
	if (FConfigFile* const File = Find(Filename, true))
	{
		File->SetArray(Section, Key, Value);
	}
}

bool FConfigCacheIni::RemoveKey(const TCHAR* Section, const TCHAR* Key, const FString& Filename)
{
	FConfigFile* const File = Find(Filename, false);
	FConfigSection* const Found = File ? File->Find(Section) : nullptr;
	if (!Found || Found->Remove(FName(Key)) == 0)
	{
		return false;
	}
	File->Dirty = true;
	return true;
}

bool FConfigCacheIni::EmptySection(const TCHAR* Section, const FString& Filename)
{
	FConfigFile* const File = Find(Filename, false);
	if (!File || File->Remove(Section) == 0)
	{
		return false;
	}
	File->Dirty = true;
	return true;
}

void FConfigCacheIni::InitializeConfigSystem()
{
	delete GConfig;
	GConfig = new FConfigCacheIni(EConfigCacheType::DiskBacked);
	LoadGlobalIniFile(GEngineIni, TEXT("Engine"));
	LoadGlobalIniFile(GGameIni, TEXT("Game"));
	LoadGlobalIniFile(GInputIni, TEXT("Input"));
	LoadGlobalIniFile(GEditorIni, TEXT("Editor"));
	LoadGlobalIniFile(GEditorPerProjectIni, TEXT("EditorPerProjectUserSettings"));
	LoadGlobalIniFile(GEditorSettingsIni, TEXT("EditorSettings"));
	LoadGlobalIniFile(GEditorLayoutIni, TEXT("EditorLayout"));
	LoadGlobalIniFile(GEditorKeyBindingsIni, TEXT("EditorKeyBindings"));
	LoadGlobalIniFile(GGameUserSettingsIni, TEXT("GameUserSettings"));
	FLogSuppressionInterface::Get().ProcessConfigAndCommandLine();
	FCoreDelegates::ConfigReadyForUse.Broadcast();
}

bool FConfigCacheIni::LoadGlobalIniFile(FString& FinalIniFilename, const TCHAR* BaseIniName, const TCHAR* Platform, bool bForceReload,
	bool bRequireDefaultIni, bool bAllowGeneratedIniWhenCooked, bool bAllowRemoteConfig, const TCHAR* GeneratedConfigDir)
{
	(void)bRequireDefaultIni;
	(void)bAllowGeneratedIniWhenCooked;
	(void)bAllowRemoteConfig;
	check(GConfig);
	FinalIniFilename = GetDestIniFilename(BaseIniName, Platform, GeneratedConfigDir);
	GConfig->HierarchyNames.Add(FinalIniFilename, BaseIniName);
	if (!bForceReload && GConfig->FindConfigFile(FinalIniFilename))
	{
		return true;
	}
	return GConfig->LoadHierarchy(FinalIniFilename, BaseIniName);
}

bool FConfigCacheIni::LoadLocalIniFile(
	FConfigFile& ConfigFile, const TCHAR* IniName, bool bIsBaseIniName, const TCHAR* Platform, bool bForceReload)
{
	(void)bForceReload;
	const FString Filename = bIsBaseIniName ? GetDestIniFilename(IniName, Platform, *FPaths::GeneratedConfigDir()) : FString(IniName);
	const TSharedPtr<FConfigFile> Hierarchy = bIsBaseIniName ? StandIn::ReadConfigHierarchy(IniName) : TSharedPtr<FConfigFile>();
	FConfigFileAccess::SetHierarchy(ConfigFile, Hierarchy);
	ConfigFile.Name = FName(*FPaths::GetBaseFilename(Filename));
	ConfigFile.Read(Filename);
	return Hierarchy.IsValid() || FPaths::FileExists(Filename);
}

FString FConfigCacheIni::GetDestIniFilename(const TCHAR* BaseIniName, const TCHAR* PlatformName, const TCHAR* GeneratedConfigDir)
{
	const FString Platform(PlatformName ? PlatformName : FPlatformMisc::GetIniPlatform());
	return FPaths::Combine(GeneratedConfigDir, Platform, FString(BaseIniName) + TEXT(".ini"));
}

bool FConfigCacheIni::LoadHierarchy(const FString& DestFilename, const FString& BaseIniName)
{
	FConfigFile File;
	File.Name = FName(*BaseIniName);
	const TSharedPtr<FConfigFile> Hierarchy =
		AreFileOperationsDisabled() ? TSharedPtr<FConfigFile>() : StandIn::ReadConfigHierarchy(BaseIniName);
	FConfigFileAccess::SetHierarchy(File, Hierarchy);
	if (!AreFileOperationsDisabled())
	{
		File.Read(DestFilename);
	}
	Add(DestFilename, File);
	return Hierarchy.IsValid() || FPaths::FileExists(DestFilename);
}
