// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/TourRun.h"

#include "Host/Console/Console.h"
#include "Host/Program/HostLog.h"
#include "Host/TourRun/TourTimes.h"

#include <gtest/gtest.h>

#include <chrono>
#include <sstream>
#include <thread>

using namespace TintmillHost;

namespace
{
/** A run with a console of a few commands. */
class TourRun : public testing::Test
{
protected:
	TourRun()
	{
		Console.Add("say WORD...", "repeat words", [](const FArguments& Words, std::ostream& Printed) {
			for (const std::string& Word : Words)
			{
				Printed << Word << '\n';
			}
		});
		Console.Add("fail", "fail", [](const FArguments&, std::ostream&) { throw FCommandError("It did not work."); });
		Console.Add("break", "fail as no command should", [](const FArguments&, std::ostream&) { throw std::runtime_error("Broken."); });
		Console.Add("log TEXT", "log a warning",
			[this](const FArguments&, std::ostream&) { Log.Serialize(TEXT("careful"), ELogVerbosity::Warning, FName(TEXT("LogTest"))); });
		Console.Add("restart", "restart", [this](const FArguments&, std::ostream&) { Run.AskForRestart(); });
		Console.Add("dally", "take more than half a second", [](const FArguments&, std::ostream&) {
			const auto End = std::chrono::steady_clock::now() + std::chrono::milliseconds(510);
			while (std::chrono::steady_clock::now() < End)
			{
				std::this_thread::yield();
			}
		});
	}

	bool Play(const std::string& Text, const std::string& Name = "Host/Tours/my.tour")
	{
		return Run.Play(Name.empty() ? MakeTourOfCommands(Text) : MakeTour(Name, Text), Output, Errors);
	}

	std::vector<std::string> LogTexts(const std::string& Kind) const
	{
		std::vector<std::string> Texts;
		for (const FGalleryLogLine& Line : Run.MakeLog())
		{
			if (Line.Kind == Kind)
			{
				Texts.push_back(Line.Text);
			}
		}
		return Texts;
	}

	FConsole Console;
	FGalleryPage Page;
	FHostLog Log;
	FTourRun Run{Console, Page, Log};
	std::ostringstream Output;
	std::ostringstream Errors;
};

using FTexts = std::vector<std::string>;

TEST_F(TourRun, RunsItsCommandsInTheirOrder)
{
	EXPECT_TRUE(Play("say one\nsay two\nsay three"));
	EXPECT_EQ(Output.str(), "one\ntwo\nthree\n");
}

TEST_F(TourRun, AShortTourIsSilentAboutItsProgress)
{
	Play("say one\nsay two");
	EXPECT_EQ(Errors.str(), "");
}

TEST_F(TourRun, AfterHalfASecondEachCommandIsReportedAsItBegins)
{
	Play("dally\nsay two\nsay three");
	EXPECT_EQ(Errors.str(), "[2/3] say two\n[3/3] say three\n");
}

TEST_F(TourRun, CommandsOfNoFileAreNotReported)
{
	Play("dally; say two", "");
	EXPECT_EQ(Errors.str(), "");
}

TEST_F(TourRun, AProblemIsToldWithFileAndLine)
{
	EXPECT_FALSE(Play("say one\n\nfail\nsay two"));
	EXPECT_EQ(Errors.str(), "Host/Tours/my.tour:3: It did not work.\n");
}

TEST_F(TourRun, AProblemOfCommandsOfNoFileIsToldAlone)
{
	EXPECT_FALSE(Play("fail", ""));
	EXPECT_EQ(Errors.str(), "It did not work.\n");
}

TEST_F(TourRun, ATypoIsToldWithTheNearestCommand)
{
	Play("sya hello");
	EXPECT_EQ(Errors.str().find("Host/Tours/my.tour:1: There is no command 'sya'; did you mean say? There are "), 0u) << Errors.str();
}

TEST_F(TourRun, AProblemThatNobodyExpectedEndsTheTourAsWell)
{
	EXPECT_FALSE(Play("break\nsay one"));
	EXPECT_EQ(Errors.str(), "Host/Tours/my.tour:1: Broken.\n");
	EXPECT_EQ(Output.str(), "");
}

TEST_F(TourRun, TheCommandThatFailedIsTheLastOneOnThePage)
{
	Play("say one\nfail\nsay two");
	ASSERT_EQ(Page.GetSteps().size(), 1u);
	const std::vector<FGalleryCommand> Commands = Page.GetSteps()[0].Commands;
	ASSERT_EQ(Commands.size(), 2u);
	EXPECT_EQ(Commands[1].Text, "fail");
	EXPECT_EQ(Commands[1].Problem, "It did not work.");
	EXPECT_EQ(Commands[1].Place, "Host/Tours/my.tour:2");
}

TEST_F(TourRun, TheTimeOfEveryCommandIsRecorded)
{
	Play("dally\nsay two");
	ASSERT_EQ(Run.GetCommands().size(), 2u);
	EXPECT_GE(Run.GetCommands()[0].Seconds, 0.5);
	EXPECT_LT(Run.GetCommands()[1].Seconds, 0.4);
}

TEST_F(TourRun, TheTimesAreATableWithTheSlowestCommand)
{
	std::ostringstream Table;
	PrintTourTimes(Table, {{"a.tour:1", "say one", 0.25, ""}, {"a.tour:12", "say two", 1.5, ""}});
	EXPECT_EQ(Table.str(),
		"    250 ms  a.tour:1   say one\n    1.50 s  a.tour:12  say two\n    1.75 s  in all, 2 commands; the slowest: say two\n");
}

TEST_F(TourRun, TheLogHasCommandsTheirOutputAndWhatWasLoggedInBetween)
{
	Log.Serialize(TEXT("starting"), ELogVerbosity::Display, FName(TEXT("LogTest")));
	Play("say one\nlog now\nfail");
	const std::vector<FGalleryLogLine> Lines = Run.MakeLog();
	FTexts Kinds;
	for (const FGalleryLogLine& Line : Lines)
	{
		Kinds.push_back(Line.Kind + " " + Line.Text);
	}
	EXPECT_EQ(Kinds,
		(FTexts{"display LogTest: Display: starting", "command say one", "output one", "command log now",
			"warning LogTest: Warning: careful", "command fail", "error Host/Tours/my.tour:3: It did not work."}));
}

TEST_F(TourRun, EndsBeforeTheNextCommandWhenTheProgramIsToEnd)
{
	FTourListener Listener;
	int Commands = 0;
	Listener.OnDone = [&Commands](const FGalleryCommand&) { ++Commands; };
	Listener.ShouldEnd = [&Commands] { return Commands == 1; };
	Run.SetListener(Listener);
	EXPECT_TRUE(Play("say one\nsay two"));
	EXPECT_EQ(Output.str(), "one\n");
}

TEST_F(TourRun, AListenerHearsOfAProblem)
{
	FTourListener Listener;
	std::string Heard;
	Listener.OnProblem = [&Heard](const FGalleryCommand& Command) { Heard = Command.Place + " " + Command.Problem; };
	Run.SetListener(Listener);
	Play("fail");
	EXPECT_EQ(Heard, "Host/Tours/my.tour:1 It did not work.");
}

TEST_F(TourRun, AnotherRunGoesOnAfterARestart)
{
	const std::string Text = "chapter\nsay one\nrestart\nsay two";
	Console.Add("chapter", "chapter", [this](const FArguments&, std::ostream&) { Page.BeginChapter("Heading"); });
	EXPECT_TRUE(Play(Text));
	EXPECT_TRUE(Run.WantsRestart());
	EXPECT_EQ(Output.str(), "one\n");
	std::stringstream State;
	Run.HandOver(State);

	FGalleryPage OtherPage;
	FHostLog OtherLog;
	FTourRun Other(Console, OtherPage, OtherLog);
	ASSERT_TRUE(Other.TakeOver(State));
	Output.str("");
	EXPECT_TRUE(Other.Play(MakeTour("Host/Tours/my.tour", Text), Output, Errors));
	EXPECT_FALSE(Other.WantsRestart());
	EXPECT_EQ(Output.str(), "two\n");
	EXPECT_EQ(Other.GetCommands().size(), 4u);
	ASSERT_EQ(OtherPage.GetSteps().size(), 1u);
	EXPECT_EQ(OtherPage.GetSteps()[0].Commands.size(), 4u);
	EXPECT_EQ(Other.MakeLog().front().Text, "chapter");
}

TEST_F(TourRun, PlaysWhileItsCommandsRun)
{
	bool bPlaying = false;
	Console.Add("look", "look", [this, &bPlaying](const FArguments&, std::ostream&) { bPlaying = Run.IsPlaying(); });
	EXPECT_FALSE(Run.IsPlaying());
	Play("look");
	EXPECT_TRUE(bPlaying);
	EXPECT_FALSE(Run.IsPlaying());
}

TEST_F(TourRun, RefusesToGoOnWithAnotherFile)
{
	std::istringstream State("hello");
	EXPECT_FALSE(Run.TakeOver(State));
}
}
