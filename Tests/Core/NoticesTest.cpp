// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Notices.h"

#include "Support/LogCapture.h"
#include "gtest/gtest.h"

namespace
{
class Notices : public testing::Test
{
protected:
	virtual void SetUp() override { StandIn::ClearNotices(); }
	virtual void TearDown() override { StandIn::ClearNotices(); }
};
}

TEST_F(Notices, NoticeStandsUntilItIsCleared)
{
	StandIn::AddNotice(TEXT("Key"), TEXT("Something happened."));
	ASSERT_EQ(1, StandIn::GetNotices().Num());
	EXPECT_EQ("Something happened.", ToStd(StandIn::GetNotices()[0].Text));
	StandIn::ClearNotice(TEXT("Key"));
	EXPECT_EQ(0, StandIn::GetNotices().Num());
}

TEST_F(Notices, SecondNoticeOfAKeyIsDropped)
{
	StandIn::AddNotice(TEXT("Key"), TEXT("First."));
	StandIn::AddNotice(TEXT("Key"), TEXT("Second."));
	ASSERT_EQ(1, StandIn::GetNotices().Num());
	EXPECT_EQ("First.", ToStd(StandIn::GetNotices()[0].Text));
}

TEST_F(Notices, NoticeIsLoggedAsAWarning)
{
	const FLogCapture Capture;
	StandIn::AddNotice(TEXT("Key"), TEXT("100% sure."));
	ASSERT_EQ(1u, Capture.Lines.size());
	EXPECT_EQ("LogNotice", Capture.Lines[0].Category);
	EXPECT_EQ(ELogVerbosity::Warning, Capture.Lines[0].Verbosity);
	EXPECT_EQ("100% sure.", Capture.Lines[0].Text);
}

TEST_F(Notices, NoticeOfAnErrorIsLoggedAsOne)
{
	const FLogCapture Capture;
	StandIn::AddNotice(TEXT("Key"), TEXT("Lost."), StandIn::ENoticeKind::Error);
	ASSERT_EQ(1u, Capture.Lines.size());
	EXPECT_EQ(ELogVerbosity::Error, Capture.Lines[0].Verbosity);
}

TEST_F(Notices, EventFiresOnlyForNoticesThatWereAdded)
{
	int32 NumFired = 0;
	const FDelegateHandle Handle = StandIn::OnNotice().AddLambda([&NumFired](const StandIn::FNotice&) { ++NumFired; });
	StandIn::AddNotice(TEXT("Key"), TEXT("First."));
	StandIn::AddNotice(TEXT("Key"), TEXT("Second."));
	StandIn::OnNotice().Remove(Handle);
	EXPECT_EQ(1, NumFired);
}

TEST_F(Notices, KeysThatDifferInCaseAreDifferent)
{
	StandIn::AddNotice(TEXT("/a/File"), TEXT("One."));
	StandIn::AddNotice(TEXT("/a/file"), TEXT("Other."));
	EXPECT_EQ(2, StandIn::GetNotices().Num());
}
