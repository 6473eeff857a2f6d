// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/Commands/PlayFixture.h"

// Play, simulation and maps by console commands of the real program, on a copy of the demo project.

namespace
{
typedef FPlayFixture PlayCommands;

TEST_F(PlayCommands, PlayInAPaneSaysWhereAndWithWhichLook)
{
	EXPECT_TRUE(Says("activate 1; play", 0, "The game in pane FourPanes2x2.Viewport 1.Viewport1: WarmPrint at 1"));
}

TEST_F(PlayCommands, PlayInAWindowSaysWhereAndWithWhichLook)
{
	EXPECT_TRUE(Says("activate 2; play window", 0, "The game in a window: CoolNight at 0.8"));
}

TEST_F(PlayCommands, SimulateSaysWhereAndWithWhichLook)
{
	EXPECT_TRUE(Says("activate 1; simulate", 0, "The game behind the simulated pane FourPanes2x2.Viewport 1.Viewport1: WarmPrint at 1"));
}

TEST_F(PlayCommands, PlayFromAPaneWithoutALookCarriesNothingOver)
{
	EXPECT_TRUE(Says("set 1 look none; activate 1; play", 0, "The game in pane FourPanes2x2.Viewport 1.Viewport1: no look"));
}

TEST_F(PlayCommands, PlayElsewhereIsRefused)
{
	EXPECT_TRUE(Says("play outside", 2, "Play cannot happen in 'outside'; there are pane and window."));
}

TEST_F(PlayCommands, StopWithoutPlayIsRefused)
{
	EXPECT_TRUE(Says("stop", 2, "Nothing is being played, so there is nothing to stop."));
}

TEST_F(PlayCommands, APictureOfTheGameWithoutPlayIsRefused)
{
	EXPECT_TRUE(Says("picture game", 2, "Nothing is being played; start with play, play window or simulate."));
}

TEST_F(PlayCommands, StopEndsPlay)
{
	EXPECT_TRUE(Says("play; stop; playing", 0, "Nothing is being played."));
}

TEST_F(PlayCommands, TheEditorMayBeLeftDuringPlay)
{
	const std::string Before = Host.ReadSettings();
	Do("activate 1; play; tick 0.1");
	EXPECT_EQ(Host.ReadSettings(), Before);
}

TEST_F(PlayCommands, ALayoutChangeEndsPlayInAPane)
{
	EXPECT_TRUE(Says("activate 1; play; layout OnePane; playing", 0, "Nothing is being played."));
}

TEST_F(PlayCommands, PlayInAWindowGoesOnOverALayoutChange)
{
	EXPECT_TRUE(Says("activate 1; play window; layout OnePane; playing", 0, "The game in a window: WarmPrint at 1"));
}

TEST_F(PlayCommands, ANewMapEndsPlay)
{
	EXPECT_TRUE(Says("play; map new; playing", 0, "Nothing is being played."));
}

TEST_F(PlayCommands, OpensAMapByTheEndOfItsName)
{
	EXPECT_TRUE(Says("map open Stage", 0, "The map /Game/Maps/Stage"));
}

TEST_F(PlayCommands, AMapThatIsNotThereIsRefusedWithThoseThereAre)
{
	EXPECT_TRUE(Says("map open Nowhere", 2, "There is no map 'Nowhere'; there are /Game/Maps/Courtyard, /Game/Maps/Stage."));
}

TEST_F(PlayCommands, AProjectWithoutMapsSaysSo)
{
	std::filesystem::remove_all(Host.Path("Project/Content/Maps"));
	EXPECT_TRUE(Says("map open Stage", 2, "There is no map 'Stage'; there are none."));
}

TEST_F(PlayCommands, ANameOfTwoMapsIsRefusedWithBoth)
{
	Host.Write("Project/Content/Old/Stage.umap", "");
	EXPECT_TRUE(Says("map open Stage", 2, "More than one map is called 'Stage'; there are /Game/Maps/Stage, /Game/Old/Stage."));
}

TEST_F(PlayCommands, TheModuleWatchesOneWorldAfterManyMaps)
{
	const FHostRun::FResult Result = Host.Execute("map new; map open Stage; map open Courtyard; map new; registered TintmillEditor");
	const std::string Watch = "Delegates: UWorld::OnFeatureLevelChanged";
	const size_t First = Result.Output.find(Watch);
	ASSERT_NE(First, std::string::npos) << Result.Output;
	EXPECT_EQ(Result.Output.find(Watch, First + 1), std::string::npos) << Result.Output;
}
}
