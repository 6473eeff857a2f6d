// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/ConsoleRunner.h"

#include "Support/LogCapture.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
/** A console with commands that print, fail, and enter another line. */
class ConsoleRunner : public testing::Test
{
protected:
	ConsoleRunner()
		: Subject(Console)
		, Link(Subject.MakeLink())
	{
		Console.Add("say TEXT", "print a text", [](const FArguments& Words, std::ostream& Output) { Output << Words[0] << '\n'; });
		Console.Add("fail", "fail", [](const FArguments&, std::ostream& Output) {
			Output << "so far\n";
			throw FCommandError("It failed.");
		});
		Console.Add("nest", "run what is entered while it runs", [this](const FArguments&, std::ostream&) {
			Link.Run("say inner");
			Subject.RunEntered();
			NumLinesWithin = Log.TextsOf("Cmd").size();
		});
	}

	void Run(const std::string& Line)
	{
		Link.Run(Line);
		Subject.RunEntered();
	}

	FConsole Console;
	FConsoleRunner Subject;
	FConsoleLink Link;
	FLogCapture Log;
	size_t NumLinesWithin = 0;
};

using FTexts = std::vector<std::string>;

TEST_F(ConsoleRunner, AnEnteredLineWaitsForItsTime)
{
	Link.Run("say yes");
	EXPECT_EQ(Log.TextsOf("LogConsoleResponse"), FTexts{});
}

TEST_F(ConsoleRunner, WhatACommandPrintsIsLogged)
{
	Run("say yes");
	EXPECT_EQ(Log.TextsOf("LogConsoleResponse"), FTexts{"yes"});
}

TEST_F(ConsoleRunner, TheLineItselfIsLogged)
{
	Run("say yes");
	EXPECT_EQ(Log.TextsOf("Cmd"), FTexts{"say yes"});
}

TEST_F(ConsoleRunner, ALineRunsOnce)
{
	Run("say yes");
	Subject.RunEntered();
	EXPECT_EQ(Log.TextsOf("LogConsoleResponse"), FTexts{"yes"});
}

TEST_F(ConsoleRunner, ALineMayHoldSeveralCommands)
{
	Run("say one; say two");
	EXPECT_EQ(Log.TextsOf("LogConsoleResponse"), (FTexts{"one", "two"}));
}

TEST_F(ConsoleRunner, AComplaintIsAnError)
{
	Run("fail");
	ASSERT_EQ(Log.TextsOf("LogConsoleResponse"), (FTexts{"so far", "It failed."}));
	EXPECT_EQ(Log.Lines.back().Verbosity, ELogVerbosity::Error);
}

TEST_F(ConsoleRunner, AnUnknownCommandIsAnError)
{
	Run("sing");
	EXPECT_EQ(Log.Lines.back().Verbosity, ELogVerbosity::Error);
}

TEST_F(ConsoleRunner, AFailureEndsItsLineOnly)
{
	Link.Run("fail; say no");
	Link.Run("say yes");
	Subject.RunEntered();
	EXPECT_EQ(Log.TextsOf("LogConsoleResponse"), (FTexts{"so far", "It failed.", "yes"}));
}

TEST_F(ConsoleRunner, WhatACommandEntersDoesNotRunWithinIt)
{
	Run("nest");
	EXPECT_EQ(NumLinesWithin, 1u);
}

TEST_F(ConsoleRunner, WhatACommandEntersRunsTheNextTime)
{
	Run("nest");
	Subject.RunEntered();
	EXPECT_EQ(Log.TextsOf("LogConsoleResponse"), FTexts{"inner"});
}

TEST_F(ConsoleRunner, ItListsTheCommands)
{
	const std::vector<FConsoleHint> Hints = Link.ListCommands();
	const auto Found = std::find_if(Hints.begin(), Hints.end(), [](const FConsoleHint& Hint) { return Hint.Name == "say"; });
	ASSERT_NE(Found, Hints.end());
	EXPECT_EQ(Found->Usage, "say TEXT");
}
}
