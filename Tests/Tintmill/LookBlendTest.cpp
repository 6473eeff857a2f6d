// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookBlend.h"

#include "Tintmill/TestGrader.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace LookBlendTest
{
static std::vector<std::uint8_t> Applied(float Intensity, std::vector<std::uint8_t> Pixels)
{
	LookGrading::ApplyLook(TintmillTest::FInvertingGrader(), LookGrading::WeightOf(Intensity), Pixels.data(), Pixels.size() / 4,
		LookGrading::EByteOrder::BlueFirst);
	return Pixels;
}

/** Pixels of every kind, alpha too. */
static std::vector<std::uint8_t> ManyPixels(std::size_t Count)
{
	std::vector<std::uint8_t> Pixels(Count * 4);
	for (std::size_t Byte = 0; Byte < Pixels.size(); ++Byte)
	{
		Pixels[Byte] = static_cast<std::uint8_t>(Byte * 31 + Byte / 256);
	}
	return Pixels;
}

TEST(LookBlend, LeavesEveryBitAtIntensityNought)
{
	EXPECT_EQ(Applied(0.0f, ManyPixels(100)), ManyPixels(100));
}

TEST(LookBlend, TakesTheLookAloneAtFullIntensity)
{
	EXPECT_EQ(Applied(1.0f, {0, 100, 255, 7}), (std::vector<std::uint8_t>{255, 155, 0, 7}));
}

TEST(LookBlend, RoundsHalvesUpwards)
{
	EXPECT_EQ(LookGrading::Blend(10, 13, LookGrading::WeightOf(0.5f)), 12);
}

TEST(LookBlend, BlendsLinearly)
{
	EXPECT_EQ(Applied(0.25f, {0, 100, 255, 7}), (std::vector<std::uint8_t>{64, 114, 191, 7}));
}

TEST(LookBlend, KeepsAlphaAtEveryIntensity)
{
	EXPECT_EQ(Applied(0.5f, {1, 2, 3, 200})[3], 200);
}

TEST(LookBlend, TakesANegativeIntensityAsNought)
{
	EXPECT_EQ(LookGrading::WeightOf(-3.0f), 0u);
}

TEST(LookBlend, TakesAnIntensityAboveOneAsOne)
{
	EXPECT_EQ(LookGrading::WeightOf(1e30f), LookGrading::FullWeight);
}

TEST(LookBlend, TakesWhatIsNoNumberAsNought)
{
	EXPECT_EQ(LookGrading::WeightOf(std::numeric_limits<float>::quiet_NaN()), 0u);
}

TEST(LookBlend, ChangesNothingWhenTheLookIsTheSameColor)
{
	EXPECT_EQ(LookGrading::Blend(201, 201, 12345), 201);
}

TEST(LookBlend, TreatsEveryPixelOfABigPictureAlike)
{
	const std::size_t Count = 333 * 1001;
	const std::vector<std::uint8_t> In = ManyPixels(Count);
	std::vector<std::uint8_t> Expected = In;
	for (std::size_t Byte = 0; Byte < In.size(); ++Byte)
	{
		Expected[Byte] =
			Byte % 4 == 3 ? In[Byte] : LookGrading::Blend(In[Byte], static_cast<std::uint8_t>(255 - In[Byte]), LookGrading::WeightOf(0.3f));
	}
	EXPECT_EQ(Applied(0.3f, In), Expected);
}

TEST(LookBlend, TakesAPictureWithoutPixels)
{
	EXPECT_EQ(Applied(1.0f, {}).size(), 0u);
}
}
