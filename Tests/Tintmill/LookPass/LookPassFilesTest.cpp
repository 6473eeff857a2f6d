// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/LookFiles.h"

#include "Tintmill/DemoLooks.h"
#include "Tintmill/LookTestBase.h"

// Files of the kinds that only the library can apply.

namespace LookPassFilesTest
{
using namespace TintmillTest;

class LookPassFiles : public FLookTestBase
{};

TEST_F(LookPassFiles, MendAFileThatTheLibraryRefusedBefore)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, "Version 1\nLength 2\n{\n0\n}\n", "Teal.spi1d");
	Folder.Write("Teal.spi1d", "Version 1\nFrom 0 1\nLength 2\nComponents 1\n{\n1\n0\n}\n");
	StandIn::PollLookFiles();
	uint8 Bytes[4] = {10, 20, 30, 40};
	StandIn::ApplyLookToPixels(Asset, Bytes, 1);
	EXPECT_EQ((std::vector<int>{Bytes[0], Bytes[1], Bytes[2], Bytes[3]}), (std::vector<int>{245, 235, 225, 40}));
}

class LookPassDemoLook : public testing::TestWithParam<const char*>
{};

TEST_P(LookPassDemoLook, CanBeUsed)
{
	ExpectUsableDemoLook(GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, LookPassDemoLook, testing::Values("BleachBypass.clf", "FalseColor.spi3d"));
}
