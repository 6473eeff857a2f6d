// Copyright The Tintmill authors. All rights reserved.

#include "Misc/PackageName.h"
#include "Internationalization/Text.h"
#include "Misc/CString.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/FatalHandler.h"

FString FPackageName::ObjectPathToPackageName(const FString& InObjectPath)
{
	int32 Position = INDEX_NONE;
	return InObjectPath.FindChar(TEXT('.'), Position) ? InObjectPath.Left(Position) : InObjectPath;
}

FString FPackageName::ObjectPathToObjectName(const FString& InObjectPath)
{
	for (int32 Index = InObjectPath.Len() - 1; Index >= 0; --Index)
	{
		if (InObjectPath[Index] == TEXT('.') || InObjectPath[Index] == TEXT(':'))
		{
			return InObjectPath.RightChop(Index + 1);
		}
	}
	return InObjectPath;
}

FString FPackageName::GetLongPackagePath(const FString& InLongPackageName)
{
	int32 Position = INDEX_NONE;
	return InLongPackageName.FindLastChar(TEXT('/'), Position) ? InLongPackageName.Left(Position) : FString();
}

FString FPackageName::GetLongPackageAssetName(const FString& InLongPackageName)
{
	return GetShortName(InLongPackageName);
}

FString FPackageName::GetShortName(const FString& LongName)
{
	int32 Position = INDEX_NONE;
	return LongName.FindLastChar(TEXT('/'), Position) ? LongName.RightChop(Position + 1) : LongName;
}

FName FPackageName::GetShortFName(const FName& LongName)
{
	return FName(*GetShortName(LongName.ToString()));
}

FName FPackageName::GetPackageMountPoint(const FString& InPackagePath)
{
	if (!InPackagePath.StartsWith(TEXT("/")))
	{
		return NAME_None;
	}
	const FString Rest = InPackagePath.RightChop(1);
	int32 Position = INDEX_NONE;
	return FName(*(Rest.FindChar(TEXT('/'), Position) ? Rest.Left(Position) : Rest));
}

bool FPackageName::IsValidLongPackageName(const FString& InLongPackageName, bool bIncludeReadOnlyRoots, FText* OutReason)
{
	(void)bIncludeReadOnlyRoots;
	const TCHAR* Reason = nullptr;
	if (!InLongPackageName.StartsWith(TEXT("/")))
	{
		Reason = TEXT("Path should start with a '/'");
	}
	else if (InLongPackageName.EndsWith(TEXT("/")))
	{
		Reason = TEXT("Path may not end with a '/'");
	}
	else if (InLongPackageName.Contains(TEXT("//")))
	{
		Reason = TEXT("Path may not contain a double slash");
	}
	else if (InLongPackageName.Len() < 4 || !InLongPackageName.RightChop(1).Contains(TEXT("/")))
	{
		Reason = TEXT("Path needs a root and a name");
	}
	else if (InLongPackageName.Len() >= NAME_SIZE / 2)
	{
		Reason = TEXT("Path is too long");
	}
	for (int32 Index = 0; Reason == nullptr && Index < InLongPackageName.Len(); ++Index)
	{
		if (FCString::Strchr(INVALID_LONGPACKAGE_CHARACTERS, InLongPackageName[Index]) != nullptr)
		{
			Reason = TEXT("Path contains a character that it may not have");
		}
	}
	if (Reason != nullptr && OutReason != nullptr)
	{
		*OutReason = FText::FromString(FString(Reason));
	}
	return Reason == nullptr;
}

bool FPackageName::IsShortPackageName(const FString& PossiblyLongName)
{
	return !PossiblyLongName.Contains(TEXT("/"));
}

bool FPackageName::IsScriptPackage(const FString& InPackageName)
{
	return InPackageName.StartsWith(TEXT("/Script/"));
}

bool FPackageName::TryConvertLongPackageNameToFilename(const FString& InLongPackageName, FString& OutFilename, const FString& InExtension)
{
	for (const StandIn::FMountPoint& MountPoint : StandIn::GetMountPoints())
	{
		if (InLongPackageName.StartsWith(MountPoint.RootPath))
		{
			OutFilename = MountPoint.Directory + InLongPackageName.RightChop(MountPoint.RootPath.Len()) + InExtension;
			return true;
		}
	}
	return false;
}

bool FPackageName::TryConvertFilenameToLongPackageName(const FString& InFilename, FString& OutPackageName)
{
	StandIn::FAssetFile File;
	if (!StandIn::DescribeAssetFile(InFilename, File))
	{
		return false;
	}
	OutPackageName = File.PackageName;
	return true;
}

bool FPackageName::DoesPackageExist(const FString& LongPackageName, const FGuid* Guid, FString* OutFilename)
{
	if (Guid != nullptr)
	{
		STANDIN_MISSING(TEXT("FPackageName::DoesPackageExist with a guid"));
	}
	StandIn::FAssetFile File;
	if (!StandIn::FindAssetFile(LongPackageName, File))
	{
		return false;
	}
	if (OutFilename != nullptr)
	{
		*OutFilename = File.FileName;
	}
	return true;
}
