// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/ContainerAllocationPolicies.h"
#include "Containers/ArrayIterators.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Sorting.h"
#include <initializer_list>

// The growing array. Indices are checked with the engine's texts; RemoveAt with a bad index is checked here too (the engine does so in
// Debug only). Heap functions, serialisation and bulk views are left out. IsEmpty is a later engine's and is left out.

/** An array that grows; the index type is int32. */
template <typename InElementType, typename InAllocator>
class TArray
{
	template <typename OtherElementType, typename OtherAllocator>
	friend class TArray;

public:
	typedef int32 SizeType;
	typedef InElementType ElementType;
	typedef InAllocator Allocator;
	typedef TIndexedContainerIterator<TArray, ElementType, SizeType> TIterator;
	typedef TIndexedContainerIterator<const TArray, const ElementType, SizeType> TConstIterator;
	typedef TCheckedPointerIterator<ElementType, SizeType> RangedForIteratorType;
	typedef TCheckedPointerIterator<const ElementType, SizeType> RangedForConstIteratorType;

	TArray()
		: ArrayNum(0)
		, ArrayMax(AllocatorType::GetInitialCapacity())
	{}

	/** Copies Count elements from a plain array. */
	TArray(const ElementType* Ptr, SizeType Count)
		: TArray()
	{
		check(Ptr != nullptr || Count == 0);
		Append(Ptr, Count);
	}

	TArray(std::initializer_list<ElementType> InitList)
		: TArray()
	{
		Append(InitList.begin(), (SizeType)InitList.size());
	}

	/** Copies an array of another element or allocator type. */
	template <typename OtherElementType, typename OtherAllocator>
	explicit TArray(const TArray<OtherElementType, OtherAllocator>& Other)
		: TArray()
	{
		Append(Other);
	}

	TArray(const TArray& Other)
		: TArray()
	{
		Append(Other.GetData(), Other.Num());
	}

	TArray(TArray&& Other)
		: TArray()
	{
		TakeOver(Other);
	}

	TArray& operator=(std::initializer_list<ElementType> InitList)
	{
		Empty((SizeType)InitList.size());
		Append(InitList.begin(), (SizeType)InitList.size());
		return *this;
	}

	/** Copies an array with another allocator. */
	template <typename OtherAllocator>
	TArray& operator=(const TArray<ElementType, OtherAllocator>& Other)
	{
		Reset(Other.Num());
		Append(Other.GetData(), Other.Num());
		return *this;
	}

	TArray& operator=(const TArray& Other)
	{
		if (this != &Other)
		{
			Reset(Other.Num());
			Append(Other.GetData(), Other.Num());
		}
		return *this;
	}

	TArray& operator=(TArray&& Other)
	{
		if (this != &Other)
		{
			TakeOver(Other);
		}
		return *this;
	}

	~TArray() { DestructItems(GetData(), ArrayNum); }

	/** The first element's address. */
	ElementType* GetData() { return AllocatorInstance.GetAllocation(); }

	/** The first element's address. */
	const ElementType* GetData() const { return AllocatorInstance.GetAllocation(); }

	/** Bytes an element takes. */
	uint32 GetTypeSize() const { return sizeof(ElementType); }

	/** Bytes allocated. */
	SIZE_T GetAllocatedSize() const { return sizeof(ElementType) * (SIZE_T)ArrayMax; }

	/** How many more elements fit without allocating. */
	SizeType GetSlack() const { return ArrayMax - ArrayNum; }

	/** Fatal unless the array is consistent. */
	void CheckInvariants() const { checkSlow((ArrayNum >= 0) & (ArrayMax >= ArrayNum)); }

	/** Fatal if the index is not that of an element. */
	void RangeCheck(SizeType Index) const
	{
		checkf((Index >= 0) & (Index < ArrayNum), TEXT("Array index out of bounds: %i from an array of size %i"), Index, ArrayNum);
	}

	/** Whether there is an element at the index. */
	bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < ArrayNum; }

	/** How many elements there are. */
	SizeType Num() const { return ArrayNum; }

	/** How many elements fit without allocating. */
	SizeType Max() const { return ArrayMax; }

	/** The element at an index, checked. */
	ElementType& operator[](SizeType Index)
	{
		RangeCheck(Index);
		return GetData()[Index];
	}

	/** The element at an index, checked. */
	const ElementType& operator[](SizeType Index) const
	{
		RangeCheck(Index);
		return GetData()[Index];
	}

	/** Removes the last element and yields it; fatal when empty. */
	ElementType Pop(bool bAllowShrinking = true)
	{
		RangeCheck(0);
		ElementType Result = MoveTempIfPossible(GetData()[ArrayNum - 1]);
		RemoveAt(ArrayNum - 1, 1, bAllowShrinking);
		return Result;
	}

	/** Adds at the end. */
	void Push(ElementType&& Item) { Add(MoveTempIfPossible(Item)); }

	/** Adds at the end. */
	void Push(const ElementType& Item) { Add(Item); }

	/** The last element; fatal when empty. */
	ElementType& Top() { return Last(); }

	/** The last element; fatal when empty. */
	const ElementType& Top() const { return Last(); }

	/** The element IndexFromTheEnd before the last, checked. */
	ElementType& Last(SizeType IndexFromTheEnd = 0)
	{
		RangeCheck(ArrayNum - IndexFromTheEnd - 1);
		return GetData()[ArrayNum - IndexFromTheEnd - 1];
	}

	/** The element IndexFromTheEnd before the last, checked. */
	const ElementType& Last(SizeType IndexFromTheEnd = 0) const
	{
		RangeCheck(ArrayNum - IndexFromTheEnd - 1);
		return GetData()[ArrayNum - IndexFromTheEnd - 1];
	}

	/** Gives back the memory that is not used. */
	void Shrink()
	{
		if (ArrayMax != ArrayNum)
		{
			ResizeTo(ArrayNum);
		}
	}

	/** Finds an item; yields whether it is there and its first index. */
	bool Find(const ElementType& Item, SizeType& OutIndex) const
	{
		OutIndex = Find(Item);
		return OutIndex != INDEX_NONE;
	}

	/** First index of an item, or INDEX_NONE. */
	SizeType Find(const ElementType& Item) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (GetData()[Index] == Item)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	/** Finds the last place of an item. */
	bool FindLast(const ElementType& Item, SizeType& OutIndex) const
	{
		OutIndex = FindLast(Item);
		return OutIndex != INDEX_NONE;
	}

	/** Last index of an item, or INDEX_NONE. */
	SizeType FindLast(const ElementType& Item) const
	{
		for (SizeType Index = ArrayNum - 1; Index >= 0; --Index)
		{
			if (GetData()[Index] == Item)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	/** Last index for which the predicate holds, or INDEX_NONE. */
	template <typename Predicate>
	SizeType FindLastByPredicate(Predicate Pred) const
	{
		for (SizeType Index = ArrayNum - 1; Index >= 0; --Index)
		{
			if (Invoke_(Pred, GetData()[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	/** First index whose element equals the key, or INDEX_NONE. */
	template <typename KeyType>
	SizeType IndexOfByKey(const KeyType& Key) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (GetData()[Index] == Key)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	/** First index for which the predicate holds, or INDEX_NONE. */
	template <typename Predicate>
	SizeType IndexOfByPredicate(Predicate Pred) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Invoke_(Pred, GetData()[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	/** First element equal to the key, or null. */
	template <typename KeyType>
	const ElementType* FindByKey(const KeyType& Key) const
	{
		const SizeType Index = IndexOfByKey(Key);
		return Index != INDEX_NONE ? GetData() + Index : nullptr;
	}

	/** First element equal to the key, or null. */
	template <typename KeyType>
	ElementType* FindByKey(const KeyType& Key)
	{
		const SizeType Index = IndexOfByKey(Key);
		return Index != INDEX_NONE ? GetData() + Index : nullptr;
	}

	/** First element for which the predicate holds, or null. */
	template <typename Predicate>
	const ElementType* FindByPredicate(Predicate Pred) const
	{
		const SizeType Index = IndexOfByPredicate(Pred);
		return Index != INDEX_NONE ? GetData() + Index : nullptr;
	}

	/** First element for which the predicate holds, or null. */
	template <typename Predicate>
	ElementType* FindByPredicate(Predicate Pred)
	{
		const SizeType Index = IndexOfByPredicate(Pred);
		return Index != INDEX_NONE ? GetData() + Index : nullptr;
	}

	/** Copies of the elements for which the predicate holds. */
	template <typename Predicate>
	TArray<ElementType> FilterByPredicate(Predicate Pred) const
	{
		TArray<ElementType> Result;
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Invoke_(Pred, GetData()[Index]))
			{
				Result.Add(GetData()[Index]);
			}
		}
		return Result;
	}

	/** Whether an element equals the item. */
	template <typename ComparisonType>
	bool Contains(const ComparisonType& Item) const
	{
		return IndexOfByKey(Item) != INDEX_NONE;
	}

	/** Whether the predicate holds for an element. */
	template <typename Predicate>
	bool ContainsByPredicate(Predicate Pred) const
	{
		return IndexOfByPredicate(Pred) != INDEX_NONE;
	}

	/** Whether both have equal elements in the same order. */
	bool operator==(const TArray& Other) const
	{
		if (ArrayNum != Other.ArrayNum)
		{
			return false;
		}
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (!(GetData()[Index] == Other.GetData()[Index]))
			{
				return false;
			}
		}
		return true;
	}

	/** The opposite of ==. */
	bool operator!=(const TArray& Other) const { return !(*this == Other); }

	/** Makes room for Count elements at the end without constructing them; yields the first new index. */
	SizeType AddUninitialized(SizeType Count = 1)
	{
		check(Count >= 0);
		const SizeType OldNum = ArrayNum;
		const int64 NewNum = (int64)OldNum + Count;
		checkf(NewNum <= MAX_int32, TEXT("Trying to resize TArray to an invalid size of %lld"), NewNum);
		if (NewNum > ArrayMax)
		{
			ResizeTo(StandIn::GrownCapacity((SizeType)NewNum, ArrayMax == AllocatorType::GetInitialCapacity() ? 0 : ArrayMax));
		}
		ArrayNum = (SizeType)NewNum;
		return OldNum;
	}

	/** Makes room for Count elements at an index without constructing them. */
	void InsertUninitialized(SizeType Index, SizeType Count = 1)
	{
		const SizeType OldNum = ArrayNum;
		checkf((Index >= 0) & (Index <= ArrayNum), TEXT("Array index out of bounds: %i from an array of size %i"), Index, ArrayNum);
		AddUninitialized(Count);
		MoveUp(GetData() + Index, OldNum - Index, Count);
	}

	/** Inserts zeroed memory at an index. */
	void InsertZeroed(SizeType Index, SizeType Count = 1)
	{
		InsertUninitialized(Index, Count);
		FMemory::Memzero(static_cast<void*>(GetData() + Index), sizeof(ElementType) * (SIZE_T)Count);
	}

	/** Inserts default elements at an index. */
	void InsertDefaulted(SizeType Index, SizeType Count = 1)
	{
		InsertUninitialized(Index, Count);
		ConstructDefault(GetData() + Index, Count);
	}

	/** Inserts a list at an index; yields the index. */
	SizeType Insert(std::initializer_list<ElementType> InitList, const SizeType InIndex)
	{
		return InsertRange(InitList.begin(), (SizeType)InitList.size(), InIndex);
	}

	/** Inserts another array's elements at an index; yields the index. */
	template <typename OtherAllocator>
	SizeType Insert(const TArray<ElementType, OtherAllocator>& Items, const SizeType InIndex)
	{
		check((const void*)this != (const void*)&Items);
		return InsertRange(Items.GetData(), Items.Num(), InIndex);
	}

	/** Inserts an element at an index; yields the index. */
	SizeType Insert(const ElementType& Item, SizeType Index)
	{
		CheckAddress(&Item);
		InsertUninitialized(Index, 1);
		new (static_cast<void*>(GetData() + Index)) ElementType(Item);
		return Index;
	}

	/** Inserts an element at an index; yields the index. */
	SizeType Insert(ElementType&& Item, SizeType Index)
	{
		CheckAddress(&Item);
		InsertUninitialized(Index, 1);
		new (static_cast<void*>(GetData() + Index)) ElementType(MoveTempIfPossible(Item));
		return Index;
	}

	/** Builds an element at an index. */
	template <typename... ArgsType>
	void EmplaceAt(SizeType Index, ArgsType&&... Args)
	{
		InsertUninitialized(Index, 1);
		new (static_cast<void*>(GetData() + Index)) ElementType(Forward<ArgsType>(Args)...);
	}

	/** Removes Count elements at an index; the later ones move up. */
	void RemoveAt(SizeType Index, SizeType Count = 1, bool bAllowShrinking = true)
	{
		if (Count == 0)
		{
			return;
		}
		CheckRemoval(Index, Count);
		DestructItems(GetData() + Index, Count);
		MoveDown(GetData() + Index, ArrayNum - Index - Count, Count);
		ArrayNum -= Count;
		if (bAllowShrinking)
		{
			ShrinkIfWasteful();
		}
	}

	/** Removes Count elements at an index; the last ones fill the hole. */
	void RemoveAtSwap(SizeType Index, SizeType Count = 1, bool bAllowShrinking = true)
	{
		if (Count == 0)
		{
			return;
		}
		CheckRemoval(Index, Count);
		DestructItems(GetData() + Index, Count);
		const SizeType NumAfter = ArrayNum - Index - Count;
		const SizeType NumToMove = NumAfter < Count ? NumAfter : Count;
		StandIn::RelocateItems(GetData() + Index, GetData() + ArrayNum - NumToMove, NumToMove);
		ArrayNum -= Count;
		if (bAllowShrinking)
		{
			ShrinkIfWasteful();
		}
	}

	/** Removes all elements, keeps the memory and makes room for NewSize. */
	void Reset(SizeType NewSize = 0)
	{
		if (NewSize <= ArrayMax)
		{
			DestructItems(GetData(), ArrayNum);
			ArrayNum = 0;
		}
		else
		{
			Empty(NewSize);
		}
	}

	/** Removes all elements and changes the memory to room for Slack. */
	void Empty(SizeType Slack = 0)
	{
		check(Slack >= 0);
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		if (ArrayMax != Slack)
		{
			ResizeTo(Slack);
		}
	}

	/** Cuts off or adds default elements. */
	void SetNum(SizeType NewNum, bool bAllowShrinking = true)
	{
		if (NewNum > Num())
		{
			AddDefaulted(NewNum - Num());
		}
		else
		{
			CutTo(NewNum, bAllowShrinking);
		}
	}

	/** Cuts off or adds zeroed elements. */
	void SetNumZeroed(SizeType NewNum, bool bAllowShrinking = true)
	{
		if (NewNum > Num())
		{
			AddZeroed(NewNum - Num());
		}
		else
		{
			CutTo(NewNum, bAllowShrinking);
		}
	}

	/** Cuts off or adds elements that are not constructed. */
	void SetNumUninitialized(SizeType NewNum, bool bAllowShrinking = true)
	{
		if (NewNum > Num())
		{
			AddUninitialized(NewNum - Num());
		}
		else
		{
			CutTo(NewNum, bAllowShrinking);
		}
	}

	/** Appends another array. */
	template <typename OtherElementType, typename OtherAllocator>
	void Append(const TArray<OtherElementType, OtherAllocator>& Source)
	{
		check((const void*)this != (const void*)&Source);
		Reserve(ArrayNum + Source.Num());
		for (SizeType Index = 0; Index < Source.Num(); ++Index)
		{
			Emplace(Source.GetData()[Index]);
		}
	}

	/** Appends another array's elements and empties it. */
	template <typename OtherAllocator>
	void Append(TArray<ElementType, OtherAllocator>&& Source)
	{
		check((const void*)this != (const void*)&Source);
		Reserve(ArrayNum + Source.Num());
		for (SizeType Index = 0; Index < Source.Num(); ++Index)
		{
			Emplace(MoveTempIfPossible(Source.GetData()[Index]));
		}
		Source.Empty();
	}

	/** Appends Count elements of a plain array. */
	void Append(const ElementType* Ptr, SizeType Count)
	{
		check(Ptr != nullptr || Count == 0);
		const SizeType Start = AddUninitialized(Count);
		CopyConstruct(GetData() + Start, Ptr, Count, std::is_trivially_copyable<ElementType>());
	}

	/** Appends a list. */
	void Append(std::initializer_list<ElementType> InitList) { Append(InitList.begin(), (SizeType)InitList.size()); }

	/** Appends another array's elements and empties it. */
	TArray& operator+=(TArray&& Other)
	{
		Append(MoveTemp(Other));
		return *this;
	}

	/** Appends another array. */
	TArray& operator+=(const TArray& Other)
	{
		Append(Other);
		return *this;
	}

	/** Appends a list. */
	TArray& operator+=(std::initializer_list<ElementType> InitList)
	{
		Append(InitList);
		return *this;
	}

	/** Builds an element at the end; yields its index. */
	template <typename... ArgsType>
	SizeType Emplace(ArgsType&&... Args)
	{
		const SizeType Index = AddUninitialized(1);
		new (static_cast<void*>(GetData() + Index)) ElementType(Forward<ArgsType>(Args)...);
		return Index;
	}

	/** Builds an element at the end; yields it. */
	template <typename... ArgsType>
	ElementType& Emplace_GetRef(ArgsType&&... Args)
	{
		const SizeType Index = Emplace(Forward<ArgsType>(Args)...);
		return GetData()[Index];
	}

	/** Adds at the end; an element of this very array is fatal; yields the index. */
	SizeType Add(ElementType&& Item)
	{
		CheckAddress(&Item);
		return Emplace(MoveTempIfPossible(Item));
	}

	/** Adds a copy at the end; an element of this very array is fatal; yields the index. */
	SizeType Add(const ElementType& Item)
	{
		CheckAddress(&Item);
		return Emplace(Item);
	}

	/** Adds at the end; yields the element. */
	ElementType& Add_GetRef(ElementType&& Item)
	{
		CheckAddress(&Item);
		return Emplace_GetRef(MoveTempIfPossible(Item));
	}

	/** Adds a copy at the end; yields the element. */
	ElementType& Add_GetRef(const ElementType& Item)
	{
		CheckAddress(&Item);
		return Emplace_GetRef(Item);
	}

	/** Adds zeroed memory; yields the first new index. */
	SizeType AddZeroed(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		FMemory::Memzero(static_cast<void*>(GetData() + Index), sizeof(ElementType) * (SIZE_T)Count);
		return Index;
	}

	/** Adds zeroed memory as one element; yields it. */
	ElementType& AddZeroed_GetRef()
	{
		const SizeType Index = AddZeroed(1);
		return GetData()[Index];
	}

	/** Adds default elements; yields the first new index. */
	SizeType AddDefaulted(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		ConstructDefault(GetData() + Index, Count);
		return Index;
	}

	/** Adds a default element; yields it. */
	ElementType& AddDefaulted_GetRef()
	{
		const SizeType Index = AddDefaulted(1);
		return GetData()[Index];
	}

	/** Adds an item unless an equal one is there; yields the index of it. */
	SizeType AddUnique(ElementType&& Item)
	{
		const SizeType Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(MoveTempIfPossible(Item));
	}

	/** Adds a copy unless an equal one is there; yields the index of it. */
	SizeType AddUnique(const ElementType& Item)
	{
		const SizeType Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(Item);
	}

	/** Makes room for Number elements. */
	void Reserve(SizeType Number)
	{
		checkSlow(Number >= 0);
		if (Number > ArrayMax)
		{
			ResizeTo(Number);
		}
	}

	/** Fills the array with copies of an item. */
	void Init(const ElementType& Element, SizeType Number)
	{
		Empty(Number);
		for (SizeType Index = 0; Index < Number; ++Index)
		{
			Emplace(Element);
		}
	}

	/** Removes the first equal element; yields how many were removed. */
	SizeType RemoveSingle(const ElementType& Item)
	{
		const SizeType Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAt(Index, 1, false);
		return 1;
	}

	/** Removes all equal elements; an element of this very array is fatal; yields how many were removed. */
	SizeType Remove(const ElementType& Item)
	{
		CheckAddress(&Item);
		return RemoveAll([&Item](const ElementType& Element) { return Element == Item; });
	}

	/** Removes the elements for which the predicate holds, keeping the order of the others; yields how many. */
	template <class PREDICATE_CLASS>
	SizeType RemoveAll(const PREDICATE_CLASS& Predicate)
	{
		SizeType WriteIndex = 0;
		const SizeType OldNum = ArrayNum;
		ElementType* Data = GetData();
		for (SizeType ReadIndex = 0; ReadIndex < OldNum; ++ReadIndex)
		{
			if (Predicate(Data[ReadIndex]))
			{
				DestructItems(Data + ReadIndex, 1);
			}
			else
			{
				if (WriteIndex != ReadIndex)
				{
					StandIn::RelocateItems(Data + WriteIndex, Data + ReadIndex, 1);
				}
				++WriteIndex;
			}
		}
		ArrayNum = WriteIndex;
		return OldNum - WriteIndex;
	}

	/** Removes the elements for which the predicate holds; the last ones fill the holes; yields how many. */
	template <class PREDICATE_CLASS>
	SizeType RemoveAllSwap(const PREDICATE_CLASS& Predicate, bool bAllowShrinking = true)
	{
		const SizeType OldNum = ArrayNum;
		for (SizeType Index = 0; Index < ArrayNum;)
		{
			if (Predicate(GetData()[Index]))
			{
				RemoveAtSwap(Index, 1, bAllowShrinking);
			}
			else
			{
				++Index;
			}
		}
		return OldNum - ArrayNum;
	}

	/** Removes the first equal element; the last one fills the hole; yields how many. */
	SizeType RemoveSingleSwap(const ElementType& Item, bool bAllowShrinking = true)
	{
		const SizeType Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAtSwap(Index, 1, bAllowShrinking);
		return 1;
	}

	/** Removes all equal elements; the last ones fill the holes; yields how many. */
	SizeType RemoveSwap(const ElementType& Item)
	{
		CheckAddress(&Item);
		return RemoveAllSwap([&Item](const ElementType& Element) { return Element == Item; });
	}

	/** Exchanges two elements without a check of the indices. */
	void SwapMemory(SizeType FirstIndexToSwap, SizeType SecondIndexToSwap) { Swap(FirstIndexToSwap, SecondIndexToSwap); }

	/** Exchanges two elements, checked. */
	void Swap(SizeType FirstIndexToSwap, SizeType SecondIndexToSwap)
	{
		check((FirstIndexToSwap >= 0) && (SecondIndexToSwap >= 0));
		check((ArrayNum > FirstIndexToSwap) && (ArrayNum > SecondIndexToSwap));
		if (FirstIndexToSwap != SecondIndexToSwap)
		{
			::Swap(GetData()[FirstIndexToSwap], GetData()[SecondIndexToSwap]);
		}
	}

	/** An iterator by index. */
	TIterator CreateIterator() { return TIterator(*this); }

	/** An iterator by index. */
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }

	/** Sorts by <; equal elements may change places; pointers are compared by what they point at. */
	void Sort() { ::Sort(GetData(), Num()); }

	/** Sorts by a predicate. */
	template <class PREDICATE_CLASS>
	void Sort(const PREDICATE_CLASS& Predicate)
	{
		::Sort(GetData(), Num(), Predicate);
	}

	/** Sorts by <; equal elements keep their order. */
	void StableSort() { ::StableSort(GetData(), Num()); }

	/** Sorts by a predicate; equal elements keep their order. */
	template <class PREDICATE_CLASS>
	void StableSort(const PREDICATE_CLASS& Predicate)
	{
		::StableSort(GetData(), Num(), Predicate);
	}

	/** Start of a ranged-for loop. */
	RangedForIteratorType begin() { return RangedForIteratorType(ArrayNum, GetData()); }

	/** Start of a ranged-for loop. */
	RangedForConstIteratorType begin() const { return RangedForConstIteratorType(ArrayNum, GetData()); }

	/** End of a ranged-for loop. */
	RangedForIteratorType end() { return RangedForIteratorType(ArrayNum, GetData() + Num()); }

	/** End of a ranged-for loop. */
	RangedForConstIteratorType end() const { return RangedForConstIteratorType(ArrayNum, GetData() + Num()); }

	/** Fatal if the address is that of an element of this array. */
	void CheckAddress(const ElementType* Addr) const
	{
		checkf(Addr < GetData() || Addr >= (GetData() + ArrayMax),
			TEXT("Attempting to use a container element (%p) which already comes from the container being modified (%p, ArrayMax: %d, "
				 "ArrayNum: %d, SizeofElement: %d)!"),
			(const void*)Addr, (const void*)GetData(), ArrayMax, ArrayNum, (int32)sizeof(ElementType));
	}

private:
	typedef typename Allocator::template ForElementType<ElementType> AllocatorType;

	template <typename Predicate>
	static bool Invoke_(Predicate& Pred, const ElementType& Element)
	{
		return InvokeImpl(Pred, Element);
	}

	template <typename Predicate>
	static auto InvokeImpl(Predicate& Pred, const ElementType& Element) -> decltype((bool)Pred(Element))
	{
		return (bool)Pred(Element);
	}

	template <typename ReturnType, typename ObjectType>
	static bool InvokeImpl(ReturnType (ObjectType::*& Func)() const, const ElementType& Element)
	{
		return (bool)(Element.*Func)();
	}

	static void DestructItems(ElementType* Element, SizeType Count)
	{
		if (!std::is_trivially_destructible<ElementType>::value)
		{
			for (; Count > 0; --Count, ++Element)
			{
				Element->~ElementType();
			}
		}
	}

	static void ConstructDefault(ElementType* Element, SizeType Count)
	{
		for (; Count > 0; --Count, ++Element)
		{
			new (static_cast<void*>(Element)) ElementType();
		}
	}

	static void CopyConstruct(ElementType* Dest, const ElementType* Source, SizeType Count, std::true_type)
	{
		FMemory::Memcpy(static_cast<void*>(Dest), static_cast<const void*>(Source), sizeof(ElementType) * (SIZE_T)Count);
	}

	static void CopyConstruct(ElementType* Dest, const ElementType* Source, SizeType Count, std::false_type)
	{
		for (; Count > 0; --Count, ++Dest, ++Source)
		{
			new (static_cast<void*>(Dest)) ElementType(*Source);
		}
	}

	static void MoveUp(ElementType* First, SizeType Count, SizeType Distance)
	{
		for (SizeType Index = Count - 1; Index >= 0 && Distance > 0; --Index)
		{
			StandIn::RelocateItems(First + Index + Distance, First + Index, 1);
		}
	}

	static void MoveDown(ElementType* Hole, SizeType Count, SizeType Distance)
	{
		for (SizeType Index = 0; Index < Count; ++Index)
		{
			StandIn::RelocateItems(Hole + Index, Hole + Index + Distance, 1);
		}
	}

	void CheckRemoval(SizeType Index, SizeType Count) const { check((Count >= 0) & (Index >= 0) & (Index + Count <= ArrayNum)); }

	void CutTo(SizeType NewNum, bool bAllowShrinking)
	{
		check(NewNum >= 0);
		if (NewNum < ArrayNum)
		{
			RemoveAt(NewNum, ArrayNum - NewNum, bAllowShrinking);
		}
	}

	SizeType InsertRange(const ElementType* Items, SizeType Count, SizeType Index)
	{
		InsertUninitialized(Index, Count);
		for (SizeType Offset = 0; Offset < Count; ++Offset)
		{
			new (static_cast<void*>(GetData() + Index + Offset)) ElementType(Items[Offset]);
		}
		return Index;
	}

	void ResizeTo(SizeType NewMax)
	{
		if (NewMax < AllocatorType::GetInitialCapacity())
		{
			NewMax = AllocatorType::GetInitialCapacity();
		}
		AllocatorInstance.ResizeAllocation(ArrayNum, NewMax);
		ArrayMax = NewMax;
	}

	void ShrinkIfWasteful()
	{
		const SizeType Slack = ArrayMax - ArrayNum;
		if (Slack > 64 && (int64)ArrayNum * 3 < (int64)ArrayMax * 2)
		{
			ResizeTo(ArrayNum);
		}
	}

	void TakeOver(TArray& Other)
	{
		DestructItems(GetData(), ArrayNum);
		const bool bTookMemory = AllocatorInstance.MoveToEmpty(Other.AllocatorInstance, Other.ArrayNum);
		ArrayNum = Other.ArrayNum;
		ArrayMax = bTookMemory ? Other.ArrayMax : AllocatorType::GetInitialCapacity();
		Other.ArrayNum = 0;
		Other.ArrayMax = AllocatorType::GetInitialCapacity();
	}

	AllocatorType AllocatorInstance;
	SizeType ArrayNum;
	SizeType ArrayMax;
};

/** Number of elements, for code that takes any range. */
template <typename ElementType, typename Allocator>
int32 GetNum(const TArray<ElementType, Allocator>& Container)
{
	return Container.Num();
}

/** Hash of all elements. */
template <typename ElementType, typename Allocator>
uint32 GetTypeHash(const TArray<ElementType, Allocator>& Array)
{
	uint32 Hash = 0;
	for (const ElementType& Element : Array)
	{
		Hash = HashCombine(Hash, GetTypeHash(Element));
	}
	return Hash;
}
