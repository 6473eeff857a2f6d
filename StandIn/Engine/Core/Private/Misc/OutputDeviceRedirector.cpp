// Copyright The Tintmill authors. All rights reserved.

#include "Misc/OutputDeviceRedirector.h"

#include "Containers/UnrealString.h"
#include "CoreGlobals.h"
#include "HAL/PlatformTime.h"
#include "Logging/LogSource.h"
#include "StandIn/LogRecord.h"
#include "StandIn/Registrations.h"
#include "UObject/NameTypes.h"

#include <mutex>
#include <thread>
#include <vector>

struct FOutputDeviceRedirector::FState
{
	/** A line that waits for the master thread or for a later device. */
	struct FWaitingLine
	{
		FString Text;
		ELogVerbosity::Type Verbosity;
		FName Category;
		double Time;
		StandInPrivate::FLogSource Source;
	};

	/** Recursive, because a device may log or remove itself while it takes a line. */
	mutable std::recursive_mutex Mutex;
	TArray<FOutputDevice*> Devices;
	std::vector<FWaitingLine> Waiting;
	std::vector<FWaitingLine> Backlog;
	std::thread::id MasterThread = std::this_thread::get_id();
	bool bEnableBacklog = false;
	StandIn::FOnLogRecord OnLogRecord;

	/** Gives a line to the devices that are bound to the master thread, or to those that are not. */
	void Deliver(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category, double Time, bool bToAnyThreadDevices,
		bool bToMasterDevices)
	{
		const TArray<FOutputDevice*> Present = Devices;
		for (FOutputDevice* Device : Present)
		{
			const bool bWanted = Device->CanBeUsedOnAnyThread() ? bToAnyThreadDevices : bToMasterDevices;
			if (bWanted && Devices.Contains(Device))
			{
				Device->Serialize(Text, Verbosity, Category, Time);
			}
		}
	}

	void Report(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category, const StandInPrivate::FLogSource& Source)
	{
		StandIn::FLogRecord Record;
		Record.File = Source.File;
		Record.Line = Source.Line;
		Record.Category = Category;
		Record.Verbosity = Verbosity;
		Record.Text = Text;
		OnLogRecord.Broadcast(Record);
	}

	void DeliverWaiting()
	{
		std::vector<FWaitingLine> Lines;
		Lines.swap(Waiting);
		for (const FWaitingLine& Line : Lines)
		{
			Report(*Line.Text, Line.Verbosity, Line.Category, Line.Source);
			Deliver(*Line.Text, Line.Verbosity, Line.Category, Line.Time, false, true);
		}
	}
};

FOutputDeviceRedirector::FOutputDeviceRedirector()
	: State(new FState())
{
	StandIn::AddRegistry(TEXT("OutputDevices"), [](TArray<StandIn::FRegistration>& Out) {
		for (FOutputDevice* Device : FOutputDeviceRedirector::Get()->GetOutputDevices())
		{
			StandIn::FRegistration Entry;
			Entry.Registry = TEXT("OutputDevices");
			Entry.Name = TEXT("OutputDevice");
			Entry.Owner = Device;
			Out.Add(Entry);
		}
	});
}

FOutputDeviceRedirector::~FOutputDeviceRedirector()
{
	delete State;
}

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	static FOutputDeviceRedirector* const Instance = new FOutputDeviceRedirector();
	return Instance;
}

void FOutputDeviceRedirector::AddOutputDevice(FOutputDevice* OutputDevice)
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	if (OutputDevice)
	{
		State->Devices.AddUnique(OutputDevice);
	}
}

void FOutputDeviceRedirector::RemoveOutputDevice(FOutputDevice* OutputDevice)
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	State->Devices.Remove(OutputDevice);
}

bool FOutputDeviceRedirector::IsRedirectingTo(FOutputDevice* OutputDevice)
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	return State->Devices.Contains(OutputDevice);
}

TArray<FOutputDevice*> FOutputDeviceRedirector::GetOutputDevices() const
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	return State->Devices;
}

void FOutputDeviceRedirector::FlushThreadedLogs()
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	check(std::this_thread::get_id() == State->MasterThread);
	State->DeliverWaiting();
}

void FOutputDeviceRedirector::PanicFlushThreadedLogs()
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	State->DeliverWaiting();
	Flush();
}

void FOutputDeviceRedirector::SetCurrentThreadAsMasterThread()
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	State->MasterThread = std::this_thread::get_id();
	State->DeliverWaiting();
}

void FOutputDeviceRedirector::EnableBacklog(bool bEnable)
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	State->bEnableBacklog = bEnable;
	if (!bEnable)
	{
		State->Backlog.clear();
	}
}

void FOutputDeviceRedirector::SerializeBacklog(FOutputDevice* OutputDevice)
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	const std::vector<FState::FWaitingLine> Lines = State->Backlog;
	for (const FState::FWaitingLine& Line : Lines)
	{
		OutputDevice->Serialize(*Line.Text, Line.Verbosity, Line.Category, Line.Time);
	}
}

void FOutputDeviceRedirector::RedirectLog(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Data)
{
	Serialize(Data, Verbosity, Category);
}

void FOutputDeviceRedirector::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	Serialize(V, Verbosity, Category, FPlatformTime::Seconds() - GStartTime);
}

void FOutputDeviceRedirector::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time)
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	const StandInPrivate::FLogSource Source = StandInPrivate::CurrentLogSource();
	const bool bOnMaster = std::this_thread::get_id() == State->MasterThread;
	if (bOnMaster)
	{
		State->DeliverWaiting();
		State->Report(V, Verbosity, Category, Source);
	}
	else
	{
		State->Waiting.push_back(FState::FWaitingLine{V, Verbosity, Category, Time, Source});
	}
	if (State->bEnableBacklog)
	{
		State->Backlog.push_back(FState::FWaitingLine{V, Verbosity, Category, Time, Source});
	}
	State->Deliver(V, Verbosity, Category, Time, true, bOnMaster);
}

void FOutputDeviceRedirector::Flush()
{
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	if (std::this_thread::get_id() == State->MasterThread)
	{
		State->DeliverWaiting();
	}
	const TArray<FOutputDevice*> Present = State->Devices;
	for (FOutputDevice* Device : Present)
	{
		if (State->Devices.Contains(Device))
		{
			Device->Flush();
		}
	}
}

void FOutputDeviceRedirector::TearDown()
{
	Flush();
	const std::lock_guard<std::recursive_mutex> Lock(State->Mutex);
	const TArray<FOutputDevice*> Present = State->Devices;
	State->Devices.Empty();
	for (FOutputDevice* Device : Present)
	{
		Device->TearDown();
	}
}

/** Lets StandIn::OnLogRecord reach the redirector's event. */
struct FOutputDeviceRedirectorAccess
{
	static StandIn::FOnLogRecord& Event() { return FOutputDeviceRedirector::Get()->State->OnLogRecord; }
};

namespace StandIn
{
FOnLogRecord& OnLogRecord()
{
	return FOutputDeviceRedirectorAccess::Event();
}
}
