// Copyright The Tintmill authors. All rights reserved.

#include "Engine/Texture2D.h"
#include "StandIn/ObjectSystem.h"
#include "UObject/Class.h"
#include <gtest/gtest.h>

namespace
{
class FTexture2DTest : public testing::Test
{
protected:
	virtual void SetUp() override { StandIn::StartObjectSystem(); }
	virtual void TearDown() override { StandIn::ShutdownObjectSystem(); }
};
}

TEST_F(FTexture2DTest, IsATextureByItsClass)
{
	EXPECT_TRUE(UTexture2D::StaticClass()->IsChildOf(UTexture::StaticClass()));
}

TEST_F(FTexture2DTest, IsKnownWithoutPrefix)
{
	EXPECT_EQ(UTexture2D::StaticClass()->GetFName(), FName(TEXT("Texture2D")));
}
