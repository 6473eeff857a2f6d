// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookFileTable.h"

#include "Tintmill/Private/LookFileCheck.h"

#include <gtest/gtest.h>

namespace LookFileTableTest
{
static std::string Verdict(const std::string& Extension, const std::string& Text)
{
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	return LookFile::CheckText(Text, Extension, File, Problem) ? "accepted" : LookFile::Sentence("x." + Extension, Problem);
}

TEST(LookFileTable, AcceptsASpi1DFile)
{
	EXPECT_EQ(Verdict("spi1d", "Version 1\nFrom 0.0 1.0\nLength 2\nComponents 1\n{\n0.0\n1.0\n}\n"), "accepted");
}

TEST(LookFileTable, RefusesASpi1DFileWithoutALength)
{
	EXPECT_EQ(Verdict("spi1d", "Version 1\n{\n0\n}\n"), "x.spi1d: the file does not say how long its table is (\"Length\")");
}

TEST(LookFileTable, RefusesAHugeSpi1DLength)
{
	EXPECT_EQ(
		Verdict("spi1d", "Version 1\nLength 1000000000\n"), "x.spi1d(2): the table's length \"1000000000\" is not between 2 and 65536");
}

TEST(LookFileTable, AcceptsASpi3DFile)
{
	EXPECT_EQ(Verdict("spi3d", "SPILUT 1.0\n3 3\n2 2 2\n0 0 0 0.0 0.0 0.0\n"), "accepted");
}

TEST(LookFileTable, RefusesAHugeSpi3DSize)
{
	EXPECT_EQ(Verdict("spi3d", "SPILUT 1.0\n3 3\n2 2 4000\n"), "x.spi3d(3): the table's size \"4000\" is not between 2 and 129");
}

TEST(LookFileTable, RefusesUnequalSpi3DSizes)
{
	EXPECT_EQ(Verdict("spi3d", "SPILUT 1.0\n3 3\n2 2 3\n"), "x.spi3d(3): the three sizes of the table have to be equal");
}

TEST(LookFileTable, RefusesASpi3DFileThatEndsEarly)
{
	EXPECT_EQ(Verdict("spi3d", "SPILUT 1.0\n"), "x.spi3d: the file ends before the sizes of its table");
}

TEST(LookFileTable, RefusesADecimalCommaInARow)
{
	EXPECT_EQ(Verdict("spi1d", "Length 2\n{\n0,5\n}\n"),
		"x.spi1d(3): \"0,5\" is not a number; decimals are written with a point, and numbers are parted by blanks");
}

TEST(LookFileTable, RefusesNanInARow)
{
	EXPECT_EQ(Verdict("3dl", "0 512 1023\n0 0 nan\n"), "x.3dl(2): \"nan\" is not a finite number");
}

TEST(LookFileTable, AcceptsTheHeaderWordsOfA3DlFile)
{
	EXPECT_EQ(Verdict("3dl", "3DMESH\nMesh 1 8\n0 512 1023\n0 0 0\nLUT8\ngamma 1.0\n"), "accepted");
}

TEST(LookFileTable, AcceptsFreeTextBetweenMetadataMarks)
{
	EXPECT_EQ(Verdict("csp", "CSPLUTV100\n3D\n\nBEGIN METADATA\n12 monkeys, 0,5\nEND METADATA\n\n2\n0 1\n0 1\n"), "accepted");
}

TEST(LookFileTable, RefusesAnOverLongWord)
{
	EXPECT_EQ(Verdict("csp", "CSPLUTV100\n" + std::string(64, 'x') + "\n"),
		"x.csp(2): the word \"xxxxxxxxxxxxxxxxxxxxxxxx...\" is longer than 63 characters");
}
}
