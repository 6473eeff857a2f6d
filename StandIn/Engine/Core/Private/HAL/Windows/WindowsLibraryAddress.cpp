// Copyright The Tintmill authors. All rights reserved.

#include "HAL/LibraryAddress.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace StandInPrivate
{
bool IsInLibrary(void* DllHandle, const void* Address)
{
	HMODULE Found = nullptr;
	const DWORD Flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
	return GetModuleHandleExW(Flags, static_cast<LPCWSTR>(Address), &Found) && Found == static_cast<HMODULE>(DllHandle);
}
}
