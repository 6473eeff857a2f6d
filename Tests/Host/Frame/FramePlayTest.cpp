// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/Frame/FrameFixture.h"

#include "Host/Editor/Play.h"

#include "Editor/EditorEngine.h"

using namespace TintmillHost;

namespace
{
class FramePlay : public FFrameFixture
{
protected:
	virtual void TearDown() override
	{
		GEditor->RequestEndPlayMap();
		Wait(0.1);
		FFrameFixture::TearDown();
	}
};

TEST_F(FramePlay, StartsInTheActivePaneByTheButton)
{
	Click("Play");
	EXPECT_TRUE(IsPlaying() && GetActivePane()->HasPlayInEditorViewport());
}

TEST_F(FramePlay, StartsByItsKey)
{
	Press(EModifierKey::Alt, EKeys::P);
	Wait(0.1);
	EXPECT_TRUE(IsPlaying());
}

TEST_F(FramePlay, StopsByTheButton)
{
	Click("Play");
	Click("Stop");
	EXPECT_FALSE(IsPlaying());
}

TEST_F(FramePlay, StopsOnEscape)
{
	Click("Play");
	Press(EKeys::Escape);
	Wait(0.1);
	EXPECT_FALSE(IsPlaying());
}

TEST_F(FramePlay, ShowsStopInPlaceOfPlay)
{
	Click("Play");
	EXPECT_TRUE(Sees("Stop") && !Sees("Play"));
}

TEST_F(FramePlay, ShowsPlayInPlaceOfStopAfterwards)
{
	Click("Play");
	Click("Stop");
	EXPECT_TRUE(Sees("Play") && !Sees("Stop"));
}

TEST_F(FramePlay, StartsInAWindowByTheModesMenu)
{
	Click("Play Modes");
	Click("New Editor Window (PIE)");
	EXPECT_TRUE(IsPlaying() && !GetActivePane()->HasPlayInEditorViewport());
}

TEST_F(FramePlay, StartsAsLastTime)
{
	Click("Play Modes");
	Click("New Editor Window (PIE)");
	Press(EKeys::Escape);
	Wait(0.1);
	Click("Play");
	EXPECT_TRUE(IsPlaying() && !GetActivePane()->HasPlayInEditorViewport());
}

TEST_F(FramePlay, SimulatesByItsKey)
{
	Press(EModifierKey::Alt, EKeys::S);
	Wait(0.1);
	EXPECT_TRUE(GEditor->IsSimulateInEditorInProgress());
}

TEST_F(FramePlay, MarksTheModeOfLastTime)
{
	Press(EModifierKey::Alt, EKeys::S);
	Wait(0.1);
	Press(EKeys::Escape);
	Wait(0.1);
	Click("Play Modes");
	EXPECT_TRUE(See("Simulate").bChecked && !See("Selected Viewport").bChecked);
}

TEST_F(FramePlay, DoesNotStartTwice)
{
	Click("Play");
	const UGameViewportClient* const Game = GEditor->GameViewport;
	Press(EModifierKey::Alt, EKeys::P);
	Wait(0.1);
	EXPECT_EQ(GEditor->GameViewport, Game);
}

TEST_F(FramePlay, EscapeClosesAMenuFirst)
{
	Click("Play");
	Click("File");
	Press(EKeys::Escape);
	Wait(0.1);
	EXPECT_TRUE(IsPlaying());
}

TEST_F(FramePlay, SurvivesThatAnotherLevelIsOpened)
{
	Click("Play");
	Click("File > Open Level > Hall");
	Wait(0.1);
	EXPECT_EQ(GetOpenMap(), "/Game/Maps/Hall");
}

TEST_F(FramePlay, SurvivesThatTheLayoutIsChanged)
{
	Click("Play");
	Click("Window > Viewport Layouts > One Pane");
	Wait(0.1);
	EXPECT_EQ(StandIn::GetPanes().Num(), 1);
}
}
