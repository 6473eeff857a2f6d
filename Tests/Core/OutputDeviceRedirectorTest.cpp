// Copyright The Tintmill authors. All rights reserved.

#include "Misc/OutputDeviceRedirector.h"

#include "CoreGlobals.h"
#include "StandIn/Registrations.h"
#include "Support/LogCapture.h"
#include "gtest/gtest.h"

#include <thread>

DEFINE_LOG_CATEGORY_STATIC(LogRedirectorTest, Log, All);

namespace
{
class FAnyThreadCapture : public FLogCapture
{
public:
	virtual bool CanBeUsedOnAnyThread() const override { return true; }
};

class FSelfRemovingDevice : public FOutputDevice
{
public:
	using FOutputDevice::Serialize;
	virtual void Serialize(const TCHAR*, ELogVerbosity::Type, const FName&) override
	{
		++NumLines;
		GLog->RemoveOutputDevice(this);
	}

	int32 NumLines = 0;
};

class FFlushCounter : public FLogCapture
{
public:
	virtual void Flush() override { ++NumFlushes; }

	int32 NumFlushes = 0;
};
}

TEST(OutputDeviceRedirector, DeviceAddedTwiceGetsEachLineOnce)
{
	FLogCapture Capture;
	GLog->AddOutputDevice(&Capture);
	UE_LOG(LogRedirectorTest, Log, TEXT("once"));
	EXPECT_EQ(1u, Capture.Lines.size());
}

TEST(OutputDeviceRedirector, RemovedDeviceGetsNothingMore)
{
	FLogCapture Capture;
	GLog->RemoveOutputDevice(&Capture);
	UE_LOG(LogRedirectorTest, Log, TEXT("gone"));
	EXPECT_TRUE(Capture.Lines.empty());
	EXPECT_FALSE(GLog->IsRedirectingTo(&Capture));
}

TEST(OutputDeviceRedirector, LineOfAnotherThreadWaitsUntilTheMasterThreadFlushes)
{
	const FLogCapture Capture;
	std::thread([] { UE_LOG(LogRedirectorTest, Log, TEXT("from afar")) }).join();
	EXPECT_TRUE(Capture.Lines.empty());
	GLog->FlushThreadedLogs();
	ASSERT_EQ(1u, Capture.Lines.size());
	EXPECT_EQ("from afar", Capture.Lines[0].Text);
}

TEST(OutputDeviceRedirector, WaitingLinesGoBeforeTheMasterThreadsNext)
{
	const FLogCapture Capture;
	std::thread([] { UE_LOG(LogRedirectorTest, Log, TEXT("first")) }).join();
	UE_LOG(LogRedirectorTest, Log, TEXT("second"));
	EXPECT_EQ(std::vector<std::string>({"first", "second"}), Capture.TextsOf("LogRedirectorTest"));
}

TEST(OutputDeviceRedirector, AnyThreadDeviceGetsLinesOfOtherThreadsAtOnceAndOnce)
{
	const FAnyThreadCapture Capture;
	std::thread([] { UE_LOG(LogRedirectorTest, Log, TEXT("at once")) }).join();
	EXPECT_EQ(1u, Capture.Lines.size());
	GLog->FlushThreadedLogs();
	EXPECT_EQ(1u, Capture.Lines.size());
}

TEST(OutputDeviceRedirector, DeviceMayRemoveItselfWhileItTakesALine)
{
	FSelfRemovingDevice Device;
	GLog->AddOutputDevice(&Device);
	const FLogCapture After;
	UE_LOG(LogRedirectorTest, Log, TEXT("one"));
	UE_LOG(LogRedirectorTest, Log, TEXT("two"));
	EXPECT_EQ(1, Device.NumLines);
	EXPECT_EQ(2u, After.Lines.size());
}

TEST(OutputDeviceRedirector, FlushReachesTheDevices)
{
	const FFlushCounter Counter;
	GLog->Flush();
	EXPECT_EQ(1, Counter.NumFlushes);
}

TEST(OutputDeviceRedirector, BacklogReplaysEarlierLinesToALaterDevice)
{
	GLog->EnableBacklog(true);
	UE_LOG(LogRedirectorTest, Display, TEXT("early"));
	FLogCapture Capture;
	GLog->SerializeBacklog(&Capture);
	GLog->EnableBacklog(false);
	ASSERT_EQ(1u, Capture.Lines.size());
	EXPECT_EQ("early", Capture.Lines[0].Text);
	EXPECT_EQ(ELogVerbosity::Display, Capture.Lines[0].Verbosity);
}

TEST(OutputDeviceRedirector, DevicesAreListedAmongTheRegistrations)
{
	const FLogCapture Capture;
	const TArray<StandIn::FRegistration> All = StandIn::ListRegistrations();
	EXPECT_TRUE(All.ContainsByPredicate([&Capture](const StandIn::FRegistration& Entry) { return Entry.Owner == &Capture; }));
}
