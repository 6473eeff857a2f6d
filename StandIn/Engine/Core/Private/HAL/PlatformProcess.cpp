// Copyright The Tintmill authors. All rights reserved.

#include "HAL/PlatformProcess.h"

#include "HAL/NativePath.h"
#include "Misc/Paths.h"

#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

const TCHAR* FPlatformProcess::ExecutableName(bool bRemoveExtension)
{
	static const FString WithExtension = FPaths::GetCleanFilename(ExecutablePath());
	static const FString WithoutExtension = FPaths::GetBaseFilename(ExecutablePath());
	return bRemoveExtension ? *WithoutExtension : *WithExtension;
}

const TCHAR* FPlatformProcess::BaseDir()
{
	static const FString Folder = FPaths::GetPath(ExecutablePath()) + TEXT("/");
	return *Folder;
}

const TCHAR* FPlatformProcess::UserTempDir()
{
	static const FString Folder = [] {
		std::error_code Error;
		const std::filesystem::path Path = std::filesystem::temp_directory_path(Error);
		FString Found = Error ? FString(TEXT("/tmp")) : StandInPrivate::FromNativePath(Path);
		return Found.EndsWith(TEXT("/")) ? Found : Found + TEXT("/");
	}();
	return *Folder;
}

FString FPlatformProcess::GetCurrentWorkingDirectory()
{
	std::error_code Error;
	const FString Found = StandInPrivate::FromNativePath(std::filesystem::current_path(Error));
	return Found.EndsWith(TEXT("/")) ? Found : Found + TEXT("/");
}

void FPlatformProcess::Sleep(float Seconds)
{
	std::this_thread::sleep_for(std::chrono::duration<float>(Seconds));
}
