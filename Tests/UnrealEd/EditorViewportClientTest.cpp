// Copyright The Tintmill authors. All rights reserved.

#include "EditorViewportClient.h"

#include "Support/EditorFixture.h"

class FEditorViewportClientTest : public FEngineFixture
{};

TEST(FEditorViewportClient, CannotBeMadeBeforeThereIsAnEditor)
{
	EXPECT_DEATH(FEditorViewportClient(nullptr), "Assertion failed: GEditor ");
}

TEST_F(FEditorViewportClientTest, HasNoViewportAtFirst)
{
	EXPECT_EQ(FEditorViewportClient(nullptr).Viewport, nullptr);
}

TEST_F(FEditorViewportClientTest, HasNoWidgetWithoutBeingGivenOne)
{
	EXPECT_FALSE(FEditorViewportClient(nullptr).GetEditorViewportWidget().IsValid());
}

TEST_F(FEditorViewportClientTest, IsNoClientOfTheLevelEditor)
{
	EXPECT_FALSE(FEditorViewportClient(nullptr).IsLevelEditorClient());
}

TEST_F(FEditorViewportClientTest, JoinsTheListOfAllClients)
{
	FEditorViewportClient Client(nullptr);
	EXPECT_TRUE(GEditor->GetAllViewportClients().Contains(&Client));
}

TEST_F(FEditorViewportClientTest, StaysOutOfTheLevelList)
{
	FEditorViewportClient Client(nullptr);
	EXPECT_EQ(GEditor->GetLevelViewportClients().Num(), 0);
}

TEST_F(FEditorViewportClientTest, DiesWhenItIsDestroyedWithItsViewport)
{
	EXPECT_DEATH(
		{
			FEditorViewportClient Client(nullptr);
			FSceneViewport Viewport(&Client, TSharedPtr<SViewport>());
			Client.Viewport = &Viewport;
		},
		"Viewport != NULL in FEditorViewportClient destructor");
}

TEST_F(FEditorViewportClientTest, MayBeInvalidatedWithoutViewport)
{
	FEditorViewportClient Client(nullptr);
	Client.Invalidate();
	EXPECT_EQ(Client.Viewport, nullptr);
}

TEST_F(FEditorViewportClientTest, AsksForARedrawWhenInvalidated)
{
	FEditorViewportClient Client(nullptr);
	FSceneViewport Viewport(&Client, TSharedPtr<SViewport>());
	Client.Viewport = &Viewport;
	Client.bNeedsRedraw = false;
	Client.Invalidate();
	Client.Viewport = nullptr;
	EXPECT_TRUE(Client.bNeedsRedraw);
}

TEST_F(FEditorViewportClientTest, TakesTheRealtimeSwitch)
{
	FEditorViewportClient Client(nullptr);
	Client.SetRealtime(true);
	EXPECT_TRUE(Client.IsRealtime());
}

TEST_F(FEditorViewportClientTest, LetsAnOverrideWinOverTheRealtimeSwitch)
{
	FEditorViewportClient Client(nullptr);
	Client.SetRealtime(true);
	Client.AddRealtimeOverride(false, FText::FromString(TEXT("Capture")));
	EXPECT_FALSE(Client.IsRealtime());
}

TEST_F(FEditorViewportClientTest, LetsTheLastOverrideWin)
{
	FEditorViewportClient Client(nullptr);
	Client.AddRealtimeOverride(false, FText::FromString(TEXT("Capture")));
	Client.AddRealtimeOverride(true, FText::FromString(TEXT("Playback")));
	EXPECT_TRUE(Client.IsRealtime());
}

TEST_F(FEditorViewportClientTest, ReturnsToTheRealtimeSwitchWithoutOverrides)
{
	FEditorViewportClient Client(nullptr);
	Client.SetRealtime(true);
	Client.AddRealtimeOverride(false, FText::FromString(TEXT("Capture")));
	Client.RemoveRealtimeOverride(FText::FromString(TEXT("Capture")));
	EXPECT_TRUE(Client.IsRealtime());
}

TEST_F(FEditorViewportClientTest, SaysThatAMissingOverrideCannotBeRemoved)
{
	FEditorViewportClient Client(nullptr);
	EXPECT_FALSE(Client.RemoveRealtimeOverride(FText::FromString(TEXT("Capture")), false));
}

TEST_F(FEditorViewportClientTest, LooksInPerspectiveAtFirst)
{
	EXPECT_TRUE(FEditorViewportClient(nullptr).IsPerspective());
}

TEST_F(FEditorViewportClientTest, IsOrthographicFromTheTop)
{
	FEditorViewportClient Client(nullptr);
	Client.SetViewportType(LVT_OrthoXY);
	EXPECT_TRUE(Client.IsOrtho());
}

TEST_F(FEditorViewportClientTest, MayOutliveTheEditor)
{
	FEditorViewportClient* Client = new FEditorViewportClient(nullptr);
	bExited = true;
	Loop.Exit();
	delete Client;
	EXPECT_EQ(GEditor, nullptr);
}
