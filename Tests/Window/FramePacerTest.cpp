// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/FramePacer.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

TEST(FramePacer, HasTheFirstFrameDueAtOnce)
{
	EXPECT_EQ(FFramePacer(100.0).GetWait(100.0), 0.0);
}

TEST(FramePacer, WaitsASixtiethOfASecondWhileAwake)
{
	FFramePacer Pacer(100.0);
	Pacer.BeginFrame(100.0);
	EXPECT_NEAR(Pacer.GetWait(100.001), 1.0 / 60.0 - 0.001, 1e-9);
}

TEST(FramePacer, FallsAsleepWhenNobodyWakesIt)
{
	FFramePacer Pacer(100.0);
	Pacer.BeginFrame(101.0);
	EXPECT_FALSE(Pacer.IsAwake(101.0));
	EXPECT_NEAR(Pacer.GetWait(101.0), 0.5, 1e-9);
}

TEST(FramePacer, StaysAwakeLongerThanToolTipsAndSubmenusWait)
{
	FFramePacer Pacer(100.0);
	Pacer.Wake(200.0);
	EXPECT_TRUE(Pacer.IsAwake(200.6));
}

TEST(FramePacer, HasAFrameDueAtOnceWhenItIsWoken)
{
	FFramePacer Pacer(100.0);
	Pacer.BeginFrame(102.0);
	Pacer.Wake(102.2);
	EXPECT_EQ(Pacer.GetWait(102.2), 0.0);
}

TEST(FramePacer, TellsHowLongAFrameLasts)
{
	FFramePacer Pacer(100.0);
	Pacer.BeginFrame(100.0);
	EXPECT_NEAR(Pacer.BeginFrame(100.03), 0.03, 1e-9);
}

TEST(FramePacer, LetsAnimationsJumpNoFurtherThanAQuarterOfASecond)
{
	FFramePacer Pacer(100.0);
	Pacer.BeginFrame(100.0);
	EXPECT_EQ(Pacer.BeginFrame(107.0), 0.25);
}
