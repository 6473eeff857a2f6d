// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Support/MenuUser.h"
#include "Support/Text.h"

#include <string>

// The keyboard in menus of three levels: what each key does to the focus and to the open menus.

namespace
{
class FMenuKeys : public ::testing::Test
{
protected:
	FMenuKeys()
	{
		FMenuBuilder Builder(true, nullptr);
		AddPlain(Builder, TEXT("First"));
		Builder.AddSubMenu(FText::FromString(TEXT("Sub")), FText::GetEmpty(), FNewMenuDelegate::CreateLambda([this](FMenuBuilder& Inner) {
			Inner.AddSubMenu(FText::FromString(TEXT("SubSub")), FText::GetEmpty(),
				FNewMenuDelegate::CreateLambda([this](FMenuBuilder& Innermost) { AddPlain(Innermost, TEXT("Deep")); }));
			AddPlain(Inner, TEXT("Inner"));
		}));
		AddPlain(Builder, TEXT("Last"));
		User.Open(Builder.MakeWidget());
	}

	void AddPlain(FMenuBuilder& Builder, const TCHAR* Label)
	{
		Builder.AddMenuEntry(FText::FromString(Label), FText::GetEmpty(), FSlateIcon(),
			FUIAction(FExecuteAction::CreateLambda([this, Label]() { Ran += Label; }), FCanExecuteAction()));
	}

	void PressAll(std::initializer_list<FKey> Keys)
	{
		for (const FKey& Key : Keys)
		{
			User.Press(Key);
		}
	}

	void PressShiftTab()
	{
		const FModifierKeysState Shift(true, false, false, false, false, false, false, false, false);
		FSlateApplication::Get().ProcessKeyDownEvent(FKeyEvent(EKeys::Tab, Shift, 0, false, 0, 0));
		User.Wait(0.0f);
	}

	/** The label of the row with the focus. */
	std::string GetFocused() const
	{
		for (int32 Level = 0; Level < User.CountMenus(); ++Level)
		{
			for (const StandIn::FMenuRow& Row : User.GetRows(Level))
			{
				if (Row.Widget->HasKeyboardFocus())
				{
					return ToStd(Row.Label);
				}
			}
		}
		return "";
	}

	FMenuUser User;
	FString Ran;
};
}

TEST_F(FMenuKeys, DownGoesThroughTheRowsAndAroundTheEnd)
{
	std::string Way;
	for (int32 Step = 0; Step < 4; ++Step)
	{
		User.Press(EKeys::Down);
		Way += GetFocused() + " ";
	}
	EXPECT_EQ("First Sub Last First ", Way);
}

TEST_F(FMenuKeys, UpGoesThroughTheRowsAndAroundTheStart)
{
	std::string Way;
	for (int32 Step = 0; Step < 4; ++Step)
	{
		User.Press(EKeys::Up);
		Way += GetFocused() + " ";
	}
	EXPECT_EQ("Last Sub First Last ", Way);
}

TEST_F(FMenuKeys, EndGoesToTheLastRow)
{
	User.Press(EKeys::End);
	EXPECT_EQ("Last", GetFocused());
}

TEST_F(FMenuKeys, HomeGoesToTheFirstRow)
{
	PressAll({EKeys::End, EKeys::Home});
	EXPECT_EQ("First", GetFocused());
}

TEST_F(FMenuKeys, MovingOpensNoSubMenu)
{
	PressAll({EKeys::Down, EKeys::Down});
	User.Wait(1.0f);
	EXPECT_EQ(1, User.CountMenus());
}

TEST_F(FMenuKeys, RightOpensTheSubMenuAndGoesToItsFirstRow)
{
	PressAll({EKeys::Down, EKeys::Down, EKeys::Right});
	EXPECT_EQ(2, User.CountMenus());
	EXPECT_EQ("SubSub", GetFocused());
}

TEST_F(FMenuKeys, RightOnAPlainRowOpensNothing)
{
	PressAll({EKeys::Down, EKeys::Right});
	EXPECT_EQ(1, User.CountMenus());
}

TEST_F(FMenuKeys, RightGoesAsDeepAsThereAreSubMenus)
{
	PressAll({EKeys::Down, EKeys::Down, EKeys::Right, EKeys::Right});
	EXPECT_EQ(3, User.CountMenus());
	EXPECT_EQ("Deep", GetFocused());
}

TEST_F(FMenuKeys, LeftClosesOneLevelAndGoesBackToTheRow)
{
	PressAll({EKeys::Down, EKeys::Down, EKeys::Right, EKeys::Right, EKeys::Left});
	EXPECT_EQ(2, User.CountMenus());
	EXPECT_EQ("SubSub", GetFocused());
}

TEST_F(FMenuKeys, LeftInTheFirstMenuClosesNothing)
{
	PressAll({EKeys::Down, EKeys::Left});
	EXPECT_EQ(1, User.CountMenus());
	EXPECT_EQ("First", GetFocused());
}

TEST_F(FMenuKeys, EnterOpensTheSubMenuAndGoesToItsFirstRow)
{
	PressAll({EKeys::Down, EKeys::Down, EKeys::Enter});
	EXPECT_EQ(2, User.CountMenus());
	EXPECT_EQ("SubSub", GetFocused());
}

TEST_F(FMenuKeys, EnterRunsAPlainRowAndClosesAllMenus)
{
	PressAll({EKeys::Down, EKeys::Down, EKeys::Right, EKeys::Down, EKeys::Enter});
	EXPECT_EQ(0, User.CountMenus());
	EXPECT_TRUE(IsText(Ran, TEXT("Inner")));
}

TEST_F(FMenuKeys, SpaceRunsAPlainRowToo)
{
	PressAll({EKeys::End, EKeys::SpaceBar});
	EXPECT_TRUE(IsText(Ran, TEXT("Last")));
}

TEST_F(FMenuKeys, EscapeClosesOneLevelAndGoesBackToTheRow)
{
	PressAll({EKeys::Down, EKeys::Down, EKeys::Right, EKeys::Right, EKeys::Escape});
	EXPECT_EQ(2, User.CountMenus());
	EXPECT_EQ("SubSub", GetFocused());
}

TEST_F(FMenuKeys, EscapeInTheFirstMenuClosesIt)
{
	PressAll({EKeys::Down, EKeys::Escape});
	EXPECT_EQ(0, User.CountMenus());
}

TEST_F(FMenuKeys, EscapeRunsNothing)
{
	PressAll({EKeys::Down, EKeys::Down, EKeys::Right, EKeys::Escape, EKeys::Escape});
	EXPECT_TRUE(IsText(Ran, TEXT("")));
}

TEST_F(FMenuKeys, EscapeClosesASubMenuThatTheMouseOpenedBeforeItsParent)
{
	User.Hover(TEXT("Sub"));
	ASSERT_EQ(2, User.CountMenus());
	User.Press(EKeys::Escape);
	EXPECT_EQ(1, User.CountMenus());
}

TEST_F(FMenuKeys, TabGoesThroughTheRowsOfTheMenuAlone)
{
	std::string Way;
	for (int32 Step = 0; Step < 4; ++Step)
	{
		User.Press(EKeys::Tab);
		const std::string Focused = GetFocused();
		if (!Focused.empty())
		{
			Way += Focused + " ";
		}
	}
	EXPECT_EQ(0u, Way.find("First Sub Last "));
	EXPECT_EQ(1, User.CountMenus());
}

TEST_F(FMenuKeys, TabWithShiftGoesBack)
{
	PressAll({EKeys::End});
	PressShiftTab();
	EXPECT_EQ("Sub", GetFocused());
}

TEST_F(FMenuKeys, LettersDoNothing)
{
	User.Press(EKeys::Down);
	User.Type(TEXT("L"));
	EXPECT_EQ("First", GetFocused());
	EXPECT_EQ(1, User.CountMenus());
}

TEST_F(FMenuKeys, AnotherRowThanTheOneWhoseSubMenuIsOpenOpensItsOwn)
{
	PressAll({EKeys::Down, EKeys::Down, EKeys::Right, EKeys::Left, EKeys::Up});
	EXPECT_EQ(1, User.CountMenus());
	EXPECT_EQ("First", GetFocused());
}
