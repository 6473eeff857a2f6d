// Copyright The Tintmill authors. All rights reserved.

#include "Math/Color.h"

#include <cmath>

const FLinearColor FLinearColor::White(1.0f, 1.0f, 1.0f);
const FLinearColor FLinearColor::Gray(0.5f, 0.5f, 0.5f);
const FLinearColor FLinearColor::Black(0.0f, 0.0f, 0.0f);
const FLinearColor FLinearColor::Transparent(0.0f, 0.0f, 0.0f, 0.0f);
const FLinearColor FLinearColor::Red(1.0f, 0.0f, 0.0f);
const FLinearColor FLinearColor::Green(0.0f, 1.0f, 0.0f);
const FLinearColor FLinearColor::Blue(0.0f, 0.0f, 1.0f);
const FLinearColor FLinearColor::Yellow(1.0f, 1.0f, 0.0f);

const FColor FColor::White(255, 255, 255);
const FColor FColor::Black(0, 0, 0);
const FColor FColor::Transparent(0, 0, 0, 0);
const FColor FColor::Red(255, 0, 0);
const FColor FColor::Green(0, 255, 0);
const FColor FColor::Blue(0, 0, 255);
const FColor FColor::Yellow(255, 255, 0);
const FColor FColor::Cyan(0, 255, 255);
const FColor FColor::Magenta(255, 0, 255);
const FColor FColor::Orange(243, 156, 18);
const FColor FColor::Purple(169, 7, 228);
const FColor FColor::Turquoise(26, 188, 156);
const FColor FColor::Silver(189, 195, 199);
const FColor FColor::Emerald(46, 204, 113);

namespace
{
/** The sRGB curve from the encoded value to light. */
float Decode(uint8 Value)
{
	const double Encoded = Value / 255.0;
	return static_cast<float>(Encoded <= 0.04045 ? Encoded / 12.92 : std::pow((Encoded + 0.055) / 1.055, 2.4));
}

/** The sRGB curve from light to the encoded value. */
float Encode(float Value)
{
	return Value <= 0.0031308f ? Value * 12.92f : std::pow(Value, 1.0f / 2.4f) * 1.055f - 0.055f;
}

uint8 Quantized(float Value)
{
	return static_cast<uint8>(std::floor(FMath::Clamp(Value, 0.0f, 1.0f) * 255.999f));
}

uint8 Rounded(float Value)
{
	return static_cast<uint8>(FMath::RoundToInt(FMath::Clamp(Value, 0.0f, 1.0f) * 255.0f));
}
}

FLinearColor::FLinearColor(const FColor& Color)
	: R(Decode(Color.R))
	, G(Decode(Color.G))
	, B(Decode(Color.B))
	, A(Color.A / 255.0f)
{}

FLinearColor FLinearColor::FromSRGBColor(const FColor& Color)
{
	return FLinearColor(Color);
}

FColor FLinearColor::ToFColor(const bool bSRGB) const
{
	const float Red01 = FMath::Clamp(R, 0.0f, 1.0f);
	const float Green01 = FMath::Clamp(G, 0.0f, 1.0f);
	const float Blue01 = FMath::Clamp(B, 0.0f, 1.0f);
	return FColor(Quantized(bSRGB ? Encode(Red01) : Red01), Quantized(bSRGB ? Encode(Green01) : Green01),
		Quantized(bSRGB ? Encode(Blue01) : Blue01), Quantized(A));
}

FColor FLinearColor::Quantize() const
{
	const auto CutOff = [](float Value) { return static_cast<uint8>(FMath::Clamp(FMath::TruncToInt(Value * 255.0f), 0, 255)); };
	return FColor(CutOff(R), CutOff(G), CutOff(B), CutOff(A));
}

FColor FLinearColor::QuantizeRound() const
{
	return FColor(Rounded(R), Rounded(G), Rounded(B), Rounded(A));
}

FString FLinearColor::ToString() const
{
	return FString::Printf(
		TEXT("(R=%f,G=%f,B=%f,A=%f)"), static_cast<double>(R), static_cast<double>(G), static_cast<double>(B), static_cast<double>(A));
}

FColor FColor::FromHex(const FString& HexString)
{
	const FString Digits = HexString.StartsWith(TEXT("#")) ? HexString.RightChop(1) : HexString;
	const int32 Length = Digits.Len();
	bool bHex = Length == 3 || Length == 6 || Length == 8;
	for (const TCHAR Digit : Digits)
	{
		bHex = bHex && FChar::IsHexDigit(Digit);
	}
	if (!bHex)
	{
		return FColor(ForceInit);
	}
	const uint32 Number = static_cast<uint32>(FCString::Strtoui64(*Digits, nullptr, 16));
	if (Length == 3)
	{
		const auto Nibble = [Number](int32 Shift) { return static_cast<uint8>(((Number >> Shift) & 15u) * 17u); };
		return FColor(Nibble(8), Nibble(4), Nibble(0));
	}
	const uint32 Rgba = Length == 6 ? (Number << 8) | 255u : Number;
	return FColor(static_cast<uint8>(Rgba >> 24), static_cast<uint8>(Rgba >> 16), static_cast<uint8>(Rgba >> 8), static_cast<uint8>(Rgba));
}

FString FColor::ToHex() const
{
	return FString::Printf(TEXT("%02X%02X%02X%02X"), R, G, B, A);
}

FString FColor::ToString() const
{
	return FString::Printf(TEXT("(R=%i,G=%i,B=%i,A=%i)"), R, G, B, A);
}
