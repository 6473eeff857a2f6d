// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/SOutputLog.h"

#include "Tests/Host/OutputLog/OutputLogFixture.h"

#include "Editor.h"

#include <chrono>

using namespace TintmillHost;

namespace
{
using SOutputLogTest = FOutputLogFixture;

/** The tint of the element that paints a text, as red, green, blue. */
std::vector<float> TintOf(SWindow& Window, const std::string& Text)
{
	for (const FSlateDrawElement& Element : Window.GetElementList().GetElements())
	{
		if (Element.GetElementType() == EElementType::ET_Text && ToUtf8(Element.GetText()) == Text)
		{
			return {Element.GetTint().R, Element.GetTint().G, Element.GetTint().B};
		}
	}
	return {};
}

int CountTexts(SWindow& Window)
{
	int Count = 0;
	for (const FSlateDrawElement& Element : Window.GetElementList().GetElements())
	{
		Count += Element.GetElementType() == EElementType::ET_Text ? 1 : 0;
	}
	return Count;
}

TEST_F(SOutputLogTest, LinesFromBeforeItOpenedAreThere)
{
	Write("early");
	Open();
	EXPECT_EQ(SeenLines(), FNotes{"LogMill: early"});
}

TEST_F(SOutputLogTest, NewLinesAppearWithTheNextFrame)
{
	Open();
	Write("late");
	Wait();
	EXPECT_EQ(SeenLines(), FNotes{"LogMill: late"});
}

TEST_F(SOutputLogTest, AnErrorIsRed)
{
	Write("broken", ELogVerbosity::Error);
	Open();
	const std::vector<float> Tint = TintOf(*Window, " Error: broken");
	ASSERT_EQ(Tint.size(), 3u);
	EXPECT_TRUE(Tint[0] > 0.9f && Tint[1] < 0.1f && Tint[2] < 0.1f);
}

TEST_F(SOutputLogTest, AWarningIsYellow)
{
	Write("odd", ELogVerbosity::Warning);
	Open();
	const std::vector<float> Tint = TintOf(*Window, " Warning: odd");
	ASSERT_EQ(Tint.size(), 3u);
	EXPECT_TRUE(Tint[0] > 0.8f && Tint[1] > 0.6f && Tint[2] < 0.1f);
}

TEST_F(SOutputLogTest, AVerboseLineIsDimmerThanAnOrdinaryOne)
{
	Write("loud");
	Write("quiet", ELogVerbosity::Verbose);
	Open();
	EXPECT_LT(TintOf(*Window, " Verbose: quiet").at(0), TintOf(*Window, " loud").at(0));
}

TEST_F(SOutputLogTest, ACategoryHasAColorOfItsOwn)
{
	Write("text");
	Open();
	EXPECT_NE(TintOf(*Window, "LogMill:"), TintOf(*Window, " text"));
}

TEST_F(SOutputLogTest, TheCategoryOfAnErrorIsRedToo)
{
	Write("broken", ELogVerbosity::Error);
	Open();
	EXPECT_EQ(TintOf(*Window, "LogMill:"), TintOf(*Window, " Error: broken"));
}

TEST_F(SOutputLogTest, ItFollowsTheEnd)
{
	Open();
	WriteLines(500);
	Wait();
	EXPECT_EQ(SeenLines().back(), "LogMill: 499");
}

TEST_F(SOutputLogTest, ScrolledUpItStaysWhereItIs)
{
	WriteLines(500);
	Open();
	StandIn::MoveMouse(PlaceOf(2, 0));
	StandIn::TurnWheel(5.0f);
	Wait();
	const FNotes Before = SeenLines();
	WriteLines(50);
	Wait();
	EXPECT_EQ(SeenLines(), Before);
}

TEST_F(SOutputLogTest, ScrolledBackToTheEndItFollowsAgain)
{
	WriteLines(500);
	Open();
	StandIn::MoveMouse(PlaceOf(2, 0));
	StandIn::TurnWheel(5.0f);
	StandIn::TurnWheel(-5.0f);
	Wait();
	Write("the end");
	Wait();
	EXPECT_EQ(SeenLines().back(), "LogMill: the end");
}

TEST_F(SOutputLogTest, HomeGoesToTheFirstLine)
{
	WriteLines(500);
	Open();
	StandIn::ClickAt(PlaceOf(2, 0));
	StandIn::PressKey(EKeys::Home);
	Wait();
	EXPECT_EQ(SeenLines().front(), "LogMill: 0");
}

TEST_F(SOutputLogTest, EndGoesToTheLastLine)
{
	WriteLines(500);
	Open();
	StandIn::ClickAt(PlaceOf(2, 0));
	StandIn::PressKey(EKeys::Home);
	StandIn::PressKey(EKeys::End);
	Wait();
	EXPECT_EQ(SeenLines().back(), "LogMill: 499");
}

TEST_F(SOutputLogTest, OnlyTheLinesInSightArePainted)
{
	WriteLines(100000);
	Open();
	EXPECT_LT(CountTexts(*Window), 60);
}

TEST_F(SOutputLogTest, AFrameOfAHundredThousandLinesTakesNoLongerThanOneOfAHundred)
{
	// Far apart, so that a busy machine does not matter: what looks at every line takes a thousand times as long.
	const auto Measure = [] {
		const auto Start = std::chrono::steady_clock::now();
		for (int Frame = 0; Frame < 10; ++Frame)
		{
			StandIn::AdvanceTime(0.0f);
		}
		return std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
	};
	WriteLines(100);
	Open();
	const double Few = Measure();
	WriteLines(100000);
	Wait();
	EXPECT_LT(Measure(), 20.0 * Few);
}

TEST_F(SOutputLogTest, ASearchLeavesTheLinesThatContainIt)
{
	Write("apple");
	Write("pear");
	Open();
	ClickLabel("Search Log");
	StandIn::TypeText(TEXT("PEA"));
	Wait();
	EXPECT_EQ(SeenLines(), FNotes{"LogMill: pear"});
}

TEST_F(SOutputLogTest, AnEmptiedSearchShowsEverythingAgain)
{
	Write("apple");
	Write("pear");
	Open();
	ClickLabel("Search Log");
	StandIn::TypeText(TEXT("x"));
	StandIn::PressKey(EKeys::BackSpace);
	Wait();
	EXPECT_EQ(SeenLines(), (FNotes{"LogMill: apple", "LogMill: pear"}));
}

TEST_F(SOutputLogTest, NewLinesAreSearchedToo)
{
	Open();
	ClickLabel("Search Log");
	StandIn::TypeText(TEXT("pear"));
	Write("apple");
	Write("pear");
	Wait();
	EXPECT_EQ(SeenLines(), FNotes{"LogMill: pear"});
}

TEST_F(SOutputLogTest, ASearchSaysHowManyLinesItLeaves)
{
	Write("apple");
	Write("pear");
	Open();
	ClickLabel("Search Log");
	StandIn::TypeText(TEXT("pear"));
	Wait();
	EXPECT_NE(FindSeen(LookAround(), "1 of 2 lines"), nullptr);
}

TEST_F(SOutputLogTest, TheFilterMenuTakesWarningsAway)
{
	Write("odd", ELogVerbosity::Warning);
	Write("usual");
	Open();
	ClickLabel("Filters");
	ClickLabel("Warnings");
	EXPECT_EQ(SeenLines(), FNotes{"LogMill: usual"});
}

TEST_F(SOutputLogTest, TheFilterMenuTakesMessagesAway)
{
	Write("broken", ELogVerbosity::Error);
	Write("usual");
	Open();
	ClickLabel("Filters");
	ClickLabel("Messages");
	EXPECT_EQ(SeenLines(), FNotes{"LogMill: Error: broken"});
}

TEST_F(SOutputLogTest, TheFilterMenuShowsWhatIsOn)
{
	Open();
	ClickLabel("Filters");
	ClickLabel("Errors");
	ClickLabel("Filters");
	EXPECT_FALSE(FindSeen(LookAround(), "Errors")->bChecked);
}

TEST_F(SOutputLogTest, ACategoryCanBeHidden)
{
	Write("one", ELogVerbosity::Log, TEXT("LogWheel"));
	Write("two");
	Open();
	ClickLabel("Filters");
	HoverLabel("Categories");
	ClickLabel("LogWheel");
	EXPECT_EQ(SeenLines(), FNotes{"LogMill: two"});
}

TEST_F(SOutputLogTest, ShowAllBringsCategoriesBack)
{
	Write("one", ELogVerbosity::Log, TEXT("LogWheel"));
	Open();
	ClickLabel("Filters");
	HoverLabel("Categories");
	ClickLabel("LogWheel");
	ClickLabel("Filters");
	HoverLabel("Categories");
	ClickLabel("Show All");
	EXPECT_EQ(SeenLines(), FNotes{"LogWheel: one"});
}

TEST_F(SOutputLogTest, TimesAreOffAtFirstAndComeWithTheViewOptions)
{
	Write("text");
	Open();
	ClickLabel("View Options");
	ClickLabel("Show Timestamps");
	EXPECT_EQ(SeenLines().at(0).front(), '[');
}

TEST_F(SOutputLogTest, TheContextMenuClearsTheLog)
{
	Write("old");
	Open();
	StandIn::ClickAt(PlaceOf(0, 0), EKeys::RightMouseButton);
	Wait();
	ClickLabel("Clear Log");
	EXPECT_EQ(SeenLines(), FNotes{});
}

TEST_F(SOutputLogTest, AfterAClearingNewLinesAppear)
{
	Write("old");
	Open();
	StandIn::ClickAt(PlaceOf(0, 0), EKeys::RightMouseButton);
	Wait();
	ClickLabel("Clear Log");
	Write("new");
	Wait();
	EXPECT_EQ(SeenLines(), FNotes{"LogMill: new"});
}

TEST_F(SOutputLogTest, AFilterBringsNothingBackThatWasCleared)
{
	Write("old");
	Open();
	StandIn::ClickAt(PlaceOf(0, 0), EKeys::RightMouseButton);
	Wait();
	ClickLabel("Clear Log");
	ClickLabel("Filters");
	ClickLabel("Warnings");
	EXPECT_EQ(SeenLines(), FNotes{});
}

TEST_F(SOutputLogTest, PlayClearsItWhenThatWasAskedFor)
{
	Write("old");
	Open();
	ClickLabel("View Options");
	ClickLabel("Clear on PIE");
	FEditorDelegates::PreBeginPIE.Broadcast(false);
	Wait();
	EXPECT_EQ(SeenLines(), FNotes{});
}

TEST_F(SOutputLogTest, PlayLeavesItAloneOtherwise)
{
	Write("old");
	Open();
	FEditorDelegates::PreBeginPIE.Broadcast(false);
	Wait();
	EXPECT_EQ(SeenLines(), FNotes{"LogMill: old"});
}

TEST_F(SOutputLogTest, NothingOfItIsLeftWithPlayWhenItGoes)
{
	Write("old");
	Open();
	Panel.Reset();
	Window->SetContent(SNullWidget::NullWidget);
	EXPECT_FALSE(FEditorDelegates::PreBeginPIE.IsBound());
}

TEST_F(SOutputLogTest, ItsLinesAreSeenByTheirText)
{
	Write("text");
	Open();
	EXPECT_NE(FindSeen(LookAround(), "LogMill: text"), nullptr);
}
}
