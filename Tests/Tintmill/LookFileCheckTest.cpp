// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookFileCheck.h"

#include "Tintmill/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace LookFileCheckTest
{
static const char* const Curve = "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n";

static std::uint64_t HashOf(const std::string& Text)
{
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	EXPECT_TRUE(LookFile::CheckText(Text, "cube", File, Problem));
	return File.ContentHash;
}

TEST(LookFileCheck, TakesTheExtensionInAnyCase)
{
	const TintmillTest::FTemporaryFolder Folder;
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	LookFile::CheckFile(Folder.Write("Teal.CuBe", Curve), File, Problem);
	EXPECT_EQ(File.Extension, "cube");
}

TEST(LookFileCheck, RefusesOtherExtensions)
{
	const TintmillTest::FTemporaryFolder Folder;
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	LookFile::CheckFile(Folder.Write("Teal.png", Curve), File, Problem);
	EXPECT_EQ(Problem.Reason, "files that end in \".png\" are not looks");
}

TEST(LookFileCheck, HashesWhatTheFileSaysAndNotHowItIsWritten)
{
	EXPECT_EQ(HashOf(Curve), HashOf("# other\r\nLUT_1D_SIZE  2\r\n0.0 0 0\r\n1 1 1.000\r\n"));
}

TEST(LookFileCheck, HashesDifferentTablesDifferently)
{
	EXPECT_NE(HashOf(Curve), HashOf("LUT_1D_SIZE 2\n0 0 0\n1 1 0.5\n"));
}

TEST(LookFileCheck, LeavesTheResultAloneWhenItRefuses)
{
	LookFile::FCheckedFile File;
	File.Text = "before";
	LookFile::FProblem Problem;
	LookFile::CheckText("LUT_1D_SIZE 2\n0 0 0\n", "cube", File, Problem);
	EXPECT_EQ(File.Text, "before");
}
}
