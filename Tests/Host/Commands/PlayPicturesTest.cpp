// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/Commands/PlayFixture.h"

// Pictures of play, simulation and maps, on a copy of the demo project.

namespace
{
typedef FPlayFixture PlayPictures;

TEST_F(PlayPictures, TheGameInAPaneShowsThePanesPicturePixelByPixel)
{
	Do("activate 1; play; camera game 1; picture 1 pane.png; picture game game.png");
	EXPECT_TRUE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayPictures, TheGameInAWindowShowsThePanesPicturePixelByPixel)
{
	Do("activate 2; play window; camera game 2; picture 2 pane.png; picture game game.png");
	EXPECT_TRUE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayPictures, TheGameShowsThePanesChartPixelByPixel)
{
	Do("activate 0; camera 0 chart; play; camera game chart; picture 0 pane.png; picture game game.png");
	EXPECT_TRUE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayPictures, TheGameOfAPaneWithoutALookShowsTheChartUntouched)
{
	Do("set 1 look none; activate 1; play; camera game chart; picture game game.png; stop; camera 1 chart; set 1 enable off; "
	   "picture 1 pane.png");
	EXPECT_TRUE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayPictures, TheGamesLookIsToBeSeen)
{
	Do("activate 1; play; camera game chart; picture game game.png; stop; camera 1 chart; set 1 enable off; picture 1 pane.png");
	EXPECT_FALSE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayPictures, PlayFromAPaneWithoutALookAfterOneWithALookShowsTheChartUntouched)
{
	Do("activate 1; play; stop; set 2 look none; activate 2; play; camera game chart; picture game game.png; stop; camera 2 chart; "
	   "set 2 enable off; picture 2 pane.png");
	EXPECT_TRUE(AreSame("game.png", "pane.png"));
}

TEST_F(PlayPictures, TheGameMovesWithTheEditorsFramesAlone)
{
	Do("activate 1; play; tick 0.5; picture game one.png; stop; play; tick 0.5; picture game two.png");
	EXPECT_TRUE(AreSame("one.png", "two.png"));
}

TEST_F(PlayPictures, TheGameMoves)
{
	Do("activate 1; play; picture game one.png; tick 0.5; picture game two.png");
	EXPECT_FALSE(AreSame("one.png", "two.png"));
}

TEST_F(PlayPictures, FivePlaysLeavePictureAndSettingsAsTheyWere)
{
	const std::string Before = Host.ReadSettings();
	Do("activate 1; picture 1 before.png; play; stop; play window; stop; simulate; tick 0.1; stop; play; play window; stop; "
	   "picture 1 after.png");
	EXPECT_TRUE(AreSame("before.png", "after.png"));
	EXPECT_EQ(Host.ReadSettings(), Before);
}

TEST_F(PlayPictures, AMapThatIsOpenedLeavesThePicturesAsTheyAre)
{
	Do("picture 1 before.png; map open Stage; picture 1 after.png");
	EXPECT_TRUE(AreSame("before.png", "after.png"));
}
}
