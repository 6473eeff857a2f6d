// Copyright The Tintmill authors. All rights reserved.

#include "CoreTestObjects.h"
#include <new>

// In a file of its own: it is optimized in every build type, so that a compiler that takes the zeros away is noticed.

UCoreTestSparing::UCoreTestSparing()
{
	bSet = true;
	Found = Untouched + 1;
	bFoundBit = bUntouched;
	// What is not zero stays; so a constructor that runs over what was zeroed elsewhere leaves a trace.
	for (int32& Value : Unreflected)
	{
		Value |= 2;
	}
}

namespace
{
/** What a reflected class is to the compiler: constructed in given memory, of which its constructor leaves some alone. */
struct FSparing
{
	FSparing() { Found = Untouched + 1; }

	int32 Untouched;
	int32 Found;
};
}

int32 UCoreTestSparing::ConstructInMemoryZeroedOnTheSpot(void* Memory, int32& OutUntouched)
{
	// As a class object is made: in one function, where the optimizer sees both.
	FMemory::Memzero(Memory, sizeof(FSparing));
	const FSparing* const Object = ::new (Memory) FSparing;
	OutUntouched = Object->Untouched;
	return Object->Found;
}
