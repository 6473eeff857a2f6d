// Copyright The Tintmill authors. All rights reserved.

#include "PluginDescriptor.h"

#include "HAL/FileManager.h"
#include "JsonFields.h"
#include "Misc/FileHelper.h"

namespace
{
/** The newest form of descriptor this reader knows. */
const int32 LatestDescriptorVersion = 3;

bool TakeModule(const StandInPrivate::FJsonValue& Value, StandInPrivate::FJsonError& Error, FModuleDescriptor& Out)
{
	StandInPrivate::FJsonFields Fields(Value, Error);
	FString Name;
	FString Type;
	FString Phase;
	Fields.Take(TEXT("Name"), Name);
	Fields.Take(TEXT("Type"), Type);
	Fields.Take(TEXT("LoadingPhase"), Phase);
	Fields.Take(TEXT("WhitelistPlatforms"), Out.WhitelistPlatforms);
	Fields.Take(TEXT("BlacklistPlatforms"), Out.BlacklistPlatforms);
	if (!Fields.IsGood())
	{
		return false;
	}
	if (Name.IsEmpty() || Name.Len() >= NAME_SIZE)
	{
		return Fields.Fail(TEXT("Name"), TEXT("a module has no usable \"Name\""));
	}
	Out.Name = FName(*Name);
	Out.Type = EHostType::FromString(*Type);
	if (Out.Type == EHostType::Max)
	{
		return Fields.Fail(TEXT("Type"), FString::Printf(TEXT("module %s has an unknown \"Type\" \"%s\""), *Name, *Type));
	}
	Out.LoadingPhase = Phase.IsEmpty() ? ELoadingPhase::Default : ELoadingPhase::FromString(*Phase);
	if (Out.LoadingPhase == ELoadingPhase::Max)
	{
		return Fields.Fail(TEXT("LoadingPhase"), FString::Printf(TEXT("module %s has an unknown \"LoadingPhase\" \"%s\""), *Name, *Phase));
	}
	return true;
}

bool TakeModules(StandInPrivate::FJsonFields& Fields, StandInPrivate::FJsonError& Error, TArray<FModuleDescriptor>& Out)
{
	const StandInPrivate::FJsonValue* const List = Fields.TakeObjects(TEXT("Modules"));
	for (size_t Index = 0; List && Index < List->Elements.size(); ++Index)
	{
		FModuleDescriptor Module;
		if (!TakeModule(List->Elements[Index], Error, Module))
		{
			return false;
		}
		Out.Add(Module);
	}
	return Fields.IsGood();
}

bool TakeDescriptor(const StandInPrivate::FJsonValue& Root, StandInPrivate::FJsonError& Error, FPluginDescriptor& Out)
{
	StandInPrivate::FJsonFields Fields(Root, Error);
	int32 FileVersion = 0;
	if (Root.Type != StandInPrivate::FJsonValue::EType::Object)
	{
		return Fields.Fail(TEXT(""), FString::Printf(TEXT("the file must hold an object in braces but holds %s"), Root.Describe()));
	}
	if (!Fields.Take(TEXT("FileVersion"), FileVersion))
	{
		return false;
	}
	if (FileVersion < 1 || FileVersion > LatestDescriptorVersion)
	{
		return Fields.Fail(
			TEXT("FileVersion"), FString::Printf(TEXT("\"FileVersion\" must be a number from 1 to %d"), LatestDescriptorVersion));
	}
	Fields.Take(TEXT("Version"), Out.Version);
	Fields.Take(TEXT("VersionName"), Out.VersionName);
	Fields.Take(TEXT("FriendlyName"), Out.FriendlyName);
	Fields.Take(TEXT("Description"), Out.Description);
	Fields.Take(TEXT("Category"), Out.Category);
	Fields.Take(TEXT("CreatedBy"), Out.CreatedBy);
	Fields.Take(TEXT("CreatedByURL"), Out.CreatedByURL);
	Fields.Take(TEXT("DocsURL"), Out.DocsURL);
	Fields.Take(TEXT("MarketplaceURL"), Out.MarketplaceURL);
	Fields.Take(TEXT("SupportURL"), Out.SupportURL);
	Fields.Take(TEXT("EngineVersion"), Out.EngineVersion);
	Fields.Take(TEXT("SupportedTargetPlatforms"), Out.SupportedTargetPlatforms);
	Fields.Take(TEXT("CanContainContent"), Out.bCanContainContent);
	Fields.Take(TEXT("IsBetaVersion"), Out.bIsBetaVersion);
	Fields.Take(TEXT("IsExperimentalVersion"), Out.bIsExperimentalVersion);
	Fields.Take(TEXT("Installed"), Out.bInstalled);
	Fields.Take(TEXT("RequiresBuildPlatform"), Out.bRequiresBuildPlatform);
	Fields.Take(TEXT("Hidden"), Out.bIsHidden);
	if (Fields.Has(TEXT("EnabledByDefault")))
	{
		bool bEnabled = false;
		Fields.Take(TEXT("EnabledByDefault"), bEnabled);
		Out.EnabledByDefault = bEnabled ? EPluginEnabledByDefault::Enabled : EPluginEnabledByDefault::Disabled;
	}
	return TakeModules(Fields, Error, Out.Modules) && StandInPrivate::TakePluginReferences(Fields, Error, Out.Plugins);
}

bool ReadDescriptor(const FString& Text, FPluginDescriptor& Out, StandInPrivate::FJsonError& Error)
{
	StandInPrivate::FJsonValue Root;
	return StandInPrivate::ReadJson(Text, Root, Error) && TakeDescriptor(Root, Error, Out);
}
}

FPluginDescriptor::FPluginDescriptor()
	: Version(0)
	, EnabledByDefault(EPluginEnabledByDefault::Unspecified)
	, bCanContainContent(false)
	, bIsBetaVersion(false)
	, bIsExperimentalVersion(false)
	, bInstalled(false)
	, bRequiresBuildPlatform(false)
	, bIsHidden(false)
{}

bool FPluginDescriptor::SupportsTargetPlatform(const FString& Platform) const
{
	return SupportedTargetPlatforms.Num() == 0 || SupportedTargetPlatforms.Contains(Platform);
}

bool FPluginDescriptor::Load(const FString& FileName, FText& OutFailReason)
{
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *FileName))
	{
		OutFailReason = FText::FromString(FString::Printf(TEXT("%s: the file cannot be read"), *FileName));
		return false;
	}
	StandInPrivate::FJsonError Error;
	if (!ReadDescriptor(Text, *this, Error))
	{
		OutFailReason = FText::FromString(FString::Printf(TEXT("%s:%d: %s"), *FileName, Error.Line, *Error.Text));
		return false;
	}
	return true;
}

bool FPluginDescriptor::Read(const FString& Text, FText& OutFailReason)
{
	StandInPrivate::FJsonError Error;
	if (!ReadDescriptor(Text, *this, Error))
	{
		OutFailReason = FText::FromString(FString::Printf(TEXT("line %d: %s"), Error.Line, *Error.Text));
		return false;
	}
	return true;
}
