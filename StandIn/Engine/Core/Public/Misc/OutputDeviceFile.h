// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Misc/OutputDevice.h"

// A log file in the engine's printed form, UTF-8. Left out: the writer thread and the backup of an older log.

/** Writes log lines to a file; the file is created by the first line, a file that cannot be written is given up silently. */
class CORE_API FOutputDeviceFile : public FOutputDevice
{
public:
	/** Names the file; its folder is created with it. An existing file is replaced unless it is to be continued. */
	FOutputDeviceFile(const TCHAR* InFilename, bool bInDisableBackup = false, bool bInAppendIfExists = false);
	virtual ~FOutputDeviceFile();

	FOutputDeviceFile(const FOutputDeviceFile&) = delete;
	FOutputDeviceFile& operator=(const FOutputDeviceFile&) = delete;

	/** The file's name. */
	const TCHAR* GetFilename() const { return *Filename; }

	/** Says whether the file could be opened. */
	bool IsOpened() const;

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time) override;
	virtual void Flush() override;
	virtual void TearDown() override;

private:
	bool Open();

	struct FFile;
	FFile* File;
	FString Filename;
	bool bAppendIfExists;
	bool bFailed;
};
