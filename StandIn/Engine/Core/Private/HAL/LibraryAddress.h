// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Which library an address belongs to.

namespace StandInPrivate
{
/** Says whether an address lies in what the library of a handle of FPlatformProcess::GetDllHandle is mapped to. */
bool IsInLibrary(void* DllHandle, const void* Address);
}
