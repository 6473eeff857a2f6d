// Copyright The Tintmill authors. All rights reserved.

#include "Misc/OutputDeviceHelper.h"

#include "Support/Text.h"
#include "gtest/gtest.h"

#include <regex>

namespace
{
std::string Print(ELogVerbosity::Type Verbosity, ELogTimes::Type Times = ELogTimes::None, double Time = -1.0)
{
	return ToStd(FOutputDeviceHelper::FormatLogLine(Verbosity, FName(TEXT("LogTemp")), TEXT("text"), Times, Time));
}
}

TEST(OutputDeviceHelper, WarningIsPrintedWithItsWord)
{
	EXPECT_EQ("LogTemp: Warning: text", Print(ELogVerbosity::Warning));
}

TEST(OutputDeviceHelper, VerbosityLogHasNoWord)
{
	EXPECT_EQ("LogTemp: text", Print(ELogVerbosity::Log));
}

TEST(OutputDeviceHelper, DisplayIsPrintedWithItsWord)
{
	EXPECT_EQ("LogTemp: Display: text", Print(ELogVerbosity::Display));
}

TEST(OutputDeviceHelper, LineWithoutCategoryStartsWithItsText)
{
	EXPECT_EQ("text", ToStd(FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Log, NAME_None, TEXT("text"))));
}

TEST(OutputDeviceHelper, UniversalTimeStampHasDateTimeAndFrame)
{
	const std::regex Form("\\[\\d{4}\\.\\d{2}\\.\\d{2}-\\d{2}\\.\\d{2}\\.\\d{2}:\\d{3}\\]\\[[ \\d]{3}\\]LogTemp: Error: text");
	EXPECT_TRUE(std::regex_match(Print(ELogVerbosity::Error, ELogTimes::UTC), Form)) << Print(ELogVerbosity::Error, ELogTimes::UTC);
}

TEST(OutputDeviceHelper, TimeSinceStartIsPrintedInSeconds)
{
	EXPECT_EQ("[0012.50][  0]LogTemp: text", Print(ELogVerbosity::Log, ELogTimes::SinceGStartTime, 12.5));
}

TEST(OutputDeviceHelper, VerbosityWordsCanBeReadBack)
{
	for (uint8 Value = ELogVerbosity::NoLogging; Value < ELogVerbosity::NumVerbosity; ++Value)
	{
		const TCHAR* const Word = FOutputDeviceHelper::VerbosityToString(ELogVerbosity::Type(Value));
		EXPECT_EQ(Value, ParseLogVerbosityFromString(Word)) << ToStd(Word);
	}
}
