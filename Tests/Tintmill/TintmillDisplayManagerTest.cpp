// Copyright The Tintmill authors. All rights reserved.

#include "TintmillDisplayManager.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace TintmillDisplayManagerTest
{
class TintmillDisplayManager : public testing::Test
{
protected:
	/** The client of a number; clients are addresses that are never looked into. */
	FViewportClient* Client(std::size_t Number) { return reinterpret_cast<FViewportClient*>(&Addresses[Number]); }

	std::vector<char> Addresses = std::vector<char>(10001);
	FTintmillDisplayManager Manager;
};

TEST_F(TintmillDisplayManager, AddsADefaultRecord)
{
	EXPECT_EQ(Manager.FindOrAddDisplayConfiguration(Client(0)).Intensity, 1.0f);
}

TEST_F(TintmillDisplayManager, ReturnsTheSameRecordForTheSameClient)
{
	FTintmillDisplayConfiguration& First = Manager.FindOrAddDisplayConfiguration(Client(0));
	EXPECT_EQ(&Manager.FindOrAddDisplayConfiguration(Client(0)), &First);
}

TEST_F(TintmillDisplayManager, KeepsWhatIsWrittenThroughTheReference)
{
	Manager.FindOrAddDisplayConfiguration(Client(0)).Intensity = 0.25f;
	EXPECT_EQ(Manager.GetDisplayConfiguration(Client(0))->Intensity, 0.25f);
}

TEST_F(TintmillDisplayManager, GivesEachClientItsOwnRecord)
{
	Manager.FindOrAddDisplayConfiguration(Client(0)).bEnableDisplay = true;
	EXPECT_FALSE(Manager.FindOrAddDisplayConfiguration(Client(1)).bEnableDisplay);
}

TEST_F(TintmillDisplayManager, KeepsARecordInPlaceWhileTenThousandAreAdded)
{
	FTintmillDisplayConfiguration* const First = &Manager.FindOrAddDisplayConfiguration(Client(0));
	for (std::size_t Number = 1; Number <= 10000; ++Number)
	{
		Manager.FindOrAddDisplayConfiguration(Client(Number));
	}
	EXPECT_EQ(&Manager.FindOrAddDisplayConfiguration(Client(0)), First);
}

TEST_F(TintmillDisplayManager, KeepsARecordInPlaceWhileOthersAreRemoved)
{
	for (std::size_t Number = 0; Number < 1000; ++Number)
	{
		Manager.FindOrAddDisplayConfiguration(Client(Number));
	}
	const FTintmillDisplayConfiguration* const Last = Manager.GetDisplayConfiguration(Client(999));
	for (std::size_t Number = 0; Number < 999; ++Number)
	{
		Manager.RemoveDisplayConfiguration(Client(Number));
	}
	EXPECT_EQ(Manager.GetDisplayConfiguration(Client(999)), Last);
}

TEST_F(TintmillDisplayManager, HasNoRecordOfAnUnknownClient)
{
	EXPECT_EQ(Manager.GetDisplayConfiguration(Client(0)), nullptr);
}

TEST_F(TintmillDisplayManager, AddsNothingWhenAsked)
{
	Manager.GetDisplayConfiguration(Client(0));
	EXPECT_EQ(Manager.GetDisplayConfiguration(Client(0)), nullptr);
}

TEST_F(TintmillDisplayManager, SaysThatItRemovedARecord)
{
	Manager.FindOrAddDisplayConfiguration(Client(0));
	EXPECT_TRUE(Manager.RemoveDisplayConfiguration(Client(0)));
}

TEST_F(TintmillDisplayManager, SaysThatThereWasNoRecordToRemove)
{
	EXPECT_FALSE(Manager.RemoveDisplayConfiguration(Client(0)));
}

TEST_F(TintmillDisplayManager, HasNoRecordAfterARemoval)
{
	Manager.FindOrAddDisplayConfiguration(Client(0));
	Manager.RemoveDisplayConfiguration(Client(0));
	EXPECT_EQ(Manager.GetDisplayConfiguration(Client(0)), nullptr);
}

TEST_F(TintmillDisplayManager, AddsADefaultRecordAfterARemoval)
{
	Manager.FindOrAddDisplayConfiguration(Client(0)).Intensity = 0.5f;
	Manager.RemoveDisplayConfiguration(Client(0));
	EXPECT_EQ(Manager.FindOrAddDisplayConfiguration(Client(0)).Intensity, 1.0f);
}
}
