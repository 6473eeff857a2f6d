// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include <new>

// Keeps plain `new` from making widgets: only SNew and SAssignNew can.

/** Base of what only SNew and SAssignNew can make. */
class FSlateControlledConstruction
{
public:
	/** Makes the base. */
	FSlateControlledConstruction() {}

	/** Destroys the base. */
	virtual ~FSlateControlledConstruction() {}

	FSlateControlledConstruction(const FSlateControlledConstruction&) = delete;
	FSlateControlledConstruction& operator=(const FSlateControlledConstruction&) = delete;

	/** Frees a widget. */
	void operator delete(void* Memory) { ::operator delete(Memory); }

private:
	template <typename WidgetType>
	friend struct TWidgetAllocator;

	void* operator new(const size_t InSize) { return ::operator new(InSize); }
};
