// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/Array.h"

// A view of elements that something else owns, checked like an array.

/** Points at a row of elements without owning them. */
template <typename InElementType>
class TArrayView
{
public:
	typedef InElementType ElementType;
	typedef int32 SizeType;

	TArrayView() {}

	/** Views InCount elements. */
	TArrayView(ElementType* InData, SizeType InCount)
		: DataPtr(InData)
		, ArrayNum(InCount)
	{
		check(ArrayNum >= 0);
	}

	/** Views an array. */
	template <typename OtherElementType, typename Allocator,
		typename = typename TEnableIf<std::is_convertible<OtherElementType (*)[], ElementType (*)[]>::value>::Type>
	TArrayView(TArray<OtherElementType, Allocator>& Other)
		: DataPtr(Other.GetData())
		, ArrayNum(Other.Num())
	{}

	/** Views a const array. */
	template <typename OtherElementType, typename Allocator,
		typename = typename TEnableIf<std::is_convertible<const OtherElementType (*)[], ElementType (*)[]>::value>::Type>
	TArrayView(const TArray<OtherElementType, Allocator>& Other)
		: DataPtr(Other.GetData())
		, ArrayNum(Other.Num())
	{}

	/** Views what another view views. */
	template <typename OtherElementType,
		typename = typename TEnableIf<std::is_convertible<OtherElementType (*)[], ElementType (*)[]>::value>::Type>
	TArrayView(const TArrayView<OtherElementType>& Other)
		: DataPtr(Other.GetData())
		, ArrayNum(Other.Num())
	{}

	/** Views a list, which must outlive the view. */
	TArrayView(std::initializer_list<typename TRemoveConst<ElementType>::Type> List)
		: DataPtr(List.begin())
		, ArrayNum((SizeType)List.size())
	{}

	/** Views a C array. */
	template <SIZE_T Size>
	TArrayView(ElementType (&Other)[Size])
		: DataPtr(Other)
		, ArrayNum((SizeType)Size)
	{}

	/** The first element's address. */
	ElementType* GetData() const { return DataPtr; }

	/** How many elements there are. */
	SizeType Num() const { return ArrayNum; }

	/** Whether there is an element at the index. */
	bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < ArrayNum; }

	/** The element at an index, checked. */
	ElementType& operator[](SizeType Index) const
	{
		checkf((Index >= 0) & (Index < ArrayNum), TEXT("Array index out of bounds: %i from an array of size %i"), Index, ArrayNum);
		return DataPtr[Index];
	}

	/** The element IndexFromTheEnd before the last, checked. */
	ElementType& Last(SizeType IndexFromTheEnd = 0) const { return (*this)[ArrayNum - IndexFromTheEnd - 1]; }

	/** A view of InNum elements from Index. */
	TArrayView Slice(SizeType Index, SizeType InNum) const
	{
		check((Index >= 0) & (InNum >= 0) & (Index + InNum <= ArrayNum));
		return TArrayView(DataPtr + Index, InNum);
	}

	/** First index of an item, or INDEX_NONE. */
	SizeType Find(const typename TRemoveConst<ElementType>::Type& Item) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (DataPtr[Index] == Item)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	/** Whether an element equals the item. */
	bool Contains(const typename TRemoveConst<ElementType>::Type& Item) const { return Find(Item) != INDEX_NONE; }

	/** Start of a ranged-for loop. */
	ElementType* begin() const { return DataPtr; }

	/** End of a ranged-for loop. */
	ElementType* end() const { return DataPtr + ArrayNum; }

private:
	ElementType* DataPtr = nullptr;
	SizeType ArrayNum = 0;
};

/** A view of an array. */
template <typename ElementType, typename Allocator>
TArrayView<ElementType> MakeArrayView(TArray<ElementType, Allocator>& Other)
{
	return TArrayView<ElementType>(Other);
}

/** A view of a const array. */
template <typename ElementType, typename Allocator>
TArrayView<const ElementType> MakeArrayView(const TArray<ElementType, Allocator>& Other)
{
	return TArrayView<const ElementType>(Other);
}

/** A view of Size elements. */
template <typename ElementType>
TArrayView<ElementType> MakeArrayView(ElementType* Pointer, int32 Size)
{
	return TArrayView<ElementType>(Pointer, Size);
}
