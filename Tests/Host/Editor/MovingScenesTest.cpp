// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/MovingScenes.h"

#include <gtest/gtest.h>

using TintmillHost::FMovingScenes;

TEST(MovingScenes, PaintsFinelyWhatIsPaintedFastEnough)
{
	EXPECT_EQ(FMovingScenes::FindCoarseness(500000.0, 1e-8), 1);
}

TEST(MovingScenes, PaintsFinelyAsLongAsNobodyKnowsHowLongItTakes)
{
	EXPECT_EQ(FMovingScenes::FindCoarseness(500000.0, 0.0), 1);
}

TEST(MovingScenes, PaintsCoarselyWhatWouldNotFollowTheMouse)
{
	// 50 ms, of which a quarter is fast enough.
	EXPECT_EQ(FMovingScenes::FindCoarseness(500000.0, 1e-7), 2);
}

TEST(MovingScenes, NeverPaintsMoreCoarselyThanAQuarterOfThePixelsEachWay)
{
	EXPECT_EQ(FMovingScenes::FindCoarseness(8e6, 1.0), 4);
}
