// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/GraderHelpers.h"

#include <filesystem>

namespace DemoLooksTest
{
class DemoLook : public testing::TestWithParam<const char*>
{};

TEST_P(DemoLook, CanBeUsed)
{
	const std::filesystem::path File = std::filesystem::path(REPOSITORY_DIR) / "Host/DemoProject/Content/Looks" / GetParam();
	LookFile::FCheckedFile Checked;
	LookFile::FProblem Problem;
	std::string Reason;
	EXPECT_TRUE(LookFile::CheckFile(File, Checked, Problem) && LookGrading::MakeLookGrader(Checked, Reason))
		<< LookFile::Sentence(File, Problem) << Reason;
}

INSTANTIATE_TEST_SUITE_P(All, DemoLook,
	testing::Values("WarmPrint.cube", "CoolNight.cube", "TealOrange.cube", "Monochrome.cube", "BleachBypass.clf", "FalseColor.spi3d"));
}
