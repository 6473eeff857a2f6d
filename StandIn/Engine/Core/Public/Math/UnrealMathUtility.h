// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTemplate.h"

#include <cmath>

// The part of FMath that an editor's user interface and cameras need. Left out: random numbers, vectors in registers, colour
// and geometry helpers.

#undef PI
#define PI (3.1415926535897932f)
#define SMALL_NUMBER (1.e-8f)
#define KINDA_SMALL_NUMBER (1.e-4f)
#define BIG_NUMBER (3.4e+38f)

/** Arithmetic on numbers. Angles are in radians unless a name says degrees. */
struct FMath
{
	template <class T>
	static constexpr T Abs(const T A)
	{
		return A >= static_cast<T>(0) ? A : -A;
	}
	template <class T>
	static constexpr T Sign(const T A)
	{
		return A > static_cast<T>(0) ? static_cast<T>(1) : (A < static_cast<T>(0) ? static_cast<T>(-1) : static_cast<T>(0));
	}
	template <class T>
	static constexpr T Max(const T A, const T B)
	{
		return A >= B ? A : B;
	}
	template <class T>
	static constexpr T Min(const T A, const T B)
	{
		return A <= B ? A : B;
	}
	template <class T>
	static constexpr T Max3(const T A, const T B, const T C)
	{
		return Max(Max(A, B), C);
	}
	template <class T>
	static constexpr T Min3(const T A, const T B, const T C)
	{
		return Min(Min(A, B), C);
	}
	template <class T>
	static constexpr T Clamp(const T X, const T InMin, const T InMax)
	{
		return X < InMin ? InMin : (X < InMax ? X : InMax);
	}
	template <class T>
	static constexpr T Square(const T A)
	{
		return A * A;
	}
	template <class T, class U>
	static T Lerp(const T& A, const T& B, const U& Alpha)
	{
		return static_cast<T>(A + Alpha * (B - A));
	}
	template <class T>
	static constexpr T DivideAndRoundUp(T Dividend, T Divisor)
	{
		return (Dividend + Divisor - 1) / Divisor;
	}

	static int32 TruncToInt(float F) { return static_cast<int32>(F); }
	static float TruncToFloat(float F) { return std::trunc(F); }
	static int32 FloorToInt(float F) { return static_cast<int32>(std::floor(F)); }
	static float FloorToFloat(float F) { return std::floor(F); }
	static int32 CeilToInt(float F) { return static_cast<int32>(std::ceil(F)); }
	static float CeilToFloat(float F) { return std::ceil(F); }

	/** The nearest integer; halves go up. */
	static int32 RoundToInt(float F) { return FloorToInt(F + 0.5f); }
	static float RoundToFloat(float F) { return FloorToFloat(F + 0.5f); }

	static float Fmod(float X, float Y) { return std::fmod(X, Y); }
	static float Frac(float Value) { return Value - FloorToFloat(Value); }
	static float Exp(float Value) { return std::exp(Value); }
	static float Loge(float Value) { return std::log(Value); }
	static float Log2(float Value) { return std::log2(Value); }
	static float Pow(float A, float B) { return std::pow(A, B); }
	static float Sqrt(float Value) { return std::sqrt(Value); }
	static float Sin(float Value) { return std::sin(Value); }
	static float Cos(float Value) { return std::cos(Value); }
	static float Tan(float Value) { return std::tan(Value); }
	static float Asin(float Value) { return std::asin(Clamp(Value, -1.f, 1.f)); }
	static float Acos(float Value) { return std::acos(Clamp(Value, -1.f, 1.f)); }
	static float Atan2(float Y, float X) { return std::atan2(Y, X); }
	static bool IsNaN(float A) { return std::isnan(A); }
	static bool IsFinite(float A) { return std::isfinite(A); }

	template <class T>
	static constexpr T DegreesToRadians(T const& DegVal)
	{
		return DegVal * (PI / 180.f);
	}
	template <class T>
	static constexpr T RadiansToDegrees(T const& RadVal)
	{
		return RadVal * (180.f / PI);
	}

	static bool IsNearlyEqual(float A, float B, float ErrorTolerance = SMALL_NUMBER) { return Abs(A - B) <= ErrorTolerance; }
	static bool IsNearlyZero(float Value, float ErrorTolerance = SMALL_NUMBER) { return Abs(Value) <= ErrorTolerance; }
	static constexpr bool IsPowerOfTwo(int32 Value) { return Value > 0 && (Value & (Value - 1)) == 0; }

	template <class U>
	static bool IsWithin(const U& TestValue, const U& MinValue, const U& MaxValue)
	{
		return TestValue >= MinValue && TestValue < MaxValue;
	}
};
