// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/UnrealMathUtility.h"

// Colours: FColor with 8 bits a channel, blue first in memory; FLinearColor with floats.

struct FColor;

/** A colour of linear floats; 0 to 1 is what screens show. */
struct CORE_API FLinearColor
{
	float R;
	float G;
	float B;
	float A;

	static const FLinearColor White;
	static const FLinearColor Gray;
	static const FLinearColor Black;
	static const FLinearColor Transparent;
	static const FLinearColor Red;
	static const FLinearColor Green;
	static const FLinearColor Blue;
	static const FLinearColor Yellow;

	/** Not initialised. */
	FLinearColor() {}

	/** Transparent black. */
	explicit FLinearColor(EForceInit)
		: R(0)
		, G(0)
		, B(0)
		, A(0)
	{}

	/** From its channels. */
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f)
		: R(InR)
		, G(InG)
		, B(InB)
		, A(InA)
	{}

	/** From an sRGB colour, decoded. */
	FLinearColor(const FColor& Color);

	/** From an sRGB colour, decoded. */
	static FLinearColor FromSRGBColor(const FColor& Color);

	/** To 8 bits, clamped; encoded as sRGB or just scaled. */
	FColor ToFColor(const bool bSRGB) const;

	/** To 8 bits without encoding, cut off. */
	FColor Quantize() const;

	/** To 8 bits without encoding, rounded. */
	FColor QuantizeRound() const;

	/** Sum. */
	FLinearColor operator+(const FLinearColor& C) const { return FLinearColor(R + C.R, G + C.G, B + C.B, A + C.A); }
	/** Difference. */
	FLinearColor operator-(const FLinearColor& C) const { return FLinearColor(R - C.R, G - C.G, B - C.B, A - C.A); }
	/** Channel by channel. */
	FLinearColor operator*(const FLinearColor& C) const { return FLinearColor(R * C.R, G * C.G, B * C.B, A * C.A); }
	/** Scaled, alpha too. */
	FLinearColor operator*(float Scalar) const { return FLinearColor(R * Scalar, G * Scalar, B * Scalar, A * Scalar); }
	/** Multiplies channel by channel. */
	FLinearColor& operator*=(const FLinearColor& C) { return *this = *this * C; }
	/** Equal channels. */
	bool operator==(const FLinearColor& C) const { return R == C.R && G == C.G && B == C.B && A == C.A; }
	/** Any channel differs. */
	bool operator!=(const FLinearColor& C) const { return !(*this == C); }
	/** Whether the channels are nearly equal. */
	bool Equals(const FLinearColor& C, float Tolerance = KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(R - C.R) <= Tolerance && FMath::Abs(G - C.G) <= Tolerance && FMath::Abs(B - C.B) <= Tolerance
			&& FMath::Abs(A - C.A) <= Tolerance;
	}
	/** With another alpha. */
	FLinearColor CopyWithNewOpacity(float NewOpacity) const { return FLinearColor(R, G, B, NewOpacity); }
	/** With channels clamped. */
	FLinearColor GetClamped(float InMin = 0.0f, float InMax = 1.0f) const
	{
		return FLinearColor(
			FMath::Clamp(R, InMin, InMax), FMath::Clamp(G, InMin, InMax), FMath::Clamp(B, InMin, InMax), FMath::Clamp(A, InMin, InMax));
	}
	/** Weighted sum of the channels, as bright as it looks. */
	float GetLuminance() const { return R * 0.3f + G * 0.59f + B * 0.11f; }

	/** Text of the form (R=0.000000,G=0.000000,B=0.000000,A=0.000000). */
	FString ToString() const;
};

/** A colour of 8 bits a channel; in memory blue, green, red, alpha. */
struct CORE_API FColor
{
	union
	{
		struct
		{
			uint8 B;
			uint8 G;
			uint8 R;
			uint8 A;
		};
		uint32 AlignmentDummy;
	};

	static const FColor White;
	static const FColor Black;
	static const FColor Transparent;
	static const FColor Red;
	static const FColor Green;
	static const FColor Blue;
	static const FColor Yellow;
	static const FColor Cyan;
	static const FColor Magenta;
	static const FColor Orange;
	static const FColor Purple;
	static const FColor Turquoise;
	static const FColor Silver;
	static const FColor Emerald;

	/** Not initialised. */
	FColor() {}

	/** Transparent black. */
	explicit FColor(EForceInit)
		: AlignmentDummy(0)
	{}

	/** From its channels. */
	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255)
		: B(InB)
		, G(InG)
		, R(InR)
		, A(InA)
	{}

	/** From 0xAARRGGBB. */
	explicit FColor(uint32 InColor)
		: AlignmentDummy(InColor)
	{}

	/** The channels as one number, 0xAARRGGBB. */
	uint32& DWColor() { return AlignmentDummy; }

	/** The channels as one number, 0xAARRGGBB. */
	const uint32& DWColor() const { return AlignmentDummy; }

	/** Equal channels. */
	bool operator==(const FColor& C) const { return DWColor() == C.DWColor(); }

	/** Any channel differs. */
	bool operator!=(const FColor& C) const { return DWColor() != C.DWColor(); }

	/** Reads RGB, RRGGBB or RRGGBBAA with or without #; black and transparent if it is none of them. */
	static FColor FromHex(const FString& HexString);

	/** Text RRGGBBAA. */
	FString ToHex() const;

	/** Text of the form (R=0,G=0,B=0,A=0). */
	FString ToString() const;

	/** With another alpha. */
	FColor WithAlpha(uint8 Alpha) const { return FColor(R, G, B, Alpha); }

	/** Scaled to 0..1 without decoding. */
	FLinearColor ReinterpretAsLinear() const { return FLinearColor(R / 255.f, G / 255.f, B / 255.f, A / 255.f); }

	/** As 0xAARRGGBB. */
	uint32 ToPackedARGB() const { return ((uint32)A << 24) | ((uint32)R << 16) | ((uint32)G << 8) | (uint32)B; }

	/** As 0xRRGGBBAA. */
	uint32 ToPackedRGBA() const { return ((uint32)R << 24) | ((uint32)G << 16) | ((uint32)B << 8) | (uint32)A; }
};
static_assert(sizeof(FColor) == 4, "A colour is four bytes.");

/** Hash of the channels. */
inline uint32 GetTypeHash(const FColor& Color)
{
	return Color.DWColor();
}

/** Hash of the channels. */
inline uint32 GetTypeHash(const FLinearColor& Color)
{
	return HashCombine(HashCombine(GetTypeHash(Color.R), GetTypeHash(Color.G)), HashCombine(GetTypeHash(Color.B), GetTypeHash(Color.A)));
}
