// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/MenuStack.h"
#include "Slate/SlateFixture.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SToolTip.h"

// Where tool tips of what is in a menu appear: they stay out of the way of the menu and of what was opened from it.

namespace
{
class FMenuToolTips : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		Show(SAssignNew(Owner, STestBox).Size(FVector2D(400, 300)));
	}

	/** Opens a menu of a size with a tool tip for all of it. */
	TSharedPtr<IMenu> Open(const TSharedRef<SWidget>& For, const FVector2D& At, const FVector2D& Size)
	{
		const TSharedRef<STestBox> Content = SNew(STestBox).Size(Size).ToolTipText(FText::FromString(TEXT("what it does")));
		const TSharedPtr<IMenu> Menu = App().PushMenu(For, FWidgetPath(), Content, At, FPopupTransitionEffect(), false);
		StandIn::AdvanceTime(0.0f);
		return Menu;
	}

	/** Opens a menu at the left and a submenu at its right edge; points at the upper left of the menu until its tool tip shows. */
	void OpenBoth(const FVector2D& Size, const FVector2D& SubMenuSize)
	{
		const TSharedPtr<IMenu> Menu = Open(Owner.ToSharedRef(), FVector2D(10, 10), Size);
		const FSlateRect Rect = Menu->GetOwnedWindow()->GetRectInScreen();
		SubMenu = Open(Menu->GetContent().ToSharedRef(), FVector2D(Rect.Right, Rect.Top), SubMenuSize);
		StandIn::MoveMouse(FVector2D(20, 14));
		StandIn::AdvanceTime(0.3f);
	}

	/** Returns the shown tool tip's area; empty if none is shown. */
	static FSlateRect GetToolTip()
	{
		TArray<TSharedRef<SWindow>> Windows;
		App().GetAllVisibleWindowsOrdered(Windows);
		for (const TSharedRef<SWindow>& Candidate : Windows)
		{
			if (Candidate->GetType() == EWindowType::ToolTip)
			{
				return Candidate->GetRectInScreen();
			}
		}
		return FSlateRect(0, 0, 0, 0);
	}

	static bool Overlap(const FSlateRect& A, const FSlateRect& B)
	{
		const FVector2D Size = A.IntersectionWith(B).GetSize();
		return Size.X > 0.0f && Size.Y > 0.0f;
	}

	FSlateRect GetSubMenu() const { return SubMenu->GetOwnedWindow()->GetRectInScreen(); }

	TSharedPtr<STestBox> Owner;
	TSharedPtr<IMenu> SubMenu;
};
}

TEST_F(FMenuToolTips, LieToTheRightOfTheMenu)
{
	Open(Owner.ToSharedRef(), FVector2D(10, 10), FVector2D(100, 200));
	StandIn::MoveMouse(FVector2D(20, 20));
	StandIn::AdvanceTime(0.3f);
	EXPECT_EQ(FVector2D(112, 36), GetToolTip().GetTopLeft());
}

TEST_F(FMenuToolTips, LieToTheRightOfAnOpenSubMenu)
{
	OpenBoth(FVector2D(100, 200), FVector2D(80, 60));
	EXPECT_EQ(FVector2D(192, 30), GetToolTip().GetTopLeft());
}

TEST_F(FMenuToolTips, GiveWayToASubMenuThatOpensLater)
{
	const TSharedPtr<IMenu> Menu = Open(Owner.ToSharedRef(), FVector2D(10, 10), FVector2D(100, 200));
	StandIn::MoveMouse(FVector2D(20, 20));
	StandIn::AdvanceTime(0.3f);
	const FSlateRect Before = GetToolTip();
	SubMenu = App().PushMenu(
		Menu->GetContent().ToSharedRef(), FWidgetPath(), MakeBox(80, 60), FVector2D(110, 10), FPopupTransitionEffect(), false);
	StandIn::AdvanceTime(0.3f);
	ASSERT_TRUE(Overlap(Before, GetSubMenu()));
	ASSERT_GT(GetToolTip().GetSize().X, 0.0f);
	EXPECT_FALSE(Overlap(GetToolTip(), GetSubMenu()));
}

TEST_F(FMenuToolTips, LieBelowMenusThatLeaveNoRoomBesideThem)
{
	OpenBoth(FVector2D(200, 100), FVector2D(180, 60));
	EXPECT_EQ(112.0f, GetToolTip().Top);
}

TEST_F(FMenuToolTips, LieAboveMenusThatLeaveRoomNowhereElse)
{
	const TSharedPtr<IMenu> Menu = Open(Owner.ToSharedRef(), FVector2D(10, 100), FVector2D(200, 195));
	SubMenu = Open(Menu->GetContent().ToSharedRef(), FVector2D(210, 120), FVector2D(185, 100));
	StandIn::MoveMouse(FVector2D(20, 120));
	StandIn::AdvanceTime(0.3f);
	EXPECT_EQ(98.0f, GetToolTip().Bottom);
}

TEST_F(FMenuToolTips, AreNotShownWhereTheyWouldHideTheSubMenu)
{
	OpenBoth(FVector2D(200, 285), FVector2D(185, 285));
	EXPECT_EQ(0.0f, GetToolTip().GetSize().X);
}

TEST_F(FMenuToolTips, ShowAgainWhenTheSubMenuThatTheyWouldHideCloses)
{
	OpenBoth(FVector2D(200, 285), FVector2D(185, 285));
	SubMenu->Dismiss();
	StandIn::AdvanceTime(0.3f);
	EXPECT_GT(GetToolTip().GetSize().X, 0.0f);
}

TEST_F(FMenuToolTips, LieBelowTheMouseInAMenuThatFillsTheWindow)
{
	Open(Owner.ToSharedRef(), FVector2D(0, 0), FVector2D(400, 300));
	StandIn::MoveMouse(FVector2D(20, 20));
	StandIn::AdvanceTime(0.3f);
	EXPECT_EQ(FVector2D(32, 36), GetToolTip().GetTopLeft());
}

TEST_F(FMenuToolTips, OutsideOfMenusDoNotCareForThem)
{
	// The menu is open, but the mouse is on the window beside it.
	Owner->SetToolTipText(FText::FromString(TEXT("the window")));
	Open(Owner.ToSharedRef(), FVector2D(200, 100), FVector2D(100, 100));
	StandIn::MoveMouse(FVector2D(150, 120));
	StandIn::AdvanceTime(0.3f);
	EXPECT_EQ(FVector2D(162, 136), GetToolTip().GetTopLeft());
}
