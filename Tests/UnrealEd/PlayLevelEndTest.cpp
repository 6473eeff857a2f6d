// Copyright The Tintmill authors. All rights reserved.

#include "PlayFixture.h"

class FPlayLevelEndTest : public FPlayFixture
{};

TEST_F(FPlayLevelEndTest, EndsInTheEnginesOrder)
{
	Play(GetPane(1));
	Log.Clear();
	EndPlay();
	EXPECT_EQ(Log.Get(), "PreEnded End TearDown Cleanup");
}

TEST_F(FPlayLevelEndTest, DoesNotEndBeforeATick)
{
	Play(GetPane(1));
	GEditor->RequestEndPlayMap();
	EXPECT_NE(GEditor->PlayWorld, nullptr);
}

TEST_F(FPlayLevelEndTest, StillHasWorldAndViewportInEndPIE)
{
	Play(GetPane(1));
	EndPlay();
	EXPECT_EQ(StateAt("End"), "WVMB");
}

TEST_F(FPlayLevelEndTest, HasClosedTheViewportWhenTheWorldIsCleanedUp)
{
	Play(GetPane(1));
	EndPlay();
	EXPECT_EQ(StateAt("Cleanup"), "W--B");
}

TEST_F(FPlayLevelEndTest, ShowsThePanesOwnViewportAgainAfterwards)
{
	GetPane(1)->GetLevelViewportClient().SetCurrentViewport();
	FViewport* Before = GEditor->GetActiveViewport();
	Play(GetPane(1));
	EndPlay();
	EXPECT_EQ(GEditor->GetActiveViewport(), Before);
}

TEST_F(FPlayLevelEndTest, MakesTheEditedWorldTheCurrentWorldAgain)
{
	Play(GetPane(1));
	EndPlay();
	EXPECT_EQ(GWorld.GetReference(), GEditor->GetEditorWorldContext().World());
}

TEST_F(FPlayLevelEndTest, ForgetsTheEditedWorldAfterPlay)
{
	Play(GetPane(1));
	EndPlay();
	EXPECT_EQ(GEditor->EditorWorld, nullptr);
}

TEST_F(FPlayLevelEndTest, DestroysThePlayWorldAfterwards)
{
	Play(GetPane(1));
	TWeakObjectPtr<UWorld> PlayWorld(GEditor->PlayWorld);
	EndPlay();
	EXPECT_FALSE(PlayWorld.IsValid());
}

TEST_F(FPlayLevelEndTest, HasNoPlayViewportAfterwards)
{
	Play(GetPane(1));
	EndPlay();
	EXPECT_EQ(GEditor->GetPIEViewport(), nullptr);
}

TEST_F(FPlayLevelEndTest, EndsARunningSessionBeforeTheNextOneStarts)
{
	Play(GetPane(1));
	Log.Clear();
	Play(GetPane(1));
	EXPECT_EQ(Log.Get(), "PreEnded End TearDown Cleanup PreBegin Begin PreInit PostInit Created PostStarted");
}

TEST_F(FPlayLevelEndTest, TearsAllInstancesDown)
{
	GetMutableDefault<ULevelEditorPlaySettings>()->SetPlayNumberOfClients(3);
	Play(GetPane(1));
	EndPlay();
	EXPECT_EQ(Log.Count("Cleanup"), 3);
}

TEST_F(FPlayLevelEndTest, EndsOnTheTickAfterItsViewportIsClosed)
{
	Play(TSharedPtr<SLevelViewport>());
	GEditor->GameViewport->CloseRequested(GEditor->GameViewport->Viewport);
	Loop.Tick();
	EXPECT_EQ(GEditor->PlayWorld, nullptr);
}

TEST_F(FPlayLevelEndTest, EndsOnTheSpotWhenThePanesLayoutChanges)
{
	Play(GetPane(1));
	StandIn::SetViewportLayout(FName(TEXT("OnePane")));
	EXPECT_EQ(GEditor->PlayWorld, nullptr);
}

TEST_F(FPlayLevelEndTest, EndsOnTheSpotWhenTheMainFrameCloses)
{
	Play(GetPane(1));
	Loop.CloseMainFrame();
	EXPECT_EQ(GEditor->PlayWorld, nullptr);
}

TEST_F(FPlayLevelEndTest, LeavesNoObjectsBehindInAHundredPlays)
{
	Play(GetPane(1));
	EndPlay();
	const int32 Before = StandIn::GetNumObjects();
	for (int Round = 0; Round < 100; ++Round)
	{
		Play(Round % 2 == 0 ? GetPane(1) : TSharedPtr<SLevelViewport>());
		EndPlay();
	}
	EXPECT_EQ(StandIn::GetNumObjects(), Before);
}

TEST_F(FPlayLevelEndTest, LeavesNoContextsBehindInAHundredPlays)
{
	for (int Round = 0; Round < 100; ++Round)
	{
		Play(GetPane(1));
		EndPlay();
	}
	EXPECT_EQ(GEditor->GetWorldContexts().Num(), 1);
}

TEST_F(FPlayLevelEndTest, LeavesNoBindingsBehindInAHundredPlays)
{
	const int32 Before = StandIn::ListRegistrations().Num();
	for (int Round = 0; Round < 100; ++Round)
	{
		Play(GetPane(1));
		EndPlay();
	}
	EXPECT_EQ(StandIn::ListRegistrations().Num(), Before);
}

TEST_F(FPlayLevelEndTest, LeavesNoPlayWindowsBehindInAHundredPlays)
{
	for (int Round = 0; Round < 100; ++Round)
	{
		Play(TSharedPtr<SLevelViewport>());
		EndPlay();
	}
	EXPECT_EQ(GEditor->SlatePlayInEditorMap.Num(), 0);
}
