// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ContentWatch.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Host/Program/Strings.h"
#include "Modules/ModuleManager.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/LookFiles.h"
#include "StandIn/Notices.h"
#include "StandIn/ObjectSystem.h"
#include "Support/TestFolder.h"
#include "TintmillObject.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace
{
using namespace TintmillHost;

/** What a system would tell that tells what the test says. */
struct FToldWatch : IFolderWatch
{
	FFolderChanges Next;
	bool bTellsOfWrites = true;

	virtual FFolderChanges Take(double) override { return std::exchange(Next, {}); }
	virtual bool TellsOfWrites() const override { return bTellsOfWrites; }
};

const char* const Identity = "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n";
const char* const Inverting = "LUT_1D_SIZE 2\n1 1 1\n0 0 0\n";

/** A content folder with the look Warm, watched. */
class ContentWatch : public testing::Test
{
protected:
	ContentWatch()
	{
		StandIn::StartObjectSystem();
		StandIn::ClearNotices();
		Folder.Write("Content/Warm.cube", Identity);
		StandIn::RegisterMountPoint(TEXT("/Game/"), Folder.Path("Content"));
		Registry().SearchAllAssets(true);
		Registry().OnAssetAdded().AddLambda([this](const FAssetData& Asset) { News += "+" + ToUtf8(Asset.AssetName.ToString()) + " "; });
		Registry().OnAssetRemoved().AddLambda([this](const FAssetData& Asset) { News += "-" + ToUtf8(Asset.AssetName.ToString()) + " "; });
		StartWatching();
	}

	virtual ~ContentWatch() override
	{
		Watch.reset();
		FModuleManager::Get().UnloadModule(TEXT("AssetRegistry"));
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		StandIn::ClearNotices();
		StandIn::ShutdownObjectSystem();
	}

	static IAssetRegistry& Registry() { return FAssetRegistryModule::GetRegistry(); }

	void StartWatching()
	{
		auto New = std::make_unique<FToldWatch>();
		Told = New.get();
		Watch = std::make_unique<FContentWatch>(Folder.NativePath("Content"), std::move(New));
	}

	/** Writes a file and has the system tell of it. */
	void Write(const std::string& Leaf, const std::string& Text)
	{
		Folder.Write("Content/" + Leaf, Text);
		Told->Next.Files.push_back(Folder.NativePath("Content/" + Leaf));
	}

	void Remove(const std::string& Leaf)
	{
		std::filesystem::remove(Folder.NativePath("Content/" + Leaf));
		Told->Next.Files.push_back(Folder.NativePath("Content/" + Leaf));
	}

	/** Lets time pass; returns the looks that changed. */
	TArray<UTintmillObject*> Pass(double Seconds)
	{
		TArray<UTintmillObject*> Changed;
		for (double Passed = 0.0; Passed < Seconds; Passed += 0.05)
		{
			Changed.Append(Watch->Poll(0.05));
		}
		return Changed;
	}

	static UTintmillObject* LoadLook(const TCHAR* Name)
	{
		return LoadObject<UTintmillObject>(nullptr, *(FString(TEXT("/Game/")) + Name + TEXT(".") + Name));
	}

	FTestFolder Folder;
	FToldWatch* Told = nullptr;
	std::unique_ptr<FContentWatch> Watch;
	std::string News;
};

TEST_F(ContentWatch, AFileThatComesIsAnAsset)
{
	Write("Cold.cube", Identity);
	Pass(0.5);
	EXPECT_EQ(News, "+Cold ");
}

TEST_F(ContentWatch, AFileThatGoesIsNoAssetAnyMore)
{
	Remove("Warm.cube");
	Pass(0.5);
	EXPECT_EQ(News, "-Warm ");
}

TEST_F(ContentWatch, ARenamedFileIsAnotherAsset)
{
	std::filesystem::rename(Folder.NativePath("Content/Warm.cube"), Folder.NativePath("Content/Hot.cube"));
	Told->Next.Files = {Folder.NativePath("Content/Warm.cube"), Folder.NativePath("Content/Hot.cube")};
	Pass(0.5);
	EXPECT_EQ(News, "+Hot -Warm ");
}

TEST_F(ContentWatch, FilesThatAreNoLooksAreNoNews)
{
	Write("notes.txt", "notes");
	Write(".Hidden.cube", Identity);
	Pass(0.5);
	EXPECT_EQ(News, "");
}

TEST_F(ContentWatch, AFileThatGrowsIsNoAssetUntilItHasStayedTheSame)
{
	std::string Text;
	for (int Step = 0; Step < 20; ++Step)
	{
		Text += "# another line\n";
		Write("Cold.cube", Text);
		Pass(0.1);
	}
	EXPECT_EQ(News, "");
	Pass(0.5);
	EXPECT_EQ(News, "+Cold ");
}

TEST_F(ContentWatch, AFileThatGrowsWithoutAWordOfItIsLeftAloneToo)
{
	Write("Cold.cube", "# a line\n");
	for (int Step = 0; Step < 10; ++Step)
	{
		Pass(0.1);
		Folder.Write("Content/Cold.cube", std::string(static_cast<size_t>(10 * Step + 20), '#'));
	}
	EXPECT_EQ(News, "");
}

TEST_F(ContentWatch, ALookWhoseFileChangesIsAnotherLook)
{
	UTintmillObject* const Look = LoadLook(TEXT("Warm"));
	Write("Warm.cube", Inverting);
	EXPECT_EQ(Pass(0.5), TArray<UTintmillObject*>({Look}));
	uint8 Pixel[4] = {10, 20, 30, 40};
	StandIn::ApplyLookToPixels(Look, Pixel, 1);
	EXPECT_EQ(Pixel[0], 245);
}

TEST_F(ContentWatch, ALookIsNotReadWhileItsFileIsBeingWritten)
{
	UTintmillObject* const Look = LoadLook(TEXT("Warm"));
	for (int Lines = 1; Lines < 10; ++Lines)
	{
		Write("Warm.cube", "LUT_1D_SIZE 20\n" + std::string(static_cast<size_t>(Lines), '#') + "\n");
		Pass(0.1);
		ASSERT_EQ(StandIn::GetLookState(Look), StandIn::ELookState::Ready);
	}
	EXPECT_EQ(StandIn::GetNotices().Num(), 0);
}

TEST_F(ContentWatch, ALookThatIsBrokenAndMendedHeals)
{
	UTintmillObject* const Look = LoadLook(TEXT("Warm"));
	Write("Warm.cube", "LUT_1D_SIZE 2\n0,5 0 0\n");
	Pass(0.5);
	EXPECT_EQ(StandIn::GetLookState(Look), StandIn::ELookState::Unusable);
	Write("Warm.cube", Inverting);
	Pass(0.5);
	EXPECT_EQ(StandIn::GetLookState(Look), StandIn::ELookState::Ready);
	EXPECT_EQ(StandIn::GetNotices().Num(), 0);
}

TEST_F(ContentWatch, WithoutWordOfWritesTheFilesOfLoadedLooksAreLookedAtOnceASecond)
{
	UTintmillObject* const Look = LoadLook(TEXT("Warm"));
	Told->bTellsOfWrites = false;
	Pass(1.5);
	Folder.Write("Content/Warm.cube", std::string("# longer\n") + Inverting);
	EXPECT_EQ(Pass(1.5), TArray<UTintmillObject*>({Look}));
}

TEST_F(ContentWatch, WhenAnythingMayHaveChangedAllFoldersAreLookedAt)
{
	Folder.Write("Content/New folder/Cold.cube", Identity);
	Told->Next.bEverything = true;
	Pass(0.5);
	EXPECT_EQ(News, "+Cold ");
	EXPECT_TRUE(Registry().PathExists(TEXT("/Game/New_folder")));
}

TEST_F(ContentWatch, AThousandFilesThatGoAreMissed)
{
	for (int Index = 0; Index < 1000; ++Index)
	{
		Write("Look" + std::to_string(Index) + ".cube", Identity);
	}
	Pass(0.5);
	TArray<FAssetData> Assets;
	Registry().GetAssetsByPath(TEXT("/Game"), Assets);
	EXPECT_EQ(Assets.Num(), 1001);
	for (int Index = 0; Index < 1000; ++Index)
	{
		Remove("Look" + std::to_string(Index) + ".cube");
	}
	Pass(1.0);
	Assets.Empty();
	Registry().GetAssetsByPath(TEXT("/Game"), Assets);
	EXPECT_EQ(Assets.Num(), 1);
}

TEST_F(ContentWatch, AFolderWithoutLooksMakesOneNoticeThatSaysWhatToDo)
{
	Remove("Warm.cube");
	Pass(0.5);
	ASSERT_EQ(StandIn::GetNotices().Num(), 1);
	const std::string Text = ToUtf8(StandIn::GetNotices()[0].Text);
	EXPECT_NE(Text.find("There are no looks in"), std::string::npos) << Text;
	EXPECT_NE(Text.find("copy look files"), std::string::npos) << Text;
}

TEST_F(ContentWatch, TheNoticeOfAnEmptyFolderGoesWithTheFirstLook)
{
	Remove("Warm.cube");
	Pass(0.5);
	Write("Cold.cube", Identity);
	Pass(0.5);
	EXPECT_EQ(StandIn::GetNotices().Num(), 0);
}
}
