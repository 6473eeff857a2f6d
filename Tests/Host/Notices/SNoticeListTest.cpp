// Copyright The Tintmill authors. All rights reserved.

#include "Host/Notices/SNoticeList.h"

#include "Host/Notices/SNoticeBox.h"
#include "Host/Ui/Sight.h"

#include "Slate/SlateFixture.h"
#include "StandIn/Notices.h"
#include "Widgets/SOverlay.h"

#include <algorithm>

using namespace TintmillHost;

namespace
{
/** The list over a button-like box that notes what reaches it. */
class SNoticeListTest : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		StandIn::ClearNotices();
		// clang-format off
		Show(SNew(SOverlay)
			+ SOverlay::Slot()
			[
				SNew(STestBox).Log(&Notes).Handles(true)
			]
			+ SOverlay::Slot()
			[
				SAssignNew(Subject, SNoticeList)
			]);
		// clang-format on
	}

	void TearDown() override
	{
		Subject.Reset();
		StandIn::ClearNotices();
		FSlateFixture::TearDown();
	}

	static void Add(const std::string& Key, const std::string& Text, StandIn::ENoticeKind Kind = StandIn::ENoticeKind::Warning)
	{
		StandIn::AddNotice(FString(UTF8_TO_TCHAR(Key.c_str())), FString(UTF8_TO_TCHAR(Text.c_str())), Kind);
	}

	/** Adds notices "Text 1." and so on. */
	static void AddMany(int Count)
	{
		for (int Index = 1; Index <= Count; ++Index)
		{
			Add("Key" + std::to_string(Index), "Text " + std::to_string(Index) + ".");
		}
	}

	bool IsSeen(const std::string& Label) const { return FindSeen(LookAround(), Label) != nullptr; }

	void ClickLabel(const std::string& Label) const
	{
		const std::vector<FSeen> Things = LookAround();
		const FSeen* const Thing = FindSeen(Things, Label);
		ASSERT_NE(Thing, nullptr) << NameLabels(Things);
		StandIn::ClickAt(Thing->Center);
		StandIn::AdvanceTime(0.1f);
	}

	TSharedPtr<SNoticeList> Subject;
};

TEST_F(SNoticeListTest, ANoticeAppears)
{
	Add("Key", "It broke.");
	StandIn::AdvanceTime(0.5f);
	EXPECT_TRUE(IsSeen("It broke."));
}

TEST_F(SNoticeListTest, AWarningFades)
{
	Add("Key", "It broke.");
	StandIn::AdvanceTime(20.0f);
	EXPECT_FALSE(IsSeen("It broke."));
}

TEST_F(SNoticeListTest, AnErrorStays)
{
	Add("Key", "It is lost.", StandIn::ENoticeKind::Error);
	StandIn::AdvanceTime(20.0f);
	EXPECT_TRUE(IsSeen("It is lost."));
}

TEST_F(SNoticeListTest, AWarningUnderTheMouseStays)
{
	Add("Key", "It broke.");
	StandIn::AdvanceTime(0.5f);
	StandIn::MoveMouse(FindSeen(LookAround(), "It broke.")->Center);
	StandIn::AdvanceTime(20.0f);
	EXPECT_TRUE(IsSeen("It broke."));
}

TEST_F(SNoticeListTest, ItsButtonClosesIt)
{
	Add("Key", "It is lost.", StandIn::ENoticeKind::Error);
	StandIn::AdvanceTime(0.5f);
	ClickLabel("Close Notice");
	EXPECT_FALSE(IsSeen("It is lost."));
}

TEST_F(SNoticeListTest, WhatWasClosedStillStands)
{
	Add("Key", "It is lost.", StandIn::ENoticeKind::Error);
	StandIn::AdvanceTime(0.5f);
	ClickLabel("Close Notice");
	EXPECT_EQ(StandIn::GetNotices().Num(), 1);
}

TEST_F(SNoticeListTest, WhatWasClosedIsShownAgainWhenAskedFor)
{
	Add("Key", "It is lost.", StandIn::ENoticeKind::Error);
	StandIn::AdvanceTime(0.5f);
	ClickLabel("Close Notice");
	Subject->ShowAgain();
	StandIn::AdvanceTime(0.5f);
	EXPECT_TRUE(IsSeen("It is lost."));
}

TEST_F(SNoticeListTest, WhatWasPutRightGoes)
{
	Add("Key", "It is lost.", StandIn::ENoticeKind::Error);
	StandIn::AdvanceTime(0.5f);
	StandIn::ClearNotice(TEXT("Key"));
	StandIn::AdvanceTime(0.1f);
	EXPECT_FALSE(IsSeen("It is lost."));
}

TEST_F(SNoticeListTest, WhatHappensAgainAppearsAgain)
{
	Add("Key", "It broke.");
	StandIn::AdvanceTime(20.0f);
	StandIn::ClearNotice(TEXT("Key"));
	Add("Key", "It broke.");
	StandIn::AdvanceTime(0.5f);
	EXPECT_TRUE(IsSeen("It broke."));
}

TEST_F(SNoticeListTest, ANewTextOfASubjectTakesTheOldOnesPlace)
{
	Add("Key", "It broke.");
	StandIn::AdvanceTime(0.5f);
	StandIn::ClearNotice(TEXT("Key"));
	Add("Key", "It broke in two.");
	StandIn::AdvanceTime(0.5f);
	EXPECT_TRUE(IsSeen("It broke in two.") && !IsSeen("It broke."));
}

TEST_F(SNoticeListTest, NoticesFromBeforeItOpenedAppear)
{
	Add("Key", "It broke.");
	const TSharedRef<SNoticeList> Later = SNew(SNoticeList);
	Window->SetContent(Later);
	StandIn::AdvanceTime(0.5f);
	EXPECT_TRUE(IsSeen("It broke."));
}

TEST_F(SNoticeListTest, OnlyThreeAreShownAtOnce)
{
	AddMany(5);
	StandIn::AdvanceTime(0.5f);
	EXPECT_TRUE(IsSeen("Text 5.") && IsSeen("Text 3.") && !IsSeen("Text 2."));
}

TEST_F(SNoticeListTest, TheRestIsCounted)
{
	AddMany(5);
	StandIn::AdvanceTime(0.5f);
	EXPECT_TRUE(IsSeen("and 2 more"));
}

TEST_F(SNoticeListTest, ThreeLeaveNoRest)
{
	AddMany(3);
	StandIn::AdvanceTime(0.5f);
	EXPECT_FALSE(IsSeen("Close All"));
}

TEST_F(SNoticeListTest, WhatWaitedComesWhenThereIsAPlace)
{
	AddMany(4);
	StandIn::AdvanceTime(16.0f);
	EXPECT_TRUE(IsSeen("Text 1."));
}

TEST_F(SNoticeListTest, AllCanBeClosed)
{
	AddMany(5);
	StandIn::AdvanceTime(0.5f);
	ClickLabel("Close All");
	EXPECT_EQ(Subject->Num(), 0);
}

TEST_F(SNoticeListTest, TheNewestIsAtTheBottom)
{
	AddMany(2);
	StandIn::AdvanceTime(0.5f);
	const std::vector<FSeen> Things = LookAround();
	EXPECT_GT(FindSeen(Things, "Text 2.")->Center.Y, FindSeen(Things, "Text 1.")->Center.Y);
}

TEST_F(SNoticeListTest, InputBesideItReachesWhatLiesBelow)
{
	Add("Key", "It broke.");
	StandIn::AdvanceTime(0.5f);
	TakeNotes();
	StandIn::ClickAt(FVector2D(20.0f, 20.0f));
	const FNotes Reached = TakeNotes();
	EXPECT_NE(std::find(Reached.begin(), Reached.end(), "down"), Reached.end());
}

TEST_F(SNoticeListTest, ItStaysWithinANarrowWindow)
{
	Window->Resize(FVector2D(200.0f, 100.0f));
	Add("Key", "A long sentence that says what broke, where that was, why it did, and what one can do about it now.");
	StandIn::AdvanceTime(0.5f);
	const TSharedPtr<SWidget> Box = StandIn::FindWidgetOfType(Subject.ToSharedRef(), "SNoticeBox");
	ASSERT_TRUE(Box.IsValid());
	EXPECT_GE(Box->GetCachedGeometry().GetAbsolutePosition().X, 0.0f);
}

TEST_F(SNoticeListTest, NothingOfItIsLeftWithTheNoticesWhenItGoes)
{
	Subject.Reset();
	Window->SetContent(SNullWidget::NullWidget);
	EXPECT_FALSE(StandIn::OnNotice().IsBound());
}
}
