// Copyright The Tintmill authors. All rights reserved.

#include "Host/Scene/ScenePainter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace ScenePainterTest
{
using namespace TintmillHost;

static std::vector<FColor> Painted(const FSceneCamera& Camera, int Width = 160, int Height = 90, int ThreadCount = 2)
{
	std::vector<FColor> Pixels(static_cast<std::size_t>(Width * Height), FColor(1, 2, 3, 4));
	PaintScene(Camera, FIntPoint(Width, Height), Pixels.data(), ThreadCount);
	return Pixels;
}

/** The share of pixels, in percent, for which a question is answered with yes. */
template <typename QuestionType>
static double Percent(const std::vector<FColor>& Pixels, const QuestionType& Question)
{
	return 100.0 * static_cast<double>(std::count_if(Pixels.begin(), Pixels.end(), Question)) / static_cast<double>(Pixels.size());
}

TEST(ScenePainter, PaintsTheSameBytesTwice)
{
	EXPECT_TRUE(Painted(DefaultSceneCamera(1)) == Painted(DefaultSceneCamera(1)));
}

TEST(ScenePainter, PaintsTheSameBytesWithAnyNumberOfThreads)
{
	EXPECT_TRUE(Painted(DefaultSceneCamera(1), 160, 90, 1) == Painted(DefaultSceneCamera(1), 160, 90, 5));
}

TEST(ScenePainter, PaintsCoarselyWhatIsNearlyTheFinePicture)
{
	const std::vector<FColor> Fine = Painted(DefaultSceneCamera(1));
	std::vector<FColor> Coarse(Fine.size());
	PaintSceneCoarsely(DefaultSceneCamera(1), FIntPoint(160, 90), Coarse.data(), 2, 2);
	double Difference = 0.0;
	for (std::size_t Index = 0; Index < Fine.size(); ++Index)
	{
		Difference += std::abs(Fine[Index].G - Coarse[Index].G);
	}
	EXPECT_GT(Difference, 0.0);
	EXPECT_LT(Difference / static_cast<double>(Fine.size()), 16.0);
}

TEST(ScenePainter, PaintsTheFinePictureWhereNothingIsToBeCoarse)
{
	std::vector<FColor> Pixels(160 * 90);
	PaintSceneCoarsely(DefaultSceneCamera(1), FIntPoint(160, 90), Pixels.data(), 1, 2);
	EXPECT_TRUE(Pixels == Painted(DefaultSceneCamera(1)));
}

TEST(ScenePainter, PaintsCoarselyInSizesThatCannotBeParted)
{
	std::vector<FColor> Pixels(3 * 5, FColor(0, 0, 0, 0));
	PaintSceneCoarsely(DefaultSceneCamera(1), FIntPoint(3, 5), Pixels.data(), 2, 2);
	EXPECT_TRUE(std::all_of(Pixels.begin(), Pixels.end(), [](const FColor& Color) { return Color.A == 255; }));
}

class ScenePane : public testing::TestWithParam<int>
{};

TEST_P(ScenePane, IsOpaqueEverywhere)
{
	EXPECT_EQ(Percent(Painted(DefaultSceneCamera(GetParam())), [](const FColor& Color) { return Color.A == 255; }), 100.0);
}

TEST_P(ScenePane, ShowsAnotherPictureThanTheNextPane)
{
	EXPECT_FALSE(Painted(DefaultSceneCamera(GetParam())) == Painted(DefaultSceneCamera((GetParam() + 1) % 4)));
}

TEST_P(ScenePane, HasColorsWorthGrading)
{
	const auto IsColorful = [](const FColor& Color) {
		return std::max({Color.R, Color.G, Color.B}) - std::min({Color.R, Color.G, Color.B}) > 80;
	};
	EXPECT_GT(Percent(Painted(DefaultSceneCamera(GetParam())), IsColorful), 3.0);
}

INSTANTIATE_TEST_SUITE_P(All, ScenePane, testing::Range(0, 4));

TEST(ScenePainter, HasDeepShadows)
{
	EXPECT_GT(Percent(Painted(DefaultSceneCamera(1)), [](const FColor& Color) { return Color.R + Color.G + Color.B < 60; }), 1.0);
}

TEST(ScenePainter, HasBrightLights)
{
	EXPECT_GT(Percent(Painted(DefaultSceneCamera(1)), [](const FColor& Color) { return Color.R + Color.G + Color.B > 690; }), 0.5);
}

TEST(ScenePainter, PaintsAPictureOfOnePixel)
{
	EXPECT_EQ(Painted(DefaultSceneCamera(1), 1, 1)[0].A, 255);
}

TEST(ScenePainter, PaintsNothingWithoutASize)
{
	FColor Pixel(1, 2, 3, 4);
	PaintScene(DefaultSceneCamera(1), FIntPoint(0, 5), &Pixel);
	EXPECT_EQ(Pixel, FColor(1, 2, 3, 4));
}

TEST(ScenePainter, ShowsAnotherPictureFromAnotherSide)
{
	FSceneCamera Camera = DefaultSceneCamera(1);
	OrbitSceneCamera(Camera, 40.0f, 10.0f);
	EXPECT_FALSE(Painted(Camera) == Painted(DefaultSceneCamera(1)));
}

TEST(ScenePainter, MovesTheFiguresWithTime)
{
	FSceneCamera Camera = GameSceneCamera();
	Camera.Seconds = 1.0f;
	EXPECT_FALSE(Painted(Camera) == Painted(GameSceneCamera()));
}

TEST(ScenePainter, PaintsPureWhiteOnTheChart)
{
	FSceneCamera Camera;
	Camera.View = ESceneView::Chart;
	EXPECT_GT(Percent(Painted(Camera), [](const FColor& Color) { return Color == FColor(255, 255, 255, 255); }), 0.1);
}
}
