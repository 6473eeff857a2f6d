// Copyright The Tintmill authors. All rights reserved.

#include "HAL/PlatformProcess.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformMisc.h"
#include "HAL/PlatformTime.h"
#include "Support/LogCapture.h"
#include "Support/TestFolder.h"
#include "gtest/gtest.h"

TEST(PlatformProcess, ProgramIsFoundUnderItsOwnPath)
{
	EXPECT_TRUE(IFileManager::Get().FileExists(FPlatformProcess::ExecutablePath()));
	EXPECT_EQ("CoreTests", ToStd(FPlatformProcess::ExecutableName()));
}

TEST(PlatformProcess, OwnProcessRuns)
{
	EXPECT_TRUE(FPlatformProcess::IsApplicationRunning(FPlatformProcess::GetCurrentProcessId()));
	EXPECT_FALSE(FPlatformProcess::IsApplicationRunning(0));
}

TEST(PlatformProcess, FileThatIsNoLibraryGivesNoHandleAndAWarning)
{
	const FTestFolder Folder;
	const FLogCapture Capture;
	Folder.Write("libBroken.so", "not a library");
	EXPECT_EQ(nullptr, FPlatformProcess::GetDllHandle(*Folder.Path("libBroken.so")));
	ASSERT_EQ(1u, Capture.TextsOf("LogCore").size());
	EXPECT_NE(std::string::npos, Capture.TextsOf("LogCore")[0].find("libBroken.so"));
}

TEST(PlatformMiscDeathTest, ForcedExitEndsAtOnceWithItsCode)
{
	EXPECT_EXIT(FPlatformMisc::RequestExitWithStatus(true, 5), testing::ExitedWithCode(5), "");
}

TEST(PlatformMisc, MissingEnvironmentVariableIsEmpty)
{
	EXPECT_EQ("", ToStd(FPlatformMisc::GetEnvironmentVariable(TEXT("TINTMILL_NO_SUCH_VARIABLE"))));
	EXPECT_NE("", ToStd(FPlatformMisc::GetEnvironmentVariable(TEXT("PATH"))));
}

TEST(PlatformTime, ClockDoesNotRunBackwards)
{
	const double Before = FPlatformTime::Seconds();
	EXPECT_LE(Before, FPlatformTime::Seconds());
	EXPECT_NEAR(1.5, FPlatformTime::ToSeconds64(1500000000), 1e-9);
}
