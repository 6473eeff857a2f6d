// Copyright The Tintmill authors. All rights reserved.

// Compares whole outputs with the files below Golden/Expected. To take over an intended change, run the tests once with
// HEADER_TOOL_WRITE_GOLDEN=1 in the environment (they fail and write the files), read the difference, run them again.

#include "OutputFile.h"
#include "Scratch.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace
{

const std::filesystem::path GoldenFolder = std::filesystem::path(__FILE__).parent_path() / "Golden";

struct FGoldenCase
{
	const char* Name;
	const char* Module;
	const char* File;
};

void PrintTo(const FGoldenCase& Case, std::ostream* Out)
{
	*Out << Case.File;
}

class FGolden : public ::testing::TestWithParam<FGoldenCase>
{};

void RunOverGoldenHeaders(FScratch& Scratch)
{
	Scratch.AddModule("Base", "EngineRuntime", GoldenFolder / "Base");
	Scratch.ListHeader("Public/Factory.h");
	Scratch.AddModule("Sample", "Editor", GoldenFolder / "Sample");
	for (const char* Header :
		{"Private/Settings.h", "Private/Factories/SampleFactory.h", "Public/Kinds.h", "Public/Comments.h", "Public/Bodies.h"})
	{
		Scratch.ListHeader(Header);
	}
	Scratch.Run();
}

}

TEST_P(FGolden, WritesTheWholeExpectedText)
{
	const FGoldenCase& Case = GetParam();
	FScratch Scratch;
	RunOverGoldenHeaders(Scratch);
	ASSERT_EQ(Scratch.GetComplaints(), "");
	const std::string Written = Scratch.ReadOutput(Case.Module, Case.File);
	const std::filesystem::path File = GoldenFolder / "Expected" / Case.Module / (std::string(Case.File) + ".expected");
	if (std::getenv("HEADER_TOOL_WRITE_GOLDEN") != nullptr)
	{
		HeaderTool::WriteFileIfChanged(File, Written);
		FAIL() << "wrote " << File;
	}
	std::string Expected;
	ASSERT_TRUE(HeaderTool::ReadFile(File, Expected)) << File;
	EXPECT_EQ(Written, Expected);
}

INSTANTIATE_TEST_SUITE_P(Outputs, FGolden,
	::testing::Values(FGoldenCase{"FactoryHeader", "Base", "Factory.generated.h"}, FGoldenCase{"FactorySource", "Base", "Factory.gen.cpp"},
		FGoldenCase{"BasePackage", "Base", "Base.init.gen.cpp"}, FGoldenCase{"SettingsHeader", "Sample", "Settings.generated.h"},
		FGoldenCase{"SettingsSource", "Sample", "Settings.gen.cpp"},
		FGoldenCase{"SampleFactoryHeader", "Sample", "SampleFactory.generated.h"},
		FGoldenCase{"SampleFactorySource", "Sample", "SampleFactory.gen.cpp"}, FGoldenCase{"KindsHeader", "Sample", "Kinds.generated.h"},
		FGoldenCase{"KindsSource", "Sample", "Kinds.gen.cpp"}, FGoldenCase{"CommentsHeader", "Sample", "Comments.generated.h"},
		FGoldenCase{"CommentsSource", "Sample", "Comments.gen.cpp"}, FGoldenCase{"BodiesHeader", "Sample", "Bodies.generated.h"},
		FGoldenCase{"BodiesSource", "Sample", "Bodies.gen.cpp"}, FGoldenCase{"SamplePackage", "Sample", "Sample.init.gen.cpp"}),
	[](const ::testing::TestParamInfo<FGoldenCase>& Info) { return std::string(Info.param.Name); });
