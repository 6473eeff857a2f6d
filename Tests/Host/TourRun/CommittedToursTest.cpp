// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/Gallery/MarkupCheck.h"
#include "Tests/Host/HostRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>

// Every tour of the repository, played by the real program on a copy of the demo project.

namespace
{
std::string ReadBytes(const std::filesystem::path& File)
{
	std::ifstream Stream(File, std::ios::binary);
	return std::string((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
}

/** All files of a folder with their bytes. */
std::map<std::string, std::string> ReadFolder(const std::filesystem::path& Folder)
{
	std::map<std::string, std::string> Files;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::recursive_directory_iterator(Folder))
	{
		if (Entry.is_regular_file())
		{
			Files[Entry.path().lexically_relative(Folder).string()] = ReadBytes(Entry.path());
		}
	}
	return Files;
}

std::vector<std::string> ListTours()
{
	std::vector<std::string> Files{REPOSITORY_DIR "/Docs/Pictures/pictures.tour"};
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(REPOSITORY_DIR "/Host/Tours"))
	{
		Files.push_back(Entry.path().string());
	}
	std::sort(Files.begin(), Files.end());
	return Files;
}

class CommittedTour : public testing::TestWithParam<std::string>
{};

TEST_P(CommittedTour, PlaysToItsEndAndLeavesTheProjectAsItWas)
{
	const FHostRun Host;
	const std::map<std::string, std::string> Before = ReadFolder(Host.Path("Project"));
	const FHostRun::FResult Result = Host.Run("--tour '" + GetParam() + "'");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_TRUE(ReadFolder(Host.Path("Project")) == Before);
	const std::string Page = ReadBytes(Host.Path("out/index.html"));
	EXPECT_NE(Page, "");
	EXPECT_EQ(FindMarkupProblem(Page), "");
	EXPECT_EQ(Page.find("class=\"step failed\""), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(All, CommittedTour, testing::ValuesIn(ListTours()), [](const auto& Info) {
	std::string Name = std::filesystem::path(Info.param).stem().string();
	Name.erase(std::remove(Name.begin(), Name.end(), '-'), Name.end());
	return Name;
});

TEST(ProjectTour, PlaysOnAPlainFolderOfLookFiles)
{
	const FHostRun Host;
	std::filesystem::remove_all(Host.Path("Project"));
	Host.Write("Project/Red.cube", "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n");
	const FHostRun::FResult Result = Host.Run("--tour '" REPOSITORY_DIR "/Host/Tours/project.tour'");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	// Beside the look there are the settings that a new project gets.
	const std::map<std::string, std::string> Files = ReadFolder(Host.Path("Project"));
	EXPECT_EQ(Files.count("Red.cube"), 1u);
	EXPECT_EQ(Files.size(), 2u);
}
}
