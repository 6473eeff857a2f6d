// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/FolderPoll.h"

#include "Support/FileTime.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

namespace
{
using namespace TintmillHost;

using FFoundFiles = std::vector<std::filesystem::path>;

/** A folder of old files. */
class FolderPoll : public testing::Test
{
protected:
	FolderPoll()
	{
		Folder.Write("Content/A.cube", "a");
		Folder.Write("Content/Deep/B.cube", "b");
		Age();
	}

	/** Makes all stamps old, so that the next change gives another one however coarse the clock. */
	void Age()
	{
		SetChangedHoursAgo(Folder.NativePath("Content/Deep"), 2);
		SetChangedHoursAgo(Folder.NativePath("Content"), 2);
	}

	std::filesystem::path Path(const std::string& Leaf) const { return Folder.NativePath("Content/" + Leaf); }

	FTestFolder Folder;
};

TEST_F(FolderPoll, TellsNothingWhenNothingHappens)
{
	FFolderPoll Watch(Path(""), {});
	const FFolderChanges Changes = Watch.Take(5.0);
	EXPECT_TRUE(Changes.Files.empty());
	EXPECT_FALSE(Changes.bEverything);
}

TEST_F(FolderPoll, TellsOfFilesThatComeAndGo)
{
	FFolderPoll Watch(Folder.NativePath("Content"), {});
	Folder.Write("Content/New.cube", "n");
	std::filesystem::remove(Path("Deep/B.cube"));
	const FFolderChanges Changes = Watch.Take(1.0);
	EXPECT_EQ(Changes.Files, (FFoundFiles{Path("New.cube"), Path("Deep/B.cube")}));
	EXPECT_FALSE(Changes.bEverything);
}

TEST_F(FolderPoll, LooksOnceASecond)
{
	FFolderPoll Watch(Folder.NativePath("Content"), {});
	Folder.Write("Content/New.cube", "n");
	EXPECT_TRUE(Watch.Take(0.6).Files.empty());
	EXPECT_EQ(Watch.Take(0.6).Files, (FFoundFiles{Path("New.cube")}));
}

TEST_F(FolderPoll, TellsAChangeOnce)
{
	FFolderPoll Watch(Folder.NativePath("Content"), {});
	Folder.Write("Content/New.cube", "n");
	Watch.Take(1.0);
	EXPECT_TRUE(Watch.Take(1.0).Files.empty());
}

TEST_F(FolderPoll, TellsOfNewFoldersThatAnythingMayHaveChangedAndWatchesThemFromThenOn)
{
	FFolderPoll Watch(Folder.NativePath("Content"), {});
	std::filesystem::create_directory(Path("More"));
	EXPECT_TRUE(Watch.Take(1.0).bEverything);
	SetChangedHoursAgo(Path("More"), 1);
	Watch.Take(1.0);
	Folder.Write("Content/More/C.cube", "c");
	EXPECT_EQ(Watch.Take(1.0).Files, (FFoundFiles{Path("More/C.cube")}));
}

TEST_F(FolderPoll, TellsNothingOfFoldersThatAreLeftOut)
{
	FFolderPoll Watch(Folder.NativePath("Content"), [this](const std::filesystem::path& Candidate) { return Candidate == Path("Deep"); });
	Folder.Write("Content/Deep/C.cube", "c");
	EXPECT_TRUE(Watch.Take(1.0).Files.empty());
}

TEST_F(FolderPoll, SurvivesThatTheFolderGoesAndSeesItComeBack)
{
	FFolderPoll Watch(Folder.NativePath("Content"), {});
	std::filesystem::remove_all(Path(""));
	EXPECT_TRUE(Watch.Take(1.0).bEverything);
	EXPECT_TRUE(Watch.Take(1.0).Files.empty());
	Folder.Write("Content/A.cube", "a");
	EXPECT_TRUE(Watch.Take(1.0).bEverything);
}
}
