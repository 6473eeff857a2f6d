// Copyright The Tintmill authors. All rights reserved.

#include "NewAssetFile.h"
#include "HAL/FileManager.h"
#include "Misc/PackageName.h"
#include "StandIn/Notices.h"
#include "UObject/Class.h"

namespace NewAssetFilePrivate
{
/** The kind of file in which an asset of a class starts; null when there is none. */
const StandIn::FAssetFileType* FindType(const UClass* Class)
{
	for (; Class; Class = Class->GetSuperClass())
	{
		for (const StandIn::FAssetFileType& Type : StandIn::GetAssetFileTypes())
		{
			if (Type.WriteNew && Type.ClassName == Class->GetFName())
			{
				return &Type;
			}
		}
	}
	return nullptr;
}

/** Tells the person once for each try. */
void Refuse(const FString& PackageName, const FString& Reason)
{
	const FString Key = TEXT("NewAsset:") + PackageName;
	StandIn::ClearNotice(Key);
	StandIn::AddNotice(Key, FString::Printf(TEXT("The asset %s was not made: %s"), *PackageName, *Reason));
}
}

bool FNewAssetFile::Write(const FString& PackageName, const UClass* Class)
{
	const StandIn::FAssetFileType* Found = NewAssetFilePrivate::FindType(Class);
	FString WantedName;
	if (!Found || !FPackageName::TryConvertLongPackageNameToFilename(PackageName, WantedName, TEXT(".") + Found->Extension))
	{
		return true;
	}
	FString Folder;
	if (StandIn::FindAssetFolder(FPackageName::GetLongPackagePath(PackageName), Folder))
	{
		WantedName = Folder + FPackageName::GetShortName(PackageName) + TEXT(".") + Found->Extension;
	}
	StandIn::FAssetFile Present;
	if (StandIn::FindAssetFile(PackageName, Present))
	{
		NewAssetFilePrivate::Refuse(
			PackageName, FString::Printf(TEXT("there is the file %s already. Choose another name."), *Present.FileName));
		return false;
	}
	FString Reason;
	if (!Found->WriteNew(WantedName, Reason))
	{
		NewAssetFilePrivate::Refuse(PackageName,
			FString::Printf(TEXT("its file %s cannot be written (%s). Check that you may write into this folder, then create it again."),
				*WantedName, *Reason));
		return false;
	}
	StandIn::ClearNotice(TEXT("NewAsset:") + PackageName);
	Type = *Found;
	FileName = WantedName;
	return true;
}

void FNewAssetFile::GiveTo(UObject* Asset) const
{
	if (!FileName.IsEmpty() && Type.Load)
	{
		Type.Load(Asset, FileName);
	}
}

void FNewAssetFile::Delete()
{
	if (!FileName.IsEmpty())
	{
		IFileManager::Get().Delete(*FileName);
		FileName.Empty();
	}
}
