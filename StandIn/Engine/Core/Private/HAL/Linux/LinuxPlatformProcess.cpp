// Copyright The Tintmill authors. All rights reserved.

#include "HAL/PlatformProcess.h"

#include "CoreGlobals.h"
#include "HAL/NativePath.h"
#include "Misc/TextCodec.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

void* FPlatformProcess::GetDllHandle(const TCHAR* Filename)
{
	check(Filename);
	void* const Handle = dlopen(StandInPrivate::ToUtf8(FString(Filename)).c_str(), RTLD_NOW | RTLD_LOCAL);
	if (!Handle)
	{
		const char* const Error = dlerror();
		const FString Reason =
			Error ? StandInPrivate::DecodeText(reinterpret_cast<const uint8*>(Error), int64(std::strlen(Error))) : FString();
		UE_LOG(LogCore, Warning, TEXT("dlopen failed: %s"), *Reason);
	}
	return Handle;
}

void FPlatformProcess::FreeDllHandle(void* DllHandle)
{
	check(DllHandle);
	dlclose(DllHandle);
}

void* FPlatformProcess::GetDllExport(void* DllHandle, const TCHAR* ProcName)
{
	check(DllHandle);
	check(ProcName);
	return dlsym(DllHandle, StandInPrivate::ToUtf8(FString(ProcName)).c_str());
}

const TCHAR* FPlatformProcess::ExecutablePath()
{
	static const FString Path = [] {
		std::error_code Error;
		return StandInPrivate::FromNativePath(std::filesystem::read_symlink("/proc/self/exe", Error));
	}();
	return *Path;
}

const TCHAR* FPlatformProcess::GetModulePrefix()
{
	return TEXT("lib");
}

const TCHAR* FPlatformProcess::GetModuleExtension()
{
	return TEXT("so");
}

const TCHAR* FPlatformProcess::GetBinariesSubdirectory()
{
	return TEXT("Linux");
}

uint32 FPlatformProcess::GetCurrentProcessId()
{
	return uint32(getpid());
}

bool FPlatformProcess::IsApplicationRunning(uint32 ProcessId)
{
	return ProcessId > 0 && (kill(pid_t(ProcessId), 0) == 0 || errno == EPERM);
}
