// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditor/ViewMenuFixture.h"

#include "InputCoreTypes.h"
#include "TintmillObject.h"

#include <string>
#include <tuple>

// The module's menus in small windows and at large scales: they stay inside the window, leave the row in sight that they came from,
// and everything in them can be reached.

namespace
{
/** Scale, width and height of the window. */
typedef std::tuple<float, float, float> FCase;

class FSmallEditor : public FViewMenuFixture, public testing::WithParamInterface<FCase>
{
protected:
	FSmallEditor()
	{
		WriteLook("Amber");
		WriteLook("Teal");
		ShowEditor(TEXT("OnePane"));
		FSlateApplication::Get().SetApplicationScale(std::get<0>(GetParam()));
		User->Window->Resize(FVector2D(std::get<1>(GetParam()), std::get<2>(GetParam())));
		User->Wait(0.1f);
	}

	~FSmallEditor() override
	{
		CloseMenus();
		FSlateApplication::Get().SetApplicationScale(1.0f);
	}

	FSlateRect GetArea() const { return User->Window->GetRectInScreen(); }

	FSlateRect GetMenuArea(int32 Level) const
	{
		return FSlateApplication::Get().GetMenuStack().GetMenu(Level)->GetOwnedWindow()->GetRectInScreen();
	}

	static bool Contains(const FSlateRect& Outer, const FSlateRect& Inner)
	{
		return Inner.Left >= Outer.Left - 0.01f && Inner.Top >= Outer.Top - 0.01f && Inner.Right <= Outer.Right + 0.01f
			&& Inner.Bottom <= Outer.Bottom + 0.01f;
	}

	static bool Overlap(const FSlateRect& A, const FSlateRect& B)
	{
		const FVector2D Size = A.IntersectionWith(B).GetSize();
		return Size.X > 0.01f && Size.Y > 0.01f;
	}

	static FSlateRect GetRect(const StandIn::FMenuRow& Row) { return Row.Widget->GetCachedGeometry().GetLayoutBoundingRect(); }

	/** Opens View menu, panel and picker with the keyboard alone, which reaches rows that are scrolled out of sight. */
	void OpenAllWithTheKeyboard()
	{
		OpenViewMenu();
		ASSERT_EQ(1, User->CountMenus());
		// The module's row is the last one.
		User->Press(EKeys::End);
		User->Press(EKeys::Right);
		User->Wait(0.1f);
		ASSERT_EQ(2, User->CountMenus());
		User->Press(EKeys::End);
		User->Press(EKeys::Right);
		User->Wait(0.1f);
		ASSERT_EQ(3, User->CountMenus());
	}
};

std::string NameOf(const testing::TestParamInfo<FCase>& Info)
{
	return "At" + std::to_string(int(std::get<0>(Info.param) * 100.0f)) + "PercentIn" + std::to_string(int(std::get<1>(Info.param))) + "By"
		+ std::to_string(int(std::get<2>(Info.param)));
}

INSTANTIATE_TEST_SUITE_P(Menus, FSmallEditor,
	testing::Values(FCase(1.0f, 200.0f, 100.0f), FCase(2.0f, 320.0f, 100.0f), FCase(1.0f, 320.0f, 240.0f), FCase(1.25f, 640.0f, 360.0f),
		FCase(1.5f, 800.0f, 450.0f), FCase(2.0f, 1280.0f, 720.0f), FCase(1.0f, 1280.0f, 720.0f)),
	NameOf);
}

TEST_P(FSmallEditor, AllMenusStayInside)
{
	OpenAllWithTheKeyboard();
	for (int32 Level = 0; Level < User->CountMenus(); ++Level)
	{
		EXPECT_TRUE(Contains(GetArea(), GetMenuArea(Level))) << Level;
	}
}

TEST_P(FSmallEditor, EveryMenuLeavesTheRowInSightThatItCameFrom)
{
	OpenAllWithTheKeyboard();
	const float Scale = std::get<0>(GetParam());
	for (int32 Level = 1; Level < User->CountMenus(); ++Level)
	{
		for (const StandIn::FMenuRow& Row : User->GetRows(Level - 1))
		{
			if (Row.bSubMenuOpen)
			{
				const FSlateRect Rect = GetRect(Row);
				const float Room = std::max(Rect.Top - GetArea().Top, GetArea().Bottom - Rect.Bottom);
				EXPECT_TRUE(Room < 48.0f * Scale || !Overlap(Rect, GetMenuArea(Level))) << Level;
			}
		}
	}
}

TEST_P(FSmallEditor, TheRowThatIsReachedWithTheKeyboardIsScrolledIntoSight)
{
	OpenViewMenu();
	User->Press(EKeys::End);
	User->Wait(0.1f);
	EXPECT_TRUE(Contains(GetMenuArea(0), GetRect(User->FindRow(TEXT("Tintmill")))));
}

TEST_P(FSmallEditor, ALookIsPickedWithTheKeyboardAlone)
{
	OpenAllWithTheKeyboard();
	User->Press(EKeys::Down);
	User->Press(EKeys::Enter);
	EXPECT_EQ("Amber", LookName(FindRecord(0)));
}

TEST_P(FSmallEditor, TheSearchBoxIsInSightWhenThePickerOpens)
{
	OpenAllWithTheKeyboard();
	const TSharedPtr<SWidget> SearchBox = FindWidget(GetLastMenu(), TEXT("SSearchBox"));
	ASSERT_TRUE(SearchBox.IsValid());
	const FSlateRect Rect = SearchBox->GetCachedGeometry().GetLayoutBoundingRect();
	EXPECT_GE(Rect.Top, GetMenuArea(2).Top);
	EXPECT_LE(Rect.Bottom, GetMenuArea(2).Bottom + 0.01f);
}
