// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/Commands/UiFixture.h"

// The real program: its log, its notices and its console line.

namespace
{
typedef FUiFixture LogCommands;

/** Makes the console line take the keyboard's input. */
const std::string Line = "window 1000 900; click Output Log; click Enter Console Command; ";

TEST_F(LogCommands, TheLastLinesAreShown)
{
	const FProgramResult Result = Run("log 1");
	EXPECT_NE(Result.Output.rfind("LogAssetRegistry: Found 2 assets"), std::string::npos) << Result.Output;
}

TEST_F(LogCommands, ALineOfTheLogCanBeExpected)
{
	ExpectDone("expect-log LogAssetRegistry: Found 2 assets");
}

TEST_F(LogCommands, AMissingLineMakesAComplaint)
{
	ExpectComplaint("expect-log There was never such a line", "No line of the log contains 'There was never such a line'");
}

TEST_F(LogCommands, ANoticeCanBeExpected)
{
	WriteLook("Broken", "0 0\n");
	ExpectDone("set 1 look Broken; set 1 enable on; click-pane 1; expect-notice Broken.cube");
}

TEST_F(LogCommands, AMissingNoticeMakesAComplaint)
{
	ExpectComplaint("expect-notice Teal", "No notice contains 'Teal'; there is none.");
}

TEST_F(LogCommands, ACommandThatIsEnteredRuns)
{
	ExpectDone(Line + "type layout OnePane; press Enter; expect-log Cmd: layout OnePane; panes");
}

TEST_F(LogCommands, WhatAnEnteredCommandPrintsIsInTheLog)
{
	ExpectDone(Line + "type help layout; press Enter; expect-log LogConsoleResponse: Display:");
}

TEST_F(LogCommands, AMistakeIsInTheLogAsAnError)
{
	ExpectDone(Line + "type sing; press Enter; expect-log LogConsoleResponse: Error: There is no command");
}

TEST_F(LogCommands, AMistakeInTheConsoleLineDoesNotEndTheRun)
{
	ExpectDone(Line + "type sing; press Enter; expect visible Output Log");
}

TEST_F(LogCommands, TheNoticeOfABrokenLookIsInSightUntilItIsClosed)
{
	WriteLook("Broken", "0 0\n");
	ExpectDone(
		"window 1000 900; set 1 look Broken; set 1 enable on; click-pane 1; expect visible Close Notice; click Close Notice; expect absent Close Notice");
}

TEST_F(LogCommands, TheStatusLineCountsIt)
{
	WriteLook("Broken", "0 0\n");
	ExpectDone("window 1000 900; set 1 look Broken; set 1 enable on; click-pane 1; expect visible 1 notice");
}

TEST_F(LogCommands, TheStatusLineNamesTheActivePanesLook)
{
	ExpectDone("window 1000 900; set 1 look Red; click-pane 1; expect visible Viewport 1 (Perspective): Red at 1 (off)");
}
}
