// Copyright The Tintmill authors. All rights reserved.

#include "Host/Console/CommandText.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
using FStrings = std::vector<std::string>;

TEST(CommandText, CommandsEndAtSemicolonsAndLines)
{
	EXPECT_EQ(SplitCommands("panes; notices\ntick"), (FStrings{"panes", "notices", "tick"}));
}

TEST(CommandText, EmptyCommandsAreLeftOut)
{
	EXPECT_EQ(SplitCommands(" ;; \n\t;panes;"), (FStrings{"panes"}));
}

TEST(CommandText, ASemicolonInQuotesIsPartOfTheWord)
{
	EXPECT_EQ(SplitCommands("picture 0 'a;b'"), (FStrings{"picture 0 'a;b'"}));
}

TEST(CommandText, ACommentEndsWithItsLine)
{
	EXPECT_EQ(SplitCommands("# all panes; really\npanes # now"), (FStrings{"panes"}));
}

TEST(CommandText, ANumberSignInQuotesIsNoComment)
{
	EXPECT_EQ(SplitCommands("picture 0 \"#1\""), (FStrings{"picture 0 \"#1\""}));
}

TEST(CommandText, AnOpenQuoteEndsWithItsLine)
{
	EXPECT_EQ(SplitCommands("picture 0 'a\npanes"), (FStrings{"picture 0 'a", "panes"}));
}

TEST(CommandText, CarriageReturnsAreDropped)
{
	EXPECT_EQ(SplitCommands("panes\r\nnotices\r\n"), (FStrings{"panes", "notices"}));
}

TEST(CommandText, WordsStandBetweenBlanks)
{
	EXPECT_EQ(SplitWords("  set\t0  look "), (FStrings{"set", "0", "look"}));
}

TEST(CommandText, QuotesKeepBlanksTogether)
{
	EXPECT_EQ(SplitWords("activate \"OnePane.Viewport 1.Viewport0\""), (FStrings{"activate", "OnePane.Viewport 1.Viewport0"}));
}

TEST(CommandText, EmptyQuotesAreAnEmptyWord)
{
	EXPECT_EQ(SplitWords("set ''"), (FStrings{"set", ""}));
}
}
