// Copyright The Tintmill authors. All rights reserved.

#include "Host/StatusLine/StatusWords.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
TEST(StatusWords, WithoutALevelEditorNoPaneIsNamed)
{
	EXPECT_EQ(DescribeActivePane(), "");
}

TEST(StatusWords, WithoutAnEngineNothingIsPlayed)
{
	EXPECT_EQ(DescribePlayState(), "Editing");
}
}
