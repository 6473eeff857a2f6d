// Copyright The Tintmill authors. All rights reserved.

#include "Misc/OutputDeviceFile.h"

#include "CoreGlobals.h"
#include "HAL/FileManager.h"
#include "HAL/NativePath.h"
#include "Misc/OutputDeviceHelper.h"
#include "Misc/Paths.h"
#include "Misc/TextCodec.h"

#include <fstream>
#include <string>

struct FOutputDeviceFile::FFile
{
	std::ofstream Stream;
};

FOutputDeviceFile::FOutputDeviceFile(const TCHAR* InFilename, bool bInDisableBackup, bool bInAppendIfExists)
	: File(nullptr)
	, Filename(InFilename)
	, bAppendIfExists(bInAppendIfExists)
	, bFailed(false)
{
	(void)bInDisableBackup;
}

FOutputDeviceFile::~FOutputDeviceFile()
{
	FOutputDeviceFile::TearDown();
}

bool FOutputDeviceFile::IsOpened() const
{
	return File != nullptr;
}

bool FOutputDeviceFile::Open()
{
	std::filesystem::path Path;
	if (File || bFailed)
	{
		return File != nullptr;
	}
	bFailed = true;
	const FString Folder = FPaths::GetPath(Filename);
	if ((!Folder.IsEmpty() && !IFileManager::Get().MakeDirectory(*Folder, true)) || !StandInPrivate::ToNativePath(*Filename, Path))
	{
		return false;
	}
	FFile* const NewFile = new FFile();
	NewFile->Stream.open(Path, std::ios::binary | (bAppendIfExists ? std::ios::app : std::ios::trunc));
	if (!NewFile->Stream)
	{
		delete NewFile;
		return false;
	}
	File = NewFile;
	bFailed = false;
	return true;
}

void FOutputDeviceFile::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	Serialize(V, Verbosity, Category, -1.0);
}

void FOutputDeviceFile::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time)
{
	if ((Verbosity & ELogVerbosity::SetColor) || !Open())
	{
		return;
	}
	FString Line = bSuppressEventTag ? FString(V) : FOutputDeviceHelper::FormatLogLine(Verbosity, Category, V, GPrintLogTimes, Time);
	if (bAutoEmitLineTerminator)
	{
		Line += LINE_TERMINATOR;
	}
	const std::string Bytes = StandInPrivate::ToUtf8(Line);
	File->Stream.write(Bytes.data(), std::streamsize(Bytes.size()));
	// Serious lines must survive the crash that may follow them.
	if ((Verbosity & ELogVerbosity::VerbosityMask) <= ELogVerbosity::Warning)
	{
		File->Stream.flush();
	}
}

void FOutputDeviceFile::Flush()
{
	if (File)
	{
		File->Stream.flush();
	}
}

void FOutputDeviceFile::TearDown()
{
	delete File;
	File = nullptr;
	bFailed = true;
}
