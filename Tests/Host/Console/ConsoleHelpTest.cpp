// Copyright The Tintmill authors. All rights reserved.

#include "Host/Console/Console.h"
#include "Host/TourRun/TourHelp.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace TintmillHost;

namespace
{
/** A console with two groups and a command without one. */
class ConsoleHelp : public testing::Test
{
protected:
	ConsoleHelp()
	{
		const FCommandBody Nothing = [](const FArguments&, std::ostream&) {};
		{
			const FConsole::FGroup Group(Subject, "Second group");
			Subject.Add("second WORD", "do the second thing", {"second thing"}, Nothing);
		}
		{
			const FConsole::FGroup Group(Subject, "First group");
			Subject.Add("first", "do the first thing", {"first"}, Nothing);
		}
		Subject.Add("lonely", "stand alone", Nothing);
	}

	std::string Run(const std::string& Command) const
	{
		std::ostringstream Output;
		Subject.Run(Command, Output);
		return Output.str();
	}

	std::string PrintTours() const
	{
		std::ostringstream Output;
		PrintTourHelp(Subject, Output);
		return Output.str();
	}

	FConsole Subject;
};

TEST_F(ConsoleHelp, ExplainsOneCommandWithItsExamples)
{
	EXPECT_EQ(Run("help second"), "  second WORD\n      do the second thing\n        second thing\n");
}

TEST_F(ConsoleHelp, RefusesToExplainACommandThatThereIsNot)
{
	EXPECT_THROW(Run("help third"), FCommandError);
}

TEST_F(ConsoleHelp, TheHelpOfToursHasEveryCommand)
{
	const std::string Text = PrintTours();
	for (const auto& [Name, Command] : Subject.GetCommands())
	{
		EXPECT_NE(Text.find("\n  " + Command.Usage + "\n      " + Command.Summary + "\n"), std::string::npos) << Name;
	}
}

TEST_F(ConsoleHelp, TheHelpOfToursHasGroupsInAlphabeticalOrderAndTheRestLast)
{
	const std::string Text = PrintTours();
	EXPECT_LT(Text.find("\nFirst group\n"), Text.find("\nSecond group\n"));
	EXPECT_LT(Text.find("\nSecond group\n"), Text.find("\nMore\n"));
	EXPECT_LT(Text.find("\nMore\n"), Text.find("\n  lonely\n"));
}

TEST_F(ConsoleHelp, AGroupEndsWithItsObject)
{
	EXPECT_EQ(Subject.GetCommands().at("first").Group, "First group");
	EXPECT_EQ(Subject.GetCommands().at("lonely").Group, "");
}

TEST_F(ConsoleHelp, ACommandIsCheckedWithoutBeingRun)
{
	EXPECT_NO_THROW(Subject.Check("second thing"));
	EXPECT_THROW(Subject.Check("second"), FCommandError);
	EXPECT_THROW(Subject.Check("third"), FCommandError);
}
}
