// Copyright The Tintmill authors. All rights reserved.

#include "Logging/LogMacros.h"

#include "CoreGlobals.h"
#include "StandIn/LogRecord.h"
#include "Support/DeathText.h"
#include "Support/LogCapture.h"
#include "gtest/gtest.h"

DEFINE_LOG_CATEGORY_STATIC(LogMacrosTest, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogMacrosTestQuiet, Log, Warning);

namespace
{
typedef std::vector<std::string> FTexts;

int32 NumEvaluated = 0;

int32 Evaluate()
{
	return ++NumEvaluated;
}
}

TEST(LogMacros, LineReachesADeviceAsBareText)
{
	const FLogCapture Capture;
	UE_LOG(LogMacrosTest, Log, TEXT("%d looks, the first is %s"), 3, TEXT("Teal"));
	EXPECT_EQ(FTexts({"3 looks, the first is Teal"}), Capture.TextsOf("LogMacrosTest"));
}

TEST(LogMacros, WarningReachesADeviceOnceThoughItGoesOverTheFeedbackContext)
{
	const FLogCapture Capture;
	UE_LOG(LogTemp, Warning, TEXT("OnLevelViewportClientListChanged"));
	ASSERT_EQ(1u, Capture.Lines.size());
	EXPECT_EQ("LogTemp", Capture.Lines[0].Category);
	EXPECT_EQ(ELogVerbosity::Warning, Capture.Lines[0].Verbosity);
	EXPECT_EQ("OnLevelViewportClientListChanged", Capture.Lines[0].Text);
}

TEST(LogMacros, LinesAboveTheCategorysVerbosityAreHeldBack)
{
	const FLogCapture Capture;
	UE_LOG(LogMacrosTest, Verbose, TEXT("too chatty"));
	EXPECT_EQ(FTexts(), Capture.TextsOf("LogMacrosTest"));
}

TEST(LogMacros, RaisedCategoryLetsVerboseLinesPass)
{
	const FLogCapture Capture;
	LogMacrosTest.SetVerbosity(ELogVerbosity::Verbose);
	UE_LOG(LogMacrosTest, Verbose, TEXT("now wanted"));
	LogMacrosTest.SetVerbosity(ELogVerbosity::Log);
	EXPECT_EQ(FTexts({"now wanted"}), Capture.TextsOf("LogMacrosTest"));
}

TEST(LogMacros, CompileTimeVerbosityCannotBeRaised)
{
	const FLogCapture Capture;
	LogMacrosTestQuiet.SetVerbosity(ELogVerbosity::All);
	UE_LOG(LogMacrosTestQuiet, Log, TEXT("never compiled"));
	UE_LOG(LogMacrosTestQuiet, Warning, TEXT("compiled"));
	EXPECT_EQ(ELogVerbosity::Warning, LogMacrosTestQuiet.GetVerbosity());
	EXPECT_EQ(FTexts({"compiled"}), Capture.TextsOf("LogMacrosTestQuiet"));
}

TEST(LogMacros, ArgumentsOfAHeldBackLineAreNotEvaluated)
{
	NumEvaluated = 0;
	UE_LOG(LogMacrosTest, VeryVerbose, TEXT("%d"), Evaluate());
	EXPECT_EQ(0, NumEvaluated);
}

TEST(LogMacros, ConditionalLineIsWrittenOnlyWhenTheConditionHolds)
{
	const FLogCapture Capture;
	UE_CLOG(false, LogMacrosTest, Log, TEXT("no"));
	UE_CLOG(true, LogMacrosTest, Log, TEXT("yes"));
	EXPECT_EQ(FTexts({"yes"}), Capture.TextsOf("LogMacrosTest"));
}

TEST(LogMacros, SuppressRunsItsStatementOnlyForAnActiveVerbosity)
{
	NumEvaluated = 0;
	UE_SUPPRESS(LogMacrosTest, Verbose, Evaluate());
	EXPECT_EQ(0, NumEvaluated);
	UE_SUPPRESS(LogMacrosTest, Log, Evaluate());
	EXPECT_EQ(1, NumEvaluated);
}

TEST(LogMacros, LongLinesAreNotCut)
{
	const FLogCapture Capture;
	const std::string Long(20000, 'x');
	UE_LOG(LogMacrosTest, Log, TEXT("%s!"), UTF8_TO_TCHAR(Long.c_str()));
	EXPECT_EQ(FTexts({Long + "!"}), Capture.TextsOf("LogMacrosTest"));
}

TEST(LogMacros, RecordCarriesFileAndLineOfTheStatement)
{
	std::string File;
	int32 Line = 0;
	const FDelegateHandle Handle = StandIn::OnLogRecord().AddLambda([&](const StandIn::FLogRecord& Record) {
		File = Record.File;
		Line = Record.Line;
	});
	UE_LOG(LogMacrosTest, Error, TEXT("here"));
	const int32 Expected = __LINE__ - 1;
	StandIn::OnLogRecord().Remove(Handle);
	EXPECT_NE(std::string::npos, File.find("LogMacrosTest.cpp"));
	EXPECT_EQ(Expected, Line);
}

TEST(LogMacros, RecordOfALineWithoutStatementHasNoPlace)
{
	std::string File = "unset";
	int32 Line = -1;
	const FDelegateHandle Handle = StandIn::OnLogRecord().AddLambda([&](const StandIn::FLogRecord& Record) {
		File = Record.File;
		Line = Record.Line;
	});
	GLog->Logf(TEXT("%d"), 1);
	StandIn::OnLogRecord().Remove(Handle);
	EXPECT_EQ("", File);
	EXPECT_EQ(0, Line);
}

TEST(LogMacrosDeathTest, FatalLineEndsTheProcessWithFileLineAndText)
{
	EXPECT_DEATH(UE_LOG(LogMacrosTest, Fatal, TEXT("no %s left"), TEXT("paint")),
		"Fatal error: \\[File:.*LogMacrosTest\\.cpp\\] \\[Line: " DEATH_NUMBER "\\] \nno paint left");
}

TEST(LogMacrosDeathTest, FatalLineOfASuppressedCategoryEndsTheProcessToo)
{
	EXPECT_DEATH(
		{
			LogMacrosTest.SetVerbosity(ELogVerbosity::NoLogging);
			UE_LOG(LogMacrosTest, Fatal, TEXT("all the same"));
		},
		"all the same");
}
