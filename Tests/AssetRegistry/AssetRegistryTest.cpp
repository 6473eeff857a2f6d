// Copyright The Tintmill authors. All rights reserved.

#include "AssetRegistry/AssetRegistryModule.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/Notices.h"
#include "StandIn/ObjectSystem.h"
#include "Support/Printers.h"
#include "Support/TestFolder.h"
#include "UObject/MetaData.h"
#include "UObject/Package.h"
#include "gtest/gtest.h"

#include <chrono>
#include <filesystem>

namespace
{
// Content of its own; files ending in .look are of class MetaData, the smallest concrete class that is always there.
class AssetRegistry : public testing::Test
{
protected:
	AssetRegistry()
	{
		StandIn::StartObjectSystem();
		StandIn::ClearNotices();
		StandIn::FAssetFileType Type;
		Type.Extension = TEXT("look");
		Type.ClassName = TEXT("MetaData");
		StandIn::RegisterAssetFileType(Type);
		Type.Extension = TEXT("other");
		Type.ClassName = TEXT("Package");
		StandIn::RegisterAssetFileType(Type);
		Folder.Write("Content/Looks/Warm.look", "");
		Folder.Write("Content/Looks/Deep/Cold.LOOK", "");
		Folder.Write("Content/Looks/Thing.other", "");
		Folder.Write("Content/Looks/notes.txt", "");
		StandIn::RegisterMountPoint(TEXT("/Game/"), Folder.Path("Content"));
	}

	virtual ~AssetRegistry() override
	{
		FModuleManager::Get().UnloadModule(TEXT("AssetRegistry"));
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		StandIn::UnregisterAssetFileType(TEXT("look"));
		StandIn::UnregisterAssetFileType(TEXT("other"));
		StandIn::ClearNotices();
		StandIn::ShutdownObjectSystem();
	}

	static IAssetRegistry& Registry() { return FAssetRegistryModule::GetRegistry(); }

	static std::string Paths(const TArray<FAssetData>& Assets)
	{
		std::string All;
		for (const FAssetData& Data : Assets)
		{
			All += ToStd(Data.ObjectPath) + " ";
		}
		return All;
	}

	static std::string OfClass(const TCHAR* Class, bool bSearchSubClasses = false)
	{
		TArray<FAssetData> Assets;
		Registry().GetAssetsByClass(Class, Assets, bSearchSubClasses);
		return Paths(Assets);
	}

	static std::string OfPath(const TCHAR* Path, bool bRecursive)
	{
		TArray<FAssetData> Assets;
		Registry().GetAssetsByPath(Path, Assets, bRecursive);
		return Paths(Assets);
	}

	FTestFolder Folder;
};
}

TEST_F(AssetRegistry, IsNotThereWithoutItsModule)
{
	EXPECT_EQ(IAssetRegistry::Get(), nullptr);
}

TEST_F(AssetRegistry, FindsAssetsByClassWithoutLoadingThem)
{
	EXPECT_EQ(OfClass(TEXT("MetaData")), "/Game/Looks/Deep/Cold.Cold /Game/Looks/Warm.Warm ");
	EXPECT_EQ(FindPackage(nullptr, TEXT("/Game/Looks/Warm")), nullptr);
}

TEST_F(AssetRegistry, FindsAssetsOfChildClassesIfAsked)
{
	EXPECT_EQ(OfClass(TEXT("Object")) + "|" + OfClass(TEXT("Object"), true),
		"|/Game/Looks/Deep/Cold.Cold /Game/Looks/Thing.Thing /Game/Looks/Warm.Warm ");
}

TEST_F(AssetRegistry, FindsAssetsByFolder)
{
	EXPECT_EQ(OfPath(TEXT("/Game/Looks"), false), "/Game/Looks/Thing.Thing /Game/Looks/Warm.Warm ");
}

TEST_F(AssetRegistry, FindsAssetsBelowAFolder)
{
	EXPECT_EQ(OfPath(TEXT("/Game"), true), "/Game/Looks/Deep/Cold.Cold /Game/Looks/Thing.Thing /Game/Looks/Warm.Warm ");
}

TEST_F(AssetRegistry, DoesNotTakeAFolderForAnotherThatStartsLikeIt)
{
	Folder.Write("Content/LooksMore/X.look", "");
	EXPECT_EQ(OfPath(TEXT("/Game/Looks"), true).find("LooksMore"), std::string::npos);
}

TEST_F(AssetRegistry, FindsAnAssetByItsPathInAnyCase)
{
	EXPECT_EQ(ToStd(Registry().GetAssetByObjectPath(TEXT("/game/looks/WARM.warm")).AssetName), "Warm");
}

TEST_F(AssetRegistry, AnswersAnUnknownPathWithInvalidData)
{
	EXPECT_FALSE(Registry().GetAssetByObjectPath(TEXT("/Game/Gone.Gone")).IsValid());
}

TEST_F(AssetRegistry, CombinesTheListsOfAFilter)
{
	FARFilter Filter;
	Filter.ClassNames.Add(TEXT("MetaData"));
	Filter.PackagePaths.Add(TEXT("/Game/Looks"));
	TArray<FAssetData> Assets;
	Registry().GetAssets(Filter, Assets);
	EXPECT_EQ(Paths(Assets), "/Game/Looks/Warm.Warm ");
}

TEST_F(AssetRegistry, AnswersAnEmptyFilterWithNothing)
{
	TArray<FAssetData> Assets;
	EXPECT_TRUE(!Registry().GetAssets(FARFilter(), Assets) && Assets.Num() == 0);
}

TEST_F(AssetRegistry, ListsFolders)
{
	Folder.Write("Content/Empty/readme.txt", "");
	TArray<FString> Direct;
	TArray<FString> All;
	Registry().GetSubPaths(TEXT("/Game"), Direct, false);
	Registry().GetSubPaths(TEXT("/Game"), All, true);
	EXPECT_EQ(testing::PrintToString(Direct) + testing::PrintToString(All),
		"[\"/Game/Empty\", \"/Game/Looks\"][\"/Game/Empty\", \"/Game/Looks\", \"/Game/Looks/Deep\"]");
}

TEST_F(AssetRegistry, AddsAssetsInMemory)
{
	UObject* Asset = NewObject<UMetaData>(CreatePackage(TEXT("/Game/Fresh")), TEXT("Fresh"), RF_Public | RF_Standalone);
	EXPECT_EQ(OfClass(TEXT("MetaData")), "/Game/Fresh.Fresh /Game/Looks/Deep/Cold.Cold /Game/Looks/Warm.Warm ");
	EXPECT_TRUE(Asset->IsAsset());
}

TEST_F(AssetRegistry, LeavesAssetsInMemoryOutOfQuestionsToTheDisk)
{
	NewObject<UMetaData>(CreatePackage(TEXT("/Game/Fresh")), TEXT("Fresh"), RF_Public | RF_Standalone);
	TArray<FAssetData> Assets;
	Registry().GetAllAssets(Assets, true);
	EXPECT_EQ(Assets.Num(), 3);
}

TEST_F(AssetRegistry, ListsALoadedAssetOnce)
{
	Registry().GetAssetByObjectPath(TEXT("/Game/Looks/Warm.Warm")).GetAsset();
	EXPECT_EQ(OfClass(TEXT("MetaData")), "/Game/Looks/Deep/Cold.Cold /Game/Looks/Warm.Warm ");
}

TEST_F(AssetRegistry, TellsOfNewAndVanishedFilesWhenScannedAgain)
{
	IAssetRegistry& Assets = Registry();
	Assets.SearchAllAssets(true);
	std::string Events;
	Assets.OnAssetAdded().AddLambda([&Events](const FAssetData& Data) { Events += "+" + ToStd(Data.AssetName); });
	Assets.OnAssetRemoved().AddLambda([&Events](const FAssetData& Data) { Events += "-" + ToStd(Data.AssetName); });
	Folder.Write("Content/Looks/New.look", "");
	std::filesystem::remove(Folder.NativePath("Content/Looks/Warm.look"));
	Assets.ScanPathsSynchronous({TEXT("/Game/Looks")}, true);
	EXPECT_EQ(Events, "+New-Warm");
}

TEST_F(AssetRegistry, ScansAgainOnlyWhenForced)
{
	Registry().SearchAllAssets(true);
	Folder.Write("Content/Looks/New.look", "");
	Registry().ScanPathsSynchronous({TEXT("/Game/Looks")});
	EXPECT_FALSE(Registry().GetAssetByObjectPath(TEXT("/Game/Looks/New.New")).IsValid());
}

TEST_F(AssetRegistry, LooksAtSingleFilesAgain)
{
	Registry().SearchAllAssets(true);
	Folder.Write("Content/Looks/New.look", "");
	std::filesystem::remove(Folder.NativePath("Content/Looks/Warm.look"));
	Registry().ScanModifiedAssetFiles({Folder.Path("Content/Looks/New.look"), Folder.Path("Content/Looks/Warm.look")});
	EXPECT_EQ(OfClass(TEXT("MetaData")), "/Game/Looks/Deep/Cold.Cold /Game/Looks/New.New ");
}

TEST_F(AssetRegistry, FollowsMountPointsThatComeAndGo)
{
	Registry().SearchAllAssets(true);
	StandIn::UnregisterMountPoint(TEXT("/Game/"));
	EXPECT_EQ(OfClass(TEXT("MetaData")), "");
}

TEST_F(AssetRegistry, TellsOfAssetsMadeInMemory)
{
	std::string Events;
	Registry().OnAssetAdded().AddLambda([&Events](const FAssetData& Data) { Events += ToStd(Data.ObjectPath); });
	Registry().SearchAllAssets(true);
	Events.clear();
	FAssetRegistryModule::AssetCreated(NewObject<UMetaData>(CreatePackage(TEXT("/Game/Fresh")), TEXT("Fresh"), RF_Public | RF_Standalone));
	EXPECT_EQ(Events, "/Game/Fresh.Fresh");
}

TEST_F(AssetRegistry, SaysOnceThatFilesAreLoaded)
{
	int32 Calls = 0;
	Registry().OnFilesLoaded().AddLambda([&Calls]() { ++Calls; });
	Registry().SearchAllAssets(true);
	Registry().SearchAllAssets(true);
	EXPECT_EQ(Calls, 1);
}

TEST_F(AssetRegistry, GivesANoticeForFilesThatCannotBeAssets)
{
	Folder.Write("Content/Looks/Has blanks.look", "");
	Folder.Write("Content/Looks/Has_blanks.look", "");
	Registry().SearchAllAssets(true);
	ASSERT_EQ(StandIn::GetNotices().Num(), 1);
	EXPECT_NE(ToStd(StandIn::GetNotices()[0].Text).find("Has blanks.look"), std::string::npos);
}

TEST_F(AssetRegistry, ListsFilesAndFoldersUnderNamesThatAssetsMayHave)
{
	Folder.Write("Content/My looks (old)/Film stock 2383.look", "");
	TArray<FAssetData> Assets;
	Registry().GetAssetsByPath(TEXT("/Game/My_looks_old"), Assets);
	EXPECT_EQ(Paths(Assets), "/Game/My_looks_old/Film_stock_2383.Film_stock_2383 ");
	EXPECT_TRUE(Registry().PathExists(TEXT("/Game/My_looks_old")));
	EXPECT_EQ(StandIn::GetNotices().Num(), 0);
}

TEST_F(AssetRegistry, ScansAFolderByItsPathWhateverItsNameOnDisk)
{
	Folder.Write("Content/My looks/A.look", "");
	Registry().SearchAllAssets(true);
	Folder.Write("Content/My looks/B.look", "");
	Registry().ScanPathsSynchronous({TEXT("/Game/My_looks")}, true);
	EXPECT_TRUE(Registry().GetAssetByObjectPath(TEXT("/Game/My_looks/B.B")).IsValid());
}

TEST_F(AssetRegistry, DoesNotListFoldersThatAreLeftOut)
{
	Folder.Write("Content/Saved/Old.look", "");
	Folder.Write("Content/.trash/Old.look", "");
	StandIn::RegisterMountPoint(TEXT("/Game/"), Folder.Path("Content"), {Folder.Path("Content/Saved")});
	TArray<FString> SubPaths;
	Registry().GetSubPaths(TEXT("/Game"), SubPaths, true);
	EXPECT_EQ(SubPaths, TArray<FString>({TEXT("/Game/Looks"), TEXT("/Game/Looks/Deep")}));
}

TEST_F(AssetRegistry, DoesNotListALoadedAssetWhoseFileIsGone)
{
	const UObject* Asset = LoadObject<UObject>(nullptr, TEXT("/Game/Looks/Warm.Warm"));
	ASSERT_NE(Asset, nullptr);
	Registry().SearchAllAssets(true);
	std::filesystem::remove(Folder.NativePath("Content/Looks/Warm.look"));
	Registry().ScanModifiedAssetFiles({Folder.Path("Content/Looks/Warm.look")});
	TArray<FAssetData> Assets;
	Registry().GetAssetsByPath(TEXT("/Game/Looks"), Assets);
	EXPECT_EQ(Paths(Assets).find("Warm"), std::string::npos);
	EXPECT_FALSE(Registry().GetAssetByObjectPath(TEXT("/Game/Looks/Warm.Warm")).IsValid());
}

TEST_F(AssetRegistry, ListsALoadedAssetAgainWhenItsFileComesBack)
{
	LoadObject<UObject>(nullptr, TEXT("/Game/Looks/Warm.Warm"));
	Registry().SearchAllAssets(true);
	std::filesystem::remove(Folder.NativePath("Content/Looks/Warm.look"));
	Registry().ScanModifiedAssetFiles({Folder.Path("Content/Looks/Warm.look")});
	Folder.Write("Content/Looks/Warm.look", "");
	Registry().ScanModifiedAssetFiles({Folder.Path("Content/Looks/Warm.look")});
	EXPECT_TRUE(Registry().GetAssetByObjectPath(TEXT("/Game/Looks/Warm.Warm")).IsValid());
}

TEST_F(AssetRegistry, ScansTwentyThousandFilesQuickly)
{
	// Further names of one file are made faster than files.
	Folder.Write("Original.look", "");
	for (int32 Index = 0; Index < 20000; ++Index)
	{
		const std::string Name = "Content/Many" + std::to_string(Index % 20) + "/Asset" + std::to_string(Index) + ".look";
		std::filesystem::create_directories(Folder.NativePath(Name).parent_path());
		std::filesystem::create_hard_link(Folder.NativePath("Original.look"), Folder.NativePath(Name));
	}
	const auto Start = std::chrono::steady_clock::now();
	TArray<FAssetData> Assets;
	Registry().GetAllAssets(Assets);
	const double Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
	ASSERT_EQ(Assets.Num(), 20003);
	// Far above what a busy machine needs, far below what work that grows with the square of the files would take.
	EXPECT_LT(Seconds, 60.0);
}
