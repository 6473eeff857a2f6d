// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Math/Vector.h"

// Four floats, aligned to 16 bytes.

/** A vector of four floats. */
struct alignas(16) FVector4
{
	float X;
	float Y;
	float Z;
	float W;

	/** From its parts. */
	explicit FVector4(float InX = 0.0f, float InY = 0.0f, float InZ = 0.0f, float InW = 1.0f)
		: X(InX)
		, Y(InY)
		, Z(InZ)
		, W(InW)
	{}

	/** From three parts and a fourth. */
	FVector4(const FVector& InVector, float InW = 1.0f)
		: X(InVector.X)
		, Y(InVector.Y)
		, Z(InVector.Z)
		, W(InW)
	{}

	/** Equal parts. */
	bool operator==(const FVector4& V) const { return X == V.X && Y == V.Y && Z == V.Z && W == V.W; }

	/** Any part differs. */
	bool operator!=(const FVector4& V) const { return !(*this == V); }
};
