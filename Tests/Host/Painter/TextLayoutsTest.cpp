// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/TextLayouts.h"

#include "Fonts/FontMeasure.h"
#include "Host/Painter/Canvas.h"
#include "Host/Painter/PangoFontMeasurer.h"
#include "Host/Program/Strings.h"

#include <algorithm>

using namespace TintmillHost;

namespace
{
/** The area of a picture that has ink in it. */
struct FInk
{
	int Left = 100000;
	int Right = -1;
	int Top = 100000;
	int Bottom = -1;
	int Full = 0;
	int Partial = 0;
};

class TextLayouts : public FCanvasTest
{
protected:
	static FInk FindInk(const FPicture& Picture)
	{
		FInk Ink;
		for (int Y = 0; Y < Picture.Height; ++Y)
		{
			for (int X = 0; X < Picture.Width; ++X)
			{
				const FColor Pixel = At(Picture, X, Y);
				if (Pixel.R < 16)
				{
					continue;
				}
				Ink.Left = std::min(Ink.Left, X);
				Ink.Right = std::max(Ink.Right, X);
				Ink.Top = std::min(Ink.Top, Y);
				Ink.Bottom = std::max(Ink.Bottom, Y);
				(Pixel.R > 235 ? Ink.Full : Ink.Partial) += 1;
			}
		}
		return Ink;
	}

	double Measure(const TCHAR* Text, double Scale = 1.0) { return Layouts->MeasureWidth(ToUtf8(FString(Text)), Font(), Scale); }
};

TEST_F(TextLayouts, WhatIsMeasuredIsAsWideAsWhatIsPainted)
{
	const TCHAR* const Text = TEXT("HOptimization ViewmodesH");
	AddText(Text, 10, 4);
	const FInk Ink = FindInk(Paint(300, 24));
	// The straight letters at both ends have about a pixel of white on their outer sides.
	EXPECT_NEAR(Ink.Right + 1 - Ink.Left, Measure(Text), 2.5);
	EXPECT_GE(Ink.Left, 10);
	EXPECT_LE(Ink.Right, 10 + Measure(Text));
}

TEST_F(TextLayouts, AlsoAtTwiceTheScale)
{
	const TCHAR* const Text = TEXT("HOptimization ViewmodesH");
	AddText(Text, 10, 4);
	const FInk Ink = FindInk(Paint(300, 24, 2.0));
	EXPECT_NEAR(Ink.Right + 1 - Ink.Left, 2.0 * Measure(Text), 5.0);
	EXPECT_LE(Ink.Right, 2.0 * (10 + Measure(Text)));
}

TEST_F(TextLayouts, ALineIsTwiceAsWideAtTwiceTheSize)
{
	EXPECT_NEAR(Measure(TEXT("Level of Detail Coloration"), 2.0), 2.0 * Measure(TEXT("Level of Detail Coloration")), 0.1);
}

TEST_F(TextLayouts, NinePointsMakeALineOfSixteenPixels)
{
	EXPECT_EQ(FTextLayouts::GetLineHeight(Font(), 1.0), 16);
}

TEST_F(TextLayouts, LettersStandInTheMiddleOfTheirLine)
{
	AddText(TEXT("HEH"), 10, 4);
	const FInk Ink = FindInk(Paint(60, 24));
	const int Above = Ink.Top - 4;
	const int Below = 4 + 15 - Ink.Bottom;
	EXPECT_LE(std::abs(Above - Below), 1);
}

TEST_F(TextLayouts, EdgesOfLettersAreGray)
{
	AddText(TEXT("Wireframe"), 3, 3);
	for (const FColor& Pixel : Paint(80, 24).Pixels)
	{
		ASSERT_EQ(Pixel.R, Pixel.G);
		ASSERT_EQ(Pixel.G, Pixel.B);
	}
}

TEST_F(TextLayouts, AtTwiceTheScaleASmallerShareOfTheInkIsBlurred)
{
	AddText(TEXT("Lighting Only"), 3, 3);
	const FInk Once = FindInk(Paint(120, 24));
	const FInk Twice = FindInk(Paint(120, 24, 2.0));
	EXPECT_GT(static_cast<double>(Twice.Full) / (Twice.Full + Twice.Partial), 1.2 * Once.Full / (Once.Full + Once.Partial));
}

TEST_F(TextLayouts, TheFootOfStraightLettersIsSharp)
{
	AddText(TEXT("EEE"), 4, 4);
	const FPicture Picture = Paint(60, 24);
	const FInk Ink = FindInk(Picture);
	int Brightest = 0;
	int Below = 0;
	for (int X = 0; X < Picture.Width; ++X)
	{
		Brightest = std::max<int>(Brightest, At(Picture, X, Ink.Bottom).R);
		Below = std::max<int>(Below, At(Picture, X, Ink.Bottom + 1).R);
	}
	EXPECT_GT(Brightest, 200);
	EXPECT_LT(Below, 16);
}

TEST_F(TextLayouts, BoldIsWiderThanRegular)
{
	EXPECT_GT(
		Layouts->MeasureWidth("Tintmill", FCoreStyle::GetDefaultFontStyle("Bold", 9), 1.0), Layouts->MeasureWidth("Tintmill", Font(), 1.0));
}

TEST_F(TextLayouts, ARightToLeftLineStartsAtItsLeftEnd)
{
	const TCHAR* const Text = TEXT("\u05E9\u05DC\u05D5\u05DD");
	AddText(Text, 10, 4);
	const FInk Ink = FindInk(Paint(120, 24));
	EXPECT_GE(Ink.Left, 9);
	EXPECT_LE(Ink.Right, 11 + Measure(Text));
}

TEST_F(TextLayouts, ALineBreakDoesNotMakeASecondLine)
{
	AddText(TEXT("A\nA"), 4, 4);
	EXPECT_LE(FindInk(Paint(60, 60)).Bottom, 20);
}

TEST_F(TextLayouts, SlateMeasuresWithThemWhileAsked)
{
	const FSlateFontMeasure Service;
	const float Before = Service.Measure(TEXT("iiii"), Font()).X;
	{
		const FPangoMeasuring Measuring(Layouts);
		EXPECT_FLOAT_EQ(Service.Measure(TEXT("iiii"), Font()).X, static_cast<float>(Measure(TEXT("iiii"))));
	}
	EXPECT_FLOAT_EQ(Service.Measure(TEXT("iiii"), Font()).X, Before);
}
}
