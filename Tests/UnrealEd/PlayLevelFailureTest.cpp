// Copyright The Tintmill authors. All rights reserved.

#include "PlayFixture.h"

class FPlayLevelFailureTest : public FPlayFixture
{};

TEST_F(FPlayLevelFailureTest, StopsAfterPreBeginPIEWhenACheckSaysNo)
{
	StandIn::SetPlayCheck([]() { return false; });
	Play(GetPane(1));
	EXPECT_EQ(Log.Get(), "PreBegin");
}

TEST_F(FPlayLevelFailureTest, IsNotInProgressWhenACheckSaidNo)
{
	StandIn::SetPlayCheck([]() { return false; });
	Play(GetPane(1));
	EXPECT_FALSE(GEditor->IsPlaySessionInProgress());
}

TEST_F(FPlayLevelFailureTest, EndsWithoutHavingStartedWhenTheGameDoesNotComeUp)
{
	StandIn::SetGameInstanceCheck([](int32) { return false; });
	Play(GetPane(1));
	EXPECT_EQ(Log.Get(), "PreBegin Begin End");
}

TEST_F(FPlayLevelFailureTest, LeavesNoSessionWhenTheGameDoesNotComeUp)
{
	StandIn::SetGameInstanceCheck([](int32) { return false; });
	Play(GetPane(1));
	EXPECT_FALSE(GEditor->IsPlaySessionInProgress());
}

TEST_F(FPlayLevelFailureTest, StartsAgainAfterAFailure)
{
	StandIn::SetGameInstanceCheck([](int32) { return false; });
	Play(GetPane(1));
	StandIn::SetGameInstanceCheck(TFunction<bool(int32)>());
	Play(GetPane(1));
	EXPECT_NE(GEditor->PlayWorld, nullptr);
}

TEST_F(FPlayLevelFailureTest, TellsOfACancelledRequest)
{
	GEditor->RequestPlaySession(FRequestPlaySessionParams());
	GEditor->CancelRequestPlaySession();
	EXPECT_EQ(Log.Get(), "Cancel");
}

TEST_F(FPlayLevelFailureTest, DoesNotStartACancelledRequest)
{
	GEditor->RequestPlaySession(FRequestPlaySessionParams());
	GEditor->CancelRequestPlaySession();
	Loop.Tick();
	EXPECT_EQ(GEditor->PlayWorld, nullptr);
}

TEST_F(FPlayLevelFailureTest, RefusesPlayInAnotherProcess)
{
	FRequestPlaySessionParams Params;
	Params.SessionDestination = EPlaySessionDestinationType::NewProcess;
	GEditor->RequestPlaySession(Params);
	EXPECT_DEATH(Loop.Tick(), "not in this stand-in: play in another process");
}

TEST_F(FPlayLevelFailureTest, ToleratesACreationEventOutsideOfPlay)
{
	UGameViewportClient::OnViewportCreated().Broadcast();
	EXPECT_EQ(StateAt("Created"), "----");
}
