// Copyright The Tintmill authors. All rights reserved.

#include "Slate/SlateFixture.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"

namespace
{
class FSlateInput : public FSlateFixture
{
protected:
	/** Shows two noting widgets of 100 by 100 side by side. */
	void ShowPair(bool bFocusable = false)
	{
		SAssignNew(Left, STestBox).Name("left").Size(FVector2D(100, 100)).Log(&Notes).Focusable(bFocusable);
		SAssignNew(Right, STestBox).Name("right").Size(FVector2D(100, 100)).Log(&Notes).Focusable(bFocusable);
		Show(SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Top)[Left.ToSharedRef()]
			+ SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Top)[Right.ToSharedRef()]);
	}

	TSharedPtr<STestBox> Left;
	TSharedPtr<STestBox> Right;
};
}

TEST_F(FSlateInput, SendsEnterAndLeaveAsTheMouseGoesFromOneWidgetToAnother)
{
	ShowPair();
	StandIn::MoveMouse(FVector2D(50, 50));
	EXPECT_EQ((FNotes{"left enter", "left move"}), TakeNotes());
	EXPECT_TRUE(Left->IsHovered());
	StandIn::MoveMouse(FVector2D(150, 50));
	EXPECT_EQ((FNotes{"left leave", "right enter", "right move"}), TakeNotes());
	EXPECT_FALSE(Left->IsHovered());
}

TEST_F(FSlateInput, LeavesAllWidgetsWhenTheMouseLeavesTheSurface)
{
	ShowPair();
	StandIn::MoveMouse(FVector2D(50, 50));
	TakeNotes();
	App().ProcessMouseLeft();
	EXPECT_EQ((FNotes{"left leave"}), TakeNotes());
}

TEST_F(FSlateInput, CountsTheDeepestWidgetAsDirectlyHovered)
{
	ShowPair();
	StandIn::MoveMouse(FVector2D(50, 50));
	EXPECT_TRUE(Window->IsHovered());
	EXPECT_TRUE(Left->IsDirectlyHovered());
	EXPECT_FALSE(Window->IsDirectlyHovered());
}

TEST_F(FSlateInput, NoticesThatTheLayoutMovedUnderARestingMouse)
{
	ShowPair();
	StandIn::MoveMouse(FVector2D(50, 50));
	Left->SetVisibility(EVisibility::Collapsed);
	StandIn::AdvanceTime(0.0f);
	EXPECT_TRUE(Right->IsHovered());
	EXPECT_FALSE(Left->IsHovered());
}

TEST_F(FSlateInput, BubblesAPressUntilAWidgetHandlesIt)
{
	const TSharedRef<STestBox> Child = SNew(STestBox).Name("child").Log(&Notes);
	int32 NumPresses = 0;
	Show(SNew(SBorder).OnMouseButtonDown_Lambda([&NumPresses](const FGeometry&, const FPointerEvent&) {
		++NumPresses;
		return FReply::Handled();
	})[Child]);
	StandIn::MoveMouse(FVector2D(50, 50));
	TakeNotes();
	EXPECT_TRUE(StandIn::PressMouse());
	EXPECT_EQ((FNotes{"child down"}), TakeNotes());
	EXPECT_EQ(1, NumPresses);
}

TEST_F(FSlateInput, StopsAPressAtTheWidgetThatHandlesIt)
{
	const TSharedRef<STestBox> Child = SNew(STestBox).Handles(true);
	int32 NumPresses = 0;
	Show(SNew(SBorder).OnMouseButtonDown_Lambda([&NumPresses](const FGeometry&, const FPointerEvent&) {
		++NumPresses;
		return FReply::Handled();
	})[Child]);
	StandIn::ClickAt(FVector2D(50, 50));
	EXPECT_EQ(0, NumPresses);
}

TEST_F(FSlateInput, LeavesAPressUnhandledThatNoWidgetWants)
{
	ShowPair();
	StandIn::MoveMouse(FVector2D(50, 50));
	EXPECT_FALSE(StandIn::PressMouse());
}

TEST_F(FSlateInput, SendsTheMouseOnlyToItsCaptor)
{
	ShowPair();
	Left->bCaptures = true;
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::PressMouse();
	EXPECT_TRUE(Left->HasMouseCapture());
	TakeNotes();
	StandIn::MoveMouse(FVector2D(150, 50));
	EXPECT_EQ((FNotes{"left leave", "left move"}), TakeNotes());
	EXPECT_FALSE(Right->IsHovered());
}

TEST_F(FSlateInput, EntersWhatLiesUnderTheMouseOnceTheCaptureEnds)
{
	ShowPair();
	Left->bCaptures = true;
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::PressMouse();
	StandIn::MoveMouse(FVector2D(150, 50));
	TakeNotes();
	StandIn::ReleaseMouse();
	EXPECT_EQ((FNotes{"left up", "left capture lost", "right enter"}), TakeNotes());
	EXPECT_FALSE(App().HasAnyMouseCaptor());
}

TEST_F(FSlateInput, TakesTheMouseFromACaptorThatIsNoLongerShown)
{
	ShowPair();
	Left->bCaptures = true;
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::PressMouse();
	Left->SetVisibility(EVisibility::Collapsed);
	StandIn::AdvanceTime(0.0f);
	StandIn::MoveMouse(FVector2D(50, 60));
	EXPECT_FALSE(App().HasAnyMouseCaptor());
}

TEST_F(FSlateInput, GivesTheFocusToThePressedWidgetThatTakesIt)
{
	ShowPair(true);
	StandIn::ClickAt(FVector2D(50, 50));
	EXPECT_TRUE(Left->HasKeyboardFocus());
	TakeNotes();
	StandIn::ClickAt(FVector2D(150, 50));
	EXPECT_TRUE(Right->HasKeyboardFocus());
	const FNotes Taken = TakeNotes();
	EXPECT_NE(Taken.end(), std::find(Taken.begin(), Taken.end(), "left blur"));
}

TEST_F(FSlateInput, TellsTheLosingWidgetBeforeTheGainingOne)
{
	ShowPair(true);
	App().SetKeyboardFocus(Left);
	TakeNotes();
	App().SetKeyboardFocus(Right);
	EXPECT_EQ((FNotes{"left blur", "right focus"}), TakeNotes());
	EXPECT_EQ(EFocusCause::SetDirectly, Right->HasAnyUserFocus().GetValue());
	EXPECT_FALSE(Left->HasAnyUserFocus().IsSet());
}

TEST_F(FSlateInput, CountsParentsOfTheFocusAmongThoseThatHaveIt)
{
	ShowPair(true);
	App().SetKeyboardFocus(Left);
	EXPECT_TRUE(Window->HasFocusedDescendants());
	EXPECT_FALSE(Window->HasKeyboardFocus());
}

TEST_F(FSlateInput, RefusesTheFocusToWidgetsThatDoNotTakeItAreDisabledOrUnseen)
{
	ShowPair(true);
	EXPECT_FALSE(App().SetKeyboardFocus(TSharedPtr<SWidget>(Window)));
	Left->SetEnabled(false);
	EXPECT_FALSE(App().SetKeyboardFocus(Left));
	Right->SetVisibility(EVisibility::Collapsed);
	EXPECT_FALSE(App().SetKeyboardFocus(Right));
	EXPECT_FALSE(App().SetKeyboardFocus(SNew(STestBox).Focusable(true)));
}

TEST_F(FSlateInput, BubblesKeysFromTheFocusedWidget)
{
	ShowPair(true);
	App().SetKeyboardFocus(Left);
	TakeNotes();
	StandIn::PressKey(EKeys::A);
	EXPECT_EQ((FNotes{"left key A"}), TakeNotes());
}

TEST_F(FSlateInput, SendsNoKeysWithoutAFocus)
{
	ShowPair(true);
	App().ClearKeyboardFocus();
	StandIn::PressKey(EKeys::A);
	EXPECT_EQ(FNotes(), TakeNotes());
}

TEST_F(FSlateInput, MovesTheFocusByTabAndAround)
{
	ShowPair(true);
	StandIn::PressKey(EKeys::Tab);
	EXPECT_TRUE(Left->HasKeyboardFocus());
	StandIn::PressKey(EKeys::Tab);
	EXPECT_TRUE(Right->HasKeyboardFocus());
	StandIn::PressKey(EKeys::Tab);
	EXPECT_TRUE(Left->HasKeyboardFocus());
	StandIn::PressKey(EKeys::Tab, true);
	EXPECT_TRUE(Right->HasKeyboardFocus());
}

TEST_F(FSlateInput, SkipsDisabledWidgetsByTab)
{
	ShowPair(true);
	Left->SetEnabled(false);
	StandIn::PressKey(EKeys::Tab);
	EXPECT_TRUE(Right->HasKeyboardFocus());
}

TEST_F(FSlateInput, MovesTheFocusByArrowsInTheirDirectionOnly)
{
	ShowPair(true);
	App().SetKeyboardFocus(Left);
	EXPECT_FALSE(StandIn::PressKey(EKeys::Left));
	EXPECT_TRUE(StandIn::PressKey(EKeys::Right));
	EXPECT_TRUE(Right->HasKeyboardFocus());
	EXPECT_TRUE(StandIn::PressKey(EKeys::Left));
	EXPECT_TRUE(Left->HasKeyboardFocus());
}

TEST_F(FSlateInput, DoesNotSendAPressToADisabledWidgetButToItsParent)
{
	int32 NumPresses = 0;
	const TSharedRef<STestBox> Child = SNew(STestBox).Name("child").Log(&Notes).Handles(true).IsEnabled(false);
	Show(SNew(SBorder).OnMouseButtonDown_Lambda([&NumPresses](const FGeometry&, const FPointerEvent&) {
		++NumPresses;
		return FReply::Handled();
	})[Child]);
	StandIn::ClickAt(FVector2D(50, 50));
	EXPECT_EQ(FNotes(), TakeNotes());
	EXPECT_EQ(1, NumPresses);
}

TEST_F(FSlateInput, AsksTheInnermostWidgetForTheCursor)
{
	Show(SNew(STestBox).Cursor(TOptional<EMouseCursor::Type>(EMouseCursor::Crosshairs)));
	StandIn::MoveMouse(FVector2D(50, 50));
	EXPECT_EQ(EMouseCursor::Crosshairs, App().QueryCursor());
}

TEST_F(FSlateInput, ForgetsTheFocusOfAWindowThatIsDestroyed)
{
	ShowPair(true);
	App().SetKeyboardFocus(Left);
	Window->RequestDestroyWindow();
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
	EXPECT_FALSE(Window->IsVisible());
}

TEST_F(FSlateInput, PaintsAndHitsInUnitsOfTheApplicationScale)
{
	ShowPair();
	App().SetApplicationScale(2.0f);
	StandIn::AdvanceTime(0.0f);
	StandIn::MoveMouse(FVector2D(150, 150));
	EXPECT_TRUE(Left->IsHovered());
	EXPECT_EQ(FSlateRect(200, 0, 400, 200), Right->GetCachedGeometry().GetLayoutBoundingRect());
}

TEST_F(FSlateInput, RoutesAPressToTheUpperOfTwoWindows)
{
	ShowPair();
	const TSharedRef<STestBox> Above = SNew(STestBox).Name("above").Log(&Notes);
	App().AddWindow(SNew(SWindow).CreateTitleBar(false).ClientSize(FVector2D(50, 50)).ScreenPosition(FVector2D(10, 10))[Above]);
	StandIn::AdvanceTime(0.0f);
	StandIn::MoveMouse(FVector2D(20, 20));
	TakeNotes();
	StandIn::PressMouse();
	EXPECT_EQ((FNotes{"above down"}), TakeNotes());
}

TEST_F(FSlateInput, ActivatesThePressedWindowAndBringsItToTheFront)
{
	ShowPair();
	const TSharedRef<SWindow> Other = SNew(SWindow).CreateTitleBar(false).ClientSize(FVector2D(50, 50)).ScreenPosition(FVector2D(10, 10));
	App().AddWindow(Other);
	EXPECT_TRUE(Other->IsActive());
	StandIn::AdvanceTime(0.0f);
	StandIn::ClickAt(FVector2D(150, 150));
	EXPECT_TRUE(Window->IsActive());
	EXPECT_TRUE(App().GetInteractiveTopLevelWindows().Last() == Window);
}

TEST_F(FSlateInput, TellsAWindowsOwnerThatItClosedAndClosesItsChildren)
{
	ShowPair();
	int32 NumClosed = 0;
	const TSharedRef<SWindow> Child = SNew(SWindow).CreateTitleBar(false).ClientSize(FVector2D(50, 50));
	Child->SetOnWindowClosed(FOnWindowClosed::CreateLambda([&NumClosed](const TSharedRef<SWindow>&) { ++NumClosed; }));
	App().AddWindowAsNativeChild(Child, Window.ToSharedRef());
	Window->RequestDestroyWindow();
	EXPECT_EQ(1, NumClosed);
}

TEST(FSlateApplicationDeathTest, CannotBeMadeTwiceOrAskedForWithoutBeingMade)
{
	EXPECT_DEATH(FSlateApplication::Get(), "Assertion failed: IsInitialized\\(\\)");
	FSlateApplication::Create();
	EXPECT_DEATH(FSlateApplication::Create(), "Assertion failed: !CurrentApplication.IsValid\\(\\)");
	FSlateApplication::Shutdown();
}
