// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Templates/SharedPointer.h"

// Comparison and hashing of shared pointers, by address; a weak pointer to a gone object counts as null.

#define STANDIN_COMPARE_POINTERS(Left, Right, LeftAddress, RightAddress) \
	template <class TypeA, class TypeB, ESPMode Mode> \
	bool operator==(const Left<TypeA, Mode>& A, const Right<TypeB, Mode>& B) \
	{ \
		return LeftAddress == RightAddress; \
	} \
	template <class TypeA, class TypeB, ESPMode Mode> \
	bool operator!=(const Left<TypeA, Mode>& A, const Right<TypeB, Mode>& B) \
	{ \
		return LeftAddress != RightAddress; \
	}
STANDIN_COMPARE_POINTERS(TSharedRef, TSharedRef, &A.Get(), &B.Get())
STANDIN_COMPARE_POINTERS(TSharedPtr, TSharedPtr, A.Get(), B.Get())
STANDIN_COMPARE_POINTERS(TSharedRef, TSharedPtr, &A.Get(), B.Get())
STANDIN_COMPARE_POINTERS(TSharedPtr, TSharedRef, A.Get(), &B.Get())
STANDIN_COMPARE_POINTERS(TWeakPtr, TWeakPtr, A.Pin().Get(), B.Pin().Get())
STANDIN_COMPARE_POINTERS(TWeakPtr, TSharedRef, A.Pin().Get(), &B.Get())
STANDIN_COMPARE_POINTERS(TWeakPtr, TSharedPtr, A.Pin().Get(), B.Get())
STANDIN_COMPARE_POINTERS(TSharedRef, TWeakPtr, &A.Get(), B.Pin().Get())
STANDIN_COMPARE_POINTERS(TSharedPtr, TWeakPtr, A.Get(), B.Pin().Get())
#undef STANDIN_COMPARE_POINTERS

/** Whether the pointer is null. */
template <class ObjectType, ESPMode Mode>
bool operator==(const TSharedPtr<ObjectType, Mode>& Ptr, TYPE_OF_NULLPTR)
{
	return !Ptr.IsValid();
}

/** Whether the pointer is not null. */
template <class ObjectType, ESPMode Mode>
bool operator!=(const TSharedPtr<ObjectType, Mode>& Ptr, TYPE_OF_NULLPTR)
{
	return Ptr.IsValid();
}

/** Whether the object is gone. */
template <class ObjectType, ESPMode Mode>
bool operator==(const TWeakPtr<ObjectType, Mode>& Ptr, TYPE_OF_NULLPTR)
{
	return !Ptr.IsValid();
}

/** Whether the object lives. */
template <class ObjectType, ESPMode Mode>
bool operator!=(const TWeakPtr<ObjectType, Mode>& Ptr, TYPE_OF_NULLPTR)
{
	return Ptr.IsValid();
}

/** Hash of the object's address. */
template <class ObjectType, ESPMode Mode>
uint32 GetTypeHash(const TSharedRef<ObjectType, Mode>& Ref)
{
	return PointerHash(&Ref.Get());
}

/** Hash of the object's address. */
template <class ObjectType, ESPMode Mode>
uint32 GetTypeHash(const TSharedPtr<ObjectType, Mode>& Ptr)
{
	return PointerHash(Ptr.Get());
}

/** Hash of the address, alike before and after the object's end. */
template <class ObjectType, ESPMode Mode>
uint32 GetTypeHash(const TWeakPtr<ObjectType, Mode>& Ptr)
{
	return Ptr.GetWeakPtrTypeHash();
}
