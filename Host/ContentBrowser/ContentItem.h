// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

#include <string>

class UClass;

// What the content browser lists.

namespace TintmillHost
{
/** Kinds of what the content browser lists, in their order. */
enum class EContentKind
{
	Folder,
	Asset,
	/** An asset that is not made yet: its name is being typed. */
	NewAsset
};

/** One tile of the content browser. */
struct FContentItem
{
	EContentKind Kind = EContentKind::Asset;

	/** Name as it reads. */
	FString Label;

	/** Of folders: the path, such as "/Game/Looks". */
	FString Path;

	/** Of assets that are there. */
	FAssetData Asset;

	/** Of a new asset: the class that it will have. */
	const UClass* Class = nullptr;

	/** The label in small letters, for sorting and searching. */
	std::string SortKey;

	/** Of assets: the path "/game/looks/teal.teal" in small letters. */
	std::string PathKey;

	/** Of assets: the class in small letters. */
	std::string ClassKey;

	/** Of assets: whether the registry knows it no more. */
	bool bGone = false;

	/** Says whether it is a folder. */
	bool IsFolder() const { return Kind == EContentKind::Folder; }
};

using FContentItemPtr = TSharedPtr<FContentItem>;
}
