// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/UnrealMathUtility.h"

// A point or direction in three dimensions, in floats. X is forward, Y right, Z up; lengths are in centimetres.

/** X, Y and Z. */
struct FVector
{
	float X;
	float Y;
	float Z;

	/** (0, 0, 0). */
	CORE_API static const FVector ZeroVector;

	FVector() {}
	explicit FVector(float InF) : X(InF), Y(InF), Z(InF) {}
	FVector(float InX, float InY, float InZ) : X(InX), Y(InY), Z(InZ) {}

	bool operator==(const FVector& V) const { return X == V.X && Y == V.Y && Z == V.Z; }
	bool operator!=(const FVector& V) const { return !(*this == V); }
	FVector operator+(const FVector& V) const { return FVector(X + V.X, Y + V.Y, Z + V.Z); }
	FVector operator-(const FVector& V) const { return FVector(X - V.X, Y - V.Y, Z - V.Z); }
	FVector operator*(const FVector& V) const { return FVector(X * V.X, Y * V.Y, Z * V.Z); }
	FVector operator*(float Scale) const { return FVector(X * Scale, Y * Scale, Z * Scale); }
	FVector operator/(float Scale) const { return FVector(X / Scale, Y / Scale, Z / Scale); }
	FVector operator-() const { return FVector(-X, -Y, -Z); }
	FVector& operator+=(const FVector& V) { return *this = *this + V; }
	FVector& operator-=(const FVector& V) { return *this = *this - V; }

	float SizeSquared() const { return X * X + Y * Y + Z * Z; }
	float Size() const { return FMath::Sqrt(SizeSquared()); }

	/** The direction; zero for a vector too short to have one. */
	FVector GetSafeNormal(float Tolerance = SMALL_NUMBER) const { return SizeSquared() < Tolerance ? FVector(0.f) : *this / Size(); }
	static float DotProduct(const FVector& A, const FVector& B) { return A.X * B.X + A.Y * B.Y + A.Z * B.Z; }
	static FVector CrossProduct(const FVector& A, const FVector& B)
	{
		return FVector(A.Y * B.Z - A.Z * B.Y, A.Z * B.X - A.X * B.Z, A.X * B.Y - A.Y * B.X);
	}
	bool Equals(const FVector& V, float Tolerance = KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance && FMath::Abs(Z - V.Z) <= Tolerance;
	}

	/** "X=1.000 Y=2.000 Z=3.000". */
	FString ToString() const
	{
		return FString::Printf(
			TEXT("X=%3.3f Y=%3.3f Z=%3.3f"), static_cast<double>(X), static_cast<double>(Y), static_cast<double>(Z));
	}
};
