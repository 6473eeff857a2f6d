// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Templates/UnrealTemplate.h"

// Order predicates.

/** Compares with <; a pointer is compared by what it points at when used through TDereferenceWrapper. */
template <typename T = void>
struct TLess
{
	/** Whether A comes before B. */
	bool operator()(const T& A, const T& B) const { return A < B; }
};

template <>
struct TLess<void>
{
	/** Whether A comes before B. */
	template <typename TypeA, typename TypeB>
	bool operator()(const TypeA& A, const TypeB& B) const
	{
		return A < B;
	}
};

/** Compares with < the other way round. */
template <typename T = void>
struct TGreater
{
	/** Whether A comes after B. */
	bool operator()(const T& A, const T& B) const { return B < A; }
};

template <>
struct TGreater<void>
{
	/** Whether A comes after B. */
	template <typename TypeA, typename TypeB>
	bool operator()(const TypeA& A, const TypeB& B) const
	{
		return B < A;
	}
};
