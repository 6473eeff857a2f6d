// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookGrader.h"

#include "Tintmill/GraderHelpers.h"

namespace LookPassMakerTest
{
using namespace TintmillTest;

constexpr int Rank = LookGrading::LibraryRank;

TEST(LookPassMaker, AgreesWithTheReferenceOnAnAsymmetricTable)
{
	EXPECT_LE(LargestError(AsymmetricCube(9), Rank), 1);
}

TEST(LookPassMaker, AgreesWithTheReferenceOnTheSmallestTable)
{
	EXPECT_LE(LargestError(AsymmetricCube(2), Rank), 1);
}

TEST(LookPassMaker, AgreesWithTheReferenceOnATableWithADomain)
{
	EXPECT_LE(LargestError(AsymmetricCube(9, "DOMAIN_MIN -0.25 -0.25 -0.25\nDOMAIN_MAX 1.5 1.5 1.5\n", -0.25, 1.5), Rank), 1);
}

TEST(LookPassMaker, AgreesWithTheReferenceOnADomainInsideTheRange)
{
	EXPECT_LE(LargestError(AsymmetricCube(5, "DOMAIN_MIN 0.25 0.1 0\nDOMAIN_MAX 0.75 0.9 0.5\n", 0.2, 0.8), Rank), 1);
}

TEST(LookPassMaker, AgreesWithTheReferenceOnACurve)
{
	EXPECT_LE(LargestError("LUT_1D_SIZE 4\n0 0.1 1\n0.2 0.5 0.7\n0.9 0.6 0.3\n1 0.95 0\n", Rank), 1);
}

TEST(LookPassMaker, AgreesWithTheReferenceOnACurveBeforeATable)
{
	EXPECT_LE(LargestError(CurveAndTable(), Rank), 1);
}

TEST(LookPassMaker, KeepsAlpha)
{
	EXPECT_EQ(Graded("cube", AsymmetricCube(3), {10, 20, 30, 77}, Rank)[3], 77);
}

TEST(LookPassMaker, TakesBlueFirstAsTheSameColors)
{
	const std::shared_ptr<const LookGrading::ILookGrader> Grader = Made(Checked(AsymmetricCube(5), "cube"), Rank);
	std::vector<std::uint8_t> RedFirst = {200, 100, 50, 9};
	std::vector<std::uint8_t> BlueFirst = {50, 100, 200, 9};
	Grader->Grade(RedFirst.data(), RedFirst.data(), 1, LookGrading::EByteOrder::RedFirst);
	Grader->Grade(BlueFirst.data(), BlueFirst.data(), 1, LookGrading::EByteOrder::BlueFirst);
	EXPECT_EQ(RedFirst, (std::vector<std::uint8_t>{BlueFirst[2], BlueFirst[1], BlueFirst[0], BlueFirst[3]}));
}

TEST(LookPassMaker, DoesNotSwapRedAndBlue)
{
	EXPECT_EQ(Graded("cube", "LUT_1D_SIZE 2\n0 0 0\n1 0.5 0\n", {255, 255, 255, 255}, Rank), (std::vector<int>{255, 128, 0, 255}));
}

TEST(LookPassMaker, ClampsValuesBeyondTheRange)
{
	EXPECT_EQ(Graded("cube", "LUT_1D_SIZE 2\n-1 -1 -1\n3 3 -3\n", {255, 0, 255, 255}, Rank), (std::vector<int>{255, 0, 0, 255}));
}

TEST(LookPassMaker, ReadsClf)
{
	EXPECT_EQ(Graded("clf",
				  "<?xml version=\"1.0\"?>\n<ProcessList id=\"a\" compCLFversion=\"3\">\n<Matrix inBitDepth=\"32f\" outBitDepth=\"32f\">\n"
				  "<Array dim=\"3 3\">\n0 1 0\n0 0 1\n1 0 0\n</Array>\n</Matrix>\n</ProcessList>\n",
				  {10, 20, 30, 255}, Rank),
		(std::vector<int>{20, 30, 10, 255}));
}

TEST(LookPassMaker, ReadsSpi1D)
{
	EXPECT_EQ(Graded("spi1d", "Version 1\nFrom 0.0 1.0\nLength 2\nComponents 3\n{\n0 0 0\n1 0.5 0\n}\n", {255, 255, 255, 255}, Rank),
		(std::vector<int>{255, 128, 0, 255}));
}

TEST(LookPassMaker, ReadsSpi3D)
{
	EXPECT_EQ(
		Graded("spi3d",
			"SPILUT 1.0\n3 3\n2 2 2\n0 0 0 0 0 0\n0 0 1 1 0 0\n0 1 0 0 0 1\n0 1 1 1 0 1\n1 0 0 0 1 0\n1 0 1 1 1 0\n1 1 0 0 1 1\n1 1 1 1 1 1\n",
			{255, 0, 0, 255}, Rank),
		(std::vector<int>{0, 255, 0, 255}));
}

TEST(LookPassMaker, Reads3Dl)
{
	std::string Text = "0 341 682 1023\n";
	for (int Row = 0; Row < 64; ++Row)
	{
		// Blue runs fastest in this format; red comes out as nought.
		Text += "0 " + std::to_string(Row / 4 % 4 * 1365) + " " + std::to_string(Row % 4 * 1365) + "\n";
	}
	EXPECT_EQ(Graded("3dl", Text, {255, 255, 0, 255}, Rank), (std::vector<int>{0, 255, 0, 255}));
}

TEST(LookPassMaker, ReadsCsp)
{
	EXPECT_EQ(Graded("csp", "CSPLUTV100\n1D\n\n2\n0 1\n0 1\n2\n0 1\n0 1\n2\n0 1\n0 1\n\n2\n0 0 0\n1 0.5 0\n", {255, 255, 255, 255}, Rank),
		(std::vector<int>{255, 128, 0, 255}));
}

TEST(LookPassMaker, SaysInOneLineWhatTheLibraryFoundWrong)
{
	std::string Reason;
	LookGrading::MakeLookGrader(Checked("<ProcessList><Broken></ProcessList>", "clf"), Reason);
	EXPECT_EQ(Reason, "OpenColorIO cannot use it: At line 1: Required attribute 'id' is missing");
}

TEST(LookPassMaker, MakesNoGraderFromAFileThatTheLibraryCannotRead)
{
	std::string Reason;
	EXPECT_EQ(LookGrading::MakeLookGrader(Checked("Version 1\nLength 2\n{\n0\n}\n", "spi1d"), Reason), nullptr);
}

TEST(LookPassMaker, ReadsAFileAgainAfterItFailed)
{
	std::string Reason;
	LookGrading::MakeLookGrader(Checked("Version 1\nLength 2\n{\n0\n}\n", "spi1d"), Reason);
	EXPECT_NE(Made(Checked("Version 1\nFrom 0 1\nLength 2\nComponents 1\n{\n0\n1\n}\n", "spi1d"), Rank), nullptr);
}
}
