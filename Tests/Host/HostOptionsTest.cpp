// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostOptions.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
FHostOptions Options(const std::vector<std::string>& Arguments)
{
	return std::get<FHostOptions>(ParseCommandLine(Arguments));
}

FHostExit Exit(const std::vector<std::string>& Arguments)
{
	return std::get<FHostExit>(ParseCommandLine(Arguments));
}

TEST(HostOptions, WithoutArgumentsTheDemoProjectIsMeant)
{
	EXPECT_TRUE(Options({}).Project.empty());
}

TEST(HostOptions, TheProjectMayStandAlone)
{
	EXPECT_EQ(Options({"My Looks"}).Project, "My Looks");
}

TEST(HostOptions, TheProjectMayStandBehindItsName)
{
	EXPECT_EQ(Options({"--project", "My Looks"}).Project, "My Looks");
}

TEST(HostOptions, ASizeIsWidthByHeight)
{
	EXPECT_EQ(Options({"--size", "320x200"}).Width, 320);
	EXPECT_EQ(Options({"--size", "320x200"}).Height, 200);
}

TEST(HostOptions, TheWindowsSizeIsWidthByHeight)
{
	EXPECT_EQ(Options({"--window", "1600x900"}).WindowWidth, 1600);
	EXPECT_EQ(Options({"--window", "1600x900"}).WindowHeight, 900);
}

TEST(HostOptions, AWrongWindowSizeMakesOneSentenceAboutTheWindow)
{
	EXPECT_NE(
		Exit({"--window", "wide"}).Text.find("'wide' is not a size: give width and height of the window in pixels"), std::string::npos);
}

TEST(HostOptions, WithoutExecNoCommandsAreSet)
{
	EXPECT_FALSE(Options({}).Exec.has_value());
}

TEST(HostOptions, AnEmptyExecMeansNoCommands)
{
	EXPECT_EQ(Options({"--exec", ""}).Exec, "");
}

TEST(HostOptions, HelpEndsWithCodeZero)
{
	EXPECT_EQ(Exit({"--help"}).Code, 0);
	EXPECT_NE(Exit({"--help"}).Text.find("--headless"), std::string::npos);
}

TEST(HostOptions, AnUnknownOptionEndsWithCodeTwoAndOneSentence)
{
	EXPECT_EQ(Exit({"--lokos"}).Code, 2);
	EXPECT_EQ(Exit({"--lokos"}).Text, "Unknown argument '--lokos': see tintmill-editor --help for what there is.\n");
}

TEST(HostOptions, ASizeThatIsNoneEndsWithCodeTwo)
{
	for (const char* const Size : {"640", "640x", "x360", "0x0", "640x360x1", "big", "-1x100", "640x99999", "8x8"})
	{
		EXPECT_EQ(Exit({"--size", Size}).Code, 2) << Size;
	}
}

TEST(HostOptions, AnOptionWithoutItsValueEndsWithCodeTwo)
{
	EXPECT_EQ(Exit({"--exec"}).Code, 2);
}

TEST(HostOptions, TheHelpOfToursAndTheTimesAreAskedForByName)
{
	EXPECT_TRUE(Options({"--help-tours"}).bHelpTours);
	EXPECT_TRUE(Options({"--tour", "a.tour", "--times"}).bTimes);
	EXPECT_FALSE(Options({}).bHelpTours);
	EXPECT_FALSE(Options({}).bTimes);
}

TEST(HostOptions, ARunThatGoesOnKnowsTheArgumentsOfTheFirst)
{
	const FHostOptions Second = Options({"--tour", "a.tour", "--resume", "out/state"});
	EXPECT_EQ(Second.Resume, "out/state");
	EXPECT_EQ(Second.Arguments, (std::vector<std::string>{"--tour", "a.tour"}));
	EXPECT_EQ(Options(Second.Arguments).Arguments, Second.Arguments);
}
}
