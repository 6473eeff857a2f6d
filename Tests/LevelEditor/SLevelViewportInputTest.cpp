// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/SlateApplication.h"
#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "Support/EditorFixture.h"
#include "Widgets/SWindow.h"

/** An editor with its four panes in a window of 800 by 600 units, painted once. */
class FLevelViewportInputTest : public FEditorFixture
{
protected:
	virtual void ChooseOptions() override { Options.bSlate = true; }

	virtual void SetUp() override
	{
		FEditorFixture::SetUp();
		TSharedRef<SWindow> Window =
			SNew(SWindow).CreateTitleBar(false).SizingRule(ESizingRule::UserSized).ClientSize(FVector2D(800.0f, 600.0f));
		Window->SetContent(FModuleManager::GetModuleChecked<FLevelEditorModule>("LevelEditor").GetFirstLevelEditor().ToSharedRef());
		FSlateApplication::Get().AddWindow(Window);
		Window->MoveWindowTo(FVector2D(0.0f, 0.0f));
		Loop.Tick();
	}

	/** Presses and releases the left button. */
	static void Click(float X, float Y)
	{
		const FVector2D At(X, Y);
		const TSet<FKey> Held{EKeys::LeftMouseButton};
		FSlateApplication::Get().ProcessMouseButtonDownEvent(
			TSharedPtr<FGenericWindow>(), FPointerEvent(0, At, At, Held, EKeys::LeftMouseButton, 0.0f, FModifierKeysState()));
		FSlateApplication::Get().ProcessMouseButtonUpEvent(
			FPointerEvent(0, At, At, TSet<FKey>(), EKeys::LeftMouseButton, 0.0f, FModifierKeysState()));
	}
};

TEST_F(FLevelViewportInputTest, GivesEachPaneAQuarterOfWhatTheHandlesLeave)
{
	EXPECT_EQ(GetPane(2)->GetActiveViewport()->GetSizeXY(), FIntPoint(398, 298));
}

TEST_F(FLevelViewportInputTest, GivesAMaximizedPaneTheWholeWindow)
{
	StandIn::MaximizePane(GetPane(2)->GetConfigKey(), true);
	Loop.Tick();
	EXPECT_EQ(GetPane(2)->GetActiveViewport()->GetSizeXY(), FIntPoint(800, 600));
}

TEST_F(FLevelViewportInputTest, DrawsAPaneOnTheTickAfterItGotItsSize)
{
	Loop.Tick();
	EXPECT_EQ(GetPane(2)->GetSceneViewport()->GetPresentedSurface().Size, FIntPoint(398, 298));
}

TEST_F(FLevelViewportInputTest, MakesAClickedPaneTheOneThatIsWorkedIn)
{
	Click(600.0f, 450.0f);
	EXPECT_EQ(GEditor->GetActiveViewport(), GetPane(3)->GetActiveViewport());
}

TEST_F(FLevelViewportInputTest, GivesAClickedPaneTheKeyboard)
{
	Click(600.0f, 450.0f);
	EXPECT_EQ(FSlateApplication::Get().GetKeyboardFocusedWidget(), TSharedPtr<SWidget>(GetPane(3)->GetSceneViewport()->GetWidget().Pin()));
}

TEST_F(FLevelViewportInputTest, GivesAGameTheSizeOfItsPane)
{
	Play(GetPane(2));
	Loop.Tick();
	EXPECT_EQ(GEditor->GetPIEViewport()->GetSizeXY(), FIntPoint(398, 298));
}

TEST_F(FLevelViewportInputTest, GivesAGameInAWindowItsOwnSize)
{
	Play(TSharedPtr<SLevelViewport>());
	Loop.Tick();
	EXPECT_EQ(GEditor->GetPIEViewport()->GetSizeXY().X, 1280);
}

TEST_F(FLevelViewportInputTest, EndsPlayWhenTheGamesWindowIsClosed)
{
	Play(TSharedPtr<SLevelViewport>());
	for (const TPair<FName, FSlatePlayInEditorInfo>& Pair : GEditor->SlatePlayInEditorMap)
	{
		Pair.Value.SlatePlayInEditorWindow.Pin()->RequestDestroyWindow();
	}
	Loop.Tick();
	EXPECT_EQ(GEditor->PlayWorld, nullptr);
}

TEST_F(FLevelViewportInputTest, ClosesTheGamesWindowWhenPlayEnds)
{
	const int32 Before = FSlateApplication::Get().GetInteractiveTopLevelWindows().Num();
	Play(TSharedPtr<SLevelViewport>());
	EndPlay();
	EXPECT_EQ(FSlateApplication::Get().GetInteractiveTopLevelWindows().Num(), Before);
}

TEST_F(FLevelViewportInputTest, SurvivesALayoutChangeAfterItWasPainted)
{
	StandIn::SetViewportLayout(FName(TEXT("OnePane")));
	Loop.Tick();
	EXPECT_EQ(GetPane(0)->GetActiveViewport()->GetSizeXY(), FIntPoint(800, 600));
}

TEST_F(FLevelViewportInputTest, TakesTheApplicationDownOnExit)
{
	bExited = true;
	Loop.Exit();
	EXPECT_FALSE(FSlateApplication::IsInitialized());
}
