// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

// Long package names such as "/Game/Looks/Warm". Mount points come from StandIn/AssetFiles.h. Left out: localised packages,
// texts for rejected names, package extensions.

struct FGuid;
class FText;

/** Takes package names and object paths apart. */
class COREUOBJECT_API FPackageName
{
public:
	/** `/Game/Dir/Pkg` of `/Game/Dir/Pkg.Obj`. */
	static FString ObjectPathToPackageName(const FString& InObjectPath);
	/** `Obj` of `/Game/Dir/Pkg.Obj`. */
	static FString ObjectPathToObjectName(const FString& InObjectPath);
	/** `/Game/Dir` of `/Game/Dir/Pkg`. */
	static FString GetLongPackagePath(const FString& InLongPackageName);
	/** `Pkg` of `/Game/Dir/Pkg`. */
	static FString GetLongPackageAssetName(const FString& InLongPackageName);
	/** `Pkg` of `/Game/Dir/Pkg`. */
	static FString GetShortName(const FString& LongName);
	static FName GetShortFName(const FName& LongName);
	/** `Game` of `/Game/Dir/Pkg`. */
	static FName GetPackageMountPoint(const FString& InPackagePath);
	/** Says whether a name has a root, no empty piece, no slash at its end and none of the characters that object names may not have. */
	static bool IsValidLongPackageName(const FString& InLongPackageName, bool bIncludeReadOnlyRoots = false, FText* OutReason = nullptr);
	/** Says whether a name starts at a root and not in a module's package. */
	static bool IsShortPackageName(const FString& PossiblyLongName);
	/** Says whether a package is a module's. */
	static bool IsScriptPackage(const FString& InPackageName);
	/** The file name of a package name below a mount point, with an extension ("" or ".x") added. */
	static bool TryConvertLongPackageNameToFilename(
		const FString& InLongPackageName, FString& OutFilename, const FString& InExtension = TEXT(""));
	/** The package name of a file name below a mount point. */
	static bool TryConvertFilenameToLongPackageName(const FString& InFilename, FString& OutPackageName);
	/** Says whether there is an asset file for a package name. */
	static bool DoesPackageExist(const FString& LongPackageName, const FGuid* Guid = nullptr, FString* OutFilename = nullptr);
};

/** Characters that package names may not have. */
#define INVALID_LONGPACKAGE_CHARACTERS TEXT("\\:*?\"<>|' ,.&!~\n\r\t@#")
#define INVALID_OBJECTNAME_CHARACTERS TEXT("\"' ,/.:|&!~\n\r\t@#(){}[]=;^%$`")
