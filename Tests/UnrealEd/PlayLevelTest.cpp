// Copyright The Tintmill authors. All rights reserved.

#include "PlayFixture.h"

class FPlayLevelTest : public FPlayFixture
{};

TEST_F(FPlayLevelTest, DoesNotStartBeforeATick)
{
	GEditor->RequestPlaySession(FRequestPlaySessionParams());
	EXPECT_EQ(Log.Get(), "");
}

TEST_F(FPlayLevelTest, IsInProgressWhileItIsRequested)
{
	GEditor->RequestPlaySession(FRequestPlaySessionParams());
	EXPECT_TRUE(GEditor->IsPlaySessionInProgress());
}

TEST_F(FPlayLevelTest, StartsInTheEnginesOrder)
{
	Play(GetPane(1));
	EXPECT_EQ(Log.Get(), "PreBegin Begin PreInit PostInit Created PostStarted");
}

TEST_F(FPlayLevelTest, StartsInTheSameOrderInAWindow)
{
	Play(TSharedPtr<SLevelViewport>());
	EXPECT_EQ(Log.Get(), "PreBegin Begin PreInit PostInit Created PostStarted");
}

TEST_F(FPlayLevelTest, HasNothingYetInPreBeginPIE)
{
	Play(GetPane(1));
	EXPECT_EQ(StateAt("PreBegin"), "----");
}

TEST_F(FPlayLevelTest, HasNothingYetInBeginPIE)
{
	Play(GetPane(1));
	EXPECT_EQ(StateAt("Begin"), "----");
}

TEST_F(FPlayLevelTest, HasNoPlayWorldWhenThePlayWorldIsInitialized)
{
	Play(GetPane(1));
	EXPECT_EQ(StateAt("PreInit"), "----");
}

TEST_F(FPlayLevelTest, HasAnUnmarkedViewportAndNoBegunPlayWhenTheViewportIsCreated)
{
	Play(GetPane(1));
	EXPECT_EQ(StateAt("Created"), "WV--");
}

TEST_F(FPlayLevelTest, HasEverythingInPostPIEStarted)
{
	Play(GetPane(1));
	EXPECT_EQ(StateAt("PostStarted"), "WVMB");
}

TEST_F(FPlayLevelTest, HasALocalPlayerWhenTheViewportIsCreated)
{
	int32 NumPlayers = 0;
	const FDelegateHandle Handle = UGameViewportClient::OnViewportCreated().AddLambda(
		[&NumPlayers]() { NumPlayers = GEditor->GameViewport->GetGameInstance()->GetNumLocalPlayers(); });
	Play(GetPane(1));
	UGameViewportClient::OnViewportCreated().Remove(Handle);
	EXPECT_EQ(NumPlayers, 1);
}

TEST_F(FPlayLevelTest, MakesTheGameClientTheClientOfThePlayViewport)
{
	Play(GetPane(1));
	EXPECT_EQ(GEditor->GetPIEViewport()->GetClient(), static_cast<FViewportClient*>(GEditor->GameViewport));
}

TEST_F(FPlayLevelTest, ShowsThePlayViewportInThePane)
{
	GetPane(1)->GetLevelViewportClient().SetCurrentViewport();
	Play(GetPane(1));
	EXPECT_EQ(GEditor->GetActiveViewport(), GEditor->GetPIEViewport());
}

TEST_F(FPlayLevelTest, LeavesThePanesClientAlone)
{
	FLevelEditorViewportClient* Before = &GetPane(1)->GetLevelViewportClient();
	Play(GetPane(1));
	EXPECT_EQ(&GetPane(1)->GetLevelViewportClient(), Before);
}

TEST_F(FPlayLevelTest, LeavesThePanesClientItsViewport)
{
	FViewport* Before = GetPane(1)->GetLevelViewportClient().Viewport;
	Play(GetPane(1));
	EXPECT_EQ(GetPane(1)->GetLevelViewportClient().Viewport, Before);
}

TEST_F(FPlayLevelTest, FiresNoListEventInAPane)
{
	int NumEvents = 0;
	GEditor->OnViewportClientListChanged().AddLambda([&NumEvents]() { ++NumEvents; });
	Play(GetPane(1));
	EndPlay();
	GEditor->OnViewportClientListChanged().Clear();
	EXPECT_EQ(NumEvents, 0);
}

TEST_F(FPlayLevelTest, LeavesTheActiveViewportAloneInAWindow)
{
	FViewport* Before = GEditor->GetActiveViewport();
	Play(TSharedPtr<SLevelViewport>());
	EXPECT_EQ(GEditor->GetActiveViewport(), Before);
}

TEST_F(FPlayLevelTest, HasAPlayViewportInAWindowToo)
{
	Play(TSharedPtr<SLevelViewport>());
	EXPECT_NE(GEditor->GetPIEViewport(), nullptr);
}

TEST_F(FPlayLevelTest, MakesThePlayWorldTheCurrentWorld)
{
	Play(GetPane(1));
	EXPECT_EQ(GWorld.GetReference(), GEditor->PlayWorld);
}

TEST_F(FPlayLevelTest, RemembersTheEditedWorldDuringPlay)
{
	Play(GetPane(1));
	EXPECT_EQ(GEditor->EditorWorld, GEditor->GetEditorWorldContext().World());
}

TEST_F(FPlayLevelTest, StartsTwiceInARow)
{
	Play(GetPane(1));
	EndPlay();
	Log.Clear();
	Play(GetPane(2));
	EXPECT_EQ(Log.Get(), "PreBegin Begin PreInit PostInit Created PostStarted");
}

TEST_F(FPlayLevelTest, TellsOfEachGameViewportOfASession)
{
	GetMutableDefault<ULevelEditorPlaySettings>()->SetPlayNumberOfClients(3);
	Play(GetPane(1));
	EXPECT_EQ(Log.Count("Created"), 3);
}

TEST_F(FPlayLevelTest, KeepsTheLatestGameViewport)
{
	TArray<UGameViewportClient*> Clients;
	const FDelegateHandle Handle = UGameViewportClient::OnViewportCreated().AddLambda([&Clients]() { Clients.Add(GEditor->GameViewport); });
	GetMutableDefault<ULevelEditorPlaySettings>()->SetPlayNumberOfClients(2);
	Play(GetPane(1));
	UGameViewportClient::OnViewportCreated().Remove(Handle);
	EXPECT_EQ(GEditor->GameViewport, Clients[1]);
}

TEST_F(FPlayLevelTest, ShowsTheFirstOfSeveralGameViewportsInThePane)
{
	UGameViewportClient* First = nullptr;
	const FDelegateHandle Handle =
		UGameViewportClient::OnViewportCreated().AddLambda([&First]() { First = First != nullptr ? First : GEditor->GameViewport; });
	GetMutableDefault<ULevelEditorPlaySettings>()->SetPlayNumberOfClients(2);
	Play(GetPane(1));
	UGameViewportClient::OnViewportCreated().Remove(Handle);
	EXPECT_EQ(GetPane(1)->GetActiveViewport(), First->Viewport);
}
