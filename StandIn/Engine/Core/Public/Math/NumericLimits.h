// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "HAL/Platform.h"
#include <limits>

// Smallest and largest values of the base types, as macros and as TNumericLimits.

#define MIN_uint8 ((uint8)0)
#define MIN_uint16 ((uint16)0)
#define MIN_uint32 ((uint32)0)
#define MIN_uint64 ((uint64)0)
#define MIN_int8 ((int8)-128)
#define MIN_int16 ((int16)-32768)
#define MIN_int32 ((int32)0x80000000)
#define MIN_int64 ((int64)0x8000000000000000)
#define MAX_uint8 ((uint8)0xff)
#define MAX_uint16 ((uint16)0xffff)
#define MAX_uint32 ((uint32)0xffffffff)
#define MAX_uint64 ((uint64)0xffffffffffffffff)
#define MAX_int8 ((int8)0x7f)
#define MAX_int16 ((int16)0x7fff)
#define MAX_int32 ((int32)0x7fffffff)
#define MAX_int64 ((int64)0x7fffffffffffffff)
#define MIN_flt (1.175494351e-38F)
#define MAX_flt (3.402823466e+38F)
#define MIN_dbl (2.2250738585072014e-308)
#define MAX_dbl (1.7976931348623158e+308)

/** The limits of a numeric type; Min of a floating type is its smallest positive normal value. */
template <typename NumericType>
struct TNumericLimits
{
	typedef NumericType NumericType_;

	/** Smallest value (floating types: smallest positive). */
	static constexpr NumericType Min() { return std::numeric_limits<NumericType>::min(); }

	/** Largest value. */
	static constexpr NumericType Max() { return std::numeric_limits<NumericType>::max(); }

	/** Most negative value. */
	static constexpr NumericType Lowest() { return std::numeric_limits<NumericType>::lowest(); }
};
