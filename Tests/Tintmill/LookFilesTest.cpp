// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/LookFiles.h"

#include "StandIn/AssetFiles.h"
#include "Tintmill/LookTestBase.h"

namespace LookFilesTest
{
using namespace TintmillTest;

class LookFiles : public FLookTestBase
{
protected:
	/** One pixel of red 10, green 20, blue 30, alpha 40 under the asset's look. */
	static std::vector<int> Pixel(const UTintmillObject* Asset)
	{
		uint8 Bytes[4] = {10, 20, 30, 40};
		StandIn::ApplyLookToPixels(Asset, Bytes, 1);
		return {Bytes[0], Bytes[1], Bytes[2], Bytes[3]};
	}

	static const std::vector<int> Untouched;
	static const std::vector<int> Inverted;
};

const std::vector<int> LookFiles::Untouched = {10, 20, 30, 40};
const std::vector<int> LookFiles::Inverted = {245, 235, 225, 40};

TEST_F(LookFiles, AppliesALoadedLook)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, InvertingCube);
	EXPECT_EQ(Pixel(Asset), Inverted);
}

TEST_F(LookFiles, SayThatANewAssetHasNoFile)
{
	EXPECT_EQ(StandIn::GetLookState(NewLook()), StandIn::ELookState::None);
}

TEST_F(LookFiles, LeaveThePixelsAloneWithoutAFile)
{
	EXPECT_EQ(Pixel(NewLook()), Untouched);
}

TEST_F(LookFiles, LeaveThePixelsAloneWhenTheFileIsBroken)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, "LUT_1D_SIZE 2\n0 0 0\n");
	EXPECT_EQ(Pixel(Asset), Untouched);
}

TEST_F(LookFiles, TellFileLineAndReasonOfABrokenFileInOneNotice)
{
	Load(NewLook(), "LUT_1D_SIZE 2\n0 0 0\n0,5 0 0\n");
	EXPECT_EQ(NoticeTexts(),
		"Teal.cube(3): \"0,5\" is not a number; decimals are written with a point, and numbers are parted by blanks; "
		"the picture stays as it is until the file is mended.\n");
}

TEST_F(LookFiles, TellTheSameProblemOnce)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, "LUT_1D_SIZE 2\n0 0 0\n");
	Folder.Write("Teal.cube", "LUT_1D_SIZE 2\n0 0 0 \n");
	StandIn::PollLookFiles();
	EXPECT_EQ(StandIn::GetNotices().Num(), 1);
}

TEST_F(LookFiles, TellAnotherProblemInPlaceOfTheFirst)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, "LUT_1D_SIZE 2\n0 0 0\n");
	Folder.Write("Teal.cube", "LUT_1D_SIZE 99999999\n");
	StandIn::PollLookFiles();
	EXPECT_EQ(NoticeTexts(),
		"Teal.cube(1): the table's size \"99999999\" is not between 2 and 65536; the picture stays as it is until the file is mended.\n");
}

TEST_F(LookFiles, TakeAMendedFileAtTheNextPoll)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, "LUT_1D_SIZE 2\n0 0 0\n");
	Folder.Write("Teal.cube", InvertingCube);
	StandIn::PollLookFiles();
	EXPECT_EQ(Pixel(Asset), Inverted);
}

TEST_F(LookFiles, TakeTheNoticeAwayWhenTheFileIsMended)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, "LUT_1D_SIZE 2\n0 0 0\n");
	Folder.Write("Teal.cube", InvertingCube);
	StandIn::PollLookFiles();
	EXPECT_EQ(NoticeTexts(), "");
}

TEST_F(LookFiles, MakeAChangedFileUnusableWhenItBreaks)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, InvertingCube);
	Folder.Write("Teal.cube", "LUT_1D_SIZE 2\n");
	StandIn::PollLookFiles();
	EXPECT_EQ(Pixel(Asset), Untouched);
}

TEST_F(LookFiles, SayWhenTheFileIsGone)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, InvertingCube);
	std::filesystem::remove(Folder.At("Teal.cube"));
	StandIn::PollLookFiles();
	EXPECT_STREQ(TCHAR_TO_UTF8(*StandIn::GetLookProblem(Asset)), "Teal.cube: the file does not exist");
}

TEST_F(LookFiles, MakeNoNoticeOfAFileThatWasDeleted)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, InvertingCube);
	std::filesystem::remove(Folder.At("Teal.cube"));
	StandIn::PollLookFiles();
	EXPECT_EQ(NoticeTexts(), "");
}

TEST_F(LookFiles, TakeTheNoticeOfABrokenFileBackWhenItIsDeleted)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, "LUT_1D_SIZE 2\n0 0 0\n");
	std::filesystem::remove(Folder.At("Teal.cube"));
	StandIn::PollLookFiles();
	EXPECT_EQ(NoticeTexts(), "");
}

TEST_F(LookFiles, TellWhyALookCannotBeUsedWhenAsked)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, InvertingCube);
	std::filesystem::remove(Folder.At("Teal.cube"));
	StandIn::PollLookFiles();
	StandIn::TellLookProblem(Asset);
	StandIn::TellLookProblem(Asset);
	EXPECT_EQ(NoticeTexts(), "Teal.cube: the file does not exist; the picture stays as it is until the file is mended.\n");
}

TEST_F(LookFiles, LookOnlyAtTheFilesThatAreNamed)
{
	UTintmillObject* const Asset = NewLook();
	UTintmillObject* const Other = NewLook(TEXT("Other"));
	Load(Asset, InvertingCube);
	Folder.Write("Other.cube", InvertingCube);
	StandIn::LoadLookFile(Other, StandIn::GetLookFileName(Asset).Replace(TEXT("Teal.cube"), TEXT("Other.cube")));
	Folder.Write("Teal.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 0.5\n");
	Folder.Write("Other.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 0.5\n");
	EXPECT_EQ(StandIn::PollLookFiles({StandIn::GetLookFileName(Other)}), TArray<UTintmillObject*>({Other}));
}

TEST_F(LookFiles, NameTheAssetsWhoseLookChanged)
{
	UTintmillObject* const Asset = NewLook();
	NewLook(TEXT("Other"));
	Load(Asset, InvertingCube);
	Folder.Write("Teal.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 0.5\n");
	EXPECT_EQ(StandIn::PollLookFiles(), TArray<UTintmillObject*>({Asset}));
}

TEST_F(LookFiles, NameNoAssetWhileNothingChanges)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, InvertingCube);
	EXPECT_EQ(StandIn::PollLookFiles().Num(), 0);
}

TEST_F(LookFiles, NameNoAssetWhenAFileIsWrittenAnewWithTheSameTables)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, InvertingCube);
	Folder.Write("Teal.cube", std::string("# saved again\n") + InvertingCube);
	EXPECT_EQ(StandIn::PollLookFiles().Num(), 0);
}

TEST_F(LookFiles, SayWhenAFolderStandsInTheFilesPlace)
{
	std::filesystem::create_directory(Folder.At("Teal.cube"));
	UTintmillObject* const Asset = NewLook();
	StandIn::LoadLookFile(Asset, FString(UTF8_TO_TCHAR(Folder.At("Teal.cube").string().c_str())));
	EXPECT_STREQ(TCHAR_TO_UTF8(*StandIn::GetLookProblem(Asset)), "Teal.cube: this is a folder, not a file");
}

TEST_F(LookFiles, AreKnownAsAssetsByTheirExtension)
{
	StandIn::FAssetFile File;
	StandIn::RegisterMountPoint(TEXT("/LookFilesTest/"), FString(UTF8_TO_TCHAR((Folder.At("").string()).c_str())));
	Folder.Write("Teal.cube", InvertingCube);
	const bool bFound = StandIn::FindAssetFile(TEXT("/LookFilesTest/Teal"), File);
	StandIn::UnregisterMountPoint(TEXT("/LookFilesTest/"));
	EXPECT_TRUE(bFound && File.ClassName == FName(TEXT("TintmillObject")));
}

TEST_F(LookFiles, AreReadWhenTheirAssetIsLoaded)
{
	StandIn::RegisterMountPoint(TEXT("/LookFilesLoad/"), FString(UTF8_TO_TCHAR((Folder.At("").string()).c_str())));
	Folder.Write("Teal.cube", InvertingCube);
	UTintmillObject* const Asset = LoadObject<UTintmillObject>(nullptr, TEXT("/LookFilesLoad/Teal.Teal"));
	StandIn::UnregisterMountPoint(TEXT("/LookFilesLoad/"));
	EXPECT_EQ(StandIn::GetLookState(Asset), StandIn::ELookState::Ready);
}

TEST_F(LookFiles, HaveNoRevisionWithoutAFile)
{
	EXPECT_EQ(StandIn::GetLookRevision(NewLook()), 0u);
}

TEST_F(LookFiles, HaveAnotherRevisionWhenTheyAreAnotherLook)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, InvertingCube);
	const uint64 Before = StandIn::GetLookRevision(Asset);
	Load(Asset, "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
	EXPECT_NE(StandIn::GetLookRevision(Asset), Before);
}

TEST_F(LookFiles, HaveTheSameRevisionAsLongAsNothingChanges)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, InvertingCube);
	const uint64 Before = StandIn::GetLookRevision(Asset);
	StandIn::PollLookFiles();
	EXPECT_EQ(StandIn::GetLookRevision(Asset), Before);
}
}
