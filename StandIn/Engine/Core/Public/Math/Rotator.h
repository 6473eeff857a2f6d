// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Math/Vector.h"

// A rotation in degrees: pitch up, yaw right, roll clockwise. Only what cameras need.

/** A rotation in degrees. */
struct CORE_API FRotator
{
	float Pitch;
	float Yaw;
	float Roll;

	static const FRotator ZeroRotator;

	/** Not initialised. */
	FRotator() {}

	/** From its parts, degrees. */
	constexpr FRotator(float InPitch, float InYaw, float InRoll)
		: Pitch(InPitch)
		, Yaw(InYaw)
		, Roll(InRoll)
	{}

	/** Zero. */
	explicit constexpr FRotator(EForceInit)
		: Pitch(0)
		, Yaw(0)
		, Roll(0)
	{}

	/** Sum. */
	FRotator operator+(const FRotator& R) const { return FRotator(Pitch + R.Pitch, Yaw + R.Yaw, Roll + R.Roll); }
	/** Difference. */
	FRotator operator-(const FRotator& R) const { return FRotator(Pitch - R.Pitch, Yaw - R.Yaw, Roll - R.Roll); }
	/** Equal parts. */
	bool operator==(const FRotator& R) const { return Pitch == R.Pitch && Yaw == R.Yaw && Roll == R.Roll; }
	/** Any part differs. */
	bool operator!=(const FRotator& R) const { return !(*this == R); }

	/** The direction in which the rotation looks, of length one. */
	FVector Vector() const;

	/** Text of the form P=1.000000 Y=2.000000 R=3.000000. */
	FString ToString() const;
};
