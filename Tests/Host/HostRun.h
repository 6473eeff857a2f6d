// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/PngFile.h"
#include "Support/TestFolder.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>

/** The real program on a copy of the demo project; the copy takes the settings that a run writes. */
class FHostRun
{
public:
	/** How a run ended. */
	struct FResult
	{
		int Code = -1;
		std::string Output;
	};

	FHostRun()
	{
		std::filesystem::copy(std::filesystem::path(REPOSITORY_DIR) / "Host/DemoProject", Folder.NativePath("Project"),
			std::filesystem::copy_options::recursive);
	}

	/** Runs the program without a window, with small panes; both streams come back as one text. */
	FResult Run(const std::string& Arguments) const
	{
		const std::string Command = std::string(TINTMILL_EDITOR) + " --headless --size 320x180 --project '" + Path("Project").string()
			+ "' --out '" + Path("out").string() + "' " + Arguments + " 2>&1";
		FResult Result;
		std::FILE* const Pipe = popen(Command.c_str(), "r");
		std::array<char, 4096> Buffer;
		while (const size_t Count = std::fread(Buffer.data(), 1, Buffer.size(), Pipe))
		{
			Result.Output.append(Buffer.data(), Count);
		}
		const int Status = pclose(Pipe);
		Result.Code = WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
		return Result;
	}

	/** Runs console commands. */
	FResult Execute(const std::string& Commands) const { return Run("--exec '" + Commands + "'"); }

	/** A picture that a run has saved; a failure of the test if there is none. */
	TintmillHost::FPicture ReadPicture(const std::string& Name) const
	{
		TintmillHost::FPicture Picture;
		EXPECT_EQ(TintmillHost::ReadPng(Path("out/" + Name), Picture), "");
		return Picture;
	}

	/** The copy's user settings. */
	std::string ReadSettings() const { return Folder.Read("Project/Saved/Config/Linux/EditorPerProjectUserSettings.ini"); }

	/** Something in the run's folder. */
	std::filesystem::path Path(const std::string& Leaf) const { return Folder.NativePath(Leaf); }

	/** Writes a file into the run's folder. */
	void Write(const std::string& Leaf, const std::string& Bytes) const { Folder.Write(Leaf, Bytes); }

private:
	FTestFolder Folder;
};
