// Copyright The Tintmill authors. All rights reserved.

#include "Host/StatusLine/SStatusLine.h"

#include "Host/Program/Progress.h"
#include "Host/Ui/Sight.h"

#include "Slate/SlateFixture.h"
#include "StandIn/Notices.h"
#include "Widgets/SBoxPanel.h"

using namespace TintmillHost;

namespace
{
class SStatusLineTest : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		StandIn::ClearNotices();
		SetProgressObserver([](const FProgress*) {});
		SetProgressClock([this] { return Now; });
	}

	void TearDown() override
	{
		StandIn::ClearNotices();
		SetProgressObserver(nullptr);
		SetProgressClock(nullptr);
		FSlateFixture::TearDown();
	}

	void Open()
	{
		// clang-format off
		Show(SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			[
				SNew(SStatusLine)
				.ProjectName(FText::FromString(TEXT("Mill")))
				.ReadOnly_Lambda([this] { return bReadOnly; })
				.OnNoticesClicked_Lambda([this] { Notes.push_back("clicked"); })
			]);
		// clang-format on
		StandIn::AdvanceTime(0.1f);
	}

	static bool IsSeen(const std::string& Label)
	{
		StandIn::AdvanceTime(0.1f);
		return FindSeen(LookAround(), Label) != nullptr;
	}

	bool bReadOnly = false;
	double Now = 0.0;
};

TEST_F(SStatusLineTest, ItNamesTheProject)
{
	Open();
	EXPECT_TRUE(IsSeen("Mill"));
}

TEST_F(SStatusLineTest, ItSaysWhenSettingsCannotBeSaved)
{
	Open();
	bReadOnly = true;
	EXPECT_TRUE(IsSeen("Mill (read-only)"));
}

TEST_F(SStatusLineTest, WithoutPlayItSaysEditing)
{
	Open();
	EXPECT_TRUE(IsSeen("Editing"));
}

TEST_F(SStatusLineTest, WithoutNoticesThereIsNoNumber)
{
	Open();
	EXPECT_FALSE(IsSeen("0 notices"));
}

TEST_F(SStatusLineTest, ItCountsANotice)
{
	Open();
	StandIn::AddNotice(TEXT("Key"), TEXT("It broke."));
	EXPECT_TRUE(IsSeen("1 notice"));
}

TEST_F(SStatusLineTest, ItCountsNotices)
{
	Open();
	StandIn::AddNotice(TEXT("Key"), TEXT("It broke."));
	StandIn::AddNotice(TEXT("Other"), TEXT("It broke again."));
	EXPECT_TRUE(IsSeen("2 notices"));
}

TEST_F(SStatusLineTest, AClickOnTheNumberAsksForThem)
{
	Open();
	StandIn::AddNotice(TEXT("Key"), TEXT("It broke."));
	StandIn::AdvanceTime(0.1f);
	StandIn::ClickAt(FindSeen(LookAround(), "1 notice")->Center);
	EXPECT_EQ(TakeNotes(), FNotes{"clicked"});
}

TEST_F(SStatusLineTest, TheNumberIsAtTheRight)
{
	Open();
	StandIn::AddNotice(TEXT("Key"), TEXT("It broke."));
	StandIn::AdvanceTime(0.1f);
	EXPECT_GT(FindSeen(LookAround(), "1 notice")->Center.X, 340.0f);
}

TEST_F(SStatusLineTest, LongWorkIsShown)
{
	Open();
	FProgress Progress("Scanning", 10);
	Now = 1.0;
	Progress.SetDone(4);
	EXPECT_TRUE(IsSeen("Scanning: 4 of 10"));
}

TEST_F(SStatusLineTest, WorkThatIsOverIsNotShown)
{
	Open();
	{
		FProgress Progress("Scanning", 10);
		Now = 1.0;
		Progress.SetDone(4);
	}
	EXPECT_FALSE(IsSeen("Scanning: 4 of 10"));
}
}
