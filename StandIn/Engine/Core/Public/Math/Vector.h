// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Math/UnrealMathUtility.h"
#include "Containers/UnrealString.h"

// Three floats; X forward, Y right, Z up.

/** A vector or point of three floats. */
struct CORE_API FVector
{
	float X;
	float Y;
	float Z;

	static const FVector ZeroVector;
	static const FVector OneVector;
	static const FVector UpVector;
	static const FVector ForwardVector;
	static const FVector RightVector;

	/** Not initialised. */
	FVector() {}

	/** All parts alike. */
	explicit constexpr FVector(float InF)
		: X(InF)
		, Y(InF)
		, Z(InF)
	{}

	/** From its parts. */
	constexpr FVector(float InX, float InY, float InZ)
		: X(InX)
		, Y(InY)
		, Z(InZ)
	{}

	/** Zero. */
	explicit constexpr FVector(EForceInit)
		: X(0)
		, Y(0)
		, Z(0)
	{}

	/** Cross product. */
	FVector operator^(const FVector& V) const { return FVector(Y * V.Z - Z * V.Y, Z * V.X - X * V.Z, X * V.Y - Y * V.X); }
	/** Dot product. */
	float operator|(const FVector& V) const { return X * V.X + Y * V.Y + Z * V.Z; }
	/** Sum. */
	FVector operator+(const FVector& V) const { return FVector(X + V.X, Y + V.Y, Z + V.Z); }
	/** Difference. */
	FVector operator-(const FVector& V) const { return FVector(X - V.X, Y - V.Y, Z - V.Z); }
	/** Scaled. */
	FVector operator*(float Scale) const { return FVector(X * Scale, Y * Scale, Z * Scale); }
	/** Divided. */
	FVector operator/(float Scale) const { return FVector(X / Scale, Y / Scale, Z / Scale); }
	/** Part by part. */
	FVector operator*(const FVector& V) const { return FVector(X * V.X, Y * V.Y, Z * V.Z); }
	/** Opposite. */
	FVector operator-() const { return FVector(-X, -Y, -Z); }
	/** Equal parts. */
	bool operator==(const FVector& V) const { return X == V.X && Y == V.Y && Z == V.Z; }
	/** Any part differs. */
	bool operator!=(const FVector& V) const { return !(*this == V); }
	/** Adds. */
	FVector& operator+=(const FVector& V) { return *this = *this + V; }
	/** Subtracts. */
	FVector& operator-=(const FVector& V) { return *this = *this - V; }
	/** Scales. */
	FVector& operator*=(float Scale) { return *this = *this * Scale; }
	/** Divides. */
	FVector& operator/=(float V) { return *this = *this / V; }

	/** Length. */
	float Size() const { return std::sqrt(SizeSquared()); }
	/** Square of the length. */
	float SizeSquared() const { return X * X + Y * Y + Z * Z; }
	/** Whether all parts are zero. */
	bool IsZero() const { return X == 0.0f && Y == 0.0f && Z == 0.0f; }
	/** Whether all coordinates are nearly equal. */
	bool Equals(const FVector& V, float Tolerance = KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance && FMath::Abs(Z - V.Z) <= Tolerance;
	}
	/** Of length one, or zero when it is too short. */
	FVector GetSafeNormal(float Tolerance = SMALL_NUMBER) const
	{
		return SizeSquared() < Tolerance ? FVector(0.0f) : *this * (1.0f / Size());
	}
	/** Dot product. */
	static float DotProduct(const FVector& A, const FVector& B) { return A | B; }
	/** Cross product. */
	static FVector CrossProduct(const FVector& A, const FVector& B) { return A ^ B; }

	/** Text of the form X=1.000 Y=2.000 Z=3.000. */
	FString ToString() const;
};

/** Scaled. */
inline FVector operator*(float Scale, const FVector& V)
{
	return V * Scale;
}

/** Hash of all parts. */
inline uint32 GetTypeHash(const FVector& V)
{
	return HashCombine(HashCombine(GetTypeHash(V.X), GetTypeHash(V.Y)), GetTypeHash(V.Z));
}
