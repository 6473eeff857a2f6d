// Copyright The Tintmill authors. All rights reserved.

#include "Config/ConfigImport.h"
#include "Config/KeptAside.h"
#include "Misc/ConfigCacheIni.h"
#include "Properties/ImportProblems.h"
#include "StandIn/Notices.h"
#include "UObject/UObjectHash.h"

// UObject::LoadConfig, ReloadConfig and SaveConfig.

namespace StandInPrivate
{
namespace
{
// Copies the files aside whose unread text a save would drop; false, with a notice, when that fails.
bool KeepUnreadText(const UClass* Class, uint64 Flags, const TCHAR* FileName)
{
	for (TFieldIterator<FProperty> It(Class); It; ++It)
	{
		if (!It->HasAnyPropertyFlags(CPF_Config) || !It->HasAllPropertyFlags(Flags))
		{
			continue;
		}
		FString File;
		FString Section;
		GetConfigPlace(Class, *It, FileName, File, Section);
		bool bUnread = HasUnreadText(File, Section, It->GetName());
		for (int32 Index = 0; Index < It->ArrayDim && It->ArrayDim > 1; ++Index)
		{
			bUnread |= HasUnreadText(File, Section, FString::Printf(TEXT("%s[%d]"), *It->GetName(), Index));
		}
		FString Copy;
		FString Reason;
		const bool bKept = !bUnread || KeepAside(File, Copy, Reason);
		if (bUnread && bKept)
		{
			StandIn::ClearNotice(FString::Printf(TEXT("Config|%s|kept"), *File));
		}
		if (!bKept)
		{
			StandIn::AddNotice(FString::Printf(TEXT("Config|%s|kept"), *File),
				FString::Printf(TEXT("%s: the settings of %s were not saved, because the file has lines that could not be read and no copy "
									 "of it could be made: %s. Correct the lines or make room for a copy beside the file."),
					*File, *Class->GetName(), *Reason));
			return false;
		}
	}
	return true;
}

void CopyToDefaultObject(UObject* Object, uint64 Flags)
{
	UObject* DefaultObject = Object->GetClass()->GetDefaultObject();
	for (TFieldIterator<FProperty> It(Object->GetClass()); It && DefaultObject != Object; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_Config) && It->HasAllPropertyFlags(Flags))
		{
			It->CopyCompleteValue_InContainer(DefaultObject, Object);
		}
	}
}
}
}

void UObject::LoadConfig(UClass* ConfigClass, const TCHAR* Filename, uint32 PropagationFlags, FProperty* PropertyToLoad)
{
	UClass* Class = ConfigClass != nullptr ? ConfigClass : GetClass();
	check(IsA(Class));
	if (!Class->HasAnyClassFlags(CLASS_Config) || GConfig == nullptr)
	{
		return;
	}
	UClass* ParentClass = Class->GetSuperClass();
	if (ParentClass != nullptr && ParentClass->HasAnyClassFlags(CLASS_Config) && (PropagationFlags & UE4::LCPF_ReadParentSections))
	{
		LoadConfig(ParentClass, Filename, UE4::LCPF_ReadParentSections, PropertyToLoad);
	}
	StandInPrivate::FMissingObjects MissingObjects;
	for (TFieldIterator<FProperty> It(Class); It; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_Config) && (PropertyToLoad == nullptr || PropertyToLoad == *It))
		{
			FString File;
			FString Section;
			StandInPrivate::GetConfigPlace(Class, *It, Filename, File, Section);
			StandInPrivate::ImportConfigProperty(this, *It, File, Section);
		}
	}
	if (PropagationFlags & (UE4::LCPF_PropagateToInstances | UE4::LCPF_PropagateToChildDefaultObjects))
	{
		TArray<UObject*> Objects;
		GetObjectsOfClass(Class, Objects, true, RF_NoFlags);
		for (UObject* Object : Objects)
		{
			const uint32 Wanted =
				Object->HasAnyFlags(RF_ClassDefaultObject) ? UE4::LCPF_PropagateToChildDefaultObjects : UE4::LCPF_PropagateToInstances;
			if (Object != this && (PropagationFlags & Wanted))
			{
				Object->LoadConfig(Class, Filename, UE4::LCPF_None, PropertyToLoad);
			}
		}
	}
}

void UObject::ReloadConfig(UClass* ConfigClass, const TCHAR* Filename, uint32 PropagationFlags, FProperty* PropertyToLoad)
{
	LoadConfig(ConfigClass, Filename, PropagationFlags | UE4::LCPF_ReloadingConfigData | UE4::LCPF_ReadParentSections, PropertyToLoad);
	PostReloadConfig(PropertyToLoad);
}

void UObject::SaveConfig(uint64 Flags, const TCHAR* Filename, FConfigCacheIni* Config, bool bAllowCopyToDefaultObject)
{
	UClass* Class = GetClass();
	if (!Class->HasAnyClassFlags(CLASS_Config))
	{
		return;
	}
	check(Config != nullptr);
	if (bAllowCopyToDefaultObject)
	{
		StandInPrivate::CopyToDefaultObject(this, Flags);
	}
	if (Config == GConfig && !StandInPrivate::KeepUnreadText(Class, Flags, Filename))
	{
		return;
	}
	TArray<FString> Files;
	for (TFieldIterator<FProperty> It(Class); It; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_Config) && It->HasAllPropertyFlags(Flags))
		{
			FString File;
			FString Section;
			StandInPrivate::GetConfigPlace(Class, *It, Filename, File, Section);
			StandInPrivate::ExportConfigProperty(this, *It, File, Section, *Config);
			Files.AddUnique(File);
		}
	}
	for (const FString& File : Files)
	{
		Config->Flush(false, File);
	}
}
