// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/Array.h"

// An array that owns its elements one by one: their addresses last. Copying is left out.

/** Owns elements on the heap, in order. */
template <typename T>
class TIndirectArray
{
public:
	typedef T ElementType;

	TIndirectArray() {}
	TIndirectArray(TIndirectArray&& Other)
		: Array(MoveTemp(Other.Array))
	{}
	TIndirectArray& operator=(TIndirectArray&& Other)
	{
		Empty();
		Array = MoveTemp(Other.Array);
		return *this;
	}
	TIndirectArray(const TIndirectArray&) = delete;
	TIndirectArray& operator=(const TIndirectArray&) = delete;
	~TIndirectArray() { Empty(); }

	/** How many elements there are. */
	int32 Num() const { return Array.Num(); }

	/** Whether there is an element at the index. */
	bool IsValidIndex(int32 Index) const { return Array.IsValidIndex(Index); }

	/** The element at an index, checked. */
	T& operator[](int32 Index) { return *Array[Index]; }

	/** The element at an index, checked. */
	const T& operator[](int32 Index) const { return *Array[Index]; }

	/** The last element; fatal when empty. */
	T& Last() { return *Array.Last(); }

	/** Takes an element over; yields its index. */
	int32 Add(T* Item) { return Array.Add(Item); }

	/** Takes an element over at an index. */
	void Insert(T* Item, int32 Index) { Array.Insert(Item, Index); }

	/** Deletes the elements and the memory. */
	void Empty(int32 Slack = 0)
	{
		for (int32 Index = 0; Index < Array.Num(); ++Index)
		{
			delete Array[Index];
		}
		Array.Empty(Slack);
	}

	/** Deletes the elements and keeps the memory. */
	void Reset(int32 = 0) { Empty(); }

	/** Deletes Count elements at an index. */
	void RemoveAt(int32 Index, int32 Count = 1, bool bAllowShrinking = true)
	{
		for (int32 Offset = 0; Offset < Count; ++Offset)
		{
			delete Array[Index + Offset];
		}
		Array.RemoveAt(Index, Count, bAllowShrinking);
	}

	/** The addresses of the elements. */
	T** GetData() { return Array.GetData(); }

	/** Walks over the elements, for ranged loops. */
	template <typename PointerType, typename ReferenceType>
	class TElementIterator
	{
	public:
		explicit TElementIterator(PointerType InPosition)
			: Position(InPosition)
		{}
		ReferenceType operator*() const { return **Position; }
		TElementIterator& operator++()
		{
			++Position;
			return *this;
		}
		bool operator!=(const TElementIterator& Other) const { return Position != Other.Position; }

	private:
		PointerType Position;
	};

	TElementIterator<T**, T&> begin() { return TElementIterator<T**, T&>(Array.GetData()); }
	TElementIterator<T* const*, const T&> begin() const { return TElementIterator<T* const*, const T&>(Array.GetData()); }
	TElementIterator<T**, T&> end() { return TElementIterator<T**, T&>(Array.GetData() + Num()); }
	TElementIterator<T* const*, const T&> end() const { return TElementIterator<T* const*, const T&>(Array.GetData() + Num()); }

private:
	TArray<T*> Array;
};
