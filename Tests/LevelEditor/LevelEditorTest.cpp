// Copyright The Tintmill authors. All rights reserved.

#include "LevelEditor.h"

#include "Modules/ModuleManager.h"
#include "Support/EditorFixture.h"

class FLevelEditorTest : public FEditorFixture
{
protected:
	static FLevelEditorModule& Module() { return FModuleManager::GetModuleChecked<FLevelEditorModule>("LevelEditor"); }
};

TEST_F(FLevelEditorTest, TakesTheFirstVisiblePaneWhenNoneIsWorkedIn)
{
	EXPECT_EQ(Module().GetFirstActiveLevelViewport(), GetPane(0));
}

TEST_F(FLevelEditorTest, TakesThePaneThatIsWorkedIn)
{
	StandIn::ActivatePane(GetPane(2)->GetConfigKey());
	EXPECT_EQ(Module().GetFirstActiveLevelViewport(), GetPane(2));
}

TEST_F(FLevelEditorTest, TakesTheMaximizedPaneWhenTheOneWorkedInIsHidden)
{
	StandIn::ActivatePane(GetPane(2)->GetConfigKey());
	StandIn::MaximizePane(GetPane(1)->GetConfigKey(), true);
	EXPECT_EQ(Module().GetFirstActiveLevelViewport(), GetPane(1));
}

TEST_F(FLevelEditorTest, TakesAPaneOfTheTabInFront)
{
	StandIn::OpenViewportTab(2, FName(TEXT("OnePane")));
	EXPECT_EQ(ToText(Module().GetFirstActiveLevelViewport()->GetConfigKey()), "OnePane.Viewport 2.Viewport0");
}

TEST_F(FLevelEditorTest, GivesTheSamePaneAsAnAssetViewport)
{
	StandIn::ActivatePane(GetPane(2)->GetConfigKey());
	EXPECT_EQ(Module().GetFirstActiveViewport()->GetActiveViewport(), GetPane(2)->GetActiveViewport());
}

TEST_F(FLevelEditorTest, MakesTheActivePanesViewportTheActiveViewport)
{
	StandIn::ActivatePane(GetPane(3)->GetConfigKey());
	EXPECT_EQ(GEditor->GetActiveViewport(), GetPane(3)->GetLevelViewportClient().Viewport);
}

TEST_F(FLevelEditorTest, HasNoActivePaneOnceItsTabsAreClosed)
{
	StandIn::CloseViewportTab(1);
	EXPECT_EQ(GEditor->GetActiveViewport(), nullptr);
}

TEST_F(FLevelEditorTest, HasNoInstanceOnceItIsClosed)
{
	StandIn::CloseLevelEditor();
	EXPECT_FALSE(Module().GetFirstLevelEditor().IsValid());
}

TEST_F(FLevelEditorTest, DestroysItsPanesWhoeverHoldsItsWidget)
{
	TSharedPtr<ILevelEditor> Kept = Module().GetFirstLevelEditor();
	StandIn::CloseLevelEditor();
	EXPECT_EQ(GEditor->GetLevelViewportClients().Num(), 0);
}

TEST_F(FLevelEditorTest, CannotBeOpenedTwice)
{
	EXPECT_DEATH(StandIn::OpenLevelEditor(FName(TEXT("OnePane")), NAME_None), "Assertion failed: !IsLevelEditorOpen");
}
