// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/SLogLines.h"

#include "Tests/Host/OutputLog/OutputLogFixture.h"

#include <algorithm>

using namespace TintmillHost;

namespace
{
using SLogLinesTest = FOutputLogFixture;

TEST_F(SLogLinesTest, ADragSelectsWithinALine)
{
	Write("apple");
	Open();
	Drag(PlaceOf(0, 9), PlaceOf(0, 14));
	EXPECT_EQ(ToUtf8(Lines().GetSelectedText()), "apple");
}

TEST_F(SLogLinesTest, ADragSelectsOverSeveralLines)
{
	Write("apple");
	Write("plum");
	Write("pear");
	Open();
	Drag(PlaceOf(0, 9), PlaceOf(2, 7));
	EXPECT_EQ(ToUtf8(Lines().GetSelectedText()), "apple\nLogMill: plum\nLogMill");
}

TEST_F(SLogLinesTest, ADragUpwardsSelectsTheSame)
{
	Write("apple");
	Write("plum");
	Open();
	Drag(PlaceOf(1, 7), PlaceOf(0, 9));
	EXPECT_EQ(ToUtf8(Lines().GetSelectedText()), "apple\nLogMill");
}

TEST_F(SLogLinesTest, APressWithShiftMovesTheEnd)
{
	Write("apple");
	Open();
	StandIn::ClickAt(PlaceOf(0, 9));
	StandIn::MoveMouse(PlaceOf(0, 11));
	FSlateApplication::Get().ProcessMouseButtonDownEvent(nullptr,
		FPointerEvent(0, PlaceOf(0, 11), PlaceOf(0, 11), TSet<FKey>(), EKeys::LeftMouseButton, 0.0f,
			FModifierKeysState(true, false, false, false, false, false, false, false, false)));
	EXPECT_EQ(ToUtf8(Lines().GetSelectedText()), "ap");
}

TEST_F(SLogLinesTest, ADoubleClickSelectsAWord)
{
	Write("an apple falls");
	Open();
	StandIn::DoubleClickAt(PlaceOf(0, 14));
	EXPECT_EQ(ToUtf8(Lines().GetSelectedText()), "apple");
}

TEST_F(SLogLinesTest, AClickEndsTheSelection)
{
	Write("apple");
	Open();
	Drag(PlaceOf(0, 9), PlaceOf(0, 14));
	StandIn::ClickAt(PlaceOf(0, 2));
	EXPECT_FALSE(Lines().HasSelection());
}

TEST_F(SLogLinesTest, ControlCCopiesTheSelection)
{
	Write("apple");
	Open();
	Drag(PlaceOf(0, 9), PlaceOf(0, 14));
	StandIn::PressKey(EKeys::C, false, true);
	EXPECT_EQ(Clipboard(), "apple");
}

TEST_F(SLogLinesTest, WithoutASelectionNothingIsCopied)
{
	Write("apple");
	Open();
	StandIn::ClickAt(PlaceOf(0, 9));
	StandIn::PressKey(EKeys::C, false, true);
	EXPECT_EQ(Clipboard(), "before");
}

TEST_F(SLogLinesTest, ControlASelectsEverything)
{
	WriteLines(1000);
	Open();
	StandIn::ClickAt(PlaceOf(0, 0));
	StandIn::PressKey(EKeys::A, false, true);
	StandIn::PressKey(EKeys::C, false, true);
	const std::string Copied = Clipboard();
	EXPECT_EQ(std::count(Copied.begin(), Copied.end(), '\n'), 999);
}

TEST_F(SLogLinesTest, TheContextMenuCopies)
{
	Write("apple");
	Open();
	Drag(PlaceOf(0, 9), PlaceOf(0, 14));
	StandIn::ClickAt(PlaceOf(0, 2), EKeys::RightMouseButton);
	Wait();
	ClickLabel("Copy");
	EXPECT_EQ(Clipboard(), "apple");
}

TEST_F(SLogLinesTest, TheContextMenuCannotCopyNothing)
{
	Write("apple");
	Open();
	StandIn::ClickAt(PlaceOf(0, 2), EKeys::RightMouseButton);
	Wait();
	EXPECT_FALSE(FindSeen(LookAround(), "Copy")->bEnabled);
}

TEST_F(SLogLinesTest, NewLinesLeaveTheSelection)
{
	Write("apple");
	Open();
	Drag(PlaceOf(0, 9), PlaceOf(0, 14));
	WriteLines(3);
	Wait();
	EXPECT_EQ(ToUtf8(Lines().GetSelectedText()), "apple");
}

TEST_F(SLogLinesTest, AFilterEndsTheSelection)
{
	Write("apple");
	Open();
	Drag(PlaceOf(0, 9), PlaceOf(0, 14));
	ClickLabel("Search Log");
	StandIn::TypeText(TEXT("a"));
	Wait();
	EXPECT_FALSE(Lines().HasSelection());
}

TEST_F(SLogLinesTest, ADragBelowTheEdgeScrollsDown)
{
	WriteLines(500);
	Open();
	StandIn::ClickAt(PlaceOf(0, 0));
	StandIn::PressKey(EKeys::Home);
	Wait();
	StandIn::MoveMouse(PlaceOf(0, 0));
	StandIn::PressMouse();
	StandIn::MoveMouse(FVector2D(100.0f, 299.0f));
	StandIn::AdvanceTime(1.0f);
	EXPECT_NE(SeenLines().front(), "LogMill: 0");
}

TEST_F(SLogLinesTest, PageDownGoesOnByLessThanWhatIsInSight)
{
	WriteLines(500);
	Open();
	StandIn::ClickAt(PlaceOf(0, 0));
	StandIn::PressKey(EKeys::Home);
	Wait();
	const std::string Last = SeenLines().back();
	StandIn::PressKey(EKeys::PageDown);
	Wait();
	const FNotes Seen = SeenLines();
	EXPECT_NE(std::find(Seen.begin(), Seen.end(), Last), Seen.end());
}
}
