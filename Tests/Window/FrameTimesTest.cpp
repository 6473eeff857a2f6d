// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/FrameTimes.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

TEST(FrameTimes, SaysSoWithoutAFrame)
{
	EXPECT_EQ(FFrameTimes().Describe(), "No frame showed anything new.");
}

TEST(FrameTimes, TellsTheMiddleAndTheLongest)
{
	FFrameTimes Times;
	for (int Index = 1; Index <= 100; ++Index)
	{
		Times.Add({Index * 0.001, 0.002, 0.001});
	}
	EXPECT_EQ(Times.Describe(),
		"100 frames showed something new. Half of them took up to 54.0 ms (editor 51.0, painting 2.0, display 1.0), 95 of 100 up to 99.0 "
		"ms, the longest 103.0 ms.");
}
