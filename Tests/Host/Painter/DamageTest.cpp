// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/Damage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace TintmillHost;

namespace
{
using FNumbers = std::vector<std::uint64_t>;
using FMatches = std::vector<std::ptrdiff_t>;

bool Covers(const std::vector<FIntRect>& Areas, const FIntPoint& Point)
{
	return std::any_of(Areas.begin(), Areas.end(), [&Point](const FIntRect& Area) { return Area.Contains(Point); });
}
}

TEST(Damage, MatchesAllOfEqualLists)
{
	EXPECT_EQ(MatchInOrder({1, 2, 3}, {1, 2, 3}), FMatches({0, 1, 2}));
}

TEST(Damage, MatchesNothingWithoutAnyBefore)
{
	EXPECT_EQ(MatchInOrder({}, {1, 2}), FMatches({NoItem, NoItem}));
}

TEST(Damage, LeavesOutWhatChangedBetweenEqualEnds)
{
	EXPECT_EQ(MatchInOrder({1, 2, 3}, {1, 9, 3}), FMatches({0, NoItem, 2}));
}

TEST(Damage, MatchesAroundWhatWasAdded)
{
	EXPECT_EQ(MatchInOrder({1, 2, 3}, {1, 8, 2, 9, 3}), FMatches({0, NoItem, 1, NoItem, 2}));
}

TEST(Damage, MatchesAroundWhatWasTakenAway)
{
	EXPECT_EQ(MatchInOrder({1, 2, 3, 4}, {1, 4}), FMatches({0, 3}));
}

TEST(Damage, MatchesOnlyOneOfTwoThatChangedPlaces)
{
	EXPECT_EQ(MatchInOrder({1, 2, 3, 4}, {1, 3, 2, 4}), FMatches({0, NoItem, 1, 3}));
}

TEST(Damage, MatchesEqualItemsOnceEach)
{
	EXPECT_EQ(MatchInOrder({5, 5}, {7, 5, 5, 5, 7}), FMatches({NoItem, 0, 1, NoItem, NoItem}));
}

TEST(Damage, MatchesOnlyEqualItemsInRisingOrder)
{
	std::mt19937 Random(7);
	for (int Round = 0; Round < 500; ++Round)
	{
		FNumbers Before(Random() % 12);
		FNumbers After(Random() % 12);
		std::generate(Before.begin(), Before.end(), [&Random] { return Random() % 6; });
		std::generate(After.begin(), After.end(), [&Random] { return Random() % 6; });
		const FMatches Matches = MatchInOrder(Before, After);
		ASSERT_EQ(Matches.size(), After.size());
		std::ptrdiff_t Last = NoItem;
		for (size_t Item = 0; Item < After.size(); ++Item)
		{
			if (Matches[Item] != NoItem)
			{
				ASSERT_EQ(Before.at(static_cast<size_t>(Matches[Item])), After[Item]);
				ASSERT_GT(Matches[Item], Last);
				Last = Matches[Item];
			}
		}
	}
}

TEST(Damage, JoinsAreasThatAreNear)
{
	EXPECT_EQ(JoinAreas({FIntRect(0, 0, 10, 10), FIntRect(12, 0, 20, 10)}), std::vector<FIntRect>({FIntRect(0, 0, 20, 10)}));
}

TEST(Damage, KeepsAreasApartThatAreFarAway)
{
	EXPECT_EQ(JoinAreas({FIntRect(0, 0, 10, 10), FIntRect(900, 700, 910, 710)}).size(), 2u);
}

TEST(Damage, LeavesOutEmptyAreas)
{
	EXPECT_TRUE(JoinAreas({FIntRect(5, 5, 5, 9), FIntRect()}).empty());
}

TEST(Damage, CoversAllAreasWithAFew)
{
	std::mt19937 Random(3);
	std::vector<FIntRect> Areas;
	for (int Index = 0; Index < 200; ++Index)
	{
		const FIntPoint Corner(static_cast<int32>(Random() % 2000), static_cast<int32>(Random() % 1000));
		Areas.emplace_back(Corner, Corner + FIntPoint(1 + static_cast<int32>(Random() % 30), 1 + static_cast<int32>(Random() % 30)));
	}
	const std::vector<FIntRect> Joined = JoinAreas(Areas);
	EXPECT_LE(Joined.size(), 12u);
	for (const FIntRect& Area : Areas)
	{
		ASSERT_TRUE(Covers(Joined, Area.Min) && Covers(Joined, Area.Max - FIntPoint(1, 1)));
	}
}
