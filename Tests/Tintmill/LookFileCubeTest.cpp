// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookFileCube.h"

#include "Tintmill/Private/LookFileCheck.h"

#include <gtest/gtest.h>

namespace LookFileCubeTest
{
/** The eight rows of a table of two entries an axis that changes nothing. */
static const char* const Rows = "0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 1\n";

static LookFile::FCheckedFile Accepted(const std::string& Text)
{
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	EXPECT_TRUE(LookFile::CheckText(Text, "cube", File, Problem)) << LookFile::Sentence("Teal.cube", Problem);
	return File;
}

/** The sentence of a refusal. */
static std::string Refused(const std::string& Text)
{
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	EXPECT_FALSE(LookFile::CheckText(Text, "cube", File, Problem));
	return LookFile::Sentence("Teal.cube", Problem);
}

static std::string Sized(const std::string& Header)
{
	return "LUT_3D_SIZE 2\n" + Header + Rows;
}

TEST(LookFileCube, ReadsRowsInTheirOrder)
{
	EXPECT_EQ(Accepted(Sized("")).Cube.Values[3], 1.0f);
}

TEST(LookFileCube, WritesAPlainCopyWithItsDomain)
{
	EXPECT_EQ(Accepted("# made by hand\r\nTITLE \"x\"\r\nlut_3d_size 2\r\n" + std::string(Rows)).Text,
		"LUT_3D_SIZE 2\nDOMAIN_MIN 0 0 0\nDOMAIN_MAX 1 1 1\n" + std::string(Rows));
}

TEST(LookFileCube, AcceptsCommentsAndBlankLinesBetweenRows)
{
	EXPECT_EQ(
		Accepted("LUT_3D_SIZE 2\n0 0 0\n\n  # half way\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 1\n# end\n").Cube.Values.size(), 24u);
}

TEST(LookFileCube, AcceptsAByteOrderMark)
{
	EXPECT_EQ(Accepted("\xef\xbb\xbf" + Sized("")).Cube.Size3D, 2);
}

TEST(LookFileCube, AcceptsATitleWithoutQuotes)
{
	EXPECT_EQ(Accepted("TITLE Film 12 nan\n" + Sized("")).Cube.Size3D, 2);
}

TEST(LookFileCube, AcceptsATitleBesideAnInputRange)
{
	EXPECT_EQ(Accepted("TITLE \"x\"\n" + Sized("LUT_3D_INPUT_RANGE 0 2\n")).Text,
		"LUT_3D_SIZE 2\nDOMAIN_MIN 0 0 0\nDOMAIN_MAX 2 2 2\n" + std::string(Rows));
}

TEST(LookFileCube, AcceptsValuesOutsideNoughtToOne)
{
	EXPECT_EQ(Accepted("LUT_1D_SIZE 2\n-0.5 0 0\n1.5 1 1\n").Cube.Values[3], 1.5f);
}

TEST(LookFileCube, AcceptsADomainOfItsOwnForEachChannel)
{
	EXPECT_EQ(Accepted(Sized("DOMAIN_MIN -1 0 0.25\nDOMAIN_MAX 1 2 3\n")).Cube.Max3D[2], 3.0f);
}

TEST(LookFileCube, KeepsBothTablesOfAFileWithTwo)
{
	EXPECT_EQ(Accepted("LUT_1D_SIZE 2\nLUT_1D_INPUT_RANGE 0 1\nLUT_3D_SIZE 2\n0 0 0\n1 1 1\n" + std::string(Rows)).Text,
		"LUT_1D_SIZE 2\nLUT_1D_INPUT_RANGE 0 1\nLUT_3D_SIZE 2\nLUT_3D_INPUT_RANGE 0 1\n0 0 0\n1 1 1\n" + std::string(Rows));
}

TEST(LookFileCube, ReadsTheLargestTable)
{
	std::string Text = "LUT_3D_SIZE 129\n";
	for (int Row = 0; Row < 129 * 129 * 129; ++Row)
	{
		Text += "0 0 0\n";
	}
	EXPECT_EQ(Accepted(Text).Cube.Values.size(), 129u * 129u * 129u * 3u);
}

TEST(LookFileCube, RefusesAnUnknownWord)
{
	EXPECT_EQ(Refused("LUT_4D_SIZE 2\n" + Sized("")), "Teal.cube(1): \"LUT_4D_SIZE\" is not a word of the .cube format");
}

TEST(LookFileCube, RefusesVideoRange)
{
	EXPECT_EQ(Refused(Sized("LUT_IN_VIDEO_RANGE\n")), "Teal.cube(2): LUT_IN_VIDEO_RANGE is not supported; export the look for full range");
}

TEST(LookFileCube, RefusesADecimalComma)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2\n\n# comment\n0,5 0 0\n"),
		"Teal.cube(4): \"0,5\" is not a number; decimals are written with a point, and numbers are parted by blanks");
}

TEST(LookFileCube, RefusesTrailingRubbish)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2\n0 0 0.5abc\n"), "Teal.cube(2): \"0.5abc\" is not a number");
}

TEST(LookFileCube, RefusesNan)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2\nnan 0 0\n"), "Teal.cube(2): \"nan\" is not a finite number");
}

TEST(LookFileCube, RefusesInfinity)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2\n0 -Infinity 0\n"), "Teal.cube(2): \"-Infinity\" is not a finite number");
}

TEST(LookFileCube, RefusesHexadecimalNumbers)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2\n0x1p2 0 0\n"), "Teal.cube(2): \"0x1p2\" is not a number");
}

TEST(LookFileCube, RefusesTooFewRows)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2\n0 0 0\n1 0 0\n"), "Teal.cube(3): the table ends after 2 of 8 rows");
}

TEST(LookFileCube, RefusesTooManyRowsAtTheFirstOfThem)
{
	EXPECT_EQ(Refused(Sized("") + "1 1 1\n"), "Teal.cube(10): the table has more than the 8 rows that its size asks for");
}

TEST(LookFileCube, RefusesARowOfTwoNumbers)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2\n0 0\n"), "Teal.cube(2): a row of the table needs three numbers");
}

TEST(LookFileCube, RefusesARowOfFourNumbers)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2\n0 0 0 0\n"), "Teal.cube(2): a row of the table needs three numbers");
}

class LookFileCubeSize : public testing::TestWithParam<const char*>
{};

TEST_P(LookFileCubeSize, IsRefused)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE " + std::string(GetParam()) + "\n" + Rows),
		"Teal.cube(1): the table's size \"" + std::string(GetParam()) + "\" is not between 2 and 129");
}

INSTANTIATE_TEST_SUITE_P(OutOfBounds, LookFileCubeSize, testing::Values("0", "1", "-2", "130", "2147483647", "9223372036854775807"));

TEST(LookFileCube, RefusesASizeThatIsNoWholeNumber)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2.5\n"), "Teal.cube(1): the table's size \"2.5\" is not a whole number");
}

TEST(LookFileCube, RefusesASizeOfTwoNumbers)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2 2\n"), "Teal.cube(1): \"LUT_3D_SIZE\" needs one whole number after it");
}

TEST(LookFileCube, RefusesALongCurveBeyondItsLimit)
{
	EXPECT_EQ(Refused("LUT_1D_SIZE 65537\n"), "Teal.cube(1): the table's size \"65537\" is not between 2 and 65536");
}

TEST(LookFileCube, RefusesAMissingSize)
{
	EXPECT_EQ(Refused(Rows), "Teal.cube(1): neither LUT_1D_SIZE nor LUT_3D_SIZE stands before the table");
}

TEST(LookFileCube, RefusesAFileOfCommentsAlone)
{
	EXPECT_EQ(Refused("# nothing\n\n"), "Teal.cube(2): neither LUT_1D_SIZE nor LUT_3D_SIZE stands before the table");
}

TEST(LookFileCube, RefusesASizeGivenTwice)
{
	EXPECT_EQ(Refused(Sized("LUT_3D_SIZE 2\n")), "Teal.cube(2): LUT_3D_SIZE is given twice");
}

TEST(LookFileCube, RefusesASizeAfterTheTableBegan)
{
	EXPECT_EQ(Refused("LUT_1D_SIZE 2\n0 0 0\nLUT_3D_SIZE 2\n"), "Teal.cube(3): LUT_3D_SIZE has to stand before the table");
}

TEST(LookFileCube, RefusesADomainWithoutExtent)
{
	EXPECT_EQ(
		Refused(Sized("DOMAIN_MIN 0 1 0\nDOMAIN_MAX 1 1 1\n")), "Teal.cube(3): DOMAIN_MIN has to be less than DOMAIN_MAX in every channel");
}

TEST(LookFileCube, RefusesADomainMinimumAboveTheUnsaidMaximum)
{
	EXPECT_EQ(Refused(Sized("DOMAIN_MIN 2 2 2\n")), "Teal.cube(3): DOMAIN_MIN has to be less than DOMAIN_MAX in every channel");
}

TEST(LookFileCube, RefusesADomainOfTwoNumbers)
{
	EXPECT_EQ(Refused(Sized("DOMAIN_MIN 0 0\n")), "Teal.cube(2): \"DOMAIN_MIN\" needs three numbers after it");
}

TEST(LookFileCube, RefusesADomainOfFourNumbers)
{
	EXPECT_EQ(Refused(Sized("DOMAIN_MAX 1 1 1 1\n")), "Teal.cube(2): \"DOMAIN_MAX\" needs three numbers after it");
}

TEST(LookFileCube, RefusesAnInputRangeOfOneNumber)
{
	EXPECT_EQ(Refused(Sized("LUT_3D_INPUT_RANGE 0\n")), "Teal.cube(2): \"LUT_3D_INPUT_RANGE\" needs two numbers after it");
}

TEST(LookFileCube, RefusesAnInputRangeThatRunsBackwards)
{
	EXPECT_EQ(Refused(Sized("LUT_3D_INPUT_RANGE 1 0\n")), "Teal.cube(2): the input range's lower end has to be less than its upper end");
}

TEST(LookFileCube, RefusesAnInputRangeOfATableThatIsNotThere)
{
	EXPECT_EQ(Refused(Sized("LUT_1D_INPUT_RANGE 0 1\n")), "Teal.cube(3): an input range is given for a table that the file does not have");
}

TEST(LookFileCube, RefusesADomainBesideAnInputRange)
{
	EXPECT_EQ(Refused(Sized("DOMAIN_MAX 1 1 1\nLUT_3D_INPUT_RANGE 0 1\n")),
		"Teal.cube(4): the file gives both a domain and an input range; one of them has to go");
}

TEST(LookFileCube, RefusesADomainBesideTwoTables)
{
	EXPECT_EQ(Refused(Sized("LUT_1D_SIZE 2\nDOMAIN_MAX 1 1 1\n")), "Teal.cube(4): a file with two tables gives input ranges, not a domain");
}

TEST(LookFileCube, RefusesAnOverLongWordInARow)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2\n0 0 0." + std::string(100, '0') + "\n"),
		"Teal.cube(2): the word \"0.0000000000000000000000...\" is longer than 63 characters");
}

TEST(LookFileCube, RefusesAnOverLongWordInADomainLine)
{
	EXPECT_EQ(Refused("DOMAIN_MIN " + std::string(5000 - 1000, 'A') + " 0 0\n"),
		"Teal.cube(1): the word \"AAAAAAAAAAAAAAAAAAAAAAAA...\" is longer than 63 characters");
}

TEST(LookFileCube, RefusesALineOfAMegabyte)
{
	EXPECT_EQ(Refused(Sized("# " + std::string(1000000, 'x') + "\n")), "Teal.cube(2): the line is longer than 4096 characters");
}

TEST(LookFileCube, RefusesAZeroByte)
{
	EXPECT_EQ(Refused("LUT_3D_SIZE 2\n0 0 " + std::string(1, '\0') + "0\n"),
		"Teal.cube(2): there is a zero byte in the line, so this is not a text file");
}

TEST(LookFileCube, ReadsBackItsOwnPlainCopy)
{
	const LookFile::FCheckedFile First = Accepted("LUT_1D_SIZE 3\n0.1 0.2 0.3\n0.333333333 1e-5 2\n.5 5. +7\n");
	EXPECT_EQ(Accepted(First.Text).Cube.Values, First.Cube.Values);
}
}
