// Copyright The Tintmill authors. All rights reserved.

#include "HAL/UnrealMemory.h"

#include "Misc/AssertionMacros.h"
#include "StandIn/FatalHandler.h"
#include <cstdlib>

namespace
{
void* CheckAllocation(void* Memory, SIZE_T Count, uint32 Alignment)
{
	if (Alignment > 16)
	{
		STANDIN_MISSING(TEXT("FMemory::Malloc with an alignment above 16"));
	}
	if (Memory == nullptr && Count != 0)
	{
		LowLevelFatalError(TEXT("Ran out of memory allocating %llu bytes with alignment %u"), (uint64)Count, Alignment);
	}
	return Memory;
}
}

void* FMemory::Malloc(SIZE_T Count, uint32 Alignment)
{
	return CheckAllocation(std::malloc(Count != 0 ? Count : 1), Count, Alignment);
}

void* FMemory::Realloc(void* Original, SIZE_T Count, uint32 Alignment)
{
	if (Count == 0)
	{
		Free(Original);
		return nullptr;
	}
	return CheckAllocation(std::realloc(Original, Count), Count, Alignment);
}

void FMemory::Free(void* Original)
{
	std::free(Original);
}

void FMemory::Memswap(void* Ptr1, void* Ptr2, SIZE_T Count)
{
	uint8* A = static_cast<uint8*>(Ptr1);
	uint8* B = static_cast<uint8*>(Ptr2);
	for (; Count > 0; --Count, ++A, ++B)
	{
		const uint8 Temp = *A;
		*A = *B;
		*B = Temp;
	}
}
