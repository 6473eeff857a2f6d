// Copyright The Tintmill authors. All rights reserved.

#include "PlayFixture.h"

class FPlayLevelSimulateTest : public FPlayFixture
{};

TEST_F(FPlayLevelSimulateTest, SaysThatItDoesNotSimulate)
{
	Play(GetPane(1));
	EndPlay();
	EXPECT_EQ(Simulating.Get(), "PreBegin0 Begin0 PreInit0 PostInit0 Created0 PostStarted0 PreEnded0 End0 TearDown0 Cleanup0");
}

TEST_F(FPlayLevelSimulateTest, SaysThatItSimulates)
{
	Play(GetPane(1), EPlaySessionWorldType::SimulateInEditor);
	EndPlay();
	EXPECT_EQ(Simulating.Get(), "PreBegin1 Begin1 PreInit0 PostInit0 Created0 PostStarted1 PreEnded1 End1 TearDown0 Cleanup0");
}

TEST_F(FPlayLevelSimulateTest, SimulatesOnlyOnceTheInstancesAreThere)
{
	bool bSimulatingWhenCreated = true;
	const FDelegateHandle Handle = UGameViewportClient::OnViewportCreated().AddLambda(
		[&bSimulatingWhenCreated]() { bSimulatingWhenCreated = GEditor->bIsSimulatingInEditor; });
	Play(GetPane(1), EPlaySessionWorldType::SimulateInEditor);
	UGameViewportClient::OnViewportCreated().Remove(Handle);
	EXPECT_FALSE(bSimulatingWhenCreated);
}

TEST_F(FPlayLevelSimulateTest, ShowsThePanesOwnViewportWhileSimulating)
{
	GetPane(1)->GetLevelViewportClient().SetCurrentViewport();
	Play(GetPane(1), EPlaySessionWorldType::SimulateInEditor);
	EXPECT_EQ(GEditor->GetActiveViewport(), GetPane(1)->GetLevelViewportClient().Viewport);
}

TEST_F(FPlayLevelSimulateTest, KeepsThePlayViewportWhileSimulating)
{
	Play(GetPane(1), EPlaySessionWorldType::SimulateInEditor);
	EXPECT_EQ(GEditor->GetPIEViewport(), GEditor->GameViewport->Viewport);
}

TEST_F(FPlayLevelSimulateTest, TogglesARunningSessionWithEvents)
{
	Play(GetPane(1));
	Log.Clear();
	GEditor->RequestToggleBetweenPIEandSIE();
	Loop.Tick();
	EXPECT_EQ(Log.Get(), "PreSwitch Switch");
}

TEST_F(FPlayLevelSimulateTest, ShowsThePlayViewportAgainWhenToggledBack)
{
	GetPane(1)->GetLevelViewportClient().SetCurrentViewport();
	Play(GetPane(1), EPlaySessionWorldType::SimulateInEditor);
	GEditor->ToggleBetweenPIEandSIE();
	EXPECT_EQ(GEditor->GetActiveViewport(), GEditor->GetPIEViewport());
}

TEST_F(FPlayLevelSimulateTest, TellsOfAPause)
{
	Play(GetPane(1));
	Log.Clear();
	GEditor->PlaySessionPaused();
	GEditor->PlaySessionSingleStepped();
	GEditor->PlaySessionResumed();
	EXPECT_EQ(Log.Get(), "Pause SingleStep Resume");
}
