// Copyright The Tintmill authors. All rights reserved.
#include "MetaData.h"

#include <gtest/gtest.h>

using HeaderTool::CommentToToolTip;

TEST(CommentToToolTip, RemovesTheMarkersOfALineComment)
{
	EXPECT_EQ(CommentToToolTip("// A word.\n"), "A word.");
}

TEST(CommentToToolTip, RemovesTheMarkersOfABlockComment)
{
	EXPECT_EQ(CommentToToolTip("/*  A word. */"), "A word.");
}

TEST(CommentToToolTip, RemovesTheMarkersOfADocComment)
{
	EXPECT_EQ(CommentToToolTip("/** A word. */"), "A word.");
}

TEST(CommentToToolTip, RemovesTripleSlashes)
{
	EXPECT_EQ(CommentToToolTip("/// A word.\n"), "A word.");
}

TEST(CommentToToolTip, RemovesLeadingStarsInTheFirstColumn)
{
	EXPECT_EQ(CommentToToolTip("/**\n* A word.\n*/"), "A word.");
}

TEST(CommentToToolTip, KeepsStarsOfAnOrdinaryBlock)
{
	EXPECT_EQ(CommentToToolTip("/*\n * A word.\n */"), "* A word.");
}

TEST(CommentToToolTip, JoinsLines)
{
	EXPECT_EQ(CommentToToolTip("// A\n// B\n"), "A\nB");
}

TEST(CommentToToolTip, KeepsIndentationRelativeToTheOtherLines)
{
	EXPECT_EQ(CommentToToolTip("/**\n *  A\n *    B\n */"), "A\n  B");
}

TEST(CommentToToolTip, AlignsTheFirstLineOfACompactDocComment)
{
	EXPECT_EQ(CommentToToolTip("/** A\n\t * B */"), "A\nB");
}

TEST(CommentToToolTip, KeepsEmptyLinesBetweenText)
{
	EXPECT_EQ(CommentToToolTip("/**\n * A\n *\n * B\n */"), "A\n\nB");
}

TEST(CommentToToolTip, DropsRulersAroundTheText)
{
	EXPECT_EQ(CommentToToolTip("// ------\n// A\n// ======\n"), "A");
}

TEST(CommentToToolTip, KeepsARulerBetweenText)
{
	EXPECT_EQ(CommentToToolTip("// A\n// ---\n// B\n"), "A\n---\nB");
}

TEST(CommentToToolTip, DropsTrailingBlanks)
{
	EXPECT_EQ(CommentToToolTip("// A  \n// B\t\n"), "A\nB");
}

TEST(CommentToToolTip, IsEmptyWithoutWords)
{
	EXPECT_EQ(CommentToToolTip("/**\n *\n */"), "");
}

TEST(CommentToToolTip, TakesLettersBeyondAsciiForWords)
{
	EXPECT_EQ(CommentToToolTip("// \xC3\xA4\n"), "\xC3\xA4");
}
