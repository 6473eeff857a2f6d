// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookFileReader.h"

#include "Tintmill/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace LookFileReaderTest
{
class LookFileReader : public testing::Test
{
protected:
	std::string Refusal(const std::filesystem::path& Path) const
	{
		std::string Bytes;
		LookFile::FProblem Problem;
		EXPECT_FALSE(LookFile::ReadWholeFile(Path, Bytes, Problem));
		return LookFile::Sentence(Path, Problem);
	}

	TintmillTest::FTemporaryFolder Folder;
};

TEST_F(LookFileReader, ReadsEveryByte)
{
	std::string Bytes;
	LookFile::FProblem Problem;
	LookFile::ReadWholeFile(Folder.Write("a.cube", std::string("a\r\n\0b", 5)), Bytes, Problem);
	EXPECT_EQ(Bytes, std::string("a\r\n\0b", 5));
}

TEST_F(LookFileReader, RefusesAMissingFile)
{
	EXPECT_EQ(Refusal(Folder.At("Teal.cube")), "Teal.cube: the file does not exist");
}

TEST_F(LookFileReader, RefusesAFolder)
{
	std::filesystem::create_directory(Folder.At("Teal.cube"));
	EXPECT_EQ(Refusal(Folder.At("Teal.cube")), "Teal.cube: this is a folder, not a file");
}

TEST_F(LookFileReader, RefusesAnEmptyFile)
{
	EXPECT_EQ(Refusal(Folder.Write("Teal.cube", "")), "Teal.cube: the file is empty");
}

TEST_F(LookFileReader, RefusesAFileOfTwoHundredMegabytesWithoutReadingIt)
{
	Folder.Write("Teal.cube", "x");
	std::filesystem::resize_file(Folder.At("Teal.cube"), 200ull * 1000 * 1000);
	EXPECT_EQ(Refusal(Folder.At("Teal.cube")), "Teal.cube: the file is larger than 64 MiB, too large for a look");
}

TEST_F(LookFileReader, RefusesALinkThatLeadsToItself)
{
	std::error_code Error;
	std::filesystem::create_symlink("Teal.cube", Folder.At("Teal.cube"), Error);
	if (Error)
	{
		GTEST_SKIP() << "symbolic links cannot be made here; neither the C++ library for Windows nor Wine makes them";
	}
	EXPECT_EQ(Refusal(Folder.At("Teal.cube")), "Teal.cube: the file is a link that leads to itself");
}

TEST_F(LookFileReader, RefusesAFileThatMayNotBeRead)
{
	const std::filesystem::path Path = Folder.Write("Teal.cube", "x");
	std::filesystem::permissions(Path, std::filesystem::perms::none);
	if (std::ifstream(Path))
	{
		GTEST_SKIP() << "this user may read every file: root, or a user of Windows, where files have no such permissions";
	}
	EXPECT_EQ(Refusal(Path), "Teal.cube: the file cannot be opened; check its permissions");
}

TEST_F(LookFileReader, FollowsALinkToAFile)
{
	Folder.Write("Real.cube", "x");
	std::error_code Error;
	std::filesystem::create_symlink("Real.cube", Folder.At("Teal.cube"), Error);
	if (Error)
	{
		GTEST_SKIP() << "symbolic links cannot be made here; neither the C++ library for Windows nor Wine makes them";
	}
	std::string Bytes;
	LookFile::FProblem Problem;
	EXPECT_TRUE(LookFile::ReadWholeFile(Folder.At("Teal.cube"), Bytes, Problem));
}
}
