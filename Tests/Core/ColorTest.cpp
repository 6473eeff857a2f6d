// Copyright The Tintmill authors. All rights reserved.

#include "Math/Color.h"

#include "Support/Printers.h"
#include "gtest/gtest.h"
#include <cstring>

TEST(FColor, IsBlueGreenRedAlphaInMemory)
{
	const FColor Color(1, 2, 3, 4);
	uint8 Bytes[4];
	std::memcpy(Bytes, &Color, 4);
	EXPECT_EQ(3, Bytes[0]);
	EXPECT_EQ(2, Bytes[1]);
	EXPECT_EQ(1, Bytes[2]);
	EXPECT_EQ(4, Bytes[3]);
	EXPECT_EQ(0x04010203u, Color.DWColor());
	EXPECT_EQ(FColor(0x04010203u), Color);
}

TEST(FColor, IsOpaqueUnlessSaidOtherwise)
{
	EXPECT_EQ(255, FColor(1, 2, 3).A);
	EXPECT_EQ(0, FColor::Transparent.A);
}

TEST(FColor, HexadecimalTextIsReadAndWritten)
{
	EXPECT_EQ("01020304", ToStd(FColor(1, 2, 3, 4).ToHex()));
	EXPECT_EQ(FColor(1, 2, 3, 4), FColor::FromHex(TEXT("01020304")));
	EXPECT_EQ(FColor(255, 128, 0), FColor::FromHex(TEXT("#FF8000")));
	EXPECT_EQ(FColor(255, 136, 0), FColor::FromHex(TEXT("f80")));
	EXPECT_EQ(FColor(0, 0, 0, 0), FColor::FromHex(TEXT("red")));
}

TEST(FColor, EverySrgbValueSurvivesTheWayThroughLinear)
{
	for (int32 Value = 0; Value < 256; ++Value)
	{
		const FColor Color((uint8)Value, (uint8)Value, (uint8)Value, (uint8)Value);
		EXPECT_EQ(Color, FLinearColor::FromSRGBColor(Color).ToFColor(true));
	}
}

TEST(FLinearColor, DecodesTheSrgbCurve)
{
	EXPECT_NEAR(0.2158605f, FLinearColor::FromSRGBColor(FColor(128, 0, 0)).R, 1e-5f);
	EXPECT_FLOAT_EQ(1.0f, FLinearColor(FColor::White).G);
}

TEST(FLinearColor, ConversionToBytesClamps)
{
	EXPECT_EQ(FColor(255, 0, 127, 255), FLinearColor(2.0f, -1.0f, 0.498f, 1.0f).ToFColor(false));
	EXPECT_EQ(FColor(188, 0, 0), FLinearColor(0.5f, 0.0f, 0.0f).ToFColor(true));
}

TEST(FLinearColor, QuantizingCutsOffOrRounds)
{
	const FLinearColor Color(0.999f, 0.5f, 0.0f, 1.0f);
	EXPECT_EQ(FColor(254, 127, 0), Color.Quantize());
	EXPECT_EQ(FColor(255, 128, 0), Color.QuantizeRound());
}
