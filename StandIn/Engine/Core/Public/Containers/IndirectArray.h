// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"

// An array that owns its elements one by one, so that they stay where they are while others come and go. Left out: copying,
// serialising, removing by swapping.

/** An array of elements that never move; it owns them. */
template <typename T>
class TIndirectArray
{
public:
	typedef T ElementType;

	TIndirectArray() {}
	~TIndirectArray() { Empty(); }
	TIndirectArray(const TIndirectArray&) = delete;
	TIndirectArray& operator=(const TIndirectArray&) = delete;

	/** Returns how many elements there are. */
	int32 Num() const { return Array.Num(); }

	/** Tells whether there is an element of an index. */
	bool IsValidIndex(int32 Index) const { return Array.IsValidIndex(Index); }

	/** Returns an element; a wrong index is fatal. */
	T& operator[](int32 Index) { return *Array[Index]; }

	/** Returns an element; a wrong index is fatal. */
	const T& operator[](int32 Index) const { return *Array[Index]; }

	/** Takes over an element made with new and returns its index. */
	int32 Add(T* Item) { return Array.Add(Item); }

	/** Destroys elements and closes the gap. */
	void RemoveAt(int32 Index, int32 Count = 1)
	{
		for (int32 Step = 0; Step < Count; ++Step)
		{
			T* const Item = Array[Index];
			Array.RemoveAt(Index);
			delete Item;
		}
	}

	/** Destroys all elements. */
	void Empty() { RemoveAt(0, Num()); }

	/** Walks over the elements. */
	template <typename PointerType, typename ReferenceType>
	class TIterator
	{
	public:
		explicit TIterator(PointerType InPosition)
			: Position(InPosition)
		{
		}
		ReferenceType operator*() const { return **Position; }
		TIterator& operator++()
		{
			++Position;
			return *this;
		}
		bool operator!=(const TIterator& Other) const { return Position != Other.Position; }

	private:
		PointerType Position;
	};

	/** For ranged loops. */
	TIterator<T**, T&> begin() { return TIterator<T**, T&>(Array.GetData()); }
	TIterator<T* const*, const T&> begin() const { return TIterator<T* const*, const T&>(Array.GetData()); }
	TIterator<T**, T&> end() { return TIterator<T**, T&>(Array.GetData() + Num()); }
	TIterator<T* const*, const T&> end() const { return TIterator<T* const*, const T&>(Array.GetData() + Num()); }

private:
	TArray<T*> Array;
};
