// Copyright The Tintmill authors. All rights reserved.

#include "LevelViewportLayout.h"

#include "Support/EditorFixture.h"

class FLevelViewportLayoutTest : public FEditorFixture
{
protected:
	/** Returns the keys of all panes, in order. */
	static std::string Keys()
	{
		std::string Text;
		for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
		{
			Text += (Text.empty() ? "" : ", ") + ToText(Pane->GetConfigKey());
		}
		return Text;
	}
};

TEST_F(FLevelViewportLayoutTest, GivesFourPanesTheirKeys)
{
	EXPECT_EQ(Keys(),
		"FourPanes2x2.Viewport 1.Viewport0, FourPanes2x2.Viewport 1.Viewport1, FourPanes2x2.Viewport 1.Viewport2, "
		"FourPanes2x2.Viewport 1.Viewport3");
}

TEST_F(FLevelViewportLayoutTest, GivesOnePaneItsKey)
{
	StandIn::SetViewportLayout(FName(TEXT("OnePane")));
	EXPECT_EQ(Keys(), "OnePane.Viewport 1.Viewport0");
}

TEST_F(FLevelViewportLayoutTest, GivesTwoPanesTheirKeys)
{
	StandIn::SetViewportLayout(FName(TEXT("TwoPanesHoriz")));
	EXPECT_EQ(Keys(), "TwoPanesHoriz.Viewport 1.Viewport0, TwoPanesHoriz.Viewport 1.Viewport1");
}

TEST_F(FLevelViewportLayoutTest, GivesThreePanesTheirKeys)
{
	StandIn::SetViewportLayout(FName(TEXT("ThreePanesLeft")));
	EXPECT_EQ(Keys(), "ThreePanesLeft.Viewport 1.Viewport0, ThreePanesLeft.Viewport 1.Viewport1, ThreePanesLeft.Viewport 1.Viewport2");
}

TEST_F(FLevelViewportLayoutTest, NamesThePanesOfASecondTabAfterIt)
{
	StandIn::OpenViewportTab(2, FName(TEXT("OnePane")));
	EXPECT_TRUE(StandIn::FindPane(FName(TEXT("OnePane.Viewport 2.Viewport0"))).IsValid());
}

TEST_F(FLevelViewportLayoutTest, FindsPanesWhateverTheCaseOfTheirKeys)
{
	EXPECT_TRUE(StandIn::FindPane(FName(TEXT("fourpanes2x2.viewport 1.viewport0"))).IsValid());
}

TEST_F(FLevelViewportLayoutTest, BuildsEveryLayoutItNames)
{
	int NumBuilt = 0;
	for (const FName& Name : StandIn::GetViewportLayoutNames())
	{
		StandIn::SetViewportLayout(Name);
		NumBuilt += StandIn::GetViewportLayout() == Name && StandIn::GetPanes().Num() > 0;
	}
	EXPECT_EQ(NumBuilt, 12);
}

TEST_F(FLevelViewportLayoutTest, DestroysTheOldPanesFirstToLastBeforeItMakesNewOnes)
{
	TArray<FLevelEditorViewportClient*> Old = GEditor->GetLevelViewportClients();
	FEventLog Log;
	GEditor->OnLevelViewportClientListChanged().AddLambda([&]() {
		std::string Word = "old";
		for (int32 Index = 0; Index < Old.Num(); ++Index)
		{
			Word += GEditor->GetLevelViewportClients().Contains(Old[Index]) ? std::to_string(Index) : "";
		}
		Log.Add(Word + "of" + std::to_string(GEditor->GetLevelViewportClients().Num()));
	});
	StandIn::SetViewportLayout(FName(TEXT("OnePane")));
	GEditor->OnLevelViewportClientListChanged().Clear();
	// The new client may have the address of an old one.
	EXPECT_EQ(Log.Get().substr(0, Log.Get().rfind(' ')), "old123of3 old23of2 old3of1 oldof0");
}

TEST_F(FLevelViewportLayoutTest, MakesPanesUnderTheOldKeysWhenChangedBack)
{
	const std::string Before = Keys();
	StandIn::SetViewportLayout(FName(TEXT("OnePane")));
	StandIn::SetViewportLayout(FName(TEXT("FourPanes2x2")));
	EXPECT_EQ(Keys(), Before);
}

TEST_F(FLevelViewportLayoutTest, KeepsTheListsInStepWithThePanes)
{
	for (const FName& Name : StandIn::GetViewportLayoutNames())
	{
		StandIn::SetViewportLayout(Name);
	}
	EXPECT_EQ(GEditor->GetLevelViewportClients().Num(), StandIn::GetPanes().Num());
}

TEST_F(FLevelViewportLayoutTest, DiesForAnUnknownLayout)
{
	EXPECT_DEATH(StandIn::SetViewportLayout(FName(TEXT("NinePanes"))), "Assertion failed: ActiveLevelViewportLayout.IsValid");
}

TEST_F(FLevelViewportLayoutTest, ShowsAllPanesSideBySide)
{
	EXPECT_TRUE(GetPane(0)->IsVisible() && GetPane(1)->IsVisible() && GetPane(2)->IsVisible() && GetPane(3)->IsVisible());
}

TEST_F(FLevelViewportLayoutTest, ShowsOnlyAMaximizedPane)
{
	StandIn::MaximizePane(GetPane(2)->GetConfigKey(), true);
	EXPECT_TRUE(!GetPane(0)->IsVisible() && !GetPane(1)->IsVisible() && GetPane(2)->IsVisible() && !GetPane(3)->IsVisible());
}

TEST_F(FLevelViewportLayoutTest, KeepsAllClientsWhenOnePaneIsMaximized)
{
	StandIn::MaximizePane(GetPane(2)->GetConfigKey(), true);
	EXPECT_EQ(GEditor->GetLevelViewportClients().Num(), 4);
}

TEST_F(FLevelViewportLayoutTest, FiresNoListEventWhenAPaneIsMaximized)
{
	int NumEvents = 0;
	GEditor->OnViewportClientListChanged().AddLambda([&NumEvents]() { ++NumEvents; });
	StandIn::MaximizePane(GetPane(2)->GetConfigKey(), true);
	StandIn::MaximizePane(GetPane(2)->GetConfigKey(), false);
	GEditor->OnViewportClientListChanged().Clear();
	EXPECT_EQ(NumEvents, 0);
}

TEST_F(FLevelViewportLayoutTest, ShowsAllPanesAgain)
{
	StandIn::MaximizePane(GetPane(2)->GetConfigKey(), true);
	StandIn::MaximizePane(GetPane(2)->GetConfigKey(), false);
	EXPECT_TRUE(GetPane(0)->IsVisible());
}

TEST_F(FLevelViewportLayoutTest, HidesThePanesOfATabThatIsNotInFront)
{
	StandIn::OpenViewportTab(2, FName(TEXT("OnePane")));
	EXPECT_FALSE(GetPane(0)->IsVisible());
}

TEST_F(FLevelViewportLayoutTest, ShowsThePanesOfTheFirstTabAgainWhenTheSecondIsClosed)
{
	StandIn::OpenViewportTab(2, FName(TEXT("OnePane")));
	StandIn::CloseViewportTab(2);
	EXPECT_TRUE(GetPane(0)->IsVisible());
}

TEST_F(FLevelViewportLayoutTest, LooksFromTheLeftInTheFirstOfFourPanes)
{
	EXPECT_EQ(GetPane(0)->GetLevelViewportClient().GetViewportType(), LVT_OrthoYZ);
}

TEST_F(FLevelViewportLayoutTest, LooksInPerspectiveInTheSecondOfFourPanes)
{
	EXPECT_EQ(GetPane(1)->GetLevelViewportClient().GetViewportType(), LVT_Perspective);
}
