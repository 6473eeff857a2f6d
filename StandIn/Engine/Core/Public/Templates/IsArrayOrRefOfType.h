// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include <cstddef>

// Recognises literals: arrays, or references to arrays, of one element type.

/** Value tells whether T is an array (or a reference to one) of ArrType, const or not. */
template <typename T, typename ArrType>
struct TIsArrayOrRefOfType
{
	enum
	{
		Value = false
	};
};

template <typename ArrType>
struct TIsArrayOrRefOfType<ArrType[], ArrType>
{
	enum
	{
		Value = true
	};
};

template <typename ArrType>
struct TIsArrayOrRefOfType<const ArrType[], ArrType>
{
	enum
	{
		Value = true
	};
};

template <typename ArrType, std::size_t N>
struct TIsArrayOrRefOfType<ArrType[N], ArrType>
{
	enum
	{
		Value = true
	};
};

template <typename ArrType, std::size_t N>
struct TIsArrayOrRefOfType<const ArrType[N], ArrType>
{
	enum
	{
		Value = true
	};
};

template <typename T, typename ArrType>
struct TIsArrayOrRefOfType<T&, ArrType> : TIsArrayOrRefOfType<T, ArrType>
{};
