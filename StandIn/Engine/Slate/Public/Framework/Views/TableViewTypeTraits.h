// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// What lists can hold: shared pointers and pointers to objects.

/** What a list can hold. Other types do not compile. */
template <typename T, typename = void>
struct TListTypeTraits;

/** Shared pointers. */
template <typename T>
struct TListTypeTraits<TSharedPtr<T>>
{
	typedef TSharedPtr<T> NullableType;

	/** Says whether an item is one. */
	static bool IsPtrValid(const TSharedPtr<T>& InPtr) { return InPtr.IsValid(); }

	/** Returns no item. */
	static NullableType MakeNullPtr() { return TSharedPtr<T>(); }
};

/** Pointers; who owns the objects keeps them alive. */
template <typename T>
struct TListTypeTraits<T*>
{
	typedef T* NullableType;

	/** Says whether an item is one. */
	static bool IsPtrValid(T* InPtr) { return InPtr != nullptr; }

	/** Returns no item. */
	static NullableType MakeNullPtr() { return nullptr; }
};
