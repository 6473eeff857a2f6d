// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Templates/EnableIf.h"
#include <type_traits>

// GetTypeHash for base types. The hash values are the stand-in's own.

/** Joins two hashes into one. */
inline uint32 HashCombine(uint32 A, uint32 C)
{
	const uint64 Mixed = ((uint64)A * 0x9e3779b97f4a7c15ull) ^ ((uint64)C + 0x7f4a7c15ull + ((uint64)A << 6));
	return (uint32)(Mixed ^ (Mixed >> 32));
}

/** Hash of an address, joined with C. */
inline uint32 PointerHash(const void* Key, uint32 C = 0)
{
	const uint64 Value = (uint64)(UPTRINT)Key >> 4;
	const uint32 Hash = (uint32)Value ^ (uint32)(Value >> 32);
	return C != 0 ? HashCombine(Hash, C) : Hash;
}

/** Hash of a number. */
inline uint32 GetTypeHash(const uint8 A)
{
	return A;
}
/** Hash of a number. */
inline uint32 GetTypeHash(const int8 A)
{
	return (uint32)A;
}
/** Hash of a number. */
inline uint32 GetTypeHash(const uint16 A)
{
	return A;
}
/** Hash of a number. */
inline uint32 GetTypeHash(const int16 A)
{
	return (uint32)A;
}
/** Hash of a number. */
inline uint32 GetTypeHash(const int32 A)
{
	return (uint32)A;
}
/** Hash of a number. */
inline uint32 GetTypeHash(const uint32 A)
{
	return A;
}
/** Hash of a number. */
inline uint32 GetTypeHash(const uint64 A)
{
	return (uint32)A + ((uint32)(A >> 32) * 23);
}
/** Hash of a number. */
inline uint32 GetTypeHash(const int64 A)
{
	return GetTypeHash((uint64)A);
}
/** Hash of a number. */
inline uint32 GetTypeHash(const long A)
{
	return GetTypeHash((uint64)A);
}
/** Hash of a number. */
inline uint32 GetTypeHash(const unsigned long A)
{
	return GetTypeHash((uint64)A);
}
/** Hash of a character. */
inline uint32 GetTypeHash(const ANSICHAR A)
{
	return (uint8)A;
}
/** Hash of a character. */
inline uint32 GetTypeHash(const TCHAR A)
{
	return (uint32)A;
}
/** Hash of a truth value. */
inline uint32 GetTypeHash(const bool A)
{
	return A ? 1u : 0u;
}

/** Hash of a number; both zeros hash alike. */
inline uint32 GetTypeHash(float Value)
{
	union
	{
		float Number;
		uint32 Bits;
	} Both;
	Both.Number = Value == 0.0f ? 0.0f : Value;
	return Both.Bits;
}

/** Hash of a number; both zeros hash alike. */
inline uint32 GetTypeHash(double Value)
{
	union
	{
		double Number;
		uint64 Bits;
	} Both;
	Both.Number = Value == 0.0 ? 0.0 : Value;
	return GetTypeHash(Both.Bits);
}

/** Hash of an address. */
inline uint32 GetTypeHash(const void* A)
{
	return PointerHash(A);
}
/** Hash of an address. */
inline uint32 GetTypeHash(void* A)
{
	return PointerHash(A);
}

/** Hash of an enumerator. */
template <typename EnumType>
inline typename TEnableIf<std::is_enum<EnumType>::value, uint32>::Type GetTypeHash(EnumType E)
{
	return GetTypeHash((typename std::underlying_type<EnumType>::type)E);
}
