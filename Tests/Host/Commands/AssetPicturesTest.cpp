// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/HostRun.h"

#include <gtest/gtest.h>

// Pictures of the windows that look assets open.

TEST(FAssetPictures, ThePictureOfABuilderShowsItsWindowWithTheBorder)
{
	const FHostRun Host;
	Host.Execute("open-look TealOrange; shot-builder TealOrange builder.png");
	EXPECT_EQ(Host.ReadPicture("builder.png").Width, 4 + 960 + 4);
}
