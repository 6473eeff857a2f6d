// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/GraderHelpers.h"

namespace LookTableGraderTest
{
using namespace TintmillTest;

constexpr int Rank = LookGrading::TableRank;

TEST(LookTableGrader, AgreesWithTheReferenceOnAnAsymmetricTable)
{
	EXPECT_LE(LargestError(AsymmetricCube(9), Rank), 1);
}

TEST(LookTableGrader, AgreesWithTheReferenceOnTheSmallestTable)
{
	EXPECT_LE(LargestError(AsymmetricCube(2), Rank), 1);
}

TEST(LookTableGrader, AgreesWithTheReferenceOnATableWithADomain)
{
	EXPECT_LE(LargestError(AsymmetricCube(5, "DOMAIN_MIN 0.25 0.1 0\nDOMAIN_MAX 0.75 0.9 0.5\n", 0.2, 0.8), Rank), 1);
}

TEST(LookTableGrader, AgreesWithTheReferenceOnACurve)
{
	EXPECT_LE(LargestError("LUT_1D_SIZE 4\n0 0.1 1\n0.2 0.5 0.7\n0.9 0.6 0.3\n1 0.95 0\n", Rank), 1);
}

TEST(LookTableGrader, AgreesWithTheReferenceOnACurveBeforeATable)
{
	EXPECT_LE(LargestError(CurveAndTable(), Rank), 1);
}

TEST(LookTableGrader, ClampsValuesBeyondTheRange)
{
	EXPECT_EQ(Graded("cube", "LUT_3D_SIZE 2\n-1 -1 -1\n3 0 0\n0 3 0\n3 3 0\n0 0 -3\n3 0 -3\n0 3 -3\n3 3 -3\n", {255, 0, 255, 9}, Rank),
		(std::vector<int>{255, 0, 0, 9}));
}

TEST(LookTableGrader, HitsEveryCornerOfTheTable)
{
	EXPECT_EQ(Graded("cube", "LUT_3D_SIZE 2\n0 0 0\n0.2 0 0\n0 0.4 0\n0.2 0.4 0\n0 0 0.6\n0.2 0 0.6\n0 0.4 0.6\n0.2 0.4 0.6\n",
				  {255, 255, 255, 9}, Rank),
		(std::vector<int>{51, 102, 153, 9}));
}

TEST(LookTableGrader, TakesBlueFirstAsTheSameColors)
{
	const std::shared_ptr<const LookGrading::ILookGrader> Grader = Made(Checked(AsymmetricCube(5), "cube"), Rank);
	std::vector<std::uint8_t> RedFirst = {200, 100, 50, 9};
	std::vector<std::uint8_t> BlueFirst = {50, 100, 200, 9};
	Grader->Grade(RedFirst.data(), RedFirst.data(), 1, LookGrading::EByteOrder::RedFirst);
	Grader->Grade(BlueFirst.data(), BlueFirst.data(), 1, LookGrading::EByteOrder::BlueFirst);
	EXPECT_EQ(RedFirst, (std::vector<std::uint8_t>{BlueFirst[2], BlueFirst[1], BlueFirst[0], BlueFirst[3]}));
}
}
