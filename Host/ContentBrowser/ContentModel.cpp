// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/ContentModel.h"

#include "Host/Program/Strings.h"

#include "AssetRegistry/AssetRegistryModule.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
/** Shorter words are looked for in names alone: a letter or two of a class would find nearly everything. */
constexpr size_t MinClassWord = 3;

std::string MakeKey(const FString& Text)
{
	return ToUtf8(Text.ToLower());
}

bool IsInProject(const std::string& Key)
{
	return Key == "/game" || Key.starts_with("/game/");
}

bool IsBelow(const std::string& Key, const std::string& FolderKey)
{
	return Key.size() > FolderKey.size() && Key[FolderKey.size()] == '/' && Key.starts_with(FolderKey);
}

bool IsDirectlyBelow(const std::string& Key, const std::string& FolderKey)
{
	return IsBelow(Key, FolderKey) && Key.find('/', FolderKey.size() + 1) == std::string::npos;
}

bool ComesBefore(const FContentItemPtr& A, const FContentItemPtr& B)
{
	return A->SortKey < B->SortKey;
}

std::vector<std::string> SplitWords(const FString& Search)
{
	TArray<FString> Parts;
	Search.ToLower().ParseIntoArray(Parts, TEXT(" "), true);
	std::vector<std::string> Words;
	for (const FString& Part : Parts)
	{
		Words.push_back(ToUtf8(Part));
	}
	return Words;
}

/** Whether each word is part of the name or begins the name of the class. */
bool Fits(const FContentItem& Item, const std::vector<std::string>& Words)
{
	return std::all_of(Words.begin(), Words.end(), [&Item](const std::string& Word) {
		return Item.SortKey.find(Word) != std::string::npos || (Word.size() >= MinClassWord && Item.ClassKey.starts_with(Word));
	});
}
}

FContentModel::FContentModel()
{
	IAssetRegistry& Registry = FAssetRegistryModule::GetRegistry();
	TArray<FString> Paths;
	Registry.GetAllCachedPaths(Paths);
	OnPathAdded(GetRoot());
	for (const FString& Path : Paths)
	{
		OnPathAdded(Path);
	}
	TArray<FAssetData> Found;
	Registry.GetAllAssets(Found);
	Assets.reserve(static_cast<size_t>(Found.Num()));
	for (const FAssetData& Asset : Found)
	{
		OnAssetAdded(Asset);
	}
	Registry.OnAssetAdded().AddRaw(this, &FContentModel::OnAssetAdded);
	Registry.OnAssetRemoved().AddRaw(this, &FContentModel::OnAssetRemoved);
	Registry.OnAssetRenamed().AddRaw(this, &FContentModel::OnAssetRenamed);
	Registry.OnPathAdded().AddRaw(this, &FContentModel::OnPathAdded);
	Registry.OnPathRemoved().AddRaw(this, &FContentModel::OnPathRemoved);
}

FContentModel::~FContentModel()
{
	if (IAssetRegistry* const Registry = IAssetRegistry::Get())
	{
		Registry->OnAssetAdded().RemoveAll(this);
		Registry->OnAssetRemoved().RemoveAll(this);
		Registry->OnAssetRenamed().RemoveAll(this);
		Registry->OnPathAdded().RemoveAll(this);
		Registry->OnPathRemoved().RemoveAll(this);
	}
}

const FString& FContentModel::GetRoot()
{
	static const FString Root(TEXT("/Game"));
	return Root;
}

FString FContentModel::GetFolderLabel(const FString& Path)
{
	int32 Slash = INDEX_NONE;
	Path.FindLastChar(TEXT('/'), Slash);
	return Path == GetRoot() ? FString(TEXT("Content")) : Path.RightChop(Slash + 1);
}

FString FContentModel::GetParent(const FString& Path)
{
	int32 Slash = INDEX_NONE;
	return Path == GetRoot() || !Path.FindLastChar(TEXT('/'), Slash) ? GetRoot() : Path.Left(Slash);
}

bool FContentModel::HasFolder(const FString& Path) const
{
	return Folders.count(MakeKey(Path)) != 0;
}

std::vector<FContentItemPtr> FContentModel::GetFolders(const FString& Path) const
{
	const std::string Key = MakeKey(Path);
	std::vector<FContentItemPtr> Found;
	// Everything below a folder lies together, behind the folder's path and a slash.
	for (auto It = Folders.lower_bound(Key + "/"); It != Folders.end() && IsBelow(It->first, Key); ++It)
	{
		if (IsDirectlyBelow(It->first, Key))
		{
			Found.push_back(It->second);
		}
	}
	std::sort(Found.begin(), Found.end(), &ComesBefore);
	return Found;
}

TArray<FContentItemPtr> FContentModel::List(const FString& Path, const FString& Search)
{
	SortAssets();
	const std::string Key = MakeKey(Path);
	const std::vector<std::string> Words = SplitWords(Search);
	TArray<FContentItemPtr> Items;
	if (Words.empty())
	{
		for (const FContentItemPtr& Folder : GetFolders(Path))
		{
			Items.Add(Folder);
		}
		const FName FolderName(*Path);
		for (const FContentItemPtr& Asset : Assets)
		{
			if (Asset->Asset.PackagePath == FolderName)
			{
				Items.Add(Asset);
			}
		}
		return Items;
	}

	std::vector<FContentItemPtr> FoundFolders;
	for (const auto& [FolderKey, Folder] : Folders)
	{
		if (IsBelow(FolderKey, Key) && Fits(*Folder, Words))
		{
			FoundFolders.push_back(Folder);
		}
	}
	std::stable_sort(FoundFolders.begin(), FoundFolders.end(), &ComesBefore);
	for (const FContentItemPtr& Folder : FoundFolders)
	{
		Items.Add(Folder);
	}
	const bool bEverywhere = Path == GetRoot();
	for (const FContentItemPtr& Asset : Assets)
	{
		if (Fits(*Asset, Words) && (bEverywhere || IsBelow(Asset->PathKey, Key)))
		{
			Items.Add(Asset);
		}
	}
	return Items;
}

FContentItemPtr FContentModel::FindAsset(const FString& ObjectPath) const
{
	const auto Found = ByPath.find(MakeKey(ObjectPath));
	return Found == ByPath.end() ? FContentItemPtr() : Found->second;
}

void FContentModel::OnAssetAdded(const FAssetData& Asset)
{
	const std::string Key = MakeKey(Asset.ObjectPath.ToString());
	if (!IsInProject(Key))
	{
		return;
	}
	FContentItemPtr& Item = ByPath[Key];
	if (!Item.IsValid())
	{
		Item = MakeShared<FContentItem>();
		Assets.push_back(Item);
		bSorted = false;
	}
	Item->Kind = EContentKind::Asset;
	Item->Label = Asset.AssetName.ToString();
	Item->Asset = Asset;
	Item->SortKey = MakeKey(Item->Label);
	Item->PathKey = Key;
	Item->ClassKey = MakeKey(Asset.AssetClass.ToString());
	++Revision;
}

void FContentModel::OnAssetRemoved(const FAssetData& Asset)
{
	const auto Found = ByPath.find(MakeKey(Asset.ObjectPath.ToString()));
	if (Found != ByPath.end())
	{
		// Taken out of the list when that is needed next: thousands may go at once.
		Found->second->bGone = true;
		bSorted = false;
		ByPath.erase(Found);
		++Revision;
	}
}

void FContentModel::OnAssetRenamed(const FAssetData& Asset, const FString& OldObjectPath)
{
	FAssetData Old;
	Old.ObjectPath = FName(*OldObjectPath);
	OnAssetRemoved(Old);
	OnAssetAdded(Asset);
}

void FContentModel::OnPathAdded(const FString& Path)
{
	const std::string Key = MakeKey(Path);
	if (!IsInProject(Key))
	{
		return;
	}
	FContentItemPtr& Folder = Folders[Key];
	if (!Folder.IsValid())
	{
		Folder = MakeShared<FContentItem>();
		Folder->Kind = EContentKind::Folder;
		Folder->Path = Path;
		Folder->Label = GetFolderLabel(Path);
		Folder->SortKey = MakeKey(Folder->Label);
		++Revision;
	}
}

void FContentModel::OnPathRemoved(const FString& Path)
{
	if (!(Path == GetRoot()) && Folders.erase(MakeKey(Path)) != 0)
	{
		++Revision;
	}
}

void FContentModel::SortAssets()
{
	if (!bSorted)
	{
		Assets.erase(std::remove_if(Assets.begin(), Assets.end(), [](const FContentItemPtr& Asset) { return Asset->bGone; }), Assets.end());
		std::stable_sort(Assets.begin(), Assets.end(), &ComesBefore);
		bSorted = true;
	}
}
}
