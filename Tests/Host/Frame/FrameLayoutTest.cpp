// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/Frame/FrameFixture.h"

#include "Host/ContentBrowser/SContentBrowser.h"

using namespace TintmillHost;

namespace
{
class FrameLayout : public FFrameFixture
{
protected:
	/** The handle above the area with the panels: the one of all that is the lowest. */
	FVector2D FindHandle() const
	{
		FVector2D Lowest(0.0f, 0.0f);
		for (const FSeen& Thing : LookAround())
		{
			if (Thing.Kind == ESeenKind::Splitter && Thing.Center.Y > Lowest.Y && Thing.Center.X > 400.0f && Thing.Center.X < 600.0f)
			{
				Lowest = Thing.Center;
			}
		}
		return Lowest;
	}

	bool ShowsBrowser() const { return StandIn::FindWidgetOfType(Frame.ToSharedRef(), "SContentBrowser").IsValid(); }
	bool ShowsLog() const { return StandIn::FindWidgetOfType(Frame.ToSharedRef(), "SOutputLog").IsValid(); }
};

TEST_F(FrameLayout, ShowsTheContentBrowserAtFirst)
{
	EXPECT_TRUE(ShowsBrowser() && !ShowsLog());
}

TEST_F(FrameLayout, ShowsTheOutputLogWhenItsTabIsClicked)
{
	Click("Output Log");
	EXPECT_TRUE(ShowsLog() && !ShowsBrowser());
}

TEST_F(FrameLayout, AnnouncesATabThatWasChosen)
{
	Click("Output Log");
	EXPECT_EQ(Announced, 1);
}

TEST_F(FrameLayout, ChoosesATabByKeys)
{
	StandIn::PressKey(EKeys::Tab);
	const TSharedPtr<SWidget> Head = StandIn::FindText(Frame.ToSharedRef(), TEXT("Content Browser"));
	TSharedPtr<SWidget> Focusable = Head;
	while (!Focusable->SupportsKeyboardFocus())
	{
		Focusable = Focusable->GetParentWidget();
	}
	FSlateApplication::Get().SetKeyboardFocus(Focusable);
	Press(EKeys::Right);
	Press(EKeys::Enter);
	EXPECT_TRUE(ShowsLog());
}

TEST_F(FrameLayout, ShowsTheOtherPanelWhenOneIsClosed)
{
	Click("Close ContentBrowser");
	EXPECT_TRUE(ShowsLog());
}

TEST_F(FrameLayout, GivesTheLevelEditorAllTheRoomWhenBothPanelsAreClosed)
{
	Click("Close ContentBrowser");
	Click("Close OutputLog");
	Wait(0.1);
	EXPECT_FALSE(Frame->IsBottomShown());
}

TEST_F(FrameLayout, GoesToTheContentBrowserByItsKey)
{
	Click("Output Log");
	Press(EModifierKey::FromBools(true, false, true, false), EKeys::F);
	EXPECT_TRUE(ShowsBrowser());
}

TEST_F(FrameLayout, OpensAClosedPanelByItsKey)
{
	Click("Close OutputLog");
	Press(EModifierKey::FromBools(true, false, true, false), EKeys::L);
	EXPECT_TRUE(ShowsLog());
}

TEST_F(FrameLayout, GivesThePanelTheKeyboardByItsKey)
{
	Press(EModifierKey::FromBools(true, false, true, false), EKeys::F);
	const TSharedPtr<SWidget> Browser = StandIn::FindWidgetOfType(Frame.ToSharedRef(), "SContentBrowser");
	EXPECT_TRUE(Browser->HasFocusedDescendants() || Browser->HasKeyboardFocus());
}

TEST_F(FrameLayout, SharesTheHeightAnewWhenTheHandleIsDragged)
{
	const FVector2D Handle = FindHandle();
	Person.Drag(Handle, Handle - FVector2D(0.0f, 100.0f));
	EXPECT_GT(Frame->GetState().BottomShare, 0.4f);
}

TEST_F(FrameLayout, AnnouncesADragOnce)
{
	const FVector2D Handle = FindHandle();
	Person.Drag(Handle, Handle - FVector2D(0.0f, 100.0f));
	EXPECT_EQ(Announced, 1);
}

TEST_F(FrameLayout, TakesAStateBack)
{
	const FFrameState State{0.5f, true, true, "OutputLog"};
	Frame->SetState(State);
	EXPECT_EQ(Frame->GetState(), State);
}

TEST_F(FrameLayout, AnnouncesNoStateThatWasSet)
{
	Frame->SetState(FFrameState{0.5f, true, true, "OutputLog"});
	EXPECT_EQ(Announced, 0);
}

TEST_F(FrameLayout, RefusesAShareThatLeavesNoRoom)
{
	Frame->SetState(FFrameState{7.0f, true, true, "OutputLog"});
	EXPECT_EQ(Frame->GetState().BottomShare, FFrameState().BottomShare);
}

TEST_F(FrameLayout, ShowsAnotherTabThanOneThatDoesNotExist)
{
	Frame->SetState(FFrameState{0.3f, true, true, "Outliner"});
	EXPECT_EQ(Frame->GetState().FrontTab, "ContentBrowser");
}

TEST_F(FrameLayout, HidesThePanelsFirstInALowWindow)
{
	Resize(600.0f, 380.0f);
	EXPECT_TRUE(!Frame->IsBottomShown() && Sees("Play"));
}

TEST_F(FrameLayout, ShowsThePanelsAgainInAHighWindow)
{
	Resize(600.0f, 380.0f);
	Resize(600.0f, 600.0f);
	EXPECT_TRUE(Frame->IsBottomShown());
}

TEST_F(FrameLayout, LeavesMenuAndPanesInATinyWindow)
{
	Resize(200.0f, 100.0f);
	EXPECT_TRUE(Sees("File") && GetHeight(StandIn::GetPanes()[0].ToSharedRef()) > 10.0f);
}

TEST_F(FrameLayout, KeepsTheMenusOfATinyWindowInIt)
{
	Resize(200.0f, 100.0f);
	FSlateApplication::Get().SetWorkArea(FSlateRect(0.0f, 0.0f, 200.0f, 100.0f));
	Click("Help");
	const FSlateRect Menu = FSlateApplication::Get().GetVisibleMenuWindow()->GetRectInScreen();
	EXPECT_TRUE(Menu.Left >= 0.0f && Menu.Top >= 0.0f && Menu.Bottom <= 100.0f) << Menu.Top << ' ' << Menu.Bottom;
}

TEST_F(FrameLayout, SurvivesEverySizeDownToNothing)
{
	for (float Size = 400.0f; Size > 1.0f; Size /= 2.0f)
	{
		Resize(Size * 2.0f, Size);
		Resize(Size, Size * 2.0f);
	}
	Resize(1000.0f, 700.0f);
	EXPECT_TRUE(Frame->IsBottomShown());
}

TEST_F(FrameLayout, OffersTheToolBarsButtonsInANarrowWindow)
{
	Resize(150.0f, 700.0f);
	EXPECT_FALSE(Sees("Play"));
}

TEST_F(FrameLayout, ShowsNoTabsForOneTabOfViewports)
{
	EXPECT_FALSE(Sees("Viewport 1"));
}

TEST_F(FrameLayout, ShowsTheTabsOfViewports)
{
	StandIn::OpenViewportTab(2, "OnePane");
	Wait(0.1);
	EXPECT_TRUE(Sees("Viewport 1") && Sees("Viewport 2"));
}

TEST_F(FrameLayout, BringsATabOfViewportsToTheFront)
{
	StandIn::OpenViewportTab(2, "OnePane");
	Wait(0.1);
	Click("Viewport 1");
	EXPECT_EQ(StandIn::GetFrontViewportTab(), 1);
}

TEST_F(FrameLayout, ClosesATabOfViewports)
{
	StandIn::OpenViewportTab(2, "OnePane");
	Wait(0.1);
	Click("Close Viewport 2");
	EXPECT_EQ(StandIn::GetViewportTabs().Num(), 1);
}

TEST_F(FrameLayout, GoesThroughThePanesByKey)
{
	StandIn::ActivatePane("FourPanes2x2.Viewport 1.Viewport3");
	Press(EKeys::F6);
	EXPECT_EQ(GetActiveKey(), "FourPanes2x2.Viewport 1.Viewport0");
}

TEST_F(FrameLayout, GoesBackThroughThePanesByKey)
{
	StandIn::ActivatePane("FourPanes2x2.Viewport 1.Viewport0");
	Press(EModifierKey::Shift, EKeys::F6);
	EXPECT_EQ(GetActiveKey(), "FourPanes2x2.Viewport 1.Viewport3");
}

TEST_F(FrameLayout, MaximizesTheActivePaneByKey)
{
	StandIn::ActivatePane("FourPanes2x2.Viewport 1.Viewport2");
	Press(EModifierKey::Alt, EKeys::M);
	EXPECT_TRUE(StandIn::GetPanes()[2]->IsMaximized());
}

TEST_F(FrameLayout, OpensTheViewMenuOfTheActivePaneByKey)
{
	Press(EModifierKey::Alt, EKeys::V);
	EXPECT_TRUE(Sees("View Mode"));
}

TEST_F(FrameLayout, ShowsTheLevelsByKey)
{
	Press(EModifierKey::Control, EKeys::O);
	EXPECT_TRUE(Sees("Hall"));
}
}
