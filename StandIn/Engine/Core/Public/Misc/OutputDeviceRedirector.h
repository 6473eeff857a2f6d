// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Misc/OutputDevice.h"

// Hands every log line to all added devices. Lines of other threads wait until the master thread logs or flushes, except
// for devices that say CanBeUsedOnAnyThread. Left out: the threaded log writer (lines of the master thread go out at once).

/** The log's distributor; `GLog` is the one instance. */
class CORE_API FOutputDeviceRedirector : public FOutputDevice
{
public:
	/** The one redirector; it lives until the process ends. */
	static FOutputDeviceRedirector* Get();

	/** Adds a device that the caller owns; adding it again changes nothing. */
	void AddOutputDevice(FOutputDevice* OutputDevice);

	/** Removes a device; removing one that was not added changes nothing. */
	void RemoveOutputDevice(FOutputDevice* OutputDevice);

	/** Says whether a device was added. */
	bool IsRedirectingTo(FOutputDevice* OutputDevice);

	/** Lists the added devices in the order they were added. */
	TArray<FOutputDevice*> GetOutputDevices() const;

	/** Sends the lines that other threads left behind; only the master thread may call it. */
	void FlushThreadedLogs();

	/** Sends the lines that other threads left behind from whatever thread calls, for the moments before the end. */
	void PanicFlushThreadedLogs();

	/** Makes the calling thread the one whose lines go out at once. */
	void SetCurrentThreadAsMasterThread();

	/** Starts or stops keeping lines for devices that are added later; stopping drops them. */
	void EnableBacklog(bool bEnable);

	/** Replays the kept lines to a device. */
	void SerializeBacklog(FOutputDevice* OutputDevice);

	/** Sends a line to the devices. */
	void RedirectLog(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Data);

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time) override;
	virtual void Flush() override;
	virtual void TearDown() override;
	virtual bool CanBeUsedOnAnyThread() const override { return true; }
	virtual bool CanBeUsedOnMultipleThreads() const override { return true; }

private:
	friend struct FOutputDeviceRedirectorAccess;

	FOutputDeviceRedirector();
	virtual ~FOutputDeviceRedirector();

	struct FState;
	FState* State;
};
