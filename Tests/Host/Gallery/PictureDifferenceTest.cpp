// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/PictureDifference.h"

#include <gtest/gtest.h>

#include <random>

using namespace TintmillHost;

namespace
{
FPicture Grey(int Width, int Height)
{
	FPicture Picture;
	Picture.Width = Width;
	Picture.Height = Height;
	Picture.Pixels.Init(FColor(90, 90, 90), Width * Height);
	return Picture;
}

/** Pixels that differ but lie in no area, areas that hold no such pixel, and pairs of areas that overlap. */
int CountMistakes(const FPicture& A, const FPicture& B, const std::vector<FIntRect>& Areas)
{
	int Mistakes = 0;
	std::vector<int> Holds(Areas.size());
	for (int Y = 0; Y < A.Height; ++Y)
	{
		for (int X = 0; X < A.Width; ++X)
		{
			const bool bDiffers = A.Pixels[Y * A.Width + X] != B.Pixels[Y * A.Width + X];
			int In = 0;
			for (size_t Index = 0; Index < Areas.size(); ++Index)
			{
				const FIntRect& Area = Areas[Index];
				const bool bIn = X >= Area.Min.X && X < Area.Max.X && Y >= Area.Min.Y && Y < Area.Max.Y;
				In += bIn ? 1 : 0;
				Holds[Index] += bIn && bDiffers ? 1 : 0;
			}
			Mistakes += In > 1 || (bDiffers && In == 0) ? 1 : 0;
		}
	}
	for (const int Number : Holds)
	{
		Mistakes += Number == 0 ? 1 : 0;
	}
	return Mistakes;
}

TEST(PictureDifference, EqualPicturesHaveNone)
{
	EXPECT_TRUE(FindDifferences(Grey(40, 30), Grey(40, 30)).empty());
}

TEST(PictureDifference, AlphaMakesNone)
{
	FPicture Other = Grey(40, 30);
	Other.Pixels[17].A = 3;
	EXPECT_TRUE(FindDifferences(Grey(40, 30), Other).empty());
}

TEST(PictureDifference, OnePixelIsAnAreaOfOnePixel)
{
	FPicture Other = Grey(40, 30);
	Other.Pixels[7 * 40 + 39].G = 91;
	EXPECT_EQ(FindDifferences(Grey(40, 30), Other), (std::vector<FIntRect>{FIntRect(39, 7, 40, 8)}));
}

TEST(PictureDifference, NeighborsShareAnArea)
{
	FPicture Other = Grey(200, 30);
	Other.Pixels[7 * 200 + 10].G = 91;
	Other.Pixels[9 * 200 + 30].G = 91;
	EXPECT_EQ(FindDifferences(Grey(200, 30), Other), (std::vector<FIntRect>{FIntRect(10, 7, 31, 10)}));
}

TEST(PictureDifference, WhatLiesFarApartHasAreasOfItsOwn)
{
	FPicture Other = Grey(200, 30);
	Other.Pixels[7 * 200 + 10].G = 91;
	Other.Pixels[9 * 200 + 110].G = 91;
	EXPECT_EQ(FindDifferences(Grey(200, 30), Other), (std::vector<FIntRect>{FIntRect(10, 7, 11, 8), FIntRect(110, 9, 111, 10)}));
}

TEST(PictureDifference, AreasHoldAllThatDiffersAndOverlapNowhere)
{
	std::mt19937 Random(4);
	for (int Round = 0; Round < 60; ++Round)
	{
		FPicture Other = Grey(160, 120);
		for (int Mark = 0; Mark < Round / 6; ++Mark)
		{
			Other.Pixels[static_cast<int>(Random() % (160 * 120))] = FColor::Red;
		}
		EXPECT_EQ(CountMistakes(Grey(160, 120), Other, FindDifferences(Grey(160, 120), Other)), 0) << Round;
	}
}
}
