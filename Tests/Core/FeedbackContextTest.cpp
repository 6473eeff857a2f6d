// Copyright The Tintmill authors. All rights reserved.

#include "Misc/FeedbackContext.h"

#include "Support/LogCapture.h"
#include "gtest/gtest.h"

DEFINE_LOG_CATEGORY_STATIC(LogFeedbackTest, Log, All);

TEST(FeedbackContext, WarningsBecomeErrorsWhenAsked)
{
	const FLogCapture Capture;
	GWarn->TreatWarningsAsErrors = true;
	UE_LOG(LogFeedbackTest, Warning, TEXT("strict"));
	GWarn->TreatWarningsAsErrors = false;
	UE_LOG(LogFeedbackTest, Warning, TEXT("lenient"));
	ASSERT_EQ(2u, Capture.Lines.size());
	EXPECT_EQ(ELogVerbosity::Error, Capture.Lines[0].Verbosity);
	EXPECT_EQ(ELogVerbosity::Warning, Capture.Lines[1].Verbosity);
}

TEST(FeedbackContext, FormattedLinesReachTheLog)
{
	const FLogCapture Capture;
	GWarn->Logf(ELogVerbosity::Display, TEXT("%d of %d"), 1, 2);
	GWarn->CategorizedLogf(FName(TEXT("LogFeedbackTest")), ELogVerbosity::Error, TEXT("%s"), TEXT("spilt"));
	ASSERT_EQ(2u, Capture.Lines.size());
	EXPECT_EQ("1 of 2", Capture.Lines[0].Text);
	EXPECT_EQ("None", Capture.Lines[0].Category);
	EXPECT_EQ("spilt", Capture.Lines[1].Text);
}
