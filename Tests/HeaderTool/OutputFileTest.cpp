// Copyright The Tintmill authors. All rights reserved.
#include "OutputFile.h"

#include "Scratch.h"

#include <fstream>
#include <gtest/gtest.h>

using HeaderTool::ReadFile;
using HeaderTool::WriteFileIfChanged;

TEST(WriteFileIfChanged, MakesTheFileAndItsFolders)
{
	FScratch Scratch;
	std::string Text;
	WriteFileIfChanged(Scratch.GetRoot() / "A" / "B.txt", "x\n");
	ReadFile(Scratch.GetRoot() / "A" / "B.txt", Text);
	EXPECT_EQ(Text, "x\n");
}

TEST(WriteFileIfChanged, TellsThatItWrote)
{
	FScratch Scratch;
	WriteFileIfChanged(Scratch.GetRoot() / "A.txt", "x");
	EXPECT_TRUE(WriteFileIfChanged(Scratch.GetRoot() / "A.txt", "y"));
}

TEST(WriteFileIfChanged, DoesNotTouchAFileThatStaysTheSame)
{
	FScratch Scratch;
	const std::filesystem::path File = Scratch.GetRoot() / "A.txt";
	WriteFileIfChanged(File, "x");
	const std::filesystem::file_time_type Old = std::filesystem::last_write_time(File) - std::chrono::hours(1);
	std::filesystem::last_write_time(File, Old);
	WriteFileIfChanged(File, "x");
	EXPECT_EQ(std::filesystem::last_write_time(File), Old);
}

TEST(WriteFileIfChanged, LeavesNoTemporaryFile)
{
	FScratch Scratch;
	WriteFileIfChanged(Scratch.GetRoot() / "A.txt", "x");
	EXPECT_FALSE(std::filesystem::exists(Scratch.GetRoot() / "A.txt.tmp"));
}

TEST(WriteFileIfChanged, ComplainsWhenTheFolderCannotBeMade)
{
	FScratch Scratch;
	std::ofstream(Scratch.GetRoot() / "A") << "a file";
	EXPECT_THROW(WriteFileIfChanged(Scratch.GetRoot() / "A" / "B.txt", "x"), HeaderTool::FOutputError);
}

TEST(ReadFile, RefusesAFolder)
{
	FScratch Scratch;
	std::string Text;
	EXPECT_FALSE(ReadFile(Scratch.GetRoot(), Text));
}
