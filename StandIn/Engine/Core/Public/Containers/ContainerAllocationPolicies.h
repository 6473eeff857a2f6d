// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/ContainersFwd.h"
#include "HAL/UnrealMemory.h"
#include "Templates/UnrealTemplate.h"

// Where containers keep their elements. Elements are moved one by one when memory grows (the engine copies their bytes): a type that
// cannot be relocated bitwise works here and not in the engine.

namespace StandIn
{
/** Moves Count elements to fresh memory and ends the old ones. */
template <typename ElementType>
void RelocateItems(ElementType* Dest, ElementType* Source, int32 Count)
{
	if (std::is_trivially_copyable<ElementType>::value)
	{
		FMemory::Memmove(static_cast<void*>(Dest), static_cast<const void*>(Source), sizeof(ElementType) * (SIZE_T)Count);
		return;
	}
	for (int32 Index = 0; Index < Count; ++Index)
	{
		new (static_cast<void*>(Dest + Index)) ElementType(MoveTempIfPossible(Source[Index]));
		Source[Index].~ElementType();
	}
}

/** How many elements to make room for when NumElements no longer fit: 4 at first, later three eighths and 16 more. */
inline int32 GrownCapacity(int32 NumElements, int32 NumAllocated)
{
	if (NumAllocated == 0 && NumElements <= 4)
	{
		return 4;
	}
	if (NumAllocated == 0)
	{
		return NumElements;
	}
	const int64 Grown = (int64)NumElements + 3 * (int64)NumElements / 8 + 16;
	return Grown > MAX_int32 ? MAX_int32 : (int32)Grown;
}
}

/** Keeps elements on the heap. */
template <int IndexSize>
class TSizedDefaultAllocator
{
public:
	typedef int32 SizeType;
	enum
	{
		NeedsElementType = true
	};

	/** The memory of one container; knows the address, not the count. */
	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() {}
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;
		~ForElementType() { FMemory::Free(Data); }

		/** The first element's address, null when nothing is allocated. */
		ElementType* GetAllocation() const { return Data; }

		/** Takes the other's memory over; this must hold no elements. */
		bool MoveToEmpty(ForElementType& Other, int32)
		{
			FMemory::Free(Data);
			Data = Other.Data;
			Other.Data = nullptr;
			return true;
		}

		/** Changes the memory to hold NewMax elements, of which NumElements live now. */
		void ResizeAllocation(int32 NumElements, int32 NewMax)
		{
			ElementType* NewData = nullptr;
			if (NewMax > 0)
			{
				NewData = static_cast<ElementType*>(FMemory::Malloc(sizeof(ElementType) * (SIZE_T)NewMax, alignof(ElementType)));
				StandIn::RelocateItems(NewData, Data, NumElements);
			}
			FMemory::Free(Data);
			Data = NewData;
		}

		/** How many elements fit without allocating. */
		static int32 GetInitialCapacity() { return 0; }

	private:
		ElementType* Data = nullptr;
	};
};

/** Keeps the first NumInlineElements inside the container, all of them on the heap when there are more. */
template <uint32 NumInlineElements, typename SecondaryAllocator = FDefaultAllocator>
class TInlineAllocator
{
public:
	typedef int32 SizeType;
	enum
	{
		NeedsElementType = true
	};

	/** The memory of one container. */
	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() {}
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;
		~ForElementType() { FMemory::Free(Heap); }

		/** The first element's address. */
		ElementType* GetAllocation() const { return Heap != nullptr ? Heap : GetInline(); }

		/** Takes the other's memory and its Num elements over; this must hold no elements. */
		bool MoveToEmpty(ForElementType& Other, int32 Num)
		{
			FMemory::Free(Heap);
			Heap = Other.Heap;
			Other.Heap = nullptr;
			if (Heap == nullptr)
			{
				StandIn::RelocateItems(GetInline(), Other.GetInline(), Num);
			}
			return Heap != nullptr;
		}

		/** Changes the memory to hold NewMax elements, of which NumElements live now. */
		void ResizeAllocation(int32 NumElements, int32 NewMax)
		{
			ElementType* OldData = GetAllocation();
			ElementType* NewHeap = nullptr;
			if (NewMax > (int32)NumInlineElements)
			{
				NewHeap = static_cast<ElementType*>(FMemory::Malloc(sizeof(ElementType) * (SIZE_T)NewMax, alignof(ElementType)));
			}
			ElementType* NewData = NewHeap != nullptr ? NewHeap : GetInline();
			if (NewData != OldData)
			{
				StandIn::RelocateItems(NewData, OldData, NumElements);
			}
			FMemory::Free(Heap);
			Heap = NewHeap;
		}

		/** How many elements fit without allocating. */
		static int32 GetInitialCapacity() { return (int32)NumInlineElements; }

	private:
		ElementType* GetInline() const { return reinterpret_cast<ElementType*>(const_cast<unsigned char*>(Inline)); }

		ElementType* Heap = nullptr;
		alignas(ElementType) unsigned char Inline[sizeof(ElementType) * NumInlineElements];
	};
};

/** Keeps the elements of sets and maps on the heap. */
class FDefaultSetAllocator
{};
