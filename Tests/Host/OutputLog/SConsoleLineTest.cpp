// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/SConsoleLine.h"

#include "Tests/Host/OutputLog/OutputLogFixture.h"

using namespace TintmillHost;

namespace
{
/** A log with the commands help, hover and layout; the keyboard's input goes to its console line. */
class SConsoleLineTest : public FOutputLogFixture
{
protected:
	void SetUp() override
	{
		FOutputLogFixture::SetUp();
		Open(
			{{"help", "help", "list the commands"}, {"hover", "hover LABEL...", "rest the mouse"}, {"layout", "layout NAME", "change it"}});
		ClickLabel("Enter Console Command");
	}

	static void Enter(const std::string& Text)
	{
		StandIn::TypeText(FromUtf8(Text));
		StandIn::PressKey(EKeys::Enter);
		Wait();
	}

	/** What the console line reads. */
	std::string Read() const
	{
		const TSharedPtr<SWidget> Line = StandIn::FindWidgetOfType(Panel.ToSharedRef(), "SConsoleLine");
		return ToUtf8(StandIn::GetShownText(StandIn::FindWidgetOfType(Line.ToSharedRef(), "SEditableText").ToSharedRef()));
	}

	static bool IsSeen(const std::string& Label) { return FindSeen(LookAround(), Label) != nullptr; }
};

TEST_F(SConsoleLineTest, EnterHandsTheLineOver)
{
	Enter("layout TwoPanes");
	EXPECT_EQ(TakeNotes(), FNotes{"layout TwoPanes"});
}

TEST_F(SConsoleLineTest, EnterEmptiesTheLine)
{
	Enter("help");
	EXPECT_EQ(Read(), "");
}

TEST_F(SConsoleLineTest, AfterEnterOneCanGoOnTyping)
{
	Enter("help");
	Enter("hover");
	EXPECT_EQ(TakeNotes(), (FNotes{"help", "hover"}));
}

TEST_F(SConsoleLineTest, AnEmptyLineIsNotHandedOver)
{
	Enter("  ");
	EXPECT_EQ(TakeNotes(), FNotes{});
}

TEST_F(SConsoleLineTest, UpBringsTheLastLineBack)
{
	Enter("help");
	Enter("layout OnePane");
	StandIn::PressKey(EKeys::Up);
	EXPECT_EQ(Read(), "layout OnePane");
}

TEST_F(SConsoleLineTest, UpTwiceBringsTheOneBefore)
{
	Enter("help");
	Enter("layout OnePane");
	StandIn::PressKey(EKeys::Up);
	StandIn::PressKey(EKeys::Up);
	EXPECT_EQ(Read(), "help");
}

TEST_F(SConsoleLineTest, DownGoesBackToAnEmptyLine)
{
	Enter("help");
	StandIn::PressKey(EKeys::Up);
	StandIn::PressKey(EKeys::Down);
	EXPECT_EQ(Read(), "");
}

TEST_F(SConsoleLineTest, ALineEnteredAgainIsRememberedOnce)
{
	Enter("help");
	Enter("layout OnePane");
	Enter("help");
	StandIn::PressKey(EKeys::Up);
	StandIn::PressKey(EKeys::Up);
	EXPECT_EQ(Read(), "layout OnePane");
}

TEST_F(SConsoleLineTest, TypingListsTheCommandsThatBeginSo)
{
	StandIn::TypeText(TEXT("h"));
	Wait();
	EXPECT_TRUE(IsSeen("help") && IsSeen("hover LABEL..."));
}

TEST_F(SConsoleLineTest, TypingLeavesOtherCommandsOut)
{
	StandIn::TypeText(TEXT("h"));
	Wait();
	EXPECT_FALSE(IsSeen("layout NAME"));
}

TEST_F(SConsoleLineTest, TheListSaysWhatCommandsDo)
{
	StandIn::TypeText(TEXT("ho"));
	Wait();
	EXPECT_TRUE(IsSeen("rest the mouse"));
}

TEST_F(SConsoleLineTest, BehindTheNameTheUsageIsStillThere)
{
	StandIn::TypeText(TEXT("layout Two"));
	Wait();
	EXPECT_TRUE(IsSeen("layout NAME"));
}

TEST_F(SConsoleLineTest, WhatNoCommandBeginsWithListsNothing)
{
	StandIn::TypeText(TEXT("x"));
	Wait();
	EXPECT_FALSE(FSlateApplication::Get().AnyMenusVisible());
}

TEST_F(SConsoleLineTest, TabCompletesTheFirstCommand)
{
	StandIn::TypeText(TEXT("he"));
	Wait();
	StandIn::PressKey(EKeys::Tab);
	EXPECT_EQ(Read(), "help");
}

TEST_F(SConsoleLineTest, ACommandThatTakesWordsIsCompletedWithABlank)
{
	StandIn::TypeText(TEXT("lay"));
	Wait();
	StandIn::PressKey(EKeys::Tab);
	EXPECT_EQ(Read(), "layout ");
}

TEST_F(SConsoleLineTest, DownChoosesFromTheList)
{
	StandIn::TypeText(TEXT("h"));
	Wait();
	StandIn::PressKey(EKeys::Down);
	StandIn::PressKey(EKeys::Down);
	EXPECT_EQ(Read(), "hover");
}

TEST_F(SConsoleLineTest, EnterRunsWhatWasChosen)
{
	StandIn::TypeText(TEXT("h"));
	Wait();
	StandIn::PressKey(EKeys::Down);
	StandIn::PressKey(EKeys::Enter);
	EXPECT_EQ(TakeNotes(), FNotes{"help"});
}

TEST_F(SConsoleLineTest, EnterClosesTheList)
{
	StandIn::TypeText(TEXT("h"));
	Wait();
	StandIn::PressKey(EKeys::Enter);
	EXPECT_FALSE(FSlateApplication::Get().AnyMenusVisible());
}

TEST_F(SConsoleLineTest, EscapeClosesTheListAndKeepsTheText)
{
	StandIn::TypeText(TEXT("h"));
	Wait();
	StandIn::PressKey(EKeys::Escape);
	EXPECT_TRUE(!FSlateApplication::Get().AnyMenusVisible() && Read() == "h");
}

TEST_F(SConsoleLineTest, EscapeWithoutAListEmptiesTheLine)
{
	StandIn::TypeText(TEXT("x"));
	StandIn::PressKey(EKeys::Escape);
	EXPECT_EQ(Read(), "");
}

TEST_F(SConsoleLineTest, AClickCompletesACommand)
{
	StandIn::TypeText(TEXT("h"));
	Wait();
	ClickLabel("hover LABEL...");
	EXPECT_EQ(Read(), "hover ");
}

TEST_F(SConsoleLineTest, AfterAClickOneCanGoOnTyping)
{
	StandIn::TypeText(TEXT("h"));
	Wait();
	ClickLabel("hover LABEL...");
	Enter("Lit");
	EXPECT_EQ(TakeNotes(), FNotes{"hover Lit"});
}

TEST_F(SConsoleLineTest, TheListLiesAboveTheLine)
{
	StandIn::TypeText(TEXT("h"));
	Wait();
	const FVector2D Line = Panel->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 1.0f)) - FVector2D(0.0f, 24.0f);
	EXPECT_LT(FindSeen(LookAround(), "hover LABEL...")->Center.Y, Line.Y);
}
}
