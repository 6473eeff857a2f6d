// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookFileText.h"

#include <gtest/gtest.h>

namespace LookFileTextTest
{
static std::string Normalized(std::string Text)
{
	LookFile::FProblem Problem;
	EXPECT_TRUE(LookFile::NormalizeText(Text, Problem)) << Problem.Reason;
	return Text;
}

static LookFile::FProblem Refused(std::string Text)
{
	LookFile::FProblem Problem;
	EXPECT_FALSE(LookFile::NormalizeText(Text, Problem));
	return Problem;
}

TEST(LookFileText, TurnsLineEndsOfWindowsIntoNewlines)
{
	EXPECT_EQ(Normalized("a\r\nb\r\n"), "a\nb\n");
}

TEST(LookFileText, TurnsLoneCarriageReturnsIntoNewlines)
{
	EXPECT_EQ(Normalized("a\rb"), "a\nb");
}

TEST(LookFileText, DropsAByteOrderMark)
{
	EXPECT_EQ(Normalized("\xef\xbb\xbf"
						 "a"),
		"a");
}

TEST(LookFileText, DropsAllByteOrderMarksOfJoinedFiles)
{
	EXPECT_EQ(Normalized("\xef\xbb\xbf\xef\xbb\xbf"
						 "LUT_3D_SIZE 2"),
		"LUT_3D_SIZE 2");
}

TEST(LookFileText, RefusesUtf16)
{
	EXPECT_EQ(Refused("\xff\xfe"
					  "a")
				  .Reason,
		"the file is UTF-16 text; save it as plain text or UTF-8");
}

TEST(LookFileText, NamesTheLineOfAZeroByte)
{
	EXPECT_EQ(Refused(std::string("a\nb\0c", 5)).Line, 2);
}

TEST(LookFileText, RefusesControlCharacters)
{
	EXPECT_EQ(Refused("a\x1b").Reason, "there is a control character in the line, so this is not a text file");
}

TEST(LookFileText, AcceptsALineAsLongAsTheLimit)
{
	LookFile::FProblem Problem;
	EXPECT_TRUE(LookFile::CheckLineLengths(std::string(LookFile::MaxLineBytes, 'x'), Problem));
}

TEST(LookFileText, RefusesALineBeyondTheLimit)
{
	LookFile::FProblem Problem;
	LookFile::CheckLineLengths("a\n" + std::string(LookFile::MaxLineBytes + 1, 'x'), Problem);
	EXPECT_EQ(Problem.Line, 2);
}

TEST(LookFileText, RefusesAWordBeyondTheLimit)
{
	LookFile::FProblem Problem;
	LookFile::CheckWordLengths("a b\nc " + std::string(LookFile::MaxWordBytes + 1, 'x') + " d\n", Problem);
	EXPECT_EQ(Problem.Line, 2);
}

TEST(LookFileText, AcceptsAWordAsLongAsTheLimit)
{
	LookFile::FProblem Problem;
	EXPECT_TRUE(LookFile::CheckWordLengths(std::string(LookFile::MaxWordBytes, 'x'), Problem));
}

TEST(LookFileText, CountsTheLastLineWithoutALineEnd)
{
	LookFile::FLines Lines("a\nb");
	while (Lines.Next())
	{}
	EXPECT_EQ(Lines.Number(), 2);
}

TEST(LookFileText, TrimsLines)
{
	LookFile::FLines Lines(" \ta b\t \n");
	Lines.Next();
	EXPECT_EQ(Lines.Get(), "a b");
}

TEST(LookFileText, SplitsAtAnyNumberOfBlanks)
{
	EXPECT_EQ(LookFile::SplitWords("a \t b"), (std::vector<std::string_view>{"a", "b"}));
}

TEST(LookFileText, ComparesWordsWithoutCase)
{
	EXPECT_TRUE(LookFile::SameWord("Lut_3D_Size", "LUT_3d_SIZE"));
}
}
