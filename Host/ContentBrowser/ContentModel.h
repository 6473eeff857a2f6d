// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/ContentItem.h"

#include <map>
#include <string>
#include <vector>

class IAssetRegistry;

// The project's folders and assets as the asset registry knows them. All is read once and then followed by the registry's events,
// so that tens of thousands of assets cost nothing while nothing changes.

namespace TintmillHost
{
/** Follows the asset registry while it lives. */
class FContentModel
{
public:
	FContentModel();
	~FContentModel();
	FContentModel(const FContentModel&) = delete;
	FContentModel& operator=(const FContentModel&) = delete;

	/** The folder above all others, which people know as "Content". */
	static const FString& GetRoot();

	/** The name that a folder goes by: "Content" for the root, else the last part of its path. */
	static FString GetFolderLabel(const FString& Path);

	/** The folder that a folder lies in; the root's is the root. */
	static FString GetParent(const FString& Path);

	/** Goes up by one with every change of what is listed. */
	uint64 GetRevision() const { return Revision; }

	/** Says whether there is a folder. */
	bool HasFolder(const FString& Path) const;

	/** The folders in a folder, by name. */
	std::vector<FContentItemPtr> GetFolders(const FString& Path) const;

	/** A folder's folders and assets by name; with a search, those anywhere below it whose name has each of its words or whose class begins with it. */
	TArray<FContentItemPtr> List(const FString& Path, const FString& Search);

	/** The asset of a path such as "/Game/Looks/Teal.Teal"; null if there is none. */
	FContentItemPtr FindAsset(const FString& ObjectPath) const;

private:
	void OnAssetAdded(const FAssetData& Asset);
	void OnAssetRemoved(const FAssetData& Asset);
	void OnAssetRenamed(const FAssetData& Asset, const FString& OldObjectPath);
	void OnPathAdded(const FString& Path);
	void OnPathRemoved(const FString& Path);
	void SortAssets();

	/** By path in small letters. */
	std::map<std::string, FContentItemPtr> Folders;
	std::map<std::string, FContentItemPtr> ByPath;
	std::vector<FContentItemPtr> Assets;
	bool bSorted = false;
	uint64 Revision = 1;
};
}
