// Copyright The Tintmill authors. All rights reserved.

#include "TintmillAPI_ImageDesc.h"

#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>

namespace TintmillImageDescTest
{
TEST(TintmillAPI_ImageDesc, IsAPlainRecord)
{
	EXPECT_TRUE(std::is_trivial<FTintmillAPI_ImageDesc>::value && std::is_standard_layout<FTintmillAPI_ImageDesc>::value);
}

TEST(TintmillAPI_ImageDesc, IsSixtyFourBytesLong)
{
	EXPECT_EQ(sizeof(FTintmillAPI_ImageDesc), 64u);
}

TEST(TintmillAPI_ImageDesc, HasThePixelsAtEight)
{
	EXPECT_EQ(offsetof(FTintmillAPI_ImageDesc, Pixels), 8u);
}

TEST(TintmillAPI_ImageDesc, HasTheFlagAtFiftySix)
{
	EXPECT_EQ(offsetof(FTintmillAPI_ImageDesc, Flag), 56u);
}

TEST(TintmillAPI_ImageDesc, IsNotTouchedByItsDefaultConstructor)
{
	alignas(FTintmillAPI_ImageDesc) unsigned char Memory[sizeof(FTintmillAPI_ImageDesc)];
	std::memset(Memory, 0xab, sizeof(Memory));
	new (Memory) FTintmillAPI_ImageDesc;
	EXPECT_EQ(Memory[4] & Memory[57] & Memory[63], 0xab);
}
}
