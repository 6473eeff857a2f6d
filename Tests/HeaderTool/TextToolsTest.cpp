// Copyright The Tintmill authors. All rights reserved.
#include "TextTools.h"

#include <gtest/gtest.h>

using HeaderTool::Crc32;
using HeaderTool::Fill;
using HeaderTool::SplitLines;
using HeaderTool::ToHex;
using HeaderTool::ToIdentifier;
using HeaderTool::ToLiteral;

TEST(Fill, PutsValuesInTheirPlaces)
{
	EXPECT_EQ(Fill("$1-$0-$1", {"a", "b"}), "b-a-b");
}

TEST(Fill, LeavesPlacesInValuesAlone)
{
	EXPECT_EQ(Fill("$0", {"$1", "b"}), "$1");
}

TEST(Fill, LeavesPlacesWithoutValueAlone)
{
	EXPECT_EQ(Fill("$7 $", {"a"}), "$7 $");
}

TEST(ToLiteral, EscapesQuotesAndBackslashes)
{
	EXPECT_EQ(ToLiteral("a\"b\\c"), R"("a\"b\\c")");
}

TEST(ToLiteral, WritesLineEndsAsNAndTabsInHexadecimal)
{
	EXPECT_EQ(ToLiteral("a\n\t*"), R"("a\n\x09*")");
}

TEST(ToLiteral, PartsAHexadecimalEscapeFromADigitBehindIt)
{
	EXPECT_EQ(ToLiteral("\tb"), R"("\x09""b")");
}

TEST(ToLiteral, PartsTrigraphs)
{
	EXPECT_EQ(ToLiteral("?"
						"?("),
		"\"?\"\"?(\"");
}

TEST(ToHex, PadsToTheGivenNumberOfDigits)
{
	EXPECT_EQ(ToHex(0xA4, 8), "0x000000A4");
}

TEST(Crc32, HasTheUsualCheckValue)
{
	EXPECT_EQ(Crc32("123456789"), 0xCBF43926u);
}

TEST(ToIdentifier, ReplacesEverythingThatCannotStandInAName)
{
	EXPECT_EQ(ToIdentifier("Private/a-b.h"), "Private_a_b_h");
}

TEST(SplitLines, GivesOneLineForTextWithoutLineEnd)
{
	EXPECT_EQ(SplitLines("a"), (std::vector<std::string>{"a"}));
}
