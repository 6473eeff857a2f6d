// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/KeptSettings.h"
#include "StandIn/AtomicFile.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace TintmillHost;

namespace
{
TEST(KeptSettings, AChangedFileIsPutBackByteForByte)
{
	FTestFolder Folder;
	const std::string Bytes("a\r\n\0b", 5);
	Folder.Write("a.ini", Bytes);
	FKeptSettings Kept;
	Kept.Keep(Folder.NativePath("a.ini"));
	Folder.Write("a.ini", "other");
	EXPECT_EQ(Kept.PutBack(), "");
	EXPECT_EQ(Folder.Read("a.ini"), Bytes);
	EXPECT_EQ(Folder.List(), std::vector<std::string>{"a.ini"});
}

TEST(KeptSettings, AFileThatWasNotThereIsTakenAway)
{
	FTestFolder Folder;
	FKeptSettings Kept;
	Kept.Keep(Folder.NativePath("a.ini"));
	Folder.Write("a.ini", "new");
	EXPECT_EQ(Kept.PutBack(), "");
	EXPECT_TRUE(Folder.List().empty());
}

TEST(KeptSettings, WhereNothingIsSavedTheFileIsLeftToOthers)
{
	FTestFolder Folder;
	Folder.Write("a.ini", "ours");
	StandIn::RefuseSaves(Folder.Path(), TEXT("another editor has it open"));
	FKeptSettings Kept;
	Kept.Keep(Folder.NativePath("a.ini"));
	Folder.Write("a.ini", "theirs");
	EXPECT_EQ(Kept.PutBack(), "");
	StandIn::AllowSaves();
	EXPECT_EQ(Folder.Read("a.ini"), "theirs");
}

TEST(KeptSettings, AFileThatWasTakenAwayComesBack)
{
	FTestFolder Folder;
	Folder.Write("a.ini", "here");
	FKeptSettings Kept;
	Kept.Keep(Folder.NativePath("a.ini"));
	std::filesystem::remove(Folder.NativePath("a.ini"));
	EXPECT_EQ(Kept.PutBack(), "");
	EXPECT_EQ(Folder.Read("a.ini"), "here");
}

TEST(KeptSettings, TheFirstStateIsTheOneThatCounts)
{
	FTestFolder Folder;
	Folder.Write("a.ini", "first");
	FKeptSettings Kept;
	Kept.Keep(Folder.NativePath("a.ini"));
	Folder.Write("a.ini", "second");
	Kept.Keep(Folder.NativePath("a.ini"));
	Kept.PutBack();
	EXPECT_EQ(Folder.Read("a.ini"), "first");
}

TEST(KeptSettings, NothingIsWrittenThatNobodyAskedFor)
{
	EXPECT_EQ(FKeptSettings().PutBack(), "");
}

TEST(KeptSettings, AnotherRunPutsBackWhatThisOneRemembers)
{
	FTestFolder Folder;
	Folder.Write("a.ini", "first\n");
	std::stringstream State;
	{
		FKeptSettings Kept;
		Kept.Keep(Folder.NativePath("a.ini"));
		Kept.Save(State);
	}
	Folder.Write("a.ini", "second");
	FKeptSettings Other;
	Other.Load(State);
	EXPECT_EQ(Other.PutBack(), "");
	EXPECT_EQ(Folder.Read("a.ini"), "first\n");
}

TEST(KeptSettings, AFolderThatIsGoneMakesOneSentence)
{
	FTestFolder Folder;
	Folder.Write("Saved/a.ini", "first");
	FKeptSettings Kept;
	Kept.Keep(Folder.NativePath("Saved/a.ini"));
	std::filesystem::remove_all(Folder.NativePath("Saved"));
	EXPECT_NE(Kept.PutBack().find("cannot be put back"), std::string::npos);
}
}
