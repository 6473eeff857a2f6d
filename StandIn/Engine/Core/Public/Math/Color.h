// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/UnrealMathUtility.h"
#include "Templates/TypeHash.h"

// Colours: FColor in 8 bits a channel, encoded for display (sRGB); FLinearColor in floats, proportional to light.

struct FColor;

/** Red, green, blue and alpha in linear light; one is full, values beyond are allowed. */
struct FLinearColor
{
	float R;
	float G;
	float B;
	float A;

	CORE_API static const FLinearColor White;
	CORE_API static const FLinearColor Gray;
	CORE_API static const FLinearColor Black;
	CORE_API static const FLinearColor Transparent;
	CORE_API static const FLinearColor Red;
	CORE_API static const FLinearColor Green;
	CORE_API static const FLinearColor Blue;
	CORE_API static const FLinearColor Yellow;

	FLinearColor() {}
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f) : R(InR), G(InG), B(InB), A(InA) {}

	/** Decodes the display encoding of red, green and blue. */
	CORE_API FLinearColor(const FColor& Color);

	/** Decodes the display encoding, as the constructor does. */
	CORE_API static FLinearColor FromSRGBColor(const FColor& Color);

	/** Clamps to 0..1 and rounds to 8 bits, with the display encoding if asked for. */
	CORE_API FColor ToFColor(const bool bSRGB) const;

	/** Clamps to 0..1 and rounds to 8 bits without the display encoding. */
	CORE_API FColor QuantizeRound() const;

	FLinearColor operator+(const FLinearColor& Color) const { return FLinearColor(R + Color.R, G + Color.G, B + Color.B, A + Color.A); }
	FLinearColor operator-(const FLinearColor& Color) const { return FLinearColor(R - Color.R, G - Color.G, B - Color.B, A - Color.A); }
	FLinearColor operator*(const FLinearColor& Color) const { return FLinearColor(R * Color.R, G * Color.G, B * Color.B, A * Color.A); }
	FLinearColor operator*(float Scalar) const { return FLinearColor(R * Scalar, G * Scalar, B * Scalar, A * Scalar); }
	FLinearColor operator/(float Scalar) const { return *this * (1.0f / Scalar); }
	bool operator==(const FLinearColor& Color) const { return R == Color.R && G == Color.G && B == Color.B && A == Color.A; }
	bool operator!=(const FLinearColor& Color) const { return !(*this == Color); }

	/** The same colour with this alpha. */
	FLinearColor CopyWithNewOpacity(float NewOpacity) const { return FLinearColor(R, G, B, NewOpacity); }

	bool Equals(const FLinearColor& Color, float Tolerance = KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(R - Color.R) < Tolerance && FMath::Abs(G - Color.G) < Tolerance && FMath::Abs(B - Color.B) < Tolerance
			&& FMath::Abs(A - Color.A) < Tolerance;
	}

	/** "(R=1.000000,G=0.000000,B=0.000000,A=1.000000)". */
	CORE_API FString ToString() const;
};

/** Blue, green, red and alpha, in this order in memory, 8 bits each. */
struct FColor
{
	union
	{
		struct
		{
			uint8 B, G, R, A;
		};
		uint32 AlignmentDummy;
	};

	CORE_API static const FColor White;
	CORE_API static const FColor Black;
	CORE_API static const FColor Transparent;
	CORE_API static const FColor Red;
	CORE_API static const FColor Green;
	CORE_API static const FColor Blue;
	CORE_API static const FColor Yellow;
	CORE_API static const FColor Cyan;
	CORE_API static const FColor Magenta;

	FColor() {}
	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255) : B(InB), G(InG), R(InR), A(InA) {}

	/** From 0xAARRGGBB. */
	explicit FColor(uint32 InColor)
		: B(static_cast<uint8>(InColor))
		, G(static_cast<uint8>(InColor >> 8))
		, R(static_cast<uint8>(InColor >> 16))
		, A(static_cast<uint8>(InColor >> 24))
	{
	}

	/** 0xAARRGGBB. */
	uint32 DWColor() const
	{
		return static_cast<uint32>(A) << 24 | static_cast<uint32>(R) << 16 | static_cast<uint32>(G) << 8 | static_cast<uint32>(B);
	}
	uint32 ToPackedARGB() const { return DWColor(); }

	bool operator==(const FColor& C) const { return DWColor() == C.DWColor(); }
	bool operator!=(const FColor& C) const { return !(*this == C); }

	/** The same colour with this alpha. */
	FColor WithAlpha(uint8 Alpha) const { return FColor(R, G, B, Alpha); }

	/** The numbers divided by 255, without decoding. */
	FLinearColor ReinterpretAsLinear() const { return FLinearColor(R / 255.f, G / 255.f, B / 255.f, A / 255.f); }

	/** "RRGGBBAA" in hexadecimal digits. */
	CORE_API FString ToHex() const;

	/** "(R=255,G=0,B=0,A=255)". */
	CORE_API FString ToString() const;

	friend uint32 GetTypeHash(const FColor& Color) { return Color.DWColor(); }
};

inline FLinearColor operator*(float Scalar, const FLinearColor& Color)
{
	return Color * Scalar;
}
