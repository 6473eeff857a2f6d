// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Support/MenuUser.h"

namespace
{
/** A menu described with a builder, and a person who uses it. */
class FMenuRowTest : public ::testing::Test
{
protected:
	/** Adds an entry that counts its runs. */
	static void AddCounter(FMenuBuilder& InBuilder, const TCHAR* Label, int32& Count)
	{
		InBuilder.AddMenuEntry(FText::FromString(Label), FText::GetEmpty(), FSlateIcon(),
			FUIAction(FExecuteAction::CreateLambda([&Count]() { ++Count; }), FCanExecuteAction()));
	}

	/** Adds an entry with a submenu of one entry. */
	static void AddSub(FMenuBuilder& InBuilder, const TCHAR* Label, const TCHAR* Inner, const bool bOnClick = false)
	{
		InBuilder.AddSubMenu(FText::FromString(Label), FText::GetEmpty(),
			FNewMenuDelegate::CreateLambda([Inner](FMenuBuilder& In) { AddPlain(In, Inner); }), bOnClick);
	}

	/** Adds an entry that does nothing. */
	static void AddPlain(FMenuBuilder& InBuilder, const TCHAR* Label)
	{
		InBuilder.AddMenuEntry(FText::FromString(Label), FText::GetEmpty(), FSlateIcon(), FUIAction());
	}

	/** Pops the menu of a builder up. */
	void Open(FMenuBuilder& InBuilder) { User.Open(InBuilder.MakeWidget()); }

	FMenuUser User;
	FMenuBuilder Builder = FMenuBuilder(true, nullptr);
};
}

TEST_F(FMenuRowTest, ASubMenuOpensAfterHalfASecondIfASiblingsIsOpen)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"));
	AddSub(Builder, TEXT("Two"), TEXT("InTwo"));
	Open(Builder);
	User.Hover(TEXT("One"));
	User.Hover(TEXT("Two"));
	User.Wait(0.45f);
	const bool bTooEarly = User.FindRow(TEXT("Two")).bSubMenuOpen;
	User.Wait(0.1f);
	EXPECT_TRUE(!bTooEarly && User.FindRow(TEXT("Two")).bSubMenuOpen);
}

TEST_F(FMenuRowTest, ASiblingsSubMenuClosesWhenAnotherOneOpens)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"));
	AddSub(Builder, TEXT("Two"), TEXT("InTwo"));
	Open(Builder);
	User.Hover(TEXT("One"));
	User.Hover(TEXT("Two"));
	User.Wait(0.6f);
	EXPECT_FALSE(User.FindRow(TEXT("One")).bSubMenuOpen);
}

TEST_F(FMenuRowTest, ASubMenuStaysOpenWhenThePointerOnlyCrossesAnotherRow)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"));
	AddSub(Builder, TEXT("Two"), TEXT("InTwo"));
	Open(Builder);
	User.Hover(TEXT("One"));
	User.Hover(TEXT("Two"));
	User.Wait(0.2f);
	User.Hover(TEXT("InOne"));
	User.Wait(1.0f);
	EXPECT_TRUE(User.FindRow(TEXT("One")).bSubMenuOpen);
}

TEST_F(FMenuRowTest, AClickOpensASubMenuAtOnce)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"));
	AddSub(Builder, TEXT("Two"), TEXT("InTwo"));
	Open(Builder);
	User.Hover(TEXT("One"));
	User.Click(TEXT("Two"));
	EXPECT_TRUE(User.FindRow(TEXT("Two")).bSubMenuOpen);
}

TEST_F(FMenuRowTest, AClickOnARowWithItsSubMenuOpenDoesNotOpenItAgain)
{
	int32 Openings = 0;
	Builder.AddSubMenu(FText::FromString(TEXT("One")), FText(), FNewMenuDelegate::CreateLambda([&Openings](FMenuBuilder&) { ++Openings; }));
	Open(Builder);
	User.Click(TEXT("One"));
	EXPECT_EQ(Openings, 1);
}

TEST_F(FMenuRowTest, HoveringDoesNotOpenASubMenuThatOpensOnClick)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"), true);
	Open(Builder);
	User.Hover(TEXT("One"));
	User.Wait(1.0f);
	EXPECT_FALSE(User.FindRow(TEXT("One")).bSubMenuOpen);
}

TEST_F(FMenuRowTest, AClickOpensASubMenuThatOpensOnClick)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"), true);
	Open(Builder);
	User.Click(TEXT("One"));
	EXPECT_TRUE(User.FindRow(TEXT("One")).bSubMenuOpen);
}

TEST_F(FMenuRowTest, ASubMenuOpensToTheRightOfItsRow)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"));
	Open(Builder);
	User.Hover(TEXT("One"));
	EXPECT_GT(User.FindRow(TEXT("InOne")).Centre.X, User.FindRow(TEXT("One")).Centre.X);
}

TEST_F(FMenuRowTest, ASelectionInASubMenuClosesAllMenus)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"));
	Open(Builder);
	User.Hover(TEXT("One"));
	User.Click(TEXT("InOne"));
	EXPECT_EQ(User.CountMenus(), 0);
}

TEST_F(FMenuRowTest, ASelectionClosesItsOwnMenuOnlyIfTheBuilderSaysSo)
{
	FMenuBuilder SelfOnly(true, nullptr, nullptr, true);
	AddSub(SelfOnly, TEXT("One"), TEXT("InOne"));
	Open(SelfOnly);
	User.Hover(TEXT("One"));
	User.Click(TEXT("InOne"));
	EXPECT_EQ(User.CountMenus(), 1);
}

TEST_F(FMenuRowTest, AClickOnASubMenuRowWithAnActionRunsTheAction)
{
	int32 Runs = 0;
	Builder.AddSubMenu(FText::FromString(TEXT("One")), FText(), FNewMenuDelegate(),
		FUIAction(FExecuteAction::CreateLambda([&Runs]() { ++Runs; }), FCanExecuteAction()), NAME_None, EUserInterfaceActionType::Button);
	Open(Builder);
	User.Click(TEXT("One"));
	EXPECT_EQ(Runs, 1);
}

TEST_F(FMenuRowTest, ARowThatCannotExecuteIsDisabled)
{
	Builder.AddMenuEntry(FText::FromString(TEXT("A")), FText(), FSlateIcon(),
		FUIAction(FExecuteAction(), FCanExecuteAction::CreateLambda([]() { return false; })));
	Open(Builder);
	EXPECT_FALSE(User.FindRow(TEXT("A")).bEnabled);
}

TEST_F(FMenuRowTest, AClickOnADisabledRowKeepsTheMenuOpen)
{
	Builder.AddMenuEntry(FText::FromString(TEXT("A")), FText(), FSlateIcon(),
		FUIAction(FExecuteAction(), FCanExecuteAction::CreateLambda([]() { return false; })));
	Open(Builder);
	User.Click(TEXT("A"));
	EXPECT_EQ(User.CountMenus(), 1);
}

TEST_F(FMenuRowTest, ADisabledRowIsNotHighlighted)
{
	Builder.AddMenuEntry(FText::FromString(TEXT("A")), FText(), FSlateIcon(),
		FUIAction(FExecuteAction(), FCanExecuteAction::CreateLambda([]() { return false; })));
	Open(Builder);
	User.Hover(TEXT("A"));
	EXPECT_FALSE(User.FindRow(TEXT("A")).bHighlighted);
}

TEST_F(FMenuRowTest, AHoveredRowIsHighlighted)
{
	AddPlain(Builder, TEXT("A"));
	Open(Builder);
	User.Hover(TEXT("A"));
	EXPECT_TRUE(User.FindRow(TEXT("A")).bHighlighted);
}

TEST_F(FMenuRowTest, ARowWithItsSubMenuOpenStaysHighlighted)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"));
	Open(Builder);
	User.Hover(TEXT("One"));
	User.Hover(TEXT("InOne"));
	EXPECT_TRUE(User.FindRow(TEXT("One")).bHighlighted);
}

TEST_F(FMenuRowTest, ARowWhoseActionIsNotVisibleIsNotShown)
{
	Builder.AddMenuEntry(FText::FromString(TEXT("Hidden")), FText(), FSlateIcon(),
		FUIAction(
			FExecuteAction(), FCanExecuteAction(), FGetActionCheckState(), FIsActionButtonVisible::CreateLambda([]() { return false; })));
	AddPlain(Builder, TEXT("A"));
	Open(Builder);
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("A")));
}

TEST_F(FMenuRowTest, ALabelIsReadAnewAtEveryPaint)
{
	FText Label = FText::FromString(TEXT("Before"));
	Builder.AddMenuEntry(TAttribute<FText>::Create(TAttribute<FText>::FGetter::CreateLambda([&Label]() { return Label; })), FText(),
		FSlateIcon(), FUIAction());
	Open(Builder);
	Label = FText::FromString(TEXT("After"));
	User.Wait(0.0f);
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("After")));
}

TEST_F(FMenuRowTest, APlainButtonShowsNoCheckMark)
{
	Builder.AddMenuEntry(FText::FromString(TEXT("A")), FText(), FSlateIcon(),
		FUIAction(FExecuteAction(), FCanExecuteAction(), FIsActionChecked::CreateLambda([]() { return true; })));
	Open(Builder);
	EXPECT_FALSE(User.FindRow(TEXT("A")).bHasCheck);
}

TEST_F(FMenuRowTest, ACheckDelegateOfAPlainButtonIsIgnored)
{
	Builder.AddMenuEntry(FText::FromString(TEXT("A")), FText(), FSlateIcon(),
		FUIAction(FExecuteAction(), FCanExecuteAction(), FIsActionChecked::CreateLambda([]() { return true; })));
	Open(Builder);
	EXPECT_EQ(User.FindRow(TEXT("A")).CheckState, ECheckBoxState::Unchecked);
}

TEST_F(FMenuRowTest, ARadioButtonShowsItsMark)
{
	Builder.AddMenuEntry(FText::FromString(TEXT("A")), FText(), FSlateIcon(),
		FUIAction(FExecuteAction(), FCanExecuteAction(), FIsActionChecked::CreateLambda([]() { return true; })), NAME_None,
		EUserInterfaceActionType::RadioButton);
	Open(Builder);
	EXPECT_EQ(User.FindRow(TEXT("A")).CheckState, ECheckBoxState::Checked);
}

TEST_F(FMenuRowTest, TheToolTipOfARowIsItsText)
{
	Builder.AddMenuEntry(FText::FromString(TEXT("A")), FText::FromString(TEXT("Explains A.")), FSlateIcon(), FUIAction());
	Open(Builder);
	EXPECT_TRUE(IsText(User.FindRow(TEXT("A")).ToolTip, TEXT("Explains A.")));
}

TEST_F(FMenuRowTest, AToolTipAppearsAfterItsDelay)
{
	Builder.AddMenuEntry(FText::FromString(TEXT("A")), FText::FromString(TEXT("Explains A.")), FSlateIcon(), FUIAction());
	Open(Builder);
	User.Hover(TEXT("A"));
	User.Wait(0.2f);
	User.Wait(0.0f);
	EXPECT_TRUE(FSlateApplication::Get().GetActiveToolTip().IsValid());
}

TEST_F(FMenuRowTest, LabelsBeginInOneColumn)
{
	bool bState = false;
	Builder.AddMenuEntry(FText::FromString(TEXT("Toggle")), FText(), FSlateIcon(),
		FUIAction(FExecuteAction(), FCanExecuteAction(), FIsActionChecked::CreateLambda([&bState]() { return bState; })), NAME_None,
		EUserInterfaceActionType::ToggleButton);
	AddSub(Builder, TEXT("Sub"), TEXT("InSub"));
	Open(Builder);
	EXPECT_EQ(User.FindRow(TEXT("Toggle")).CheckCentre.X, User.FindRow(TEXT("Sub")).CheckCentre.X);
}

TEST_F(FMenuRowTest, RowsAreAsWideAsTheMenu)
{
	AddPlain(Builder, TEXT("A"));
	AddPlain(Builder, TEXT("A much longer label"));
	Open(Builder);
	const TArray<StandIn::FMenuRow> Rows = User.GetRows();
	EXPECT_EQ(Rows[0].Widget->GetCachedGeometry().GetLocalSize().X, Rows[1].Widget->GetCachedGeometry().GetLocalSize().X);
}

TEST_F(FMenuRowTest, ARowIsBetween22And24UnitsHigh)
{
	AddPlain(Builder, TEXT("A"));
	Open(Builder);
	const float Height = User.GetRows()[0].Widget->GetCachedGeometry().GetLocalSize().Y;
	EXPECT_TRUE(Height >= 22.0f && Height <= 24.0f) << Height;
}

TEST_F(FMenuRowTest, TheDownKeyHighlightsTheFirstRow)
{
	AddPlain(Builder, TEXT("A"));
	AddPlain(Builder, TEXT("B"));
	Open(Builder);
	User.Press(EKeys::Down);
	EXPECT_TRUE(User.FindRow(TEXT("A")).bHighlighted);
}

TEST_F(FMenuRowTest, TheUpKeyGoesRoundToTheLastRow)
{
	AddPlain(Builder, TEXT("A"));
	AddPlain(Builder, TEXT("B"));
	Open(Builder);
	User.Press(EKeys::Down);
	User.Press(EKeys::Up);
	EXPECT_TRUE(User.FindRow(TEXT("B")).bHighlighted);
}

TEST_F(FMenuRowTest, TheDownKeyPassesOverDisabledRows)
{
	AddPlain(Builder, TEXT("A"));
	Builder.AddMenuEntry(FText::FromString(TEXT("Off")), FText(), FSlateIcon(),
		FUIAction(FExecuteAction(), FCanExecuteAction::CreateLambda([]() { return false; })));
	AddPlain(Builder, TEXT("B"));
	Open(Builder);
	User.Press(EKeys::Down);
	User.Press(EKeys::Down);
	EXPECT_TRUE(User.FindRow(TEXT("B")).bHighlighted);
}

TEST_F(FMenuRowTest, TheEnterKeyRunsTheRow)
{
	int32 Runs = 0;
	AddCounter(Builder, TEXT("A"), Runs);
	Open(Builder);
	User.Press(EKeys::Down);
	User.Press(EKeys::Enter);
	EXPECT_EQ(Runs, 1);
}

TEST_F(FMenuRowTest, TheRightKeyOpensTheSubMenu)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"), true);
	Open(Builder);
	User.Press(EKeys::Down);
	User.Press(EKeys::Right);
	EXPECT_TRUE(User.FindRow(TEXT("One")).bSubMenuOpen);
}

TEST_F(FMenuRowTest, TheRightKeyHighlightsTheFirstRowOfTheSubMenu)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"), true);
	Open(Builder);
	User.Press(EKeys::Down);
	User.Press(EKeys::Right);
	User.Wait(0.0f);
	EXPECT_TRUE(User.FindRow(TEXT("InOne")).bHighlighted);
}

TEST_F(FMenuRowTest, TheLeftKeyClosesTheSubMenu)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"), true);
	Open(Builder);
	User.Press(EKeys::Down);
	User.Press(EKeys::Right);
	User.Wait(0.0f);
	User.Press(EKeys::Left);
	EXPECT_EQ(User.CountMenus(), 1);
}

TEST_F(FMenuRowTest, TheEscapeKeyClosesTheMenu)
{
	AddPlain(Builder, TEXT("A"));
	Open(Builder);
	User.Press(EKeys::Escape);
	EXPECT_EQ(User.CountMenus(), 0);
}

TEST_F(FMenuRowTest, AClickBesideTheMenuClosesIt)
{
	AddPlain(Builder, TEXT("A"));
	Open(Builder);
	User.ClickAt(FVector2D(1100.0f, 850.0f));
	EXPECT_EQ(User.CountMenus(), 0);
}

TEST_F(FMenuRowTest, ARightClickOnARowDoesNotRunIt)
{
	int32 Runs = 0;
	AddCounter(Builder, TEXT("A"), Runs);
	Open(Builder);
	User.Hover(TEXT("A"));
	User.PressAndRelease(EKeys::RightMouseButton);
	EXPECT_EQ(Runs, 0);
}

TEST_F(FMenuRowTest, ARowThatComesUnderARestingMouseOpensNoSubMenu)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"));
	User.MoveTo(FVector2D(60.0f, 34.0f));
	Open(Builder);
	User.Wait(1.0f);
	EXPECT_TRUE(User.FindRow(TEXT("One")).bHighlighted && !User.FindRow(TEXT("One")).bSubMenuOpen);
}

TEST_F(FMenuRowTest, ARowThatCameUnderARestingMouseOpensItsSubMenuWhenTheMouseMoves)
{
	AddSub(Builder, TEXT("One"), TEXT("InOne"));
	User.MoveTo(FVector2D(60.0f, 34.0f));
	Open(Builder);
	User.MoveTo(FVector2D(61.0f, 34.0f));
	EXPECT_TRUE(User.FindRow(TEXT("One")).bSubMenuOpen);
}
