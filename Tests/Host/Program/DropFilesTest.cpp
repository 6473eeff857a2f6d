// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/DropFiles.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Host/Program/Strings.h"
#include "Modules/ModuleManager.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/AtomicFile.h"
#include "StandIn/Notices.h"
#include "StandIn/ObjectSystem.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

namespace
{
using namespace TintmillHost;

const char* const DroppedLook = "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n";

using FNames = std::vector<std::string>;

/** A content folder with the look Warm, and files to drop. */
class DropFiles : public testing::Test
{
protected:
	DropFiles()
	{
		StandIn::StartObjectSystem();
		StandIn::ClearNotices();
		Folder.Write("Content/Warm.cube", DroppedLook);
		Folder.Write("From/Cold.cube", DroppedLook);
		StandIn::RegisterMountPoint(TEXT("/Game/"), Folder.Path("Content"));
		FAssetRegistryModule::GetRegistry().SearchAllAssets(true);
	}

	virtual ~DropFiles() override
	{
		StandIn::SetAtomicFileHook(nullptr);
		StandIn::AllowSaves();
		FModuleManager::Get().UnloadModule(TEXT("AssetRegistry"));
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		StandIn::ClearNotices();
		StandIn::ShutdownObjectSystem();
	}

	std::string Drop(const std::string& Leaf) const
	{
		return AddDroppedFiles(std::vector<std::string>{PathToUtf8(Folder.NativePath(Leaf))});
	}

	FNames Content() const { return Folder.List("Content"); }

	FTestFolder Folder;
};

TEST_F(DropFiles, ALookFileIsCopiedIntoTheContentFolder)
{
	EXPECT_EQ(Drop("From/Cold.cube"), "");
	EXPECT_EQ(Folder.Read("Content/Cold.cube"), DroppedLook);
}

TEST_F(DropFiles, TheNewLookIsAnAssetAtOnce)
{
	Drop("From/Cold.cube");
	EXPECT_TRUE(FAssetRegistryModule::GetRegistry().GetAssetByObjectPath(TEXT("/Game/Cold.Cold")).IsValid());
}

TEST_F(DropFiles, ANameThatIsTakenGetsANumber)
{
	Folder.Write("From/Warm.cube", DroppedLook);
	Folder.Write("From/WARM.clf", "<x/>");
	Drop("From/Warm.cube");
	Drop("From/WARM.clf");
	EXPECT_EQ(Content(), (FNames{"WARM_3.clf", "Warm.cube", "Warm_2.cube"}));
}

TEST_F(DropFiles, ANameThatAssetsMayNotHaveIsMadeOneThatTheyMay)
{
	Folder.Write("From/Film stock (v2).CUBE", DroppedLook);
	EXPECT_EQ(Drop("From/Film stock (v2).CUBE"), "");
	EXPECT_EQ(Content(), (FNames{"Film_stock_v2.cube", "Warm.cube"}));
}

TEST_F(DropFiles, ANameBeyondAsciiIsKept)
{
	Folder.Write("From/Gr\xc3\xbcn.cube", DroppedLook);
	EXPECT_EQ(Drop("From/Gr\xc3\xbcn.cube"), "");
	EXPECT_EQ(Content(), (FNames{"Gr\xc3\xbcn.cube", "Warm.cube"}));
}

TEST_F(DropFiles, ALookFileOfTheContentFolderItselfStaysOne)
{
	EXPECT_EQ(Drop("Content/Warm.cube"), "");
	EXPECT_EQ(Content(), FNames{"Warm.cube"});
}

TEST_F(DropFiles, TheLookFilesOfAFolderAreCopiedAndNothingElse)
{
	Folder.Write("From/Deep/Deeper/Green.3dl", "0 1023\n");
	Folder.Write("From/notes.txt", "notes");
	Folder.Write("From/._Cold.cube", "of another system");
	EXPECT_EQ(Drop("From"), "");
	EXPECT_EQ(Content(), (FNames{"Cold.cube", "Green.3dl", "Warm.cube"}));
}

TEST_F(DropFiles, AFileOfAnotherFormatIsRefusedWithTheFormatsThatAreRead)
{
	Folder.Write("From/Photo.jpeg", "x");
	EXPECT_EQ(Drop("From/Photo.jpeg"),
		"Photo.jpeg was not added: this is no look file; .3dl, .clf, .csp, .ctf, .cube, .spi1d and .spi3d are read.");
	EXPECT_EQ(Content(), FNames{"Warm.cube"});
}

TEST_F(DropFiles, AFolderWithoutLookFilesIsRefused)
{
	Folder.Write("Empty/notes.txt", "notes");
	EXPECT_EQ(Drop("Empty").find("Empty was not added: there are no look files in this folder"), 0u) << Drop("Empty");
}

TEST_F(DropFiles, AFileThatIsGoneIsRefused)
{
	EXPECT_EQ(Drop("From/Gone.cube"), "Gone.cube was not added: there is no such file.");
}

TEST_F(DropFiles, ACopyThatCannotBeWrittenLeavesNothingBehind)
{
	StandIn::SetAtomicFileHook([](StandIn::EAtomicFileStep Step, const TCHAR*) { return Step != StandIn::EAtomicFileStep::Write; });
	EXPECT_EQ(Drop("From/Cold.cube"), "Cold.cube was not added: the copy in the project could not be written (injected failure).");
	EXPECT_EQ(Content(), FNames{"Warm.cube"});
}

TEST_F(DropFiles, NothingIsAddedWhereNothingMayBeSaved)
{
	StandIn::RefuseSaves(Folder.Path("Content"), TEXT("the project is open in another editor"));
	EXPECT_NE(Drop("From/Cold.cube").find("the project is open in another editor"), std::string::npos);
	EXPECT_EQ(Content(), FNames{"Warm.cube"});
}

TEST_F(DropFiles, EveryProblemIsANotice)
{
	const std::string Problem = Drop("From/Gone.cube");
	ASSERT_EQ(StandIn::GetNotices().Num(), 1);
	EXPECT_EQ(ToUtf8(StandIn::GetNotices()[0].Text), Problem);
}

TEST_F(DropFiles, ManyProblemsAreOneNotice)
{
	const FDropResult Result = AddDroppedFiles(
		{Folder.NativePath("A.jpg"), Folder.NativePath("B.jpg"), Folder.NativePath("From/Cold.cube")}, Folder.NativePath("Content"));
	EXPECT_EQ(Result.Problems.size(), 2u);
	EXPECT_EQ(Result.Added.size(), 1u);
	EXPECT_EQ(StandIn::GetNotices().Num(), 1);
}
}
