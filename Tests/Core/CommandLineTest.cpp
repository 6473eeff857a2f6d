// Copyright The Tintmill authors. All rights reserved.

#include "Misc/CommandLine.h"

#include "Misc/App.h"
#include "Support/Text.h"
#include "gtest/gtest.h"

#include <string>

TEST(CommandLineDeathTest, AskingBeforeItIsSetIsFatal)
{
	// In a process of its own, in which nothing has set it.
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_DEATH(FCommandLine::Get(), "bIsInitialized.*\nAttempting to get the command line but it hasn't been initialized yet");
}

TEST(CommandLine, WhatIsAddedStandsBehind)
{
	EXPECT_TRUE(FCommandLine::Set(TEXT("Demo.uproject")));
	FCommandLine::Append(TEXT(" -unattended"));
	EXPECT_EQ("Demo.uproject -unattended", ToStd(FCommandLine::Get()));
	EXPECT_TRUE(FApp::IsUnattended());
	FCommandLine::Set(TEXT(""));
	EXPECT_FALSE(FApp::IsUnattended());
}

TEST(CommandLine, TooLongALineIsRefused)
{
	const std::string Long(20000, 'x');
	FCommandLine::Set(TEXT("kept"));
	EXPECT_FALSE(FCommandLine::Set(UTF8_TO_TCHAR(Long.c_str())));
	EXPECT_EQ("kept", ToStd(FCommandLine::Get()));
	FCommandLine::Set(TEXT(""));
}
