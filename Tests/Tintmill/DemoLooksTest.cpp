// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/DemoLooks.h"

namespace DemoLooksTest
{
class DemoLook : public testing::TestWithParam<const char*>
{};

TEST_P(DemoLook, CanBeUsed)
{
	TintmillTest::ExpectUsableDemoLook(GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, DemoLook, testing::Values("WarmPrint.cube", "CoolNight.cube", "TealOrange.cube", "Monochrome.cube"));
}
