// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/FolderWatch.h"

#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace
{
using namespace TintmillHost;

class LinuxFolderWatch : public testing::Test
{
protected:
	LinuxFolderWatch()
	{
		Folder.Write("Content/A.cube", "a");
		Folder.Write("Content/Deep/B.cube", "b");
	}

	std::filesystem::path Path(const std::string& Leaf) const { return Folder.NativePath("Content/" + Leaf); }

	std::unique_ptr<IFolderWatch> Start(const FFolderFilter& IsLeftOut = {}) const
	{
		return WatchFolder(Folder.NativePath("Content"), IsLeftOut);
	}

	/** The names of the files that are told of now. */
	static std::set<std::filesystem::path> Files(IFolderWatch& Watch)
	{
		const FFolderChanges Changes = Watch.Take(0.0);
		return {Changes.Files.begin(), Changes.Files.end()};
	}

	FTestFolder Folder;
};

using FWatchedFiles = std::set<std::filesystem::path>;

TEST_F(LinuxFolderWatch, TellsOfWritesAtOnce)
{
	const auto Watch = Start();
	Folder.Write("Content/A.cube", "another");
	EXPECT_TRUE(Watch->TellsOfWrites());
	EXPECT_EQ(Files(*Watch), (FWatchedFiles{Path("A.cube")}));
}

TEST_F(LinuxFolderWatch, TellsNothingTwice)
{
	const auto Watch = Start();
	Folder.Write("Content/A.cube", "another");
	Watch->Take(0.0);
	EXPECT_TRUE(Files(*Watch).empty());
}

TEST_F(LinuxFolderWatch, TellsOfFilesThatComeGoAndAreRenamedInAnyFolder)
{
	const auto Watch = Start();
	Folder.Write("Content/Deep/New.cube", "n");
	std::filesystem::remove(Path("A.cube"));
	std::filesystem::rename(Path("Deep/B.cube"), Path("Deep/C.cube"));
	EXPECT_EQ(Files(*Watch), (FWatchedFiles{Path("A.cube"), Path("Deep/B.cube"), Path("Deep/C.cube"), Path("Deep/New.cube")}));
}

TEST_F(LinuxFolderWatch, WatchesNewFoldersToo)
{
	const auto Watch = Start();
	Folder.Write("Content/More/Deeper/D.cube", "d");
	EXPECT_TRUE(Watch->Take(0.0).bEverything);
	Folder.Write("Content/More/Deeper/E.cube", "e");
	EXPECT_EQ(Files(*Watch), (FWatchedFiles{Path("More/Deeper/E.cube")}));
}

TEST_F(LinuxFolderWatch, FindsFilesOfAMovedFolderUnderTheirNewNames)
{
	const auto Watch = Start();
	std::filesystem::rename(Path("Deep"), Path("Moved"));
	EXPECT_TRUE(Watch->Take(0.0).bEverything);
	Folder.Write("Content/Moved/B.cube", "another");
	EXPECT_EQ(Files(*Watch), (FWatchedFiles{Path("Moved/B.cube")}));
}

TEST_F(LinuxFolderWatch, TellsNothingOfFoldersThatAreLeftOut)
{
	const auto Watch = Start([this](const std::filesystem::path& Candidate) { return Candidate == Path("Saved"); });
	Folder.Write("Content/Saved/Settings.ini", "s");
	const FFolderChanges Changes = Watch->Take(0.0);
	EXPECT_TRUE(Changes.Files.empty());
	EXPECT_FALSE(Changes.bEverything);
}

TEST_F(LinuxFolderWatch, DoesNotClaimToTellOfWritesBehindLinks)
{
	std::filesystem::create_symlink(Folder.NativePath("Elsewhere.cube"), Path("Link.cube"));
	EXPECT_FALSE(Start()->TellsOfWrites());
}

TEST_F(LinuxFolderWatch, SurvivesLoopsOfLinks)
{
	std::filesystem::create_directory_symlink(Path(""), Path("Deep/Loop"));
	const auto Watch = Start();
	Folder.Write("Content/A.cube", "another");
	EXPECT_EQ(Files(*Watch).size(), 1u);
}

TEST_F(LinuxFolderWatch, SaysThatMoreHappenedThanWasKept)
{
	const auto Watch = Start();
	for (int Index = 0; Index < 20000; ++Index)
	{
		const std::filesystem::path Name = Path("N" + std::to_string(Index) + ".cube");
		std::filesystem::create_hard_link(Path("A.cube"), Name);
	}
	EXPECT_TRUE(Watch->Take(0.0).bEverything);
}
}
