// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Tintmill/GraderHelpers.h"

#include <filesystem>

namespace TintmillTest
{
/** Checks that a look file of the demo project passes the checks and can be applied. */
inline void ExpectUsableDemoLook(const char* FileName)
{
	const std::filesystem::path File = std::filesystem::path(REPOSITORY_DIR) / "Host/DemoProject/Content/Looks" / FileName;
	LookFile::FCheckedFile Checked;
	LookFile::FProblem Problem;
	std::string Reason;
	EXPECT_TRUE(LookFile::CheckFile(File, Checked, Problem) && LookGrading::MakeLookGrader(Checked, Reason))
		<< LookFile::Sentence(File, Problem) << Reason;
}
}
