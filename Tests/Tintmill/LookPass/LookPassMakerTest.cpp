// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookGrader.h"

#include "Tintmill/ReferenceLook.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace LookPassMakerTest
{
using namespace TintmillTest;

static LookFile::FCheckedFile Checked(const std::string& Text, const std::string& Extension)
{
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	EXPECT_TRUE(LookFile::CheckText(Text, Extension, File, Problem)) << Problem.Line << ": " << Problem.Reason;
	return File;
}

static std::shared_ptr<const LookGrading::ILookGrader> Made(const LookFile::FCheckedFile& File)
{
	std::string Reason;
	std::shared_ptr<const LookGrading::ILookGrader> Grader = LookGrading::MakeLookGrader(File, Reason);
	EXPECT_NE(Grader, nullptr) << Reason;
	return Grader;
}

/** Colors all over the cube, red first, with alphas that differ. */
static std::vector<std::uint8_t> ManyPixels()
{
	std::vector<std::uint8_t> Pixels;
	for (int Blue = 0; Blue < 256; Blue += 15)
	{
		for (int Green = 0; Green < 256; Green += 17)
		{
			for (int Red = 0; Red < 256; Red += 5)
			{
				Pixels.insert(Pixels.end(), {static_cast<std::uint8_t>(Red), static_cast<std::uint8_t>(Green), static_cast<std::uint8_t>(Blue),
												static_cast<std::uint8_t>(Red ^ Blue)});
			}
		}
	}
	return Pixels;
}

/** The largest difference, in code values, between the grader's pixels and the reference's. */
static int LargestError(const std::string& Text)
{
	const LookFile::FCheckedFile File = Checked(Text, "cube");
	const std::vector<std::uint8_t> In = ManyPixels();
	std::vector<std::uint8_t> Out(In.size());
	Made(File)->Grade(In.data(), Out.data(), In.size() / 4, LookGrading::EByteOrder::RedFirst);
	int Largest = 0;
	for (std::size_t Pixel = 0; Pixel < In.size(); Pixel += 4)
	{
		const FReferenceColor Color = ReferenceLook(File.Cube, {In[Pixel] / 255.0, In[Pixel + 1] / 255.0, In[Pixel + 2] / 255.0});
		for (std::size_t Channel = 0; Channel < 3; ++Channel)
		{
			Largest = std::max(Largest, std::abs(ReferenceByte(Color[Channel]) - Out[Pixel + Channel]));
		}
	}
	return Largest;
}

/** One pixel, red first, through a look file of any format. */
static std::vector<int> Graded(const std::string& Extension, const std::string& Text, std::vector<std::uint8_t> Pixel)
{
	Made(Checked(Text, Extension))->Grade(Pixel.data(), Pixel.data(), 1, LookGrading::EByteOrder::RedFirst);
	return std::vector<int>(Pixel.begin(), Pixel.end());
}

TEST(LookPassMaker, AgreesWithTheReferenceOnAnAsymmetricTable)
{
	EXPECT_LE(LargestError(AsymmetricCube(9)), 1);
}

TEST(LookPassMaker, AgreesWithTheReferenceOnTheSmallestTable)
{
	EXPECT_LE(LargestError(AsymmetricCube(2)), 1);
}

TEST(LookPassMaker, AgreesWithTheReferenceOnATableWithADomain)
{
	EXPECT_LE(LargestError(AsymmetricCube(9, "DOMAIN_MIN -0.25 -0.25 -0.25\nDOMAIN_MAX 1.5 1.5 1.5\n", -0.25, 1.5)), 1);
}

TEST(LookPassMaker, AgreesWithTheReferenceOnADomainInsideTheRange)
{
	EXPECT_LE(LargestError(AsymmetricCube(5, "DOMAIN_MIN 0.25 0.1 0\nDOMAIN_MAX 0.75 0.9 0.5\n", 0.2, 0.8)), 1);
}

TEST(LookPassMaker, AgreesWithTheReferenceOnACurve)
{
	EXPECT_LE(LargestError("LUT_1D_SIZE 4\n0 0.1 1\n0.2 0.5 0.7\n0.9 0.6 0.3\n1 0.95 0\n"), 1);
}

TEST(LookPassMaker, AgreesWithTheReferenceOnACurveBeforeATable)
{
	std::string Text = AsymmetricCube(5, "LUT_1D_SIZE 3\n");
	Text.insert(Text.find('\n', Text.find("LUT_3D_SIZE")) + 1, "0 0 0\n0.3 0.5 0.7\n1 1 1\n");
	EXPECT_LE(LargestError(Text), 1);
}

TEST(LookPassMaker, KeepsAlpha)
{
	EXPECT_EQ(Graded("cube", AsymmetricCube(3), {10, 20, 30, 77})[3], 77);
}

TEST(LookPassMaker, TakesBlueFirstAsTheSameColors)
{
	const std::shared_ptr<const LookGrading::ILookGrader> Grader = Made(Checked(AsymmetricCube(5), "cube"));
	std::vector<std::uint8_t> RedFirst = {200, 100, 50, 9};
	std::vector<std::uint8_t> BlueFirst = {50, 100, 200, 9};
	Grader->Grade(RedFirst.data(), RedFirst.data(), 1, LookGrading::EByteOrder::RedFirst);
	Grader->Grade(BlueFirst.data(), BlueFirst.data(), 1, LookGrading::EByteOrder::BlueFirst);
	EXPECT_EQ(RedFirst, (std::vector<std::uint8_t>{BlueFirst[2], BlueFirst[1], BlueFirst[0], BlueFirst[3]}));
}

TEST(LookPassMaker, DoesNotSwapRedAndBlue)
{
	EXPECT_EQ(Graded("cube", "LUT_1D_SIZE 2\n0 0 0\n1 0.5 0\n", {255, 255, 255, 255}), (std::vector<int>{255, 128, 0, 255}));
}

TEST(LookPassMaker, ClampsValuesBeyondTheRange)
{
	EXPECT_EQ(Graded("cube", "LUT_1D_SIZE 2\n-1 -1 -1\n3 3 -3\n", {255, 0, 255, 255}), (std::vector<int>{255, 0, 0, 255}));
}

TEST(LookPassMaker, ReadsClf)
{
	EXPECT_EQ(Graded("clf",
				  "<?xml version=\"1.0\"?>\n<ProcessList id=\"a\" compCLFversion=\"3\">\n<Matrix inBitDepth=\"32f\" outBitDepth=\"32f\">\n"
				  "<Array dim=\"3 3\">\n0 1 0\n0 0 1\n1 0 0\n</Array>\n</Matrix>\n</ProcessList>\n",
				  {10, 20, 30, 255}),
		(std::vector<int>{20, 30, 10, 255}));
}

TEST(LookPassMaker, ReadsSpi1D)
{
	EXPECT_EQ(Graded("spi1d", "Version 1\nFrom 0.0 1.0\nLength 2\nComponents 3\n{\n0 0 0\n1 0.5 0\n}\n", {255, 255, 255, 255}),
		(std::vector<int>{255, 128, 0, 255}));
}

TEST(LookPassMaker, ReadsSpi3D)
{
	EXPECT_EQ(Graded("spi3d",
				  "SPILUT 1.0\n3 3\n2 2 2\n0 0 0 0 0 0\n0 0 1 1 0 0\n0 1 0 0 0 1\n0 1 1 1 0 1\n1 0 0 0 1 0\n1 0 1 1 1 0\n1 1 0 0 1 1\n1 1 1 1 1 1\n",
				  {255, 0, 0, 255}),
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
	EXPECT_EQ(Graded("3dl", Text, {255, 255, 0, 255}), (std::vector<int>{0, 255, 0, 255}));
}

TEST(LookPassMaker, ReadsCsp)
{
	EXPECT_EQ(Graded("csp", "CSPLUTV100\n1D\n\n2\n0 1\n0 1\n2\n0 1\n0 1\n2\n0 1\n0 1\n\n2\n0 0 0\n1 0.5 0\n", {255, 255, 255, 255}),
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
	EXPECT_NE(Made(Checked("Version 1\nFrom 0 1\nLength 2\nComponents 1\n{\n0\n1\n}\n", "spi1d")), nullptr);
}
}
