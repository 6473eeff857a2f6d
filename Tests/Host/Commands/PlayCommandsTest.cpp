// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/HostRun.h"
#include "Tests/Host/PictureComparison.h"

#include <gtest/gtest.h>

// Play, simulation and maps by console commands of the real program, on a copy of the demo project.

namespace
{
class PlayCommands : public testing::Test
{
protected:
	/** Runs commands that must succeed. */
	void Do(const std::string& Commands) const
	{
		const FHostRun::FResult Result = Host.Execute(Commands);
		ASSERT_EQ(Result.Code, 0) << Result.Output;
	}

	/** Runs commands and tells whether a line of the output reads so. */
	testing::AssertionResult Says(const std::string& Commands, int Code, const std::string& Line) const
	{
		const FHostRun::FResult Result = Host.Execute(Commands);
		if (Result.Code == Code && ("\n" + Result.Output).find("\n" + Line + "\n") != std::string::npos)
		{
			return testing::AssertionSuccess();
		}
		return testing::AssertionFailure() << "code " << Result.Code << '\n' << Result.Output;
	}

	/** Compares two pictures of the run byte by byte. */
	testing::AssertionResult AreSame(const std::string& One, const std::string& Other) const
	{
		return IsExactly(Host.ReadPicture(One), Host.ReadPicture(Other));
	}

	FHostRun Host;
};

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

TEST_F(PlayCommands, TheGameInAPaneShowsThePanesPicturePixelByPixel)
{
	Do("activate 1; play; camera game 1; picture 1 pane.png; picture game game.png");
	EXPECT_TRUE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayCommands, TheGameInAWindowShowsThePanesPicturePixelByPixel)
{
	Do("activate 2; play window; camera game 2; picture 2 pane.png; picture game game.png");
	EXPECT_TRUE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayCommands, TheGameShowsThePanesChartPixelByPixel)
{
	Do("activate 0; camera 0 chart; play; camera game chart; picture 0 pane.png; picture game game.png");
	EXPECT_TRUE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayCommands, TheGameOfAPaneWithoutALookShowsTheChartUntouched)
{
	Do("set 1 look none; activate 1; play; camera game chart; picture game game.png; stop; camera 1 chart; set 1 enable off; "
	   "picture 1 pane.png");
	EXPECT_TRUE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayCommands, TheGamesLookIsToBeSeen)
{
	Do("activate 1; play; camera game chart; picture game game.png; stop; camera 1 chart; set 1 enable off; picture 1 pane.png");
	EXPECT_FALSE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayCommands, PlayFromAPaneWithoutALookAfterOneWithALookShowsTheChartUntouched)
{
	Do("activate 1; play; stop; set 2 look none; activate 2; play; camera game chart; picture game game.png; stop; camera 2 chart; "
	   "set 2 enable off; picture 2 pane.png");
	EXPECT_TRUE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayCommands, TheGameMovesWithTheEditorsFramesAlone)
{
	Do("activate 1; play; tick 0.5; picture game one.png; stop; play; tick 0.5; picture game two.png");
	EXPECT_TRUE(AreSame("one.png", "two.png"));
}

TEST_F(PlayCommands, TheGameMoves)
{
	Do("activate 1; play; picture game one.png; tick 0.5; picture game two.png");
	EXPECT_FALSE(AreSame("one.png", "two.png"));
}

TEST_F(PlayCommands, FivePlaysLeavePictureAndSettingsAsTheyWere)
{
	const std::string Before = Host.ReadSettings();
	Do("activate 1; picture 1 before.png; play; stop; play window; stop; simulate; tick 0.1; stop; play; play window; stop; "
	   "picture 1 after.png");
	EXPECT_TRUE(AreSame("before.png", "after.png"));
	EXPECT_EQ(Host.ReadSettings(), Before);
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

TEST_F(PlayCommands, AMapThatIsOpenedLeavesThePicturesAsTheyAre)
{
	Do("picture 1 before.png; map open Stage; picture 1 after.png");
	EXPECT_TRUE(AreSame("before.png", "after.png"));
}
}
