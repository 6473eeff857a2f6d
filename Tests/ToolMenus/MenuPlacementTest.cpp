// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Support/MenuUser.h"
#include "Support/Printers.h"

#include <algorithm>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

// Menus in windows that are too small for them, at all scales: they stay inside, leave what they came from in sight, and scroll.

namespace
{
/** Scale, width and height of the window. */
typedef std::tuple<float, float, float> FCase;

/** A menu of many rows in a small window. */
class FSmallWindow : public ::testing::TestWithParam<FCase>
{
protected:
	FSmallWindow()
	{
		FSlateApplication::Get().SetApplicationScale(std::get<0>(GetParam()));
		User.Window->Resize(FVector2D(std::get<1>(GetParam()), std::get<2>(GetParam())));
		User.Wait(0.0f);
	}

	float GetScale() const { return std::get<0>(GetParam()); }

	FSlateRect GetArea() const { return User.Window->GetRectInScreen(); }

	/** A menu of rows, each of which opens such a menu again. */
	static TSharedRef<SWidget> MakeMenu(int32 Rows)
	{
		FMenuBuilder Builder(true, nullptr);
		AddRows(Builder, Rows);
		return Builder.MakeWidget();
	}

	static void AddRows(FMenuBuilder& Builder, int32 Rows)
	{
		for (int32 Index = 0; Index < Rows; ++Index)
		{
			const FText Label = FText::FromString(FString::Printf(TEXT("Row number %d"), Index));
			Builder.AddSubMenu(
				Label, FText::GetEmpty(), FNewMenuDelegate::CreateLambda([Rows](FMenuBuilder& Inner) { AddRows(Inner, Rows); }));
		}
	}

	/** Opens a menu below a button at a place, as a tool bar does. */
	TSharedPtr<IMenu> Drop(const FVector2D& At, int32 Rows)
	{
		Button = FSlateRect::FromPointAndExtent(At, FVector2D(40.0f, 12.0f) * GetScale());
		const TSharedPtr<IMenu> Menu = FSlateApplication::Get().PushMenu(User.Anchor.ToSharedRef(), FWidgetPath(), MakeMenu(Rows), At,
			FPopupTransitionEffect(FPopupTransitionEffect::ComboButton), true, Button.GetSize());
		User.Wait(0.0f);
		return Menu;
	}

	FSlateRect GetMenu(int32 Level) const
	{
		return FSlateApplication::Get().GetMenuStack().GetMenu(Level)->GetOwnedWindow()->GetRectInScreen();
	}

	static FSlateRect GetRect(const StandIn::FMenuRow& Row) { return Row.Widget->GetCachedGeometry().GetLayoutBoundingRect(); }

	static bool Overlap(const FSlateRect& A, const FSlateRect& B)
	{
		const FVector2D Size = A.IntersectionWith(B).GetSize();
		return Size.X > 0.01f && Size.Y > 0.01f;
	}

	/** The row with the keyboard focus in a menu. */
	FSlateRect GetFocusedRow(int32 Level) const
	{
		for (const StandIn::FMenuRow& Row : User.GetRows(Level))
		{
			if (Row.Widget->HasKeyboardFocus())
			{
				return GetRect(Row);
			}
		}
		ADD_FAILURE() << "no row has the focus";
		return FSlateRect(0, 0, 0, 0);
	}

	static bool Contains(const FSlateRect& Outer, const FSlateRect& Inner)
	{
		return Inner.Left >= Outer.Left - 0.01f && Inner.Top >= Outer.Top - 0.01f && Inner.Right <= Outer.Right + 0.01f
			&& Inner.Bottom <= Outer.Bottom + 0.01f;
	}

	FMenuUser User;
	FSlateRect Button;
};

std::string NameOf(const ::testing::TestParamInfo<FCase>& Info)
{
	return "At" + std::to_string(int(std::get<0>(Info.param) * 100.0f)) + "PercentIn" + std::to_string(int(std::get<1>(Info.param))) + "By"
		+ std::to_string(int(std::get<2>(Info.param)));
}

INSTANTIATE_TEST_SUITE_P(Menus, FSmallWindow,
	::testing::Combine(
		::testing::Values(1.0f, 1.25f, 1.5f, 2.0f), ::testing::Values(200.0f, 640.0f, 1280.0f), ::testing::Values(100.0f, 360.0f, 720.0f)),
	NameOf);
}

TEST_P(FSmallWindow, AMenuStaysInside)
{
	for (const FVector2D At : {FVector2D(4, 4), FVector2D(150, 80), FVector2D(0, 40)})
	{
		Drop(At, 40);
		EXPECT_TRUE(Contains(GetArea(), GetMenu(0)));
	}
}

TEST_P(FSmallWindow, AMenuOfManyRowsLeavesItsButtonInSight)
{
	Drop(FVector2D(4, 4), 40);
	// Where no row would fit beside the button, seeing the menu is worth more.
	if (GetArea().Bottom - Button.Bottom >= 48.0f * GetScale())
	{
		EXPECT_FALSE(Overlap(GetMenu(0), Button));
	}
}

TEST_P(FSmallWindow, ASubMenuStaysInside)
{
	Drop(FVector2D(4, 4), 40);
	User.MoveTo(User.GetRows(0)[0].Centre);
	ASSERT_EQ(2, User.CountMenus());
	EXPECT_TRUE(Contains(GetArea(), GetMenu(1)));
}

TEST_P(FSmallWindow, ASubMenuLeavesItsRowInSight)
{
	Drop(FVector2D(4, 4), 40);
	const FSlateRect Row = GetRect(User.GetRows(0)[0]);
	User.MoveTo(User.GetRows(0)[0].Centre);
	const bool bRoomBeside = Row.Right + GetMenu(1).GetSize().X <= GetArea().Right;
	if (bRoomBeside || GetArea().Bottom - Row.Bottom >= 48.0f * GetScale())
	{
		EXPECT_FALSE(Overlap(GetMenu(1), Row));
	}
}

TEST_P(FSmallWindow, AMenuThatFitsDoesNotScroll)
{
	Drop(FVector2D(4, 4), 1);
	const FSlateRect Row = GetRect(User.GetRows(0)[0]);
	if (Row.GetSize().Y + 24.0f * GetScale() <= GetArea().GetSize().Y)
	{
		User.MoveTo(Row.GetCenter());
		User.Wheel(-3.0f);
		EXPECT_EQ(Row, GetRect(User.GetRows(0)[0]));
	}
}

TEST_P(FSmallWindow, TheLastRowIsReachedWithTheKeyboard)
{
	Drop(FVector2D(4, 4), 40);
	User.Press(EKeys::End);
	User.Wait(0.1f);
	EXPECT_TRUE(Contains(GetMenu(0), GetFocusedRow(0)) || GetFocusedRow(0).GetSize().Y > GetMenu(0).GetSize().Y);
	EXPECT_EQ(GetFocusedRow(0), GetRect(User.GetRows(0)[39]));
}

TEST_P(FSmallWindow, EveryRowOnTheWayDownIsInSight)
{
	Drop(FVector2D(4, 4), 40);
	for (int32 Index = 0; Index < 40; ++Index)
	{
		User.Press(EKeys::Down);
		User.Wait(0.0f);
		ASSERT_TRUE(Contains(GetMenu(0), GetFocusedRow(0))) << Index;
	}
}

TEST_P(FSmallWindow, TheLastRowIsReachedWithTheWheel)
{
	Drop(FVector2D(4, 4), 40);
	User.MoveTo(FVector2D(GetMenu(0).Left + 4.0f, GetMenu(0).GetCenter().Y));
	for (int32 Turn = 0; Turn < 60; ++Turn)
	{
		User.Wheel(-1.0f);
		FSlateApplication::Get().GetMenuStack().DismissFrom(1);
	}
	User.Wait(0.0f);
	EXPECT_TRUE(Contains(GetMenu(0), GetRect(User.GetRows(0)[39])));
}

namespace
{
class FMenuPlacement : public ::testing::Test
{
protected:
	FMenuUser User;
};
}

TEST_F(FMenuPlacement, AMenuIsPlacedAnewWhenItsWindowShrinks)
{
	const TSharedPtr<IMenu> Menu = User.Open(SNew(SBox).WidthOverride(100.0f).HeightOverride(200.0f));
	ASSERT_EQ(FSlateRect(20, 20, 120, 220), Menu->GetOwnedWindow()->GetRectInScreen());
	User.Window->Resize(FVector2D(300.0f, 150.0f));
	User.Wait(0.0f);
	EXPECT_LE(Menu->GetOwnedWindow()->GetRectInScreen().Bottom, 150.0f);
}

TEST_F(FMenuPlacement, ASubMenuAtTheRightEdgeGoesToTheLeftOfItsRow)
{
	FMenuBuilder Builder(true, nullptr);
	Builder.AddSubMenu(FText::FromString(TEXT("More")), FText::GetEmpty(), FNewMenuDelegate::CreateLambda([](FMenuBuilder& Inner) {
		Inner.AddMenuEntry(FText::FromString(TEXT("Inner")), FText::GetEmpty(), FSlateIcon(), FUIAction());
	}));
	FSlateApplication::Get().PushMenu(
		User.Anchor.ToSharedRef(), FWidgetPath(), Builder.MakeWidget(), FVector2D(1190.0f, 20.0f), FPopupTransitionEffect());
	User.Wait(0.0f);
	User.Hover(TEXT("More"));
	const float RowLeft = User.FindRow(TEXT("More")).Widget->GetCachedGeometry().GetAbsolutePosition().X;
	EXPECT_EQ(RowLeft, FSlateApplication::Get().GetMenuStack().GetMenu(1)->GetOwnedWindow()->GetRectInScreen().Right);
}

TEST_F(FMenuPlacement, AMenuWithRoomKeepsItsWishedSize)
{
	const TSharedPtr<IMenu> Menu = User.Open(SNew(SBox).WidthOverride(300.0f).HeightOverride(850.0f));
	EXPECT_EQ(FVector2D(300, 850), Menu->GetOwnedWindow()->GetSizeInScreen());
}
