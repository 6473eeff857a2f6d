// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/Tour.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
TEST(Tour, EveryCommandHasTheLineItStandsOn)
{
	const FTour Tour = MakeTour("a.tour", "# first\n\npanes\n\n  tick # last\n");
	ASSERT_EQ(Tour.Commands.size(), 2u);
	EXPECT_EQ(Tour.GetPlace(0), "a.tour:3");
	EXPECT_EQ(Tour.GetPlace(1), "a.tour:5");
	EXPECT_EQ(Tour.Commands[1].Text, "tick");
}

TEST(Tour, LinesMayEndAsOnWindows)
{
	EXPECT_EQ(MakeTour("a.tour", "panes\r\n\r\ntick\r\n").GetPlace(1), "a.tour:3");
}

TEST(Tour, CommandsOfNoFileHaveNoPlace)
{
	EXPECT_EQ(MakeTourOfCommands("panes; tick").GetPlace(1), "");
}

TEST(Tour, ALineOfAFileIsOneCommandWhateverItsCaption)
{
	const FTour Tour = MakeTour("a.tour", "shot a.png One; and another\n");
	ASSERT_EQ(Tour.Commands.size(), 1u);
	EXPECT_EQ(Tour.Commands[0].Text, "shot a.png One; and another");
}

TEST(Tour, CommandsOfNoFileArePartedBySemicolonsToo)
{
	EXPECT_EQ(MakeTourOfCommands("panes; notices\ntick").Commands.size(), 3u);
}

TEST(Tour, AFileIsReadByTheNameThatTheUserGave)
{
	FTestFolder Folder;
	Folder.Write("my.tour", "panes\n");
	FTour Tour;
	EXPECT_EQ(ReadTour(Folder.NativePath("my.tour"), Tour), "");
	EXPECT_EQ(Tour.GetPlace(0), Folder.NativePath("my.tour").string() + ":1");
}

TEST(Tour, AMissingFileMakesOneSentence)
{
	FTour Tour;
	EXPECT_EQ(ReadTour("no/such.tour", Tour), "The tour no/such.tour cannot be read; give a text file of console commands with --tour.");
}

TEST(Tour, AFolderIsNoTour)
{
	FTestFolder Folder;
	FTour Tour;
	EXPECT_NE(ReadTour(Folder.NativePath(""), Tour), "");
}

TEST(Tour, APathBelowTheCurrentFolderIsShortened)
{
	EXPECT_EQ(ShortenPath(std::filesystem::current_path() / "Host" / "Tours" / "x.tour"), std::filesystem::path("Host/Tours/x.tour"));
	EXPECT_EQ(ShortenPath("/elsewhere/x.tour"), "/elsewhere/x.tour");
}

TEST(Tour, AMarkInsideOfAWordIsPartOfIt)
{
	EXPECT_EQ(SplitWords("shot a.png The pane's \"own look\" isn't"),
		(std::vector<std::string>{"shot", "a.png", "The", "pane's", "own look", "isn't"}));
}

TEST(Tour, AMarkInsideOfAWordHidesNoSemicolon)
{
	EXPECT_EQ(SplitCommands("say pane's; tick"), (std::vector<std::string>{"say pane's", "tick"}));
}
}
