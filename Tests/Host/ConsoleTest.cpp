// Copyright The Tintmill authors. All rights reserved.

#include "Host/Console/Console.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace TintmillHost;

namespace
{
/** A console with one command that repeats its words. */
class Console : public testing::Test
{
protected:
	Console()
	{
		Subject.Add("echo FIRST [SECOND]", "repeat the words", [](const FArguments& Given, std::ostream& Output) {
			for (const std::string& Word : Given)
			{
				Output << '<' << Word << '>';
			}
		});
	}

	std::string Run(const std::string& Command) const
	{
		std::ostringstream Output;
		Subject.Run(Command, Output);
		return Output.str();
	}

	std::string Complaint(const std::string& Command) const
	{
		try
		{
			Run(Command);
		}
		catch (const FCommandError& Error)
		{
			return Error.what();
		}
		return {};
	}

	FConsole Subject;
};

TEST_F(Console, HandsACommandItsWords)
{
	EXPECT_EQ(Run("echo one 'two words'"), "<one><two words>");
}

TEST_F(Console, LetsWordsInBracketsBeLeftOut)
{
	EXPECT_EQ(Run("echo one"), "<one>");
}

TEST_F(Console, RefusesTooFewWordsWithTheCommandsForm)
{
	EXPECT_EQ(Complaint("echo"), "'echo' has the wrong number of words; the command is: echo FIRST [SECOND].");
}

TEST_F(Console, RefusesTooManyWords)
{
	EXPECT_EQ(Complaint("echo 1 2 3"), "'echo 1 2 3' has the wrong number of words; the command is: echo FIRST [SECOND].");
}

TEST_F(Console, NamesTheCommandsThereAreWhenOneIsUnknown)
{
	EXPECT_EQ(Complaint("ecko"), "There is no command 'ecko'; did you mean echo? There are echo, help.");
}

TEST_F(Console, ListsItsCommandsWithTheirSummaries)
{
	EXPECT_NE(Run("help").find("repeat the words"), std::string::npos);
}
}
