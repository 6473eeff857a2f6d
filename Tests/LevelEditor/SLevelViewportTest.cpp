// Copyright The Tintmill authors. All rights reserved.

#include "SLevelViewport.h"

#include "Support/EditorFixture.h"

class FLevelViewportTest : public FEditorFixture
{
protected:
	/** Returns the pane of a client of the level list, as a plug-in would. */
	static TSharedPtr<SLevelViewport> PaneOf(FLevelEditorViewportClient* Client)
	{
		return StaticCastSharedPtr<SLevelViewport>(Client->GetEditorViewportWidget());
	}
};

TEST_F(FLevelViewportTest, IsFoundThroughItsClient)
{
	EXPECT_EQ(PaneOf(GEditor->GetLevelViewportClients()[2]), GetPane(2));
}

TEST_F(FLevelViewportTest, IsOfItsOwnType)
{
	EXPECT_EQ(ToText(GetPane(0)->GetType()), "SLevelViewport");
}

TEST_F(FLevelViewportTest, HasItsKeyAlreadyInTheLevelEvent)
{
	std::string Key;
	GEditor->OnLevelViewportClientListChanged().AddLambda([&Key]() {
		if (GEditor->GetLevelViewportClients().Num() == 1)
		{
			TSharedPtr<SLevelViewport> Pane = PaneOf(GEditor->GetLevelViewportClients()[0]);
			Key = Pane.IsValid() ? ToText(Pane->GetConfigKey()) : Key;
		}
	});
	StandIn::SetViewportLayout(FName(TEXT("OnePane")));
	GEditor->OnLevelViewportClientListChanged().Clear();
	EXPECT_EQ(Key, "OnePane.Viewport 1.Viewport0");
}

TEST_F(FLevelViewportTest, HasItsKeyAlreadyInTheEventOfAllClients)
{
	std::string Key;
	GEditor->OnViewportClientListChanged().AddLambda([&Key]() {
		if (GEditor->GetAllViewportClients().Num() == 1 && GEditor->GetLevelViewportClients().Num() == 0)
		{
			TSharedPtr<SEditorViewport> Pane = GEditor->GetAllViewportClients()[0]->GetEditorViewportWidget();
			Key = Pane.IsValid() ? ToText(StaticCastSharedPtr<SLevelViewport>(Pane)->GetConfigKey()) : Key;
		}
	});
	StandIn::SetViewportLayout(FName(TEXT("OnePane")));
	GEditor->OnViewportClientListChanged().Clear();
	EXPECT_EQ(Key, "OnePane.Viewport 1.Viewport0");
}

TEST_F(FLevelViewportTest, IsGoneWhenItsClientsRemovalIsTold)
{
	StandIn::SetViewportLayout(FName(TEXT("OnePane")));
	bool bWidgetSeen = true;
	FEditorViewportClient* Client = GEditor->GetAllViewportClients()[0];
	GEditor->OnLevelViewportClientListChanged().AddLambda([&]() { bWidgetSeen = Client->GetEditorViewportWidget().IsValid(); });
	StandIn::CloseViewportTab(1);
	GEditor->OnLevelViewportClientListChanged().Clear();
	EXPECT_FALSE(bWidgetSeen);
}

TEST_F(FLevelViewportTest, HasTakenTheViewportFromItsClientWhenTheRemovalIsTold)
{
	StandIn::SetViewportLayout(FName(TEXT("OnePane")));
	bool bViewportSeen = true;
	FEditorViewportClient* Client = GEditor->GetAllViewportClients()[0];
	GEditor->OnLevelViewportClientListChanged().AddLambda([&]() { bViewportSeen = Client->Viewport != nullptr; });
	StandIn::CloseViewportTab(1);
	GEditor->OnLevelViewportClientListChanged().Clear();
	EXPECT_FALSE(bViewportSeen);
}

TEST_F(FLevelViewportTest, HasNoKeyWhenItIsMadeWithoutOne)
{
	TSharedPtr<SLevelViewport> Pane = SNew(SLevelViewport);
	EXPECT_TRUE(Pane->GetConfigKey().IsNone());
}

TEST_F(FLevelViewportTest, TakesAnyKeyOutsideOfALayout)
{
	TSharedPtr<SLevelViewport> Pane = SNew(SLevelViewport).ConfigKey(FName(TEXT("Cinematic")));
	EXPECT_EQ(ToText(Pane->GetConfigKey()), "Cinematic");
}

TEST_F(FLevelViewportTest, UsesAClientItIsGiven)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeShareable(new FLevelEditorViewportClient(TSharedPtr<SLevelViewport>()));
	TSharedPtr<SLevelViewport> Pane = SNew(SLevelViewport).LevelEditorViewportClient(Client);
	EXPECT_EQ(&Pane->GetLevelViewportClient(), Client.Get());
}

TEST_F(FLevelViewportTest, BecomesTheWidgetOfAClientItIsGiven)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeShareable(new FLevelEditorViewportClient(TSharedPtr<SLevelViewport>()));
	TSharedPtr<SLevelViewport> Pane = SNew(SLevelViewport).LevelEditorViewportClient(Client);
	EXPECT_EQ(Client->GetEditorViewportWidget(), Pane);
}

TEST_F(FLevelViewportTest, ShowsItsOwnViewportAtFirst)
{
	EXPECT_EQ(GetPane(0)->GetActiveViewport(), GetPane(0)->GetLevelViewportClient().Viewport);
}

TEST_F(FLevelViewportTest, IsDrawnByATickWhenItHasASize)
{
	GetPane(0)->GetSceneViewport()->SetFixedViewportSize(3, 2);
	GetPane(0)->Invalidate();
	Loop.Tick();
	EXPECT_EQ(GetPane(0)->GetSceneViewport()->GetPresentedSurface().Pixels.Num(), 6);
}

TEST_F(FLevelViewportTest, IsNotDrawnBehindAMaximizedPane)
{
	GetPane(0)->GetSceneViewport()->SetFixedViewportSize(3, 2);
	StandIn::MaximizePane(GetPane(1)->GetConfigKey(), true);
	Loop.Tick();
	EXPECT_EQ(GetPane(0)->GetSceneViewport()->GetPresentedSurface().Revision, 0u);
}

TEST_F(FLevelViewportTest, GivesItsFixedSizeToAGamePlayedInIt)
{
	GetPane(0)->GetSceneViewport()->SetFixedViewportSize(3, 2);
	Play(GetPane(0));
	EXPECT_EQ(GEditor->GetPIEViewport()->GetSizeXY(), FIntPoint(3, 2));
}

TEST_F(FLevelViewportTest, DrawsAGamePlayedInItOnTheTickThatStartsIt)
{
	GetPane(0)->GetSceneViewport()->SetFixedViewportSize(3, 2);
	Play(GetPane(0));
	EXPECT_EQ(GEditor->GetPIEViewport()->GetPresentedSurface().Revision, 1u);
}

TEST_F(FLevelViewportTest, KeepsItsKeyWhileAGameIsPlayedInIt)
{
	const std::string Before = ToText(GetPane(0)->GetConfigKey());
	Play(GetPane(0));
	EXPECT_EQ(ToText(GetPane(0)->GetConfigKey()), Before);
}

TEST_F(FLevelViewportTest, KnowsThatAGameIsPlayedInIt)
{
	Play(GetPane(0));
	EXPECT_TRUE(GetPane(0)->IsPlayInEditorViewportActive());
}

TEST_F(FLevelViewportTest, KnowsThatAGameIsSimulatedInIt)
{
	Play(GetPane(0), EPlaySessionWorldType::SimulateInEditor);
	EXPECT_TRUE(GetPane(0)->HasPlayInEditorViewport() && !GetPane(0)->IsPlayInEditorViewportActive());
}

TEST_F(FLevelViewportTest, HasNoGameAfterPlay)
{
	Play(GetPane(0));
	EndPlay();
	EXPECT_FALSE(GetPane(0)->HasPlayInEditorViewport());
}
