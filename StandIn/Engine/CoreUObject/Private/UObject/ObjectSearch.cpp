// Copyright The Tintmill authors. All rights reserved.

#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "StandIn/AssetFiles.h"
#include "UObject/ObjectHash.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/UObjectGlobals.h"

// Finding and loading objects by path.

namespace StandInPrivate
{
namespace
{
bool FitsClass(const UObject* Object, const UClass* Class, bool bExactClass)
{
	return Object != nullptr && (Class == nullptr || (bExactClass ? Object->GetClass() == Class : Object->IsA(Class)));
}

// Follows a path from an outer (null: from the packages); dots and colons part its names.
UObject* FollowPath(UObject* Outer, const FString& Path)
{
	UObject* Object = Outer;
	int32 Start = 0;
	for (int32 Index = 0; Index <= Path.Len(); ++Index)
	{
		if (Index < Path.Len() && Path[Index] != TEXT('.') && Path[Index] != TEXT(':'))
		{
			continue;
		}
		const FString Part = Path.Mid(Start, Index - Start);
		if (Part.Len() == 0 || Part.Len() >= NAME_SIZE)
		{
			return nullptr;
		}
		const FName Name(*Part, FNAME_Find);
		if (Name.IsNone())
		{
			return nullptr;
		}
		Object = FindInOuter(Object, Name);
		if (Object == nullptr)
		{
			return nullptr;
		}
		Start = Index + 1;
	}
	return Object;
}

bool IsQuiet(uint32 LoadFlags)
{
	return (LoadFlags & (LOAD_Quiet | LOAD_NoWarn)) != 0;
}

// Makes the asset of a package from its file; null, with a warning, when that fails.
UObject* LoadAsset(const FString& PackageName, uint32 LoadFlags)
{
	StandIn::FAssetFile File;
	if (!StandIn::FindAssetFile(PackageName, File))
	{
		UE_CLOG(!IsQuiet(LoadFlags), LogUObjectGlobals, Warning, TEXT("Failed to load '%s': Can't find file."), *PackageName);
		return nullptr;
	}
	UClass* Class = (UClass*)StaticFindObject(UClass::StaticClass(), ANY_PACKAGE, *File.ClassName.ToString());
	if (Class == nullptr)
	{
		UE_CLOG(!IsQuiet(LoadFlags), LogUObjectGlobals, Warning, TEXT("Failed to load '%s': Can't find class '%s' of '%s'."), *PackageName,
			*File.ClassName.ToString(), *File.FileName);
		return nullptr;
	}
	UPackage* Package = CreatePackage(*File.PackageName);
	const FName AssetName(*FPackageName::GetShortName(File.PackageName));
	if (UObject* Existing = FindInOuter(Package, AssetName))
	{
		return Existing;
	}
	Package->FileName = FName(*File.FileName);
	Package->MarkAsFullyLoaded();
	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Package;
	Params.Name = AssetName;
	Params.SetFlags = RF_Public | RF_Standalone | RF_WasLoaded;
	UObject* Asset = StaticConstructObject_Internal(Params);
	const FString Extension = FPaths::GetExtension(File.FileName);
	for (const StandIn::FAssetFileType& Type : TArray<StandIn::FAssetFileType>(StandIn::GetAssetFileTypes()))
	{
		if (Type.Extension == Extension && Type.Load)
		{
			Type.Load(Asset, File.FileName);
		}
	}
	Asset->PostLoad();
	FObjectSystemAccess::AddFlags(Asset, RF_LoadCompleted);
	FCoreUObjectDelegates::OnAssetLoaded.Broadcast(Asset);
	return Asset;
}
}
}

UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool ExactClass, bool AnyPackage, EObjectFlags ExclusiveFlags,
	EInternalObjectFlags ExclusiveInternalFlags)
{
	if (InName.IsNone())
	{
		return nullptr;
	}
	UObject* Found = AnyPackage || InOuter == (UObject*)ANY_PACKAGE ? StandInPrivate::FindAnywhere(InName, Class, ExactClass)
																	: StandInPrivate::FindInOuter(InOuter, InName);
	return StandInPrivate::FitsClass(Found, Class, ExactClass) && !Found->HasAnyFlags(ExclusiveFlags)
			&& !Found->HasAnyInternalFlags(ExclusiveInternalFlags | EInternalObjectFlags::Unreachable)
		? Found
		: nullptr;
}

UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	check(Name);
	UE_CLOG(IsGarbageCollecting(), LogUObjectGlobals, Fatal, TEXT("Illegal call to StaticFindObject() while collecting garbage!"));
	const FString Path(Name);
	if (Path.Len() == 0)
	{
		return nullptr;
	}
	UObject* Found = nullptr;
	if (InOuter == (UObject*)ANY_PACKAGE)
	{
		const bool bIsPath = Path.Contains(TEXT(".")) || Path.Contains(TEXT(":"));
		Found = bIsPath ? StandInPrivate::FollowPath(nullptr, Path)
						: (Path.Len() < NAME_SIZE ? StandInPrivate::FindAnywhere(FName(*Path, FNAME_Find), Class, ExactClass) : nullptr);
	}
	else
	{
		Found = StandInPrivate::FollowPath(InOuter, Path);
	}
	return StandInPrivate::FitsClass(Found, Class, ExactClass) && !Found->IsUnreachable() ? Found : nullptr;
}

UObject* StaticFindObjectChecked(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	UObject* Result = StaticFindObject(Class, InOuter, Name, ExactClass);
	UE_CLOG(Result == nullptr, LogUObjectGlobals, Fatal, TEXT("Failed to find object '%s %s.%s'"), *Class->GetName(),
		*GetPathNameSafe(InOuter == (UObject*)ANY_PACKAGE ? nullptr : InOuter), Name);
	return Result;
}

UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags, UPackageMap* Sandbox,
	bool bAllowObjectReconciliation)
{
	check(Class);
	check(Name);
	checkf(Filename == nullptr && Sandbox == nullptr, TEXT("not in this stand-in: loading from a given file or sandbox"));
	(void)bAllowObjectReconciliation;
	FString Path(Name);
	if (InOuter == nullptr && Path.StartsWith(TEXT("/")) && !Path.Contains(TEXT(".")))
	{
		Path += TEXT(".") + FPackageName::GetShortName(Path);
	}
	UObject* Result = Path.Len() > 0 ? StaticFindObject(Class, InOuter, *Path) : nullptr;
	if (Result == nullptr && InOuter == nullptr && Path.StartsWith(TEXT("/")))
	{
		const FString PackageName = FPackageName::ObjectPathToPackageName(Path);
		const bool bIsLoaded = StandInPrivate::FollowPath(nullptr, Path) != nullptr;
		if (!bIsLoaded && !FPackageName::IsScriptPackage(PackageName))
		{
			StandInPrivate::LoadAsset(PackageName, LoadFlags);
			Result = StaticFindObject(Class, nullptr, *Path);
		}
	}
	UE_CLOG(Result == nullptr && !StandInPrivate::IsQuiet(LoadFlags), LogUObjectGlobals, Warning, TEXT("Failed to find object '%s %s'"),
		*Class->GetName(), *(InOuter != nullptr ? InOuter->GetPathName() + TEXT(".") + Path : Path));
	return Result;
}

UClass* StaticLoadClass(
	UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags, UPackageMap* Sandbox)
{
	check(BaseClass);
	UClass* Class = (UClass*)StaticLoadObject(UClass::StaticClass(), InOuter, Name, Filename, LoadFlags, Sandbox);
	if (Class != nullptr && !Class->IsChildOf(BaseClass))
	{
		UE_LOG(LogUObjectGlobals, Warning, TEXT("%s is not a child class of %s"), *Class->GetPathName(), *BaseClass->GetPathName());
		return nullptr;
	}
	return Class;
}

UPackage* LoadPackage(UPackage* InOuter, const TCHAR* InLongPackageName, uint32 LoadFlags)
{
	checkf(InOuter == nullptr && InLongPackageName != nullptr, TEXT("not in this stand-in: loading into an outer package"));
	UPackage* Package = FindPackage(nullptr, InLongPackageName);
	if (Package != nullptr && Package->IsFullyLoaded())
	{
		return Package;
	}
	UObject* Asset = StandInPrivate::LoadAsset(InLongPackageName, LoadFlags);
	return Asset != nullptr ? Asset->GetOutermost() : Package;
}
