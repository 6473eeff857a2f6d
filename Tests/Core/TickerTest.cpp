// Copyright The Tintmill authors. All rights reserved.

#include "Containers/Ticker.h"
#include <gtest/gtest.h>

TEST(FTicker, RunsADelegateOnTheNextTick)
{
	FTicker Ticker;
	int32 Runs = 0;
	Ticker.AddTicker(FTickerDelegate::CreateLambda([&Runs](float) {
		++Runs;
		return true;
	}));
	Ticker.Tick(0.0f);
	EXPECT_EQ(Runs, 1);
}

TEST(FTicker, GivesTheDelegateTheTimeSinceTheLastTick)
{
	FTicker Ticker;
	float Seconds = 0.0f;
	Ticker.AddTicker(FTickerDelegate::CreateLambda([&Seconds](float DeltaTime) {
		Seconds = DeltaTime;
		return true;
	}));
	Ticker.Tick(0.25f);
	EXPECT_EQ(Seconds, 0.25f);
}

TEST(FTicker, DoesNotRunADelegateAgainThatReturnsFalse)
{
	FTicker Ticker;
	int32 Runs = 0;
	Ticker.AddTicker(FTickerDelegate::CreateLambda([&Runs](float) {
		++Runs;
		return false;
	}));
	Ticker.Tick(0.0f);
	Ticker.Tick(0.0f);
	EXPECT_EQ(Runs, 1);
}

TEST(FTicker, WaitsForTheDelay)
{
	FTicker Ticker;
	int32 Runs = 0;
	Ticker.AddTicker(TEXT("Test"), 1.0f, [&Runs](float) {
		++Runs;
		return true;
	});
	Ticker.Tick(0.5f);
	EXPECT_EQ(Runs, 0);
}

TEST(FTicker, RunsADelegateAgainAfterEachDelay)
{
	FTicker Ticker;
	int32 Runs = 0;
	Ticker.AddTicker(TEXT("Test"), 1.0f, [&Runs](float) {
		++Runs;
		return true;
	});
	for (int32 Tick = 0; Tick < 8; ++Tick)
	{
		Ticker.Tick(0.5f);
	}
	EXPECT_EQ(Runs, 4);
}

TEST(FTicker, DoesNotRunARemovedDelegate)
{
	FTicker Ticker;
	int32 Runs = 0;
	Ticker.RemoveTicker(Ticker.AddTicker(TEXT("Test"), 0.0f, [&Runs](float) {
		++Runs;
		return true;
	}));
	Ticker.Tick(0.0f);
	EXPECT_EQ(Runs, 0);
}

TEST(FTicker, RunsADelegateThatWasAddedDuringATickOnTheNextOne)
{
	FTicker Ticker;
	int32 Runs = 0;
	Ticker.AddTicker(TEXT("Outer"), 0.0f, [&](float) {
		Ticker.AddTicker(TEXT("Inner"), 0.0f, [&Runs](float) {
			++Runs;
			return true;
		});
		return false;
	});
	Ticker.Tick(0.0f);
	EXPECT_EQ(Runs, 0);
}
