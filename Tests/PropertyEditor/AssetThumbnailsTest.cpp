// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AssetThumbnails.h"

#include "gtest/gtest.h"

namespace
{
TEST(AssetThumbnails, WithoutASourceThereAreNone)
{
	EXPECT_EQ(StandIn::FindAssetThumbnail(FAssetData()), nullptr);
}

TEST(AssetThumbnails, ComeFromTheirSource)
{
	const FSlateBrush Brush;
	StandIn::SetAssetThumbnails([&Brush](const FAssetData&) { return &Brush; });
	EXPECT_EQ(StandIn::FindAssetThumbnail(FAssetData()), &Brush);
	StandIn::SetAssetThumbnails(StandIn::FAssetThumbnails());
}

TEST(AssetThumbnails, EndWithTheirSource)
{
	const FSlateBrush Brush;
	StandIn::SetAssetThumbnails([&Brush](const FAssetData&) { return &Brush; });
	StandIn::SetAssetThumbnails(StandIn::FAssetThumbnails());
	EXPECT_EQ(StandIn::FindAssetThumbnail(FAssetData()), nullptr);
}
}
