// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/UnrealMathUtility.h"
#include "Templates/TypeHash.h"

// A point or a size in whole numbers.

/** X and Y in whole units. */
struct FIntPoint
{
	int32 X;
	int32 Y;

	/** (0, 0). */
	CORE_API static const FIntPoint ZeroValue;

	/** (INDEX_NONE, INDEX_NONE). */
	CORE_API static const FIntPoint NoneValue;

	FIntPoint() {}
	FIntPoint(int32 InX, int32 InY) : X(InX), Y(InY) {}
	explicit FIntPoint(int32 InXY) : X(InXY), Y(InXY) {}

	bool operator==(const FIntPoint& Other) const { return X == Other.X && Y == Other.Y; }
	bool operator!=(const FIntPoint& Other) const { return !(*this == Other); }
	FIntPoint operator+(const FIntPoint& Other) const { return FIntPoint(X + Other.X, Y + Other.Y); }
	FIntPoint operator-(const FIntPoint& Other) const { return FIntPoint(X - Other.X, Y - Other.Y); }
	FIntPoint operator*(int32 Scale) const { return FIntPoint(X * Scale, Y * Scale); }
	FIntPoint operator/(int32 Divisor) const { return FIntPoint(X / Divisor, Y / Divisor); }
	FIntPoint& operator+=(const FIntPoint& Other) { return *this = *this + Other; }
	FIntPoint& operator-=(const FIntPoint& Other) { return *this = *this - Other; }
	int32& operator[](int32 Index) { return Index == 0 ? X : Y; }
	int32 operator[](int32 Index) const { return Index == 0 ? X : Y; }

	int32 GetMax() const { return FMath::Max(X, Y); }
	int32 GetMin() const { return FMath::Min(X, Y); }
	FIntPoint ComponentMax(const FIntPoint& Other) const { return FIntPoint(FMath::Max(X, Other.X), FMath::Max(Y, Other.Y)); }
	FIntPoint ComponentMin(const FIntPoint& Other) const { return FIntPoint(FMath::Min(X, Other.X), FMath::Min(Y, Other.Y)); }

	/** Square of the distance from the origin. */
	int32 SizeSquared() const { return X * X + Y * Y; }

	/** "X=1 Y=2". */
	FString ToString() const { return FString::Printf(TEXT("X=%d Y=%d"), X, Y); }

	friend uint32 GetTypeHash(const FIntPoint& Point) { return HashCombine(::GetTypeHash(Point.X), ::GetTypeHash(Point.Y)); }
};
