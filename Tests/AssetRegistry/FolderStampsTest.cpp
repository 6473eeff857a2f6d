// Copyright The Tintmill authors. All rights reserved.

#include "AssetRegistry/AssetRegistryModule.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/Notices.h"
#include "StandIn/ObjectSystem.h"
#include "Support/FileTime.h"
#include "Support/LogCapture.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"

#include <chrono>
#include <filesystem>

// Which repeated scans are spared, and which must not be.

namespace
{
class FFolderStampsTest : public testing::Test
{
protected:
	FFolderStampsTest()
	{
		StandIn::StartObjectSystem();
		StandIn::ClearNotices();
		RegisterType(TEXT("look"));
		Folder.Write("Content/Looks/Warm.look", "");
		Folder.Write("Content/Looks/Deep/Cold.look", "");
		StandIn::RegisterMountPoint(TEXT("/Game/"), Folder.Path("Content") + TEXT("/"));
		LetAnHourPass();
		Scan();
	}

	virtual ~FFolderStampsTest() override
	{
		FModuleManager::Get().UnloadModule(TEXT("AssetRegistry"));
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		StandIn::UnregisterAssetFileType(TEXT("look"));
		StandIn::UnregisterAssetFileType(TEXT("other"));
		StandIn::ClearNotices();
		StandIn::ShutdownObjectSystem();
	}

	static void RegisterType(const TCHAR* Extension)
	{
		StandIn::FAssetFileType Type;
		Type.Extension = Extension;
		Type.ClassName = TEXT("MetaData");
		StandIn::RegisterAssetFileType(Type);
	}

	/** Has all folders changed last an hour ago. */
	void LetAnHourPass() const
	{
		for (const char* Name : {"Content/Looks/Deep", "Content/Looks", "Content"})
		{
			SetChangedHoursAgo(Folder.NativePath(Name), 1);
		}
	}

	static IAssetRegistry& Registry() { return FAssetRegistryModule::GetRegistry(); }

	/** Asks for a scan of everything; says whether one was made. */
	static bool Scan()
	{
		const FLogCapture Log;
		Registry().ScanPathsSynchronous({TEXT("/Game")}, true);
		return !Log.TextsOf("LogAssetRegistry").empty();
	}

	static std::string Assets()
	{
		TArray<FAssetData> Found;
		Registry().GetAssetsByClass(TEXT("MetaData"), Found);
		std::string Names;
		for (const FAssetData& Data : Found)
		{
			Names += ToStd(Data.AssetName) + " ";
		}
		return Names;
	}

	FTestFolder Folder;
};
}

TEST_F(FFolderStampsTest, SparesAScanOfUnchangedFolders)
{
	EXPECT_FALSE(Scan());
}

TEST_F(FFolderStampsTest, StillKnowsTheAssetsAfterASparedScan)
{
	Scan();
	EXPECT_EQ(Assets(), "Cold Warm ");
}

TEST_F(FFolderStampsTest, ScansOnceForANewMountPointThoughForced)
{
	FModuleManager::Get().UnloadModule(TEXT("AssetRegistry"));
	const FLogCapture Log;
	FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get().ScanPathsSynchronous({TEXT("/Game")}, true);
	EXPECT_EQ(Log.TextsOf("LogAssetRegistry").size(), 1u);
}

TEST_F(FFolderStampsTest, NoticesAFileThatCame)
{
	Folder.Write("Content/Looks/New.look", "");
	Scan();
	EXPECT_EQ(Assets(), "Cold New Warm ");
}

TEST_F(FFolderStampsTest, NoticesAFileThatCameDeepDown)
{
	Folder.Write("Content/Looks/Deep/New.look", "");
	Scan();
	EXPECT_EQ(Assets(), "Cold New Warm ");
}

TEST_F(FFolderStampsTest, NoticesAFileThatCameInANewFolder)
{
	Folder.Write("Content/Looks/Deep/Deeper/New.look", "");
	Scan();
	EXPECT_EQ(Assets(), "Cold New Warm ");
}

TEST_F(FFolderStampsTest, NoticesAFileThatWent)
{
	std::filesystem::remove(Folder.NativePath("Content/Looks/Deep/Cold.look"));
	Scan();
	EXPECT_EQ(Assets(), "Warm ");
}

TEST_F(FFolderStampsTest, NoticesAFileThatWasRenamed)
{
	std::filesystem::rename(Folder.NativePath("Content/Looks/Warm.look"), Folder.NativePath("Content/Looks/Hot.look"));
	Scan();
	EXPECT_EQ(Assets(), "Cold Hot ");
}

TEST_F(FFolderStampsTest, NoticesAFolderThatWent)
{
	std::filesystem::remove_all(Folder.NativePath("Content/Looks/Deep"));
	Scan();
	EXPECT_EQ(Assets(), "Warm ");
}

TEST_F(FFolderStampsTest, DoesNotRelyOnAFolderThatChangedJustBeforeTheScan)
{
	Folder.Write("Content/Looks/New.look", "");
	Scan();
	EXPECT_TRUE(Scan());
}

TEST_F(FFolderStampsTest, NoticesAKindOfFileThatWasRegisteredSince)
{
	Folder.Write("Content/Looks/Thing.other", "");
	LetAnHourPass();
	Scan();
	RegisterType(TEXT("other"));
	Scan();
	EXPECT_EQ(Assets(), "Cold Thing Warm ");
}

TEST_F(FFolderStampsTest, BringsBackAFolderThatWasRemovedByHand)
{
	Folder.Write("Content/Looks/Empty/notes.txt", "");
	Scan();
	Registry().RemovePath(TEXT("/Game/Looks/Empty"));
	LetAnHourPass();
	Scan();
	EXPECT_TRUE(Registry().PathExists(TEXT("/Game/Looks/Empty")));
}

TEST_F(FFolderStampsTest, DoesNotRelyOnAFolderWithLinks)
{
	std::error_code Error;
	std::filesystem::create_symlink(Folder.NativePath("Elsewhere.look"), Folder.NativePath("Content/Looks/Linked.look"), Error);
	if (Error)
	{
		GTEST_SKIP() << "symbolic links cannot be made here; neither the C++ library for Windows nor Wine makes them";
	}
	LetAnHourPass();
	Scan();
	Folder.Write("Elsewhere.look", "");
	Scan();
	EXPECT_EQ(Assets(), "Cold Linked Warm ");
}
