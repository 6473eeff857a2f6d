// Copyright The Tintmill authors. All rights reserved.

#include "Host/Console/NearestWord.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
const std::vector<std::string> Words = {"click", "click-box", "click-pane", "hover", "shot", "window"};

TEST(NearestWord, EqualWordsHaveNoTypos)
{
	EXPECT_EQ(CountTypos("hover", "hover"), 0u);
}

TEST(NearestWord, AChangedAMissingAndAnAddedLetterAreOneTypoEach)
{
	EXPECT_EQ(CountTypos("hower", "hover"), 1u);
	EXPECT_EQ(CountTypos("hver", "hover"), 1u);
	EXPECT_EQ(CountTypos("hoover", "hover"), 1u);
}

TEST(NearestWord, SwappedNeighborsAreOneTypo)
{
	EXPECT_EQ(CountTypos("hvoer", "hover"), 1u);
}

TEST(NearestWord, NothingOfAWordIsAsManyTyposAsItHasLetters)
{
	EXPECT_EQ(CountTypos("", "shot"), 4u);
	EXPECT_EQ(CountTypos("shot", ""), 4u);
}

TEST(NearestWord, TheWordWithTheFewestTyposIsMeant)
{
	EXPECT_EQ(FindNearestWord("clik", Words), "click");
	EXPECT_EQ(FindNearestWord("click-pain", Words), "click-pane");
}

TEST(NearestWord, CaseMakesNoDifference)
{
	EXPECT_EQ(FindNearestWord("SHOT", Words), "shot");
}

TEST(NearestWord, NoWordIsMeantThatIsTooDifferent)
{
	EXPECT_EQ(FindNearestWord("photograph", Words), "");
}
}
