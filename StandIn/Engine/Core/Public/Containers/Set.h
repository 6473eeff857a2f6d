// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/Array.h"
#include "Templates/Tuple.h"

// The hash set under sets and maps. Elements keep their slot: iteration runs in order of adding until something is removed; freed slots
// are used again, the last freed first. Adding may move elements: addresses do not last.

/** How a set finds an element's key: the element itself. */
template <typename ElementType, bool bInAllowDuplicateKeys>
struct DefaultKeyFuncs
{
	typedef ElementType KeyType;
	typedef const ElementType& KeyInitType;
	typedef const ElementType& ElementInitType;
	enum
	{
		bAllowDuplicateKeys = bInAllowDuplicateKeys
	};

	/** The element's key. */
	static const KeyType& GetSetKey(const ElementType& Element) { return Element; }

	/** Whether two keys are the same. */
	static bool Matches(const KeyType& A, const KeyType& B) { return A == B; }

	/** A key's hash. */
	static uint32 GetKeyHash(const KeyType& Key) { return GetTypeHash(Key); }
};

/** The place of an element in a set. */
class FSetElementId
{
public:
	FSetElementId() {}

	/** Whether there is a place. */
	bool IsValidId() const { return Index != INDEX_NONE; }

	/** The place as a number. */
	int32 AsInteger() const { return Index; }

	/** A place from a number. */
	static FSetElementId FromInteger(int32 InIndex)
	{
		FSetElementId Id;
		Id.Index = InIndex;
		return Id;
	}

	/** Whether both are the same place. */
	friend bool operator==(const FSetElementId& A, const FSetElementId& B) { return A.Index == B.Index; }

private:
	int32 Index = INDEX_NONE;
};

/** A hash set. */
template <typename InElementType, typename KeyFuncs, typename Allocator>
class TSet
{
	struct FSlot
	{
		FSlot() {}
		FSlot(FSlot&& Other)
			: HashNext(Other.HashNext)
			, Hash(Other.Hash)
			, bUsed(Other.bUsed)
		{
			if (bUsed)
			{
				new (static_cast<void*>(Storage)) InElementType(MoveTempIfPossible(Other.Get()));
			}
		}
		FSlot(const FSlot& Other)
			: HashNext(Other.HashNext)
			, Hash(Other.Hash)
			, bUsed(Other.bUsed)
		{
			if (bUsed)
			{
				new (static_cast<void*>(Storage)) InElementType(Other.Get());
			}
		}
		FSlot& operator=(const FSlot&) = delete;
		~FSlot() { Clear(); }

		void Clear()
		{
			if (bUsed)
			{
				bUsed = false;
				Get().~InElementType();
			}
		}

		InElementType& Get() { return *reinterpret_cast<InElementType*>(Storage); }
		const InElementType& Get() const { return *reinterpret_cast<const InElementType*>(Storage); }

		alignas(InElementType) unsigned char Storage[sizeof(InElementType)];
		int32 HashNext = INDEX_NONE; // next slot of the same bucket, or next free slot
		uint32 Hash = 0;
		bool bUsed = false;
	};

public:
	typedef InElementType ElementType;
	typedef typename KeyFuncs::KeyType KeyType;

	/** Walks over the elements; can remove the one it stands at. */
	template <bool bConst, bool bRangedFor>
	class TBaseIterator
	{
	public:
		typedef typename TChooseClass<bConst, const TSet, TSet>::Result SetType;
		typedef typename TChooseClass<bConst, const ElementType, ElementType>::Result ItType;

		/** Starts at the first element at or after a place. */
		TBaseIterator(SetType& InSet, int32 InIndex)
			: Set(&InSet)
			, Index(InIndex)
			, InitialNum(InSet.Num())
		{
			SkipUnused();
		}

		/** Goes to the next element. */
		TBaseIterator& operator++()
		{
			++Index;
			SkipUnused();
			return *this;
		}

		/** The element. */
		ItType& operator*() const { return Set->Slots[Index].Get(); }

		/** The element. */
		ItType* operator->() const { return &Set->Slots[Index].Get(); }

		/** Whether the iterator stands at an element. */
		explicit operator bool() const { return Index < Set->Slots.Num(); }

		/** Whether the iterator is past the last element. */
		bool operator!() const { return !(bool)*this; }

		/** The element's place. */
		FSetElementId GetId() const { return FSetElementId::FromInteger(Index); }

		/** Removes the element; the next ++ goes on behind it. */
		void RemoveCurrent() { Set->RemoveSlot(Index); }

		/** Whether both stand at the same place. */
		friend bool operator==(const TBaseIterator& Lhs, const TBaseIterator& Rhs) { return Lhs.Index == Rhs.Index; }

		/** Whether both stand at different places; a ranged-for loop reports when the set's length has changed. */
		friend bool operator!=(const TBaseIterator& Lhs, const TBaseIterator& Rhs)
		{
			if (bRangedFor)
			{
				ensureMsgf(Lhs.Set->Num() == Lhs.InitialNum, TEXT("Set has changed during ranged-for iteration!"));
			}
			return Lhs.Index != Rhs.Index;
		}

	private:
		void SkipUnused()
		{
			while (Index < Set->Slots.Num() && !Set->Slots[Index].bUsed)
			{
				++Index;
			}
		}

		SetType* Set;
		int32 Index;
		int32 InitialNum;
	};

	typedef TBaseIterator<false, false> TIterator;
	typedef TBaseIterator<true, false> TConstIterator;
	typedef TBaseIterator<false, true> TRangedForIterator;
	typedef TBaseIterator<true, true> TRangedForConstIterator;

	TSet() {}

	TSet(std::initializer_list<ElementType> InitList) { Append(InitList); }

	/** Takes an array's elements. */
	explicit TSet(const TArray<ElementType>& InArray) { Append(InArray); }

	TSet(const TSet&) = default;

	TSet(TSet&& Other)
		: Slots(MoveTemp(Other.Slots))
		, Buckets(MoveTemp(Other.Buckets))
		, FirstFree(Other.FirstFree)
		, NumUsed(Other.NumUsed)
	{
		Other.Empty();
	}

	TSet& operator=(const TSet& Other)
	{
		TSet Copy(Other);
		return *this = MoveTemp(Copy);
	}

	TSet& operator=(TSet&& Other)
	{
		if (this != &Other)
		{
			Slots = MoveTemp(Other.Slots);
			Buckets = MoveTemp(Other.Buckets);
			FirstFree = Other.FirstFree;
			NumUsed = Other.NumUsed;
			Other.Empty();
		}
		return *this;
	}

	TSet& operator=(std::initializer_list<ElementType> InitList)
	{
		Reset();
		Append(InitList);
		return *this;
	}

	/** How many elements there are. */
	int32 Num() const { return NumUsed; }

	/** Removes all elements and their memory. */
	void Empty(int32 ExpectedNumElements = 0)
	{
		Slots.Empty(ExpectedNumElements);
		Buckets.Empty();
		FirstFree = INDEX_NONE;
		NumUsed = 0;
	}

	/** Removes all elements and keeps the memory. */
	void Reset()
	{
		Slots.Reset();
		for (int32& Bucket : Buckets)
		{
			Bucket = INDEX_NONE;
		}
		FirstFree = INDEX_NONE;
		NumUsed = 0;
	}

	/** Makes room for Number elements. */
	void Reserve(int32 Number)
	{
		Slots.Reserve(Number);
		if (Number > Buckets.Num())
		{
			Rehash(Number);
		}
	}

	/** Gives back memory that is not used; places stay. */
	void Shrink() { Slots.Shrink(); }

	/** Adds an element, replacing an equal one; yields its place. */
	FSetElementId Add(const ElementType& InElement, bool* bIsAlreadyInSetPtr = nullptr) { return Emplace(InElement, bIsAlreadyInSetPtr); }

	/** Adds an element, replacing an equal one; yields its place. */
	FSetElementId Add(ElementType&& InElement, bool* bIsAlreadyInSetPtr = nullptr)
	{
		return Emplace(MoveTempIfPossible(InElement), bIsAlreadyInSetPtr);
	}

	/** Builds an element, replacing an equal one; yields its place. */
	template <typename ArgsType>
	FSetElementId Emplace(ArgsType&& Args, bool* bIsAlreadyInSetPtr = nullptr)
	{
		ElementType NewElement(Forward<ArgsType>(Args));
		const uint32 Hash = KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(NewElement));
		int32 Index = KeyFuncs::bAllowDuplicateKeys ? (int32)INDEX_NONE : FindIndex(KeyFuncs::GetSetKey(NewElement), Hash);
		if (bIsAlreadyInSetPtr != nullptr)
		{
			*bIsAlreadyInSetPtr = Index != INDEX_NONE;
		}
		if (Index != INDEX_NONE)
		{
			ElementType& Existing = Slots[Index].Get();
			Existing.~ElementType();
			new (static_cast<void*>(&Existing)) ElementType(MoveTempIfPossible(NewElement));
			return FSetElementId::FromInteger(Index);
		}
		if (FirstFree != INDEX_NONE)
		{
			Index = FirstFree;
			FirstFree = Slots[Index].HashNext;
		}
		else
		{
			Index = Slots.AddDefaulted();
		}
		FSlot& Slot = Slots[Index];
		new (static_cast<void*>(Slot.Storage)) ElementType(MoveTempIfPossible(NewElement));
		Slot.bUsed = true;
		Slot.Hash = Hash;
		Slot.HashNext = INDEX_NONE;
		++NumUsed;
		if (NumUsed > Buckets.Num())
		{
			Rehash(NumUsed);
		}
		else
		{
			Link(Index);
		}
		return FSetElementId::FromInteger(Index);
	}

	/** Adds an array's elements. */
	template <typename ArrayAllocator>
	void Append(const TArray<ElementType, ArrayAllocator>& InElements)
	{
		for (const ElementType& Element : InElements)
		{
			Add(Element);
		}
	}

	/** Adds another set's elements. */
	void Append(const TSet& OtherSet)
	{
		for (const ElementType& Element : OtherSet)
		{
			Add(Element);
		}
	}

	/** Adds a list's elements. */
	void Append(std::initializer_list<ElementType> InElements)
	{
		for (const ElementType& Element : InElements)
		{
			Add(Element);
		}
	}

	/** Removes the element at a place. */
	void Remove(FSetElementId ElementId) { RemoveSlot(ElementId.AsInteger()); }

	/** Removes the elements of a key; yields how many. */
	int32 Remove(const KeyType& Key)
	{
		int32 NumRemoved = 0;
		const uint32 Hash = KeyFuncs::GetKeyHash(Key);
		for (int32 Index = FindIndex(Key, Hash); Index != INDEX_NONE;)
		{
			const bool bMore = KeyFuncs::bAllowDuplicateKeys != 0;
			// The key may live in the element that goes now.
			const int32 Next = bMore ? FindNextIndex(Key, Index) : (int32)INDEX_NONE;
			if (Next == INDEX_NONE)
			{
				RemoveSlot(Index);
				++NumRemoved;
				break;
			}
			const bool bKeyInside = (const void*)&Key >= (const void*)Slots[Index].Storage
				&& (const void*)&Key < (const void*)(Slots[Index].Storage + sizeof(ElementType));
			if (bKeyInside)
			{
				const KeyType KeyCopy = Key;
				return NumRemoved + Remove(KeyCopy);
			}
			RemoveSlot(Index);
			++NumRemoved;
			Index = Next;
		}
		return NumRemoved;
	}

	/** The place of a key's element, or an invalid one. */
	FSetElementId FindId(const KeyType& Key) const { return FSetElementId::FromInteger(FindIndex(Key, KeyFuncs::GetKeyHash(Key))); }

	/** A key's element, or null. */
	ElementType* Find(const KeyType& Key)
	{
		const int32 Index = FindIndex(Key, KeyFuncs::GetKeyHash(Key));
		return Index != INDEX_NONE ? &Slots[Index].Get() : nullptr;
	}

	/** A key's element, or null. */
	const ElementType* Find(const KeyType& Key) const { return const_cast<TSet*>(this)->Find(Key); }

	/** Whether there is an element with the key. */
	bool Contains(const KeyType& Key) const { return FindIndex(Key, KeyFuncs::GetKeyHash(Key)) != INDEX_NONE; }

	/** Calls a function for each element with the key, the last added first. */
	template <typename FuncType>
	void ForEachMatch(const KeyType& Key, FuncType Func) const
	{
		for (int32 Index = FindIndex(Key, KeyFuncs::GetKeyHash(Key)); Index != INDEX_NONE; Index = FindNextIndex(Key, Index))
		{
			Func(Slots[Index].Get());
		}
	}

	/** Whether there is an element at a place. */
	bool IsValidId(FSetElementId Id) const { return Slots.IsValidIndex(Id.AsInteger()) && Slots[Id.AsInteger()].bUsed; }

	/** The element at a place. */
	ElementType& operator[](FSetElementId Id)
	{
		check(IsValidId(Id));
		return Slots[Id.AsInteger()].Get();
	}

	/** The element at a place. */
	const ElementType& operator[](FSetElementId Id) const
	{
		check(IsValidId(Id));
		return Slots[Id.AsInteger()].Get();
	}

	/** Copies of all elements. */
	TArray<ElementType> Array() const
	{
		TArray<ElementType> Result;
		Result.Reserve(Num());
		for (const ElementType& Element : *this)
		{
			Result.Add(Element);
		}
		return Result;
	}

	/** Orders the elements by a predicate. */
	template <class PREDICATE_CLASS>
	void Sort(const PREDICATE_CLASS& Predicate)
	{
		SortWith(Predicate, false);
	}

	/** Orders the elements by a predicate; equal ones keep their order. */
	template <class PREDICATE_CLASS>
	void StableSort(const PREDICATE_CLASS& Predicate)
	{
		SortWith(Predicate, true);
	}

	/** The elements that both have. */
	TSet Intersect(const TSet& OtherSet) const
	{
		TSet Result;
		for (const ElementType& Element : *this)
		{
			if (OtherSet.Contains(KeyFuncs::GetSetKey(Element)))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	/** The elements that either has. */
	TSet Union(const TSet& OtherSet) const
	{
		TSet Result(*this);
		Result.Append(OtherSet);
		return Result;
	}

	/** The elements that the other has not. */
	TSet Difference(const TSet& OtherSet) const
	{
		TSet Result;
		for (const ElementType& Element : *this)
		{
			if (!OtherSet.Contains(KeyFuncs::GetSetKey(Element)))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	/** An iterator that may remove. */
	TIterator CreateIterator() { return TIterator(*this, 0); }

	/** An iterator. */
	TConstIterator CreateConstIterator() const { return TConstIterator(*this, 0); }

	/** Start of a ranged-for loop. */
	TRangedForIterator begin() { return TRangedForIterator(*this, 0); }

	/** Start of a ranged-for loop. */
	TRangedForConstIterator begin() const { return TRangedForConstIterator(*this, 0); }

	/** End of a ranged-for loop. */
	TRangedForIterator end() { return TRangedForIterator(*this, Slots.Num()); }

	/** End of a ranged-for loop. */
	TRangedForConstIterator end() const { return TRangedForConstIterator(*this, Slots.Num()); }

private:
	int32 FindIndex(const KeyType& Key, uint32 Hash) const
	{
		if (Buckets.Num() == 0)
		{
			return INDEX_NONE;
		}
		return FindFrom(Key, Hash, Buckets[(int32)(Hash & (uint32)(Buckets.Num() - 1))]);
	}

	int32 FindNextIndex(const KeyType& Key, int32 Index) const { return FindFrom(Key, Slots[Index].Hash, Slots[Index].HashNext); }

	int32 FindFrom(const KeyType& Key, uint32 Hash, int32 Index) const
	{
		for (; Index != INDEX_NONE; Index = Slots[Index].HashNext)
		{
			if (Slots[Index].Hash == Hash && KeyFuncs::Matches(KeyFuncs::GetSetKey(Slots[Index].Get()), Key))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	void Link(int32 Index)
	{
		int32& Bucket = Buckets[(int32)(Slots[Index].Hash & (uint32)(Buckets.Num() - 1))];
		Slots[Index].HashNext = Bucket;
		Bucket = Index;
	}

	void Rehash(int32 NumElements)
	{
		int32 NumBuckets = 8;
		while (NumBuckets < NumElements)
		{
			NumBuckets *= 2;
		}
		Buckets.Init(INDEX_NONE, NumBuckets);
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			if (Slots[Index].bUsed)
			{
				Link(Index);
			}
		}
	}

	void RemoveSlot(int32 Index)
	{
		check(Slots.IsValidIndex(Index) && Slots[Index].bUsed);
		int32* Next = &Buckets[(int32)(Slots[Index].Hash & (uint32)(Buckets.Num() - 1))];
		while (*Next != Index)
		{
			Next = &Slots[*Next].HashNext;
		}
		*Next = Slots[Index].HashNext;
		Slots[Index].HashNext = FirstFree;
		FirstFree = Index;
		--NumUsed;
		Slots[Index].Clear();
	}

	template <class PREDICATE_CLASS>
	void SortWith(const PREDICATE_CLASS& Predicate, bool bStable)
	{
		TArray<ElementType> Elements;
		Elements.Reserve(NumUsed);
		for (FSlot& Slot : Slots)
		{
			if (Slot.bUsed)
			{
				Elements.Emplace(MoveTempIfPossible(Slot.Get()));
			}
		}
		if (bStable)
		{
			Elements.StableSort(Predicate);
		}
		else
		{
			Elements.Sort(Predicate);
		}
		Empty(Elements.Num());
		for (ElementType& Element : Elements)
		{
			Emplace(MoveTempIfPossible(Element));
		}
	}

	TArray<FSlot> Slots;
	TArray<int32> Buckets;
	int32 FirstFree = INDEX_NONE;
	int32 NumUsed = 0;
};
