// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/StdOutOutputDevice.h"

#include "UObject/NameTypes.h"
#include "gtest/gtest.h"

TEST(StdOutOutputDevice, PrintsTheEnginesFormAsUtf8)
{
	StandIn::FStdOutOutputDevice Device;
	testing::internal::CaptureStdout();
	Device.Serialize(TEXT("\u00fcber"), ELogVerbosity::Warning, FName(TEXT("LogTemp")));
	Device.Flush();
	EXPECT_EQ("LogTemp: Warning: \xc3\xbc"
			  "ber\n",
		testing::internal::GetCapturedStdout());
}

TEST(StdOutOutputDevice, LeavesOutLinesAboveItsVerbosity)
{
	StandIn::FStdOutOutputDevice Device(ELogVerbosity::Display);
	testing::internal::CaptureStdout();
	Device.Serialize(TEXT("chatter"), ELogVerbosity::Log, FName(TEXT("LogTemp")));
	Device.Serialize(TEXT("shown"), ELogVerbosity::Display, FName(TEXT("LogTemp")));
	Device.Flush();
	EXPECT_EQ("LogTemp: Display: shown\n", testing::internal::GetCapturedStdout());
}
