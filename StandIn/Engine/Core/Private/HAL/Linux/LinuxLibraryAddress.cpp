// Copyright The Tintmill authors. All rights reserved.

#include "HAL/LibraryAddress.h"

#include <dlfcn.h>
#include <link.h>

namespace StandInPrivate
{
bool IsInLibrary(void* DllHandle, const void* Address)
{
	link_map* Map = nullptr;
	Dl_info Found;
	return dlinfo(DllHandle, RTLD_DI_LINKMAP, &Map) == 0 && dladdr(Address, &Found) != 0
		&& reinterpret_cast<ElfW(Addr)>(Found.dli_fbase) == Map->l_addr;
}
}
