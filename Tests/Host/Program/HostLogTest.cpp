// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostLog.h"

#include "Host/Program/Strings.h"
#include "Logging/LogMacros.h"
#include "Misc/OutputDeviceRedirector.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
std::vector<std::string> Texts(const FHostLog& Log)
{
	std::vector<std::string> Found;
	for (const FLogLine& Line : Log.GetLines())
	{
		Found.push_back(Line.Text);
	}
	return Found;
}

void Log(const TCHAR* Category, ELogVerbosity::Type Verbosity, const std::string& Text)
{
	GLog->Log(FName(Category), Verbosity, FromUtf8(Text));
}

TEST(HostLog, ALineHasItsCategoryInFront)
{
	const FHostLog Subject;
	Log(TEXT("LogMill"), ELogVerbosity::Log, "It turns.");
	EXPECT_EQ(Texts(Subject), std::vector<std::string>{"LogMill: It turns."});
}

TEST(HostLog, AWarningSaysSo)
{
	const FHostLog Subject;
	Log(TEXT("LogMill"), ELogVerbosity::Warning, "It stops.");
	EXPECT_EQ(Texts(Subject), std::vector<std::string>{"LogMill: Warning: It stops."});
}

TEST(HostLog, TheCategoryEndsBehindItsColon)
{
	const FHostLog Subject;
	Log(TEXT("LogMill"), ELogVerbosity::Log, "It turns.");
	EXPECT_EQ(Subject.GetLines()[0].CategoryLength, 8u);
}

TEST(HostLog, ATextOfSeveralLinesMakesSeveral)
{
	const FHostLog Subject;
	Log(TEXT("LogMill"), ELogVerbosity::Log, "One\nTwo");
	EXPECT_EQ(Texts(Subject), (std::vector<std::string>{"LogMill: One", "Two"}));
}

TEST(HostLog, FurtherLinesKeepTheVerbosity)
{
	const FHostLog Subject;
	Log(TEXT("LogMill"), ELogVerbosity::Error, "One\nTwo");
	EXPECT_EQ(Subject.GetLines()[1].Verbosity, ELogVerbosity::Error);
}

TEST(HostLog, AVeryLongLineGoesOnInTheNext)
{
	const FHostLog Subject;
	GLog->Log(NAME_None, ELogVerbosity::Log, FromUtf8(std::string(361, 'x')));
	EXPECT_EQ(Texts(Subject), (std::vector<std::string>{std::string(360, 'x'), "x"}));
}

TEST(HostLog, ALongLineIsBrokenBetweenWords)
{
	const FHostLog Subject;
	GLog->Log(NAME_None, ELogVerbosity::Log, FromUtf8(std::string(340, 'x') + " " + std::string(30, 'y')));
	EXPECT_EQ(Subject.GetLines()[1].Text, std::string(30, 'y'));
}

TEST(HostLog, ALongLineIsNotBrokenWithinACharacterOfTwoUnits)
{
	const FHostLog Subject;
	GLog->Log(NAME_None, ELogVerbosity::Log, FromUtf8(std::string(359, 'x') + "\xF0\x9F\x8C\x8A"));
	EXPECT_EQ(Subject.GetLines()[1].Text, "\xF0\x9F\x8C\x8A");
}

TEST(HostLog, AnEmptyTextIsALine)
{
	const FHostLog Subject;
	GLog->Log(NAME_None, ELogVerbosity::Log, FString());
	EXPECT_EQ(Texts(Subject), std::vector<std::string>{""});
}

TEST(HostLog, ThePrintedTextKeepsLongLinesWhole)
{
	const FHostLog Subject;
	GLog->Log(NAME_None, ELogVerbosity::Log, FromUtf8(std::string(361, 'x')));
	EXPECT_EQ(Subject.GetText(), std::string(361, 'x') + "\n");
}
}
