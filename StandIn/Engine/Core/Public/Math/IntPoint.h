// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Math/UnrealMathUtility.h"
#include "Containers/UnrealString.h"

// Two whole numbers.

/** A point or size of whole numbers. */
struct CORE_API FIntPoint
{
	int32 X;
	int32 Y;

	static const FIntPoint ZeroValue;
	static const FIntPoint NoneValue;

	/** Not initialised. */
	FIntPoint() {}

	/** From its parts. */
	constexpr FIntPoint(int32 InX, int32 InY)
		: X(InX)
		, Y(InY)
	{}

	/** Both parts alike. */
	explicit constexpr FIntPoint(int32 InXY)
		: X(InXY)
		, Y(InXY)
	{}

	/** Zero. */
	explicit constexpr FIntPoint(EForceInit)
		: X(0)
		, Y(0)
	{}

	/** Equal parts. */
	bool operator==(const FIntPoint& Other) const { return X == Other.X && Y == Other.Y; }
	/** Any part differs. */
	bool operator!=(const FIntPoint& Other) const { return !(*this == Other); }
	/** Sum. */
	FIntPoint operator+(const FIntPoint& Other) const { return FIntPoint(X + Other.X, Y + Other.Y); }
	/** Difference. */
	FIntPoint operator-(const FIntPoint& Other) const { return FIntPoint(X - Other.X, Y - Other.Y); }
	/** Scaled. */
	FIntPoint operator*(int32 Scale) const { return FIntPoint(X * Scale, Y * Scale); }
	/** Divided. */
	FIntPoint operator/(int32 Divisor) const { return FIntPoint(X / Divisor, Y / Divisor); }
	/** Adds. */
	FIntPoint& operator+=(const FIntPoint& Other) { return *this = *this + Other; }
	/** Subtracts. */
	FIntPoint& operator-=(const FIntPoint& Other) { return *this = *this - Other; }
	/** Scales. */
	FIntPoint& operator*=(int32 Scale) { return *this = *this * Scale; }
	/** Larger part. */
	int32 GetMax() const { return FMath::Max(X, Y); }
	/** Smaller part. */
	int32 GetMin() const { return FMath::Min(X, Y); }
	/** Larger parts of both. */
	FIntPoint ComponentMax(const FIntPoint& Other) const { return FIntPoint(FMath::Max(X, Other.X), FMath::Max(Y, Other.Y)); }
	/** Smaller parts of both. */
	FIntPoint ComponentMin(const FIntPoint& Other) const { return FIntPoint(FMath::Min(X, Other.X), FMath::Min(Y, Other.Y)); }
	/** Length, cut to a whole number. */
	int32 Size() const { return FMath::TruncToInt(FMath::Sqrt((float)SizeSquared())); }
	/** Square of the length. */
	int32 SizeSquared() const { return X * X + Y * Y; }

	/** Text of the form X=1 Y=2. */
	FString ToString() const;
};

/** Hash of both parts. */
inline uint32 GetTypeHash(const FIntPoint& InPoint)
{
	return HashCombine(GetTypeHash(InPoint.X), GetTypeHash(InPoint.Y));
}
