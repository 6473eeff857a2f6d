// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

// Iterators of arrays. The one behind ranged-for reports, once, when the array's length changes during the loop.

/** Pointer that remembers how long the array was when the loop began. */
template <typename ElementType, typename SizeType>
struct TCheckedPointerIterator
{
	/** Starts at an element of an array whose length is InNum. */
	TCheckedPointerIterator(const SizeType& InNum, ElementType* InPtr)
		: Ptr(InPtr)
		, CurrentNum(InNum)
		, InitialNum(InNum)
	{}

	/** The element. */
	ElementType& operator*() const { return *Ptr; }

	/** The element's address. */
	ElementType* operator->() const { return Ptr; }

	/** Goes to the next element. */
	TCheckedPointerIterator& operator++()
	{
		++Ptr;
		return *this;
	}

	/** Goes to the element before. */
	TCheckedPointerIterator& operator--()
	{
		--Ptr;
		return *this;
	}

	/** Whether the loop goes on; reports when the array's length has changed. */
	friend bool operator!=(const TCheckedPointerIterator& Lhs, const TCheckedPointerIterator& Rhs)
	{
		ensureMsgf(Lhs.CurrentNum == Lhs.InitialNum, TEXT("Array has changed during ranged-for iteration!"));
		return Lhs.Ptr != Rhs.Ptr;
	}

private:
	ElementType* Ptr;
	const SizeType& CurrentNum;
	SizeType InitialNum;
};

/** Iterator by index, which can remove the element it stands at. */
template <typename ContainerType, typename ElementType, typename SizeType>
class TIndexedContainerIterator
{
public:
	/** Starts at an index. */
	explicit TIndexedContainerIterator(ContainerType& InContainer, SizeType StartIndex = 0)
		: Container(InContainer)
		, Index(StartIndex)
	{}

	/** Goes to the next element. */
	TIndexedContainerIterator& operator++()
	{
		++Index;
		return *this;
	}

	/** Goes to the element before. */
	TIndexedContainerIterator& operator--()
	{
		--Index;
		return *this;
	}

	/** The element, checked. */
	ElementType& operator*() const { return Container[Index]; }

	/** The element, checked. */
	ElementType* operator->() const { return &Container[Index]; }

	/** Whether the iterator stands at an element. */
	explicit operator bool() const { return Container.IsValidIndex(Index); }

	/** The index. */
	SizeType GetIndex() const { return Index; }

	/** Goes back to the start. */
	void Reset() { Index = 0; }

	/** Removes the element; the next ++ goes to the one that followed it. */
	void RemoveCurrent()
	{
		Container.RemoveAt(Index);
		--Index;
	}

	/** Whether both stand at the same index of the same container. */
	friend bool operator==(const TIndexedContainerIterator& Lhs, const TIndexedContainerIterator& Rhs)
	{
		return &Lhs.Container == &Rhs.Container && Lhs.Index == Rhs.Index;
	}

	/** The opposite of ==. */
	friend bool operator!=(const TIndexedContainerIterator& Lhs, const TIndexedContainerIterator& Rhs) { return !(Lhs == Rhs); }

private:
	ContainerType& Container;
	SizeType Index;
};
