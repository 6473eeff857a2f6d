// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/HostRun.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>

// Tours and the page by the real program.

namespace
{
class TourProgram : public testing::Test
{
protected:
	FHostRun::FResult PlayTour(const std::string& Text, const std::string& Options = "") const
	{
		Host.Write("my.tour", Text);
		return Host.Run("--tour '" + Host.Path("my.tour").string() + "' " + Options);
	}

	std::string ReadPage() const
	{
		std::ifstream Stream(Host.Path("out/index.html"), std::ios::binary);
		return std::string((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
	}

	static testing::AssertionResult Has(const std::string& Text, const std::string& Piece)
	{
		return Text.find(Piece) != std::string::npos ? testing::AssertionSuccess() : testing::AssertionFailure() << Text.substr(0, 20000);
	}

	std::string TourFile() const { return Host.Path("my.tour").string(); }

	FHostRun Host;
};

TEST_F(TourProgram, AProblemEndsTheRunWithFileAndLineAndCodeTwo)
{
	const FHostRun::FResult Result = PlayTour("window 800 600\n\nclick Nothing Here\npanes\n");
	EXPECT_EQ(Result.Code, 2);
	EXPECT_TRUE(Has(Result.Output, "\n" + TourFile() + ":3: Nothing in sight is labeled 'Nothing Here'; there is '"));
}

TEST_F(TourProgram, EarlierPicturesAndThePageAreWrittenNevertheless)
{
	PlayTour("window 800 600\nshot before.png 1 Before\nclick Nothing Here\n");
	EXPECT_EQ(Host.ReadPicture("before.png").Width, 800);
	EXPECT_TRUE(Has(ReadPage(), "<span class=\"caption\">Before</span>"));
	EXPECT_TRUE(Has(ReadPage(), "class=\"step failed\""));
	EXPECT_TRUE(Has(ReadPage(), "<span class=\"caption\">The window when the run ended</span>"));
}

TEST_F(TourProgram, ThePageIsTheLastThingTheRunNames)
{
	const std::string Output = PlayTour("window 800 600\nshot a.png\n").Output;
	const std::string Last = "\nAll pictures: " + Host.Path("out/index.html").string() + "\n";
	ASSERT_GE(Output.size(), Last.size());
	EXPECT_EQ(Output.substr(Output.size() - Last.size()), Last);
}

TEST_F(TourProgram, SettingsAreKeptEvenIfTheTourFails)
{
	const std::string Before = Host.ReadSettings();
	EXPECT_EQ(PlayTour("keep-settings\nchoose-look 1 TealOrange\nlayout OnePane\nclick Nothing Here\n").Code, 2);
	EXPECT_EQ(Host.ReadSettings(), Before);
}

TEST_F(TourProgram, ARestartRemembersWhatWasChosenAndGoesOnWithTheNextCommand)
{
	const FHostRun::FResult Result = PlayTour(
		"window 800 600\nchoose-look 1 TealOrange\nshot a.png 1 First run\nrestart\nexpect 1.look TealOrange\nshot b.png 1 Second run\n");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_TRUE(Has(ReadPage(), "<span class=\"caption\">First run</span>"));
	EXPECT_TRUE(Has(ReadPage(), "<span class=\"caption\">Second run</span>"));
	EXPECT_FALSE(std::filesystem::exists(Host.Path("out/tour-to-go-on.tmp")));
}

TEST_F(TourProgram, SettingsAreKeptAcrossARestart)
{
	const std::string Before = Host.ReadSettings();
	EXPECT_EQ(PlayTour("keep-settings\nchoose-look 1 TealOrange\nrestart\nexpect 1.look TealOrange\n").Code, 0);
	EXPECT_EQ(Host.ReadSettings(), Before);
}

TEST_F(TourProgram, FilesOfATourAreTakenAwayAfterARestartToo)
{
	EXPECT_EQ(PlayTour("write-file Looks/Mine.cube LUT_3D_SIZE 2\\n0 0 0\nrestart\npanes\n").Code, 0);
	EXPECT_FALSE(std::filesystem::exists(Host.Path("Project/Content/Looks/Mine.cube")));
}

TEST_F(TourProgram, ALookIsComparedWithoutChangingThePane)
{
	const std::string Before = Host.ReadSettings();
	const FHostRun::FResult Result = PlayTour("compare-look TealOrange 1\nexpect 1.look WarmPrint\n");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_FALSE(Host.ReadPicture("TealOrange.png").Pixels == Host.ReadPicture("TealOrange-without-look.png").Pixels);
	EXPECT_EQ(Host.ReadSettings(), Before);
	EXPECT_TRUE(Has(ReadPage(), "type=\"range\""));
}

TEST_F(TourProgram, ASliderComparesTheWindowWithoutAndWithItsLooks)
{
	const FHostRun::FResult Result = PlayTour("window 800 600\nshot-looks a.png\nexpect 1.enable on\n");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_FALSE(Host.ReadPicture("a.png").Pixels == Host.ReadPicture("a-without-looks.png").Pixels);
	EXPECT_TRUE(Has(ReadPage(), "type=\"range\""));
}

TEST_F(TourProgram, TheTimesAreATableAtTheEndOnRequest)
{
	const FHostRun::FResult Result = PlayTour("panes\ntick 0.1\n", "--times");
	EXPECT_TRUE(std::regex_search(Result.Output, std::regex(" m?s  [^ ]*my\\.tour:2  tick 0\\.1\n"))) << Result.Output;
	EXPECT_TRUE(Has(Result.Output, " in all, 2 commands; the slowest: "));
}

TEST_F(TourProgram, WithoutAnyWishEveryLookOfAProjectIsComparedAndNothingChanged)
{
	const std::string Before = Host.ReadSettings();
	const FHostRun::FResult Result = Host.Run("");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	for (const char* const Look : {"BleachBypass", "CoolNight", "FalseColor", "Monochrome", "TealOrange", "WarmPrint"})
	{
		EXPECT_TRUE(std::filesystem::exists(Host.Path("out/" + std::string(Look) + ".png"))) << Look;
		EXPECT_TRUE(Has(ReadPage(), "<span class=\"caption\">" + std::string(Look) + "</span>"));
	}
	EXPECT_EQ(Host.ReadSettings(), Before);
}

TEST_F(TourProgram, TheHelpOfToursListsEveryCommandWithAnExampleThatTheConsoleWouldTake)
{
	const FHostRun::FResult Help = Host.Run("--help-tours");
	EXPECT_EQ(Help.Code, 0);
	const std::string Commands = Help.Output.substr(Help.Output.find("\nCommands:\n"));
	const std::string List = Host.Execute("help").Output;
	const std::regex Usage("^  ([a-z][a-z-]*)( .*)?$");
	int Found = 0;
	std::istringstream Lines(List);
	for (std::string Line; std::getline(Lines, Line);)
	{
		std::smatch Match;
		if (!std::regex_match(Line, Match, Usage))
		{
			continue;
		}
		++Found;
		const std::string Name = Match[1];
		const std::regex Entry("\n  " + Name + "( [^\n]*)?\n      [^ ][^\n]*\n        " + Name);
		EXPECT_TRUE(std::regex_search(Commands, Entry)) << Name;
	}
	EXPECT_GT(Found, 50);
	EXPECT_EQ(Commands.find("\nMore\n"), std::string::npos) << "a command without a group";
}
}
