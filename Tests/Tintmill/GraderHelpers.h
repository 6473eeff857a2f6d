// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Tintmill/Private/LookGrader.h"

#include "Tintmill/ReferenceLook.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace TintmillTest
{
/** A text that passes the checks. */
inline LookFile::FCheckedFile Checked(const std::string& Text, const std::string& Extension)
{
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	EXPECT_TRUE(LookFile::CheckText(Text, Extension, File, Problem)) << Problem.Line << ": " << Problem.Reason;
	return File;
}

/** A grader of at most a rank. */
inline std::shared_ptr<const LookGrading::ILookGrader> Made(const LookFile::FCheckedFile& File, int HighestRank)
{
	std::string Reason;
	std::shared_ptr<const LookGrading::ILookGrader> Grader = LookGrading::MakeLookGrader(File, Reason, HighestRank);
	EXPECT_NE(Grader, nullptr) << Reason;
	return Grader;
}

/** Colors all over the cube, red first, with alphas that differ. */
inline std::vector<std::uint8_t> ManyColors()
{
	std::vector<std::uint8_t> Pixels;
	for (int Blue = 0; Blue < 256; Blue += 15)
	{
		for (int Green = 0; Green < 256; Green += 17)
		{
			for (int Red = 0; Red < 256; Red += 5)
			{
				Pixels.insert(Pixels.end(),
					{static_cast<std::uint8_t>(Red), static_cast<std::uint8_t>(Green), static_cast<std::uint8_t>(Blue),
						static_cast<std::uint8_t>(Red ^ Blue)});
			}
		}
	}
	return Pixels;
}

/** Many colors under a look. */
inline std::vector<std::uint8_t> ManyGraded(const LookGrading::ILookGrader& Grader)
{
	const std::vector<std::uint8_t> In = ManyColors();
	std::vector<std::uint8_t> Out(In.size());
	Grader.Grade(In.data(), Out.data(), In.size() / 4, LookGrading::EByteOrder::RedFirst);
	return Out;
}

/** The largest difference, in code values, between a grader's pixels and the reference's. */
inline int LargestError(const std::string& Text, int HighestRank)
{
	const LookFile::FCheckedFile File = Checked(Text, "cube");
	const std::vector<std::uint8_t> In = ManyColors();
	const std::vector<std::uint8_t> Out = ManyGraded(*Made(File, HighestRank));
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

/** The largest difference, in code values, between two lists of bytes of the same length. */
inline int LargestDifference(const std::vector<std::uint8_t>& A, const std::vector<std::uint8_t>& B)
{
	int Largest = 0;
	for (std::size_t Byte = 0; Byte < A.size(); ++Byte)
	{
		Largest = std::max(Largest, std::abs(A[Byte] - B[Byte]));
	}
	return Largest;
}

/** One pixel, red first, through a look file of any format. */
inline std::vector<int> Graded(const std::string& Extension, const std::string& Text, std::vector<std::uint8_t> Pixel, int HighestRank)
{
	Made(Checked(Text, Extension), HighestRank)->Grade(Pixel.data(), Pixel.data(), 1, LookGrading::EByteOrder::RedFirst);
	return std::vector<int>(Pixel.begin(), Pixel.end());
}

/** The text of a .cube with a bent curve before an asymmetric table. */
inline std::string CurveAndTable()
{
	std::string Text = AsymmetricCube(5, "LUT_1D_SIZE 3\n");
	Text.insert(Text.find('\n', Text.find("LUT_3D_SIZE")) + 1, "0 0 0\n0.3 0.5 0.7\n1 1 1\n");
	return Text;
}
}
