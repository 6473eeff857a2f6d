// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenuOwner.h"
#include "ToolMenuFixture.h"

TEST(FToolMenuOwner, OfNothingIsNotSet)
{
	EXPECT_FALSE(FToolMenuOwner().IsSet());
}

TEST(FToolMenuOwner, OfNoNameIsNotSet)
{
	EXPECT_FALSE(FToolMenuOwner(NAME_None).IsSet());
}

TEST(FToolMenuOwner, OfAnAddressEqualsAnOwnerOfTheSameAddress)
{
	int32 Object = 0;
	EXPECT_TRUE(FToolMenuOwner(&Object) == FToolMenuOwner(&Object));
}

TEST(FToolMenuOwner, OfAnAddressDiffersFromAnOwnerOfAnotherAddress)
{
	int32 Objects[2] = {};
	EXPECT_TRUE(FToolMenuOwner(&Objects[0]) != FToolMenuOwner(&Objects[1]));
}

TEST(FToolMenuOwner, OfANameIgnoresCase)
{
	EXPECT_TRUE(FToolMenuOwner("Plugin") == FToolMenuOwner(TEXT("plugin")));
}

TEST(FToolMenuOwner, OfANameNeverEqualsAnOwnerOfAnAddress)
{
	int32 Object = 0;
	EXPECT_FALSE(FToolMenuOwner("Plugin") == FToolMenuOwner(&Object));
}

TEST(FToolMenuOwner, OfAnAddressHasNoName)
{
	int32 Object = 0;
	EXPECT_TRUE(FToolMenuOwner(&Object).TryGetName().IsNone());
}
