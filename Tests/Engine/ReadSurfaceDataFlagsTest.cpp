// Copyright The Tintmill authors. All rights reserved.

#include "RHI.h"

#include <gtest/gtest.h>

TEST(FReadSurfaceDataFlags, StartsWithTheUnsignedNormalisedRange)
{
	EXPECT_EQ(FReadSurfaceDataFlags().GetCompressionMode(), RCM_UNorm);
}

TEST(FReadSurfaceDataFlags, StartsWithoutCubeFace)
{
	EXPECT_EQ(FReadSurfaceDataFlags().GetCubeFace(), CubeFace_MAX);
}

TEST(FReadSurfaceDataFlags, StartsWithTheConversionToGamma)
{
	EXPECT_TRUE(FReadSurfaceDataFlags().GetLinearToGamma());
}

TEST(FReadSurfaceDataFlags, StartsWithADepthRangeOfSixteenThousand)
{
	EXPECT_EQ(FReadSurfaceDataFlags().GetMaxDepthRange(), 16000.0f);
}

TEST(FReadSurfaceDataFlags, StartsWithoutStencil)
{
	EXPECT_FALSE(FReadSurfaceDataFlags().GetOutputStencil());
}

TEST(FReadSurfaceDataFlags, StartsAtMipZero)
{
	EXPECT_EQ(FReadSurfaceDataFlags().GetMip(), 0);
}

TEST(FReadSurfaceDataFlags, StartsAtArrayIndexZero)
{
	EXPECT_EQ(FReadSurfaceDataFlags().GetArrayIndex(), 0);
}

TEST(ERHIFeatureLevel, PutsShaderModelFiveRightBeforeTheEnd)
{
	EXPECT_EQ(static_cast<int>(ERHIFeatureLevel::SM5) + 1, static_cast<int>(ERHIFeatureLevel::Num));
}
