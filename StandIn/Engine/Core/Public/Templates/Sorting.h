// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Templates/Less.h"

// Sorting of plain ranges. Sort is not stable, StableSort is. Predicates of pointer arrays get references, as in the engine.

/** Hands a predicate the objects that pointers point at. */
template <typename T, class PREDICATE_CLASS>
struct TDereferenceWrapper
{
	/** Wraps a predicate. */
	explicit TDereferenceWrapper(const PREDICATE_CLASS& InPredicate)
		: Predicate(InPredicate)
	{}

	/** Compares values as they are. */
	bool operator()(const T& A, const T& B) const { return Predicate(A, B); }

	const PREDICATE_CLASS& Predicate;
};

template <typename T, class PREDICATE_CLASS>
struct TDereferenceWrapper<T*, PREDICATE_CLASS>
{
	/** Wraps a predicate. */
	explicit TDereferenceWrapper(const PREDICATE_CLASS& InPredicate)
		: Predicate(InPredicate)
	{}

	/** Compares what the pointers point at. */
	bool operator()(T* A, T* B) const { return Predicate(*A, *B); }

	const PREDICATE_CLASS& Predicate;
};

namespace StandIn
{
template <typename T, typename PredicateType>
void SiftDown(T* First, int32 Root, int32 Num, const PredicateType& Predicate)
{
	for (int32 Child = 2 * Root + 1; Child < Num; Root = Child, Child = 2 * Root + 1)
	{
		if (Child + 1 < Num && Predicate(First[Child], First[Child + 1]))
		{
			++Child;
		}
		if (!Predicate(First[Root], First[Child]))
		{
			return;
		}
		Swap(First[Root], First[Child]);
	}
}

template <typename T, typename PredicateType>
void HeapSort(T* First, int32 Num, const PredicateType& Predicate)
{
	for (int32 Root = Num / 2 - 1; Root >= 0; --Root)
	{
		SiftDown(First, Root, Num, Predicate);
	}
	for (int32 Last = Num - 1; Last > 0; --Last)
	{
		Swap(First[0], First[Last]);
		SiftDown(First, 0, Last, Predicate);
	}
}

template <typename T>
void ReverseRange(T* First, int32 Num)
{
	for (int32 Index = 0; Index < Num / 2; ++Index)
	{
		Swap(First[Index], First[Num - 1 - Index]);
	}
}

/** Merges two sorted neighbours in place, by rotation. */
template <typename T, typename PredicateType>
void MergeInPlace(T* First, int32 Middle, int32 Num, const PredicateType& Predicate)
{
	if (Middle == 0 || Middle == Num || !Predicate(First[Middle], First[Middle - 1]))
	{
		return;
	}
	if (Num == 2)
	{
		Swap(First[0], First[1]);
		return;
	}
	int32 CutA;
	int32 CutB;
	if (Middle > Num - Middle)
	{
		CutA = Middle / 2;
		for (CutB = Middle; CutB < Num && Predicate(First[CutB], First[CutA]); ++CutB)
		{}
	}
	else
	{
		CutB = Middle + (Num - Middle) / 2;
		for (CutA = 0; CutA < Middle && !Predicate(First[CutB], First[CutA]); ++CutA)
		{}
	}
	ReverseRange(First + CutA, Middle - CutA);
	ReverseRange(First + Middle, CutB - Middle);
	ReverseRange(First + CutA, CutB - CutA);
	const int32 NewMiddle = CutA + CutB - Middle;
	MergeInPlace(First, CutA, NewMiddle, Predicate);
	MergeInPlace(First + NewMiddle, CutB - NewMiddle, Num - NewMiddle, Predicate);
}

template <typename T, typename PredicateType>
void MergeSort(T* First, int32 Num, const PredicateType& Predicate)
{
	if (Num > 1)
	{
		const int32 Half = Num / 2;
		MergeSort(First, Half, Predicate);
		MergeSort(First + Half, Num - Half, Predicate);
		MergeInPlace(First, Half, Num, Predicate);
	}
}
}

/** Sorts Num values; equal ones may change places. */
template <class T, class PREDICATE_CLASS>
void Sort(T* First, const int32 Num, const PREDICATE_CLASS& Predicate)
{
	StandIn::HeapSort(First, Num, TDereferenceWrapper<T, PREDICATE_CLASS>(Predicate));
}

/** Sorts Num values by <. */
template <class T>
void Sort(T* First, const int32 Num)
{
	Sort(First, Num, TLess<>());
}

/** Sorts Num values; equal ones keep their order. */
template <class T, class PREDICATE_CLASS>
void StableSort(T* First, const int32 Num, const PREDICATE_CLASS& Predicate)
{
	StandIn::MergeSort(First, Num, TDereferenceWrapper<T, PREDICATE_CLASS>(Predicate));
}

/** Sorts Num values by <; equal ones keep their order. */
template <class T>
void StableSort(T* First, const int32 Num)
{
	StableSort(First, Num, TLess<>());
}
