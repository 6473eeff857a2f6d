// Copyright The Tintmill authors. All rights reserved.

#include "Misc/App.h"

#include "Support/Text.h"
#include "gtest/gtest.h"

TEST(App, ProjectNameIsCutAtSixtyThreeCharacters)
{
	const std::string Long(100, 'n');
	FApp::SetProjectName(UTF8_TO_TCHAR(Long.c_str()));
	EXPECT_EQ(std::string(63, 'n'), ToStd(FApp::GetProjectName()));
	FApp::SetProjectName(TEXT(""));
	EXPECT_FALSE(FApp::HasProjectName());
}

TEST(App, ClockShowsWhatItWasSetTo)
{
	const double Before = FApp::GetDeltaTime();
	FApp::SetDeltaTime(0.25);
	FApp::SetCurrentTime(12.0);
	EXPECT_EQ(0.25, FApp::GetDeltaTime());
	EXPECT_EQ(12.0, FApp::GetCurrentTime());
	FApp::SetDeltaTime(Before);
	FApp::SetCurrentTime(0.0);
}
