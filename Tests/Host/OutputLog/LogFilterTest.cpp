// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/LogFilter.h"

#include "Host/Program/Strings.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
FLogLine Line(const std::string& Text, ELogVerbosity::Type Verbosity = ELogVerbosity::Log, const TCHAR* Category = TEXT("LogMill"))
{
	FLogLine Made;
	Made.Text = Text;
	Made.Lowered = ToLowerCase(Text);
	Made.Verbosity = Verbosity;
	Made.Category = FName(Category);
	return Made;
}

bool Finds(const std::string& Search, const std::string& Text)
{
	FLogFilter Filter;
	Filter.Search = Search;
	return FLogTest(Filter).Passes(Line(Text));
}

TEST(LogFilter, AtFirstEverythingIsWanted)
{
	EXPECT_TRUE(FLogTest(FLogFilter()).Passes(Line("text", ELogVerbosity::VeryVerbose)));
}

TEST(LogFilter, WithoutWarningsErrorsStay)
{
	FLogFilter Filter;
	Filter.bWarnings = false;
	EXPECT_TRUE(FLogTest(Filter).Passes(Line("text", ELogVerbosity::Error)));
}

TEST(LogFilter, WithoutWarningsWarningsGo)
{
	FLogFilter Filter;
	Filter.bWarnings = false;
	EXPECT_FALSE(FLogTest(Filter).Passes(Line("text", ELogVerbosity::Warning)));
}

TEST(LogFilter, WithoutMessagesVerboseLinesGo)
{
	FLogFilter Filter;
	Filter.bMessages = false;
	EXPECT_FALSE(FLogTest(Filter).Passes(Line("text", ELogVerbosity::Verbose)));
}

TEST(LogFilter, WithoutErrorsFatalOnesGo)
{
	FLogFilter Filter;
	Filter.bErrors = false;
	EXPECT_FALSE(FLogTest(Filter).Passes(Line("text", ELogVerbosity::Fatal)));
}

TEST(LogFilter, AHiddenCategoryGoes)
{
	FLogFilter Filter;
	Filter.HiddenCategories = {"LogWheel"};
	EXPECT_FALSE(FLogTest(Filter).Passes(Line("text", ELogVerbosity::Log, TEXT("LogWheel"))));
}

TEST(LogFilter, OtherCategoriesStay)
{
	FLogFilter Filter;
	Filter.HiddenCategories = {"LogWheel"};
	EXPECT_TRUE(FLogTest(Filter).Passes(Line("text")));
}

TEST(LogFilter, ASearchFindsAPartInAnyCase)
{
	EXPECT_TRUE(Finds("tiNt", "LogMill: Tintmill"));
}

TEST(LogFilter, ASearchFindsOtherScripts)
{
	EXPECT_TRUE(Finds("\xC3\x84RGER", "\xC3\x84rger"));
}

TEST(LogFilter, AllWordsMustBeThere)
{
	EXPECT_FALSE(Finds("tint wheel", "tint and mill"));
}

TEST(LogFilter, WordsMayBeInAnyOrder)
{
	EXPECT_TRUE(Finds("mill tint", "tint and mill"));
}

TEST(LogFilter, AWordWithAMinusMustNotBeThere)
{
	EXPECT_FALSE(Finds("-mill", "tint and mill"));
}

TEST(LogFilter, APhraseStandsInQuotationMarks)
{
	EXPECT_FALSE(Finds("\"tint mill\"", "tint and mill"));
}

TEST(LogFilter, APhraseThatIsBeingTypedCounts)
{
	EXPECT_TRUE(Finds("\"tint and", "tint and mill"));
}

TEST(LogFilter, ALoneMinusSearchesNothing)
{
	EXPECT_TRUE(Finds("-", "tint"));
}
}
