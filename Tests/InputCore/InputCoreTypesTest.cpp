// Copyright The Tintmill authors. All rights reserved.

#include "InputCoreTypes.h"
#include "Support/Text.h"
#include "gtest/gtest.h"

TEST(FKey, IsInvalidWithoutAName)
{
	EXPECT_FALSE(FKey().IsValid());
	EXPECT_FALSE(EKeys::Invalid.IsValid());
	EXPECT_TRUE(FKey(TEXT("F13")).IsValid());
}

TEST(FKey, ComparesByNameWithoutRegardToCase)
{
	EXPECT_EQ(EKeys::SpaceBar, FKey("spacebar"));
	EXPECT_NE(EKeys::Left, EKeys::Right);
	EXPECT_EQ(GetTypeHash(EKeys::A), GetTypeHash(FKey("A")));
}

TEST(FKey, KnowsModifiersAndMouseButtons)
{
	EXPECT_TRUE(EKeys::LeftShift.IsModifierKey());
	EXPECT_FALSE(EKeys::A.IsModifierKey());
	EXPECT_TRUE(EKeys::RightMouseButton.IsMouseButton());
	EXPECT_FALSE(EKeys::MouseScrollUp.IsMouseButton());
}

TEST(FKey, IsShownByItsName)
{
	EXPECT_EQ("BackSpace", ToStd(EKeys::BackSpace.ToString()));
	EXPECT_EQ("Tab", ToStd(EKeys::Tab.GetDisplayName().ToString()));
}
