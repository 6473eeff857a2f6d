// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include <cmath>

// Everyday mathematics. Random numbers are left out.

#define PI (3.1415926535897932f)
#define SMALL_NUMBER (1.e-8f)
#define KINDA_SMALL_NUMBER (1.e-4f)
#define BIG_NUMBER (3.4e+38f)
#define HALF_PI (1.57079632679f)
#define DELTA (0.00001f)

/** Mathematics; angles in radians unless a name says degrees. */
struct FMath
{
	/** The larger of two values. */
	template <class T>
	static constexpr T Max(const T A, const T B)
	{
		return (A >= B) ? A : B;
	}

	/** The smaller of two values. */
	template <class T>
	static constexpr T Min(const T A, const T B)
	{
		return (A <= B) ? A : B;
	}

	/** The largest of three values. */
	template <class T>
	static constexpr T Max3(const T A, const T B, const T C)
	{
		return Max(Max(A, B), C);
	}

	/** The smallest of three values. */
	template <class T>
	static constexpr T Min3(const T A, const T B, const T C)
	{
		return Min(Min(A, B), C);
	}

	/** The value without its sign. */
	template <class T>
	static constexpr T Abs(const T A)
	{
		return (A >= (T)0) ? A : -A;
	}

	/** -1, 0 or 1. */
	template <class T>
	static constexpr T Sign(const T A)
	{
		return (A > (T)0) ? (T)1 : ((A < (T)0) ? (T)-1 : (T)0);
	}

	/** The value, or the nearest limit. */
	template <class T>
	static constexpr T Clamp(const T X, const T InMin, const T InMax)
	{
		return X < InMin ? InMin : X < InMax ? X : InMax;
	}

	/** The value times itself. */
	template <class T>
	static constexpr T Square(const T A)
	{
		return A * A;
	}

	/** Between A (Alpha 0) and B (Alpha 1). */
	template <class T, class U>
	static T Lerp(const T& A, const T& B, const U& Alpha)
	{
		return (T)(A + Alpha * (B - A));
	}

	/** Divides and rounds up. */
	template <class T>
	static constexpr T DivideAndRoundUp(T Dividend, T Divisor)
	{
		return (Dividend + Divisor - 1) / Divisor;
	}

	/** Whether a value lies in [InMin, InMax). */
	template <class U>
	static constexpr bool IsWithin(const U& TestValue, const U& MinValue, const U& MaxValue)
	{
		return (TestValue >= MinValue) && (TestValue < MaxValue);
	}

	/** Whether a number is a power of two. */
	template <typename T>
	static constexpr bool IsPowerOfTwo(T Value)
	{
		return (Value & (Value - 1)) == (T)0;
	}

	/** The next power of two not below. */
	static uint32 RoundUpToPowerOfTwo(uint32 Arg)
	{
		uint32 Power = 1;
		while (Power < Arg && Power < 0x80000000u)
		{
			Power *= 2;
		}
		return Power;
	}

	/** Whether a number is not more than the tolerance away from nought. */
	static bool IsNearlyZero(float Value, float ErrorTolerance = SMALL_NUMBER) { return Abs<float>(Value) <= ErrorTolerance; }
	/** Whether a number is not more than the tolerance away from nought. */
	static bool IsNearlyZero(double Value, double ErrorTolerance = SMALL_NUMBER) { return Abs<double>(Value) <= ErrorTolerance; }
	/** Whether two numbers are not more than the tolerance apart. */
	static bool IsNearlyEqual(float A, float B, float ErrorTolerance = SMALL_NUMBER) { return Abs<float>(A - B) <= ErrorTolerance; }
	/** Whether two numbers are not more than the tolerance apart. */
	static bool IsNearlyEqual(double A, double B, double ErrorTolerance = SMALL_NUMBER) { return Abs<double>(A - B) <= ErrorTolerance; }

	/** Whether not a number. */
	static bool IsNaN(float A) { return std::isnan(A); }
	/** Whether neither infinite nor not a number. */
	static bool IsFinite(float A) { return std::isfinite(A); }
	/** Rounds towards nought. */
	static int32 TruncToInt(float F) { return (int32)F; }
	/** Rounds towards nought. */
	static float TruncToFloat(float F) { return std::trunc(F); }
	/** Rounds down. */
	static int32 FloorToInt(float F) { return (int32)std::floor(F); }
	/** Rounds down. */
	static float FloorToFloat(float F) { return std::floor(F); }
	/** Rounds to the nearest, halves up. */
	static int32 RoundToInt(float F) { return FloorToInt(F + 0.5f); }
	/** Rounds to the nearest, halves up. */
	static float RoundToFloat(float F) { return FloorToFloat(F + 0.5f); }
	/** Rounds up. */
	static int32 CeilToInt(float F) { return (int32)std::ceil(F); }
	/** Rounds up. */
	static float CeilToFloat(float F) { return std::ceil(F); }
	/** What is behind the point, with the sign. */
	static float Fractional(float Value) { return Value - TruncToFloat(Value); }
	/** What is above the floor. */
	static float Frac(float Value) { return Value - FloorToFloat(Value); }
	/** Remainder of a division; 0 for a tiny divisor. */
	static float Fmod(float X, float Y) { return Abs(Y) <= 1.e-8f ? 0.0f : std::fmod(X, Y); }
	/** Square root. */
	static float Sqrt(float Value) { return std::sqrt(Value); }
	/** One over the square root. */
	static float InvSqrt(float F) { return 1.0f / std::sqrt(F); }
	/** A to the power B. */
	static float Pow(float A, float B) { return std::pow(A, B); }
	/** e to the power. */
	static float Exp(float Value) { return std::exp(Value); }
	/** Natural logarithm. */
	static float Loge(float Value) { return std::log(Value); }
	/** Logarithm to base 2. */
	static float Log2(float Value) { return std::log2(Value); }
	/** Sine. */
	static float Sin(float Value) { return std::sin(Value); }
	/** Cosine. */
	static float Cos(float Value) { return std::cos(Value); }
	/** Tangent. */
	static float Tan(float Value) { return std::tan(Value); }
	/** Arc sine, clamped. */
	static float Asin(float Value) { return std::asin(Clamp(Value, -1.0f, 1.0f)); }
	/** Arc cosine, clamped. */
	static float Acos(float Value) { return std::acos(Clamp(Value, -1.0f, 1.0f)); }
	/** Arc tangent. */
	static float Atan(float Value) { return std::atan(Value); }
	/** Arc tangent of Y over X. */
	static float Atan2(float Y, float X) { return std::atan2(Y, X); }

	/** Degrees of an angle in radians. */
	static float RadiansToDegrees(float RadVal) { return RadVal * (180.0f / PI); }
	/** Radians of an angle in degrees. */
	static float DegreesToRadians(float DegVal) { return DegVal * (PI / 180.0f); }

	/** Approaches a target by distance over time: the new value after DeltaTime seconds. */
	static float FInterpTo(float Current, float Target, float DeltaTime, float InterpSpeed)
	{
		if (InterpSpeed <= 0.0f)
		{
			return Target;
		}
		const float Distance = Target - Current;
		if (Square(Distance) < SMALL_NUMBER)
		{
			return Target;
		}
		return Current + Distance * Clamp(DeltaTime * InterpSpeed, 0.0f, 1.0f);
	}

	/** Snaps to a multiple of the grid's size. */
	static float GridSnap(float Location, float Grid)
	{
		return Grid == 0.0f ? Location : FloorToFloat((Location + 0.5f * Grid) / Grid) * Grid;
	}
};
