// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/ProjectRoad.h"

#include "Host/Console/CommandText.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace TintmillHost;

namespace
{
size_t CountCommands(const std::string& Road, const std::string& Start)
{
	const std::vector<std::string> Commands = SplitCommands(Road);
	return static_cast<size_t>(
		std::count_if(Commands.begin(), Commands.end(), [&Start](const std::string& Command) { return Command.find(Start) == 0; }));
}

TEST(ProjectRoad, ShowsEveryLookAndEveryPane)
{
	const std::string Road = MakeProjectRoad("Film", {"/Game/A", "/Game/Day two/B"});
	EXPECT_EQ(CountCommands(Road, "compare-look"), 2u);
	EXPECT_EQ(CountCommands(Road, "compare-look \"/Game/Day two/B\""), 1u);
	EXPECT_EQ(CountCommands(Road, "pictures"), 1u);
}

TEST(ProjectRoad, ShowsLooksInThePerspectivePane)
{
	EXPECT_EQ(CountCommands(MakeProjectRoad("Film", {"/Game/A"}), "compare-look \"/Game/A\" 1"), 1u);
}

TEST(ProjectRoad, ShowsThePanesOfAProjectWithoutLooks)
{
	const std::string Road = MakeProjectRoad("Empty", {});
	EXPECT_EQ(CountCommands(Road, "compare-look"), 0u);
	EXPECT_EQ(CountCommands(Road, "pictures"), 1u);
}

TEST(ProjectRoad, SaysHowManyLooksOfALargeProjectItShows)
{
	const std::string Road = MakeProjectRoad("Large", std::vector<std::string>(20000, "/Game/A"));
	EXPECT_EQ(CountCommands(Road, "compare-look"), MaxRoadLooks);
	EXPECT_NE(Road.find("The first 40 of 20000 looks are shown"), std::string::npos);
}

TEST(ProjectRoad, LeavesTheSettingsAsTheyWere)
{
	EXPECT_EQ(CountCommands(MakeProjectRoad("Film", {"/Game/A"}), "keep-settings"), 1u);
}

TEST(ProjectRoad, TakesAnyNameOfAProject)
{
	EXPECT_EQ(SplitCommands(MakeProjectRoad("Mine; not #1's", {})).front(), "title The looks of Mine  not  1 s");
}
}
