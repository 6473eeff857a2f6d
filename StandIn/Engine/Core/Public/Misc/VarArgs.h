// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "HAL/Platform.h"
#include <type_traits>

// What may go through the "..." of a formatting function.

/** Value tells whether a type may be an argument of Printf, checkf or UE_LOG: numbers, enumerators and pointers, never class objects. */
template <typename T>
struct TIsValidVariadicFunctionArg
{
	typedef typename std::decay<T>::type DecayedType;
	enum
	{
		Value = std::is_arithmetic<DecayedType>::value || std::is_enum<DecayedType>::value || std::is_pointer<DecayedType>::value
			|| std::is_same < DecayedType,
		std::nullptr_t > ::value
	};
};

/** Value tells whether all the types may be formatting arguments. */
template <typename... Types>
struct TAreValidVariadicFunctionArgs
{
	enum
	{
		Value = 1
	};
};

template <typename First, typename... Rest>
struct TAreValidVariadicFunctionArgs<First, Rest...>
{
	enum
	{
		Value = TIsValidVariadicFunctionArg<First>::Value && TAreValidVariadicFunctionArgs<Rest...>::Value
	};
};
