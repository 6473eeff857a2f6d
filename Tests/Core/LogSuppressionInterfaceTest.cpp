// Copyright The Tintmill authors. All rights reserved.

#include "Logging/LogSuppressionInterface.h"

#include "CoreGlobals.h"
#include "Misc/ConfigCacheIni.h"
#include "Support/LogCapture.h"
#include "gtest/gtest.h"

DEFINE_LOG_CATEGORY_STATIC(LogSuppressionTest, Log, All);

namespace
{
/** Puts the category back after each test. */
class LogSuppressionInterface : public testing::Test
{
protected:
	virtual void TearDown() override { Interface.ProcessLogCommand(TEXT("LogSuppressionTest default")); }

	FLogSuppressionInterface& Interface = FLogSuppressionInterface::Get();
};
}

TEST_F(LogSuppressionInterface, CommandRaisesACategory)
{
	EXPECT_TRUE(Interface.ProcessLogCommand(TEXT("LogSuppressionTest VeryVerbose")));
	EXPECT_EQ(ELogVerbosity::VeryVerbose, LogSuppressionTest.GetVerbosity());
}

TEST_F(LogSuppressionInterface, OffSilencesACategory)
{
	const FLogCapture Capture;
	EXPECT_TRUE(Interface.ProcessLogCommand(TEXT("log LogSuppressionTest off")));
	UE_LOG(LogSuppressionTest, Error, TEXT("unheard"));
	EXPECT_TRUE(Capture.Lines.empty());
}

TEST_F(LogSuppressionInterface, DefaultUndoesACommand)
{
	Interface.ProcessLogCommand(TEXT("LogSuppressionTest Error"));
	Interface.ProcessLogCommand(TEXT("LogSuppressionTest default"));
	EXPECT_EQ(ELogVerbosity::Log, LogSuppressionTest.GetVerbosity());
}

TEST_F(LogSuppressionInterface, UnknownVerbosityIsRefused)
{
	EXPECT_FALSE(Interface.ProcessLogCommand(TEXT("LogSuppressionTest loudly")));
	EXPECT_EQ(ELogVerbosity::Log, LogSuppressionTest.GetVerbosity());
}

TEST_F(LogSuppressionInterface, CategoryThatComesLaterIsSetToo)
{
	Interface.ProcessLogCommand(TEXT("LogLateComer Warning"));
	const FLogCategory<ELogVerbosity::Log, ELogVerbosity::All> Late(TEXT("LogLateComer"));
	EXPECT_EQ(ELogVerbosity::Warning, Late.GetVerbosity());
	Interface.ProcessLogCommand(TEXT("LogLateComer default"));
}

TEST_F(LogSuppressionInterface, CategoryThatHasGoneIsForgotten)
{
	{
		const FLogCategory<ELogVerbosity::Log, ELogVerbosity::All> Short(TEXT("LogSuppressionTest"));
	}
	EXPECT_TRUE(Interface.ProcessLogCommand(TEXT("LogSuppressionTest Verbose")));
	EXPECT_EQ(ELogVerbosity::Verbose, LogSuppressionTest.GetVerbosity());
}

TEST_F(LogSuppressionInterface, EngineIniSetsCategories)
{
	FConfigCacheIni Cache(EConfigCacheType::Temporary);
	FConfigCacheIni* const Before = GConfig;
	const FString IniBefore = GEngineIni;
	GConfig = &Cache;
	GEngineIni = TEXT("Engine.ini");
	Cache.SetString(TEXT("Core.Log"), TEXT("LogSuppressionTest"), TEXT("Verbose"), GEngineIni);
	Interface.ProcessConfigAndCommandLine();
	GConfig = Before;
	GEngineIni = IniBefore;
	EXPECT_EQ(ELogVerbosity::Verbose, LogSuppressionTest.GetVerbosity());
}
