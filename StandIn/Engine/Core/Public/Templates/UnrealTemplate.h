// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "Templates/UnrealTypeTraits.h"
#include "Templates/TypeHash.h"
#include <new>

// Moving, forwarding, swapping and scope guards.

/** Casts to an rvalue; refuses rvalues and const objects. */
template <typename T>
constexpr typename TRemoveReference<T>::Type&& MoveTemp(T&& Obj)
{
	typedef typename TRemoveReference<T>::Type CastType;
	static_assert(TIsLValueReferenceType<T>::Value, "MoveTemp called on an rvalue");
	static_assert(!TIsSame<CastType&, const CastType&>::Value, "MoveTemp called on a const object");
	return (CastType &&) Obj;
}

/** Casts to an rvalue whatever the argument is. */
template <typename T>
constexpr typename TRemoveReference<T>::Type&& MoveTempIfPossible(T&& Obj)
{
	typedef typename TRemoveReference<T>::Type CastType;
	return (CastType &&) Obj;
}

/** Makes a copy of an lvalue, for functions that take rvalues. */
template <typename T>
T CopyTemp(T& Val)
{
	return const_cast<const T&>(Val);
}

/** Makes a copy of a const lvalue. */
template <typename T>
T CopyTemp(const T& Val)
{
	return Val;
}

/** Passes an rvalue on. */
template <typename T>
T&& CopyTemp(T&& Val)
{
	return static_cast<T&&>(Val);
}

/** Passes an argument on as what it came as. */
template <typename T>
constexpr T&& Forward(typename TRemoveReference<T>::Type& Obj)
{
	return (T &&) Obj;
}

/** Passes an rvalue argument on. */
template <typename T>
constexpr T&& Forward(typename TRemoveReference<T>::Type&& Obj)
{
	return (T &&) Obj;
}

/** Exchanges two values. */
template <typename T>
void Swap(T& A, T& B)
{
	T Temp = MoveTemp(A);
	A = MoveTemp(B);
	B = MoveTemp(Temp);
}

/** Exchanges two values; older name. */
template <typename T>
void Exchange(T& A, T& B)
{
	Swap(A, B);
}

/** A value of a type, for unevaluated expressions only. */
template <typename T>
T&& DeclVal();

/** Converts implicitly to T. */
template <typename T>
T ImplicitConv(typename TDecay<T>::Type Obj)
{
	return Obj;
}

namespace StandIn
{
template <typename T, uint32 N>
char (&ArrayCountHelper(const T (&)[N]))[N];
}

/** Number of elements of a C array. */
#define UE_ARRAY_COUNT(array) (sizeof(StandIn::ArrayCountHelper(array)))

/** Base of classes that cannot be copied. */
class FNoncopyable
{
protected:
	FNoncopyable() {}
	~FNoncopyable() {}

private:
	FNoncopyable(const FNoncopyable&) = delete;
	FNoncopyable& operator=(const FNoncopyable&) = delete;
};

/** Sets a variable to a value and puts the old one back at the end of the scope. */
template <typename RefType, typename AssignedType = RefType>
struct TGuardValue : private FNoncopyable
{
	/** Remembers the variable's value and sets the new one. */
	TGuardValue(RefType& ReferenceValue, const AssignedType& NewValue)
		: RefValue(ReferenceValue)
		, OldValue(ReferenceValue)
	{
		RefValue = NewValue;
	}

	~TGuardValue() { RefValue = OldValue; }

	/** The remembered value. */
	const AssignedType& operator*() const { return OldValue; }

private:
	RefType& RefValue;
	AssignedType OldValue;
};

/** Adds one to a counter for the length of a scope. */
template <typename Type>
struct TScopeCounter : private FNoncopyable
{
	/** Adds one to the counter. */
	explicit TScopeCounter(Type& ReferenceValue)
		: RefValue(ReferenceValue)
	{
		++RefValue;
	}

	~TScopeCounter() { --RefValue; }

private:
	Type& RefValue;
};

/** A pair for sorting and for lists. */
template <typename KeyType, typename ValueType>
struct TKeyValuePair
{
	/** Makes a pair. */
	TKeyValuePair(const KeyType& InKey, const ValueType& InValue)
		: Key(InKey)
		, Value(InValue)
	{}

	/** Makes a pair with an unset value. */
	explicit TKeyValuePair(const KeyType& InKey)
		: Key(InKey)
	{}

	TKeyValuePair() {}

	/** Whether the keys are equal. */
	bool operator==(const TKeyValuePair& Other) const { return Key == Other.Key; }

	/** Whether the keys differ. */
	bool operator!=(const TKeyValuePair& Other) const { return Key != Other.Key; }

	/** Orders by key. */
	bool operator<(const TKeyValuePair& Other) const { return Key < Other.Key; }

	KeyType Key;
	ValueType Value;
};

/** Raises a number to a multiple of Alignment, a power of two. */
template <typename T>
constexpr T Align(T Val, uint64 Alignment)
{
	return (T)(((uint64)Val + Alignment - 1) & ~(Alignment - 1));
}
