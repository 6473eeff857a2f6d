// Copyright The Tintmill authors. All rights reserved.

#include "LevelEditorViewport.h"

#include "Engine/World.h"
#include "Support/EditorFixture.h"

/** Notes both list events with what a handler sees in them. */
class FLevelEditorViewportClientTest : public FEngineFixture
{
protected:
	virtual void SetUp() override
	{
		FEngineFixture::SetUp();
		GEditor->OnViewportClientListChanged().AddRaw(this, &FLevelEditorViewportClientTest::OnAll);
		GEditor->OnLevelViewportClientListChanged().AddRaw(this, &FLevelEditorViewportClientTest::OnLevel);
	}

	void OnAll() { Note("All"); }
	void OnLevel() { Note("Level"); }

	void Note(const std::string& Event)
	{
		Log.Add(Event + std::to_string(GEditor->GetAllViewportClients().Num()) + std::to_string(GEditor->GetLevelViewportClients().Num()));
		if (GEditor->GetAllViewportClients().Num() > 0)
		{
			FEditorViewportClient* Client = GEditor->GetAllViewportClients()[0];
			Kinds.Add(Client->IsLevelEditorClient() ? "level" : "base");
			Worlds.Add(Client->GetWorld() == GEditor->GetEditorWorldContext().World() ? "edited" : "other");
			Viewports.Add(Client->Viewport == nullptr ? "null" : "set");
			Widgets.Add(Client->GetEditorViewportWidget().IsValid() ? "widget" : "none");
		}
		Currents.Add(GCurrentLevelEditingViewportClient != nullptr ? "current" : "none");
	}

	/** Makes a client without a pane. */
	TSharedPtr<FLevelEditorViewportClient> MakeClient()
	{
		return MakeShareable(new FLevelEditorViewportClient(TSharedPtr<SLevelViewport>()));
	}

	FEventLog Log;
	FEventLog Kinds;
	FEventLog Worlds;
	FEventLog Viewports;
	FEventLog Widgets;
	FEventLog Currents;
};

TEST_F(FLevelEditorViewportClientTest, FiresTheEventOfAllClientsBeforeItIsInTheLevelList)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	EXPECT_EQ(Log.Get(), "All10 Level11");
}

TEST_F(FLevelEditorViewportClientTest, LeavesTheListsInReverseOrder)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	Log.Clear();
	Client.Reset();
	EXPECT_EQ(Log.Get(), "Level10 All00");
}

TEST_F(FLevelEditorViewportClientTest, IsStillABaseObjectInTheFirstEvent)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	EXPECT_EQ(Kinds.Get(), "base level");
}

TEST_F(FLevelEditorViewportClientTest, SeesTheEditedWorldInTheLevelEvent)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	EXPECT_EQ(Worlds.Get(), "edited edited");
}

TEST_F(FLevelEditorViewportClientTest, HasNoViewportInBothEvents)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	EXPECT_EQ(Viewports.Get(), "null null");
}

TEST_F(FLevelEditorViewportClientTest, HasNoWidgetWhenItHasNoPane)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	EXPECT_EQ(Widgets.Get(), "none none");
}

TEST_F(FLevelEditorViewportClientTest, HasItsPaneAlreadyInTheFirstEvent)
{
	TSharedPtr<SLevelViewport> Pane = SNew(SLevelViewport);
	EXPECT_EQ(Widgets.Get(), "widget widget");
}

TEST_F(FLevelEditorViewportClientTest, HasNoViewportInBothEventsOfAPaneEither)
{
	TSharedPtr<SLevelViewport> Pane = SNew(SLevelViewport);
	EXPECT_EQ(Viewports.Get(), "null null");
}

TEST_F(FLevelEditorViewportClientTest, IsGivenItsViewportWithoutAnEvent)
{
	TSharedPtr<SLevelViewport> Pane = SNew(SLevelViewport);
	EXPECT_EQ(Log.Get(), "All10 Level11");
}

TEST_F(FLevelEditorViewportClientTest, IsStillTheCurrentClientInItsLastLevelEvent)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	Client->SetCurrentViewport();
	Currents.Clear();
	Client.Reset();
	EXPECT_EQ(Currents.Get(), "current none");
}

TEST_F(FLevelEditorViewportClientTest, IsNoLongerTheCurrentClientOnceDestroyed)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	Client->SetCurrentViewport();
	Client.Reset();
	EXPECT_EQ(GCurrentLevelEditingViewportClient, nullptr);
}

TEST_F(FLevelEditorViewportClientTest, LeavesAnotherCurrentClientAlone)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	Client->SetCurrentViewport();
	MakeClient().Reset();
	EXPECT_EQ(GCurrentLevelEditingViewportClient, Client.Get());
}

TEST_F(FLevelEditorViewportClientTest, BecomesTheCurrentClientWithAKey)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	Client->InputKey(nullptr, 0, EKeys::LeftMouseButton, IE_Pressed);
	EXPECT_EQ(GCurrentLevelEditingViewportClient, Client.Get());
}

TEST_F(FLevelEditorViewportClientTest, BecomesTheLastKeyClientToo)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	Client->SetCurrentViewport();
	EXPECT_EQ(GLastKeyLevelEditingViewportClient, Client.Get());
}

TEST_F(FLevelEditorViewportClientTest, StaysTheCurrentClientWithoutTheKeyboard)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	Client->SetCurrentViewport();
	Client->LostFocus(nullptr);
	EXPECT_EQ(GCurrentLevelEditingViewportClient, Client.Get());
}

TEST_F(FLevelEditorViewportClientTest, FollowsTheEditedWorldToANewMap)
{
	TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
	UWorld* NewWorld = GEditor->NewMap();
	EXPECT_EQ(Client->GetWorld(), NewWorld);
}

TEST_F(FLevelEditorViewportClientTest, LeavesNothingBoundBehind)
{
	MakeClient().Reset();
	EXPECT_FALSE(FEditorDelegates::PreBeginPIE.IsBound());
}
