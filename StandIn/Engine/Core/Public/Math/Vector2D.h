// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/IntPoint.h"
#include "Math/UnrealMathUtility.h"

// A point, size or direction in two dimensions, in floats.

/** X and Y. Slate's sizes and places are in Slate units, which are pixels at scale one. */
struct FVector2D
{
	float X;
	float Y;

	/** (0, 0). */
	CORE_API static const FVector2D ZeroVector;

	/** (1, 1). */
	CORE_API static const FVector2D UnitVector;

	FVector2D() {}
	FVector2D(float InX, float InY) : X(InX), Y(InY) {}
	explicit FVector2D(float InF) : X(InF), Y(InF) {}
	FVector2D(FIntPoint InPos) : X(static_cast<float>(InPos.X)), Y(static_cast<float>(InPos.Y)) {}

	bool operator==(const FVector2D& V) const { return X == V.X && Y == V.Y; }
	bool operator!=(const FVector2D& V) const { return !(*this == V); }
	FVector2D operator+(const FVector2D& V) const { return FVector2D(X + V.X, Y + V.Y); }
	FVector2D operator-(const FVector2D& V) const { return FVector2D(X - V.X, Y - V.Y); }
	FVector2D operator*(const FVector2D& V) const { return FVector2D(X * V.X, Y * V.Y); }
	FVector2D operator/(const FVector2D& V) const { return FVector2D(X / V.X, Y / V.Y); }
	FVector2D operator*(float Scale) const { return FVector2D(X * Scale, Y * Scale); }
	FVector2D operator/(float Scale) const { return FVector2D(X / Scale, Y / Scale); }
	FVector2D operator+(float A) const { return FVector2D(X + A, Y + A); }
	FVector2D operator-(float A) const { return FVector2D(X - A, Y - A); }
	FVector2D operator-() const { return FVector2D(-X, -Y); }
	FVector2D& operator+=(const FVector2D& V) { return *this = *this + V; }
	FVector2D& operator-=(const FVector2D& V) { return *this = *this - V; }
	FVector2D& operator*=(float Scale) { return *this = *this * Scale; }
	FVector2D& operator/=(float Scale) { return *this = *this / Scale; }
	float& operator[](int32 Index) { return Index == 0 ? X : Y; }
	float operator[](int32 Index) const { return Index == 0 ? X : Y; }

	void Set(float InX, float InY) { *this = FVector2D(InX, InY); }
	float GetMax() const { return FMath::Max(X, Y); }
	float GetMin() const { return FMath::Min(X, Y); }
	float Size() const { return FMath::Sqrt(SizeSquared()); }
	float SizeSquared() const { return X * X + Y * Y; }
	bool IsZero() const { return X == 0.f && Y == 0.f; }
	bool IsNearlyZero(float Tolerance = KINDA_SMALL_NUMBER) const { return FMath::Abs(X) <= Tolerance && FMath::Abs(Y) <= Tolerance; }
	bool Equals(const FVector2D& V, float Tolerance = KINDA_SMALL_NUMBER) const { return (*this - V).IsNearlyZero(Tolerance); }
	FVector2D GetAbs() const { return FVector2D(FMath::Abs(X), FMath::Abs(Y)); }
	FVector2D RoundToVector() const { return FVector2D(FMath::RoundToFloat(X), FMath::RoundToFloat(Y)); }
	FIntPoint IntPoint() const { return FIntPoint(FMath::RoundToInt(X), FMath::RoundToInt(Y)); }
	FVector2D ClampAxes(float MinAxisVal, float MaxAxisVal) const
	{
		return FVector2D(FMath::Clamp(X, MinAxisVal, MaxAxisVal), FMath::Clamp(Y, MinAxisVal, MaxAxisVal));
	}
	static FVector2D Max(const FVector2D& A, const FVector2D& B) { return FVector2D(FMath::Max(A.X, B.X), FMath::Max(A.Y, B.Y)); }
	static FVector2D Min(const FVector2D& A, const FVector2D& B) { return FVector2D(FMath::Min(A.X, B.X), FMath::Min(A.Y, B.Y)); }
	static float DotProduct(const FVector2D& A, const FVector2D& B) { return A.X * B.X + A.Y * B.Y; }
	static float Distance(const FVector2D& A, const FVector2D& B) { return (A - B).Size(); }

	/** "X=1.000 Y=2.000". */
	FString ToString() const { return FString::Printf(TEXT("X=%3.3f Y=%3.3f"), static_cast<double>(X), static_cast<double>(Y)); }
};

inline FVector2D operator*(float Scale, const FVector2D& V)
{
	return V * Scale;
}
