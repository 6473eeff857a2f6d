// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Math/IntPoint.h"
#include "Math/UnrealMathUtility.h"
#include "Containers/UnrealString.h"

// Two floats.

/** A vector or point of two floats. */
struct CORE_API FVector2D
{
	float X;
	float Y;

	static const FVector2D ZeroVector;
	static const FVector2D UnitVector;

	/** Not initialised. */
	FVector2D() {}

	/** From its parts. */
	constexpr FVector2D(float InX, float InY)
		: X(InX)
		, Y(InY)
	{}

	/** Both parts alike. */
	explicit constexpr FVector2D(float InF)
		: X(InF)
		, Y(InF)
	{}

	/** From whole numbers. */
	FVector2D(FIntPoint InPos)
		: X((float)InPos.X)
		, Y((float)InPos.Y)
	{}

	/** Zero. */
	explicit constexpr FVector2D(EForceInit)
		: X(0)
		, Y(0)
	{}

	/** Sum. */
	FVector2D operator+(const FVector2D& V) const { return FVector2D(X + V.X, Y + V.Y); }
	/** Difference. */
	FVector2D operator-(const FVector2D& V) const { return FVector2D(X - V.X, Y - V.Y); }
	/** Adds to both parts. */
	FVector2D operator+(float A) const { return FVector2D(X + A, Y + A); }
	/** Takes from both parts. */
	FVector2D operator-(float A) const { return FVector2D(X - A, Y - A); }
	/** Scaled. */
	FVector2D operator*(float Scale) const { return FVector2D(X * Scale, Y * Scale); }
	/** Divided. */
	FVector2D operator/(float Scale) const { return FVector2D(X / Scale, Y / Scale); }
	/** Part by part. */
	FVector2D operator*(const FVector2D& V) const { return FVector2D(X * V.X, Y * V.Y); }
	/** Part by part. */
	FVector2D operator/(const FVector2D& V) const { return FVector2D(X / V.X, Y / V.Y); }
	/** Dot product. */
	float operator|(const FVector2D& V) const { return X * V.X + Y * V.Y; }
	/** Cross product. */
	float operator^(const FVector2D& V) const { return X * V.Y - Y * V.X; }
	/** Opposite. */
	FVector2D operator-() const { return FVector2D(-X, -Y); }
	/** Equal parts. */
	bool operator==(const FVector2D& V) const { return X == V.X && Y == V.Y; }
	/** Any part differs. */
	bool operator!=(const FVector2D& V) const { return !(*this == V); }
	/** Both parts smaller. */
	bool operator<(const FVector2D& Other) const { return X < Other.X && Y < Other.Y; }
	/** Both parts larger. */
	bool operator>(const FVector2D& Other) const { return X > Other.X && Y > Other.Y; }
	/** Both parts not larger. */
	bool operator<=(const FVector2D& Other) const { return X <= Other.X && Y <= Other.Y; }
	/** Both parts not smaller. */
	bool operator>=(const FVector2D& Other) const { return X >= Other.X && Y >= Other.Y; }

	/** Adds. */
	FVector2D& operator+=(const FVector2D& V) { return *this = *this + V; }
	/** Subtracts. */
	FVector2D& operator-=(const FVector2D& V) { return *this = *this - V; }
	/** Scales. */
	FVector2D& operator*=(float Scale) { return *this = *this * Scale; }
	/** Divides. */
	FVector2D& operator/=(float V) { return *this = *this / V; }
	/** Multiplies part by part. */
	FVector2D& operator*=(const FVector2D& V) { return *this = *this * V; }
	/** Divides part by part. */
	FVector2D& operator/=(const FVector2D& V) { return *this = *this / V; }

	/** X for 0, Y for 1. */
	float& operator[](int32 Index) { return Index == 0 ? X : Y; }
	/** X for 0, Y for 1. */
	float operator[](int32 Index) const { return Index == 0 ? X : Y; }
	/** X for 0, Y for 1. */
	float Component(int32 Index) const { return (*this)[Index]; }

	/** Sets both parts. */
	void Set(float InX, float InY)
	{
		X = InX;
		Y = InY;
	}

	/** Length. */
	float Size() const { return std::sqrt(X * X + Y * Y); }
	/** Square of the length. */
	float SizeSquared() const { return X * X + Y * Y; }
	/** Larger part. */
	float GetMax() const { return FMath::Max(X, Y); }
	/** Smaller part. */
	float GetMin() const { return FMath::Min(X, Y); }
	/** Parts without sign. */
	FVector2D GetAbs() const { return FVector2D(FMath::Abs(X), FMath::Abs(Y)); }
	/** Whether both parts are nearly zero. */
	bool IsNearlyZero(float Tolerance = KINDA_SMALL_NUMBER) const { return FMath::Abs(X) <= Tolerance && FMath::Abs(Y) <= Tolerance; }
	/** Whether both parts are zero. */
	bool IsZero() const { return X == 0.0f && Y == 0.0f; }
	/** Whether all coordinates are nearly equal. */
	bool Equals(const FVector2D& V, float Tolerance = KINDA_SMALL_NUMBER) const { return (*this - V).IsNearlyZero(Tolerance); }
	/** Parts rounded to whole numbers. */
	FVector2D RoundToVector() const { return FVector2D(FMath::RoundToFloat(X), FMath::RoundToFloat(Y)); }
	/** Parts cut to whole numbers. */
	FIntPoint IntPoint() const { return FIntPoint(FMath::RoundToInt(X), FMath::RoundToInt(Y)); }
	/** Parts within limits. */
	FVector2D ClampAxes(float MinAxisVal, float MaxAxisVal) const
	{
		return FVector2D(FMath::Clamp(X, MinAxisVal, MaxAxisVal), FMath::Clamp(Y, MinAxisVal, MaxAxisVal));
	}

	/** Distance of two points. */
	static float Distance(const FVector2D& V1, const FVector2D& V2) { return (V2 - V1).Size(); }
	/** Larger parts of both. */
	static FVector2D Max(const FVector2D& A, const FVector2D& B) { return FVector2D(FMath::Max(A.X, B.X), FMath::Max(A.Y, B.Y)); }
	/** Smaller parts of both. */
	static FVector2D Min(const FVector2D& A, const FVector2D& B) { return FVector2D(FMath::Min(A.X, B.X), FMath::Min(A.Y, B.Y)); }

	/** Text of the form X=1.000 Y=2.000. */
	FString ToString() const;
};

/** Scaled. */
inline FVector2D operator*(float Scale, const FVector2D& V)
{
	return V * Scale;
}

/** Hash of both parts. */
inline uint32 GetTypeHash(const FVector2D& V)
{
	return HashCombine(GetTypeHash(V.X), GetTypeHash(V.Y));
}
