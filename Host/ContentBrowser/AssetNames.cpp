// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/AssetNames.h"

#include "Host/Program/Strings.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Misc/PackageName.h"
#include "StandIn/AssetFiles.h"
#include "UObject/Object.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "ContentBrowser"

namespace TintmillHost
{
namespace
{
/** Bytes of UTF-8 that a file's name may have with its extension, on every system at hand. */
constexpr size_t MaxNameBytes = 240;

/** The characters of a name that no object may have, each once. */
FString FindBadCharacters(const FString& Name)
{
	const FString Invalid = FString(INVALID_OBJECTNAME_CHARACTERS) + TEXT("\\*?<>");
	FString Bad;
	for (int32 Index = 0; Index < Name.Len(); ++Index)
	{
		int32 Place = INDEX_NONE;
		const bool bBad = Name[Index] < 0x20 || Name[Index] == 0x7F || Invalid.FindChar(Name[Index], Place);
		if (bBad && !Bad.FindChar(Name[Index], Place))
		{
			Bad += Name.Mid(Index, 1);
		}
	}
	return Bad;
}
}

FText CheckNewAssetName(const FString& Folder, const FString& Name)
{
	if (Name.IsEmpty())
	{
		return LOCTEXT("EmptyAssetName", "Please provide a name for the asset.");
	}
	const FString Bad = FindBadCharacters(Name);
	if (!Bad.IsEmpty())
	{
		return FText::Format(LOCTEXT("IllegalNameCharacters", "Name may not contain the following characters: {0}"),
			FText::FromString(Bad == TEXT(" ") ? FString(TEXT("space")) : Bad));
	}
	if (ToUtf8(Name).size() > MaxNameBytes)
	{
		return LOCTEXT("AssetNameTooLong", "This asset name is too long. Please choose a shorter name.");
	}
	const FString PackageName = Folder / Name;
	const FString ObjectPath = PackageName + TEXT(".") + Name;
	StandIn::FAssetFile Present;
	if (FAssetRegistryModule::GetRegistry().GetAssetByObjectPath(FName(*ObjectPath)).IsValid()
		|| StaticFindObject(UObject::StaticClass(), nullptr, *ObjectPath) != nullptr || StandIn::FindAssetFile(PackageName, Present))
	{
		return FText::Format(
			LOCTEXT("RenameAssetAlreadyExists", "An asset already exists at this location with the name '{0}'."), FText::FromString(Name));
	}
	return FText::GetEmpty();
}
}

#undef LOCTEXT_NAMESPACE
