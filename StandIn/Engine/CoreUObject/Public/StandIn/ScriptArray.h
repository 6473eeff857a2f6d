// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"

// An array whose element type is known at run time only: it has the layout of every TArray with the default allocator.

/** A TArray seen without its element type; sizes are of one element in bytes. */
class COREUOBJECT_API FScriptArray
{
public:
	int32 Num() const { return ArrayNum; }
	int32 Max() const { return ArrayMax; }
	void* GetData() { return Data; }
	const void* GetData() const { return Data; }
	/** Appends Count unset elements and returns the index of the first. */
	int32 Add(int32 Count, int32 NumBytesPerElement);
	/** Removes elements that have been destroyed already. */
	void Remove(int32 Index, int32 Count, int32 NumBytesPerElement);
	/** Removes all elements, which have been destroyed already, and keeps room for Slack. */
	void Empty(int32 Slack, int32 NumBytesPerElement);

private:
	void* Data;
	int32 ArrayNum;
	int32 ArrayMax;

	void SetCapacity(int32 NewMax, int32 NumBytesPerElement);
};
static_assert(sizeof(FScriptArray) == sizeof(TArray<uint8>), "FScriptArray must have the layout of TArray.");
