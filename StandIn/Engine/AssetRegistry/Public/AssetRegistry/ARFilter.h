// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Containers/UnrealString.h"
#include "Misc/Optional.h"
#include "UObject/NameTypes.h"

// A question to the asset registry. Left out: soft object paths, package flags.

/** Describes assets: one of each list that is not empty must fit. */
struct FARFilter
{
	TArray<FName> PackageNames;
	/** Folders such as `/Game/Looks`. */
	TArray<FName> PackagePaths;
	TArray<FName> ObjectPaths;
	/** Class names without prefix. */
	TArray<FName> ClassNames;
	/** Tags and the values they must have; no value means any. */
	TMultiMap<FName, TOptional<FString>> TagsAndValues;
	/** Classes left out of a recursive search by class. */
	TSet<FName> RecursiveClassesExclusionSet;
	/** Folders below PackagePaths count, too. */
	bool bRecursivePaths = false;
	/** Children of ClassNames count, too. */
	bool bRecursiveClasses = false;
	/** Assets in memory do not count. */
	bool bIncludeOnlyOnDiskAssets = false;

	/** Says whether nothing is asked. */
	bool IsEmpty() const
	{
		return PackageNames.Num() + PackagePaths.Num() + ObjectPaths.Num() + ClassNames.Num() + TagsAndValues.Num() == 0;
	}
	/** Adds another filter's lists and switches. */
	void Append(const FARFilter& Other)
	{
		PackageNames.Append(Other.PackageNames);
		PackagePaths.Append(Other.PackagePaths);
		ObjectPaths.Append(Other.ObjectPaths);
		ClassNames.Append(Other.ClassNames);
		for (const TPair<FName, TOptional<FString>>& Tag : Other.TagsAndValues)
		{
			TagsAndValues.Add(Tag.Key, Tag.Value);
		}
		for (FName ClassName : Other.RecursiveClassesExclusionSet)
		{
			RecursiveClassesExclusionSet.Add(ClassName);
		}
		bRecursivePaths |= Other.bRecursivePaths;
		bRecursiveClasses |= Other.bRecursiveClasses;
		bIncludeOnlyOnDiskAssets |= Other.bIncludeOnlyOnDiskAssets;
	}
	/** Asks nothing again. */
	void Clear() { *this = FARFilter(); }
};
