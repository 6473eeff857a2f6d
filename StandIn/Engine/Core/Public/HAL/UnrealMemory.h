// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include <cstring>
#include <type_traits>

// Raw memory. Allocation is the C library's; running out of memory is fatal. There are no allocation statistics and no pools.

enum
{
	DEFAULT_ALIGNMENT = 0
};

/** Raw memory functions; sizes in bytes. */
struct CORE_API FMemory
{
	/** Allocates Count bytes; alignments above 16 are refused. */
	static void* Malloc(SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);

	/** Changes an allocation's size and keeps its bytes; null allocates, a count of 0 frees and yields null. */
	static void* Realloc(void* Original, SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);

	/** Frees an allocation; null is allowed. */
	static void Free(void* Original);

	/** Copies Count bytes between areas that do not overlap. */
	static void* Memcpy(void* Dest, const void* Src, SIZE_T Count) { return Count != 0 ? std::memcpy(Dest, Src, Count) : Dest; }

	/** Copies one object's bytes over another of the same type. */
	template <class T>
	static void Memcpy(T& Dest, const T& Src)
	{
		static_assert(!std::is_pointer<T>::value, "For pointers use the three parameters function");
		Memcpy(static_cast<void*>(&Dest), static_cast<const void*>(&Src), sizeof(T));
	}

	/** Copies Count bytes between areas that may overlap. */
	static void* Memmove(void* Dest, const void* Src, SIZE_T Count) { return Count != 0 ? std::memmove(Dest, Src, Count) : Dest; }

	/** Compares Count bytes; negative, zero or positive. */
	static int32 Memcmp(const void* Buf1, const void* Buf2, SIZE_T Count) { return Count != 0 ? std::memcmp(Buf1, Buf2, Count) : 0; }

	/** Sets Count bytes to Char. */
	static void* Memset(void* Dest, uint8 Char, SIZE_T Count) { return Count != 0 ? std::memset(Dest, Char, Count) : Dest; }

	/** Sets one object's bytes to ValueToSet. */
	template <class T>
	static void Memset(T& Src, uint8 ValueToSet)
	{
		static_assert(!std::is_pointer<T>::value, "For pointers use the three parameters function");
		Memset(static_cast<void*>(&Src), ValueToSet, sizeof(T));
	}

	/** Sets Count bytes to zero. */
	static void* Memzero(void* Dest, SIZE_T Count) { return Memset(Dest, 0, Count); }

	/** Sets one object's bytes to zero. */
	template <class T>
	static void Memzero(T& Src)
	{
		static_assert(!std::is_pointer<T>::value, "For pointers use the two parameters function");
		Memset(static_cast<void*>(&Src), 0, sizeof(T));
	}

	/** Exchanges Count bytes of two areas that do not overlap. */
	static void Memswap(void* Ptr1, void* Ptr2, SIZE_T Count);
};
