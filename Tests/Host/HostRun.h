// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/PngFile.h"

#include "HAL/Platform.h"
#include "Support/ProgramRun.h"
#include "Support/TestFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/** The user settings, in a project's folder. */
static const char* const HostSettingsFile = PLATFORM_WINDOWS ? "Project/Saved/Config/Windows/EditorPerProjectUserSettings.ini"
															 : "Project/Saved/Config/Linux/EditorPerProjectUserSettings.ini";

/** The real program on a copy of the demo project; the copy takes the settings that a run writes. */
class FHostRun
{
public:
	/** How a run ended. */
	typedef FProgramResult FResult;

	FHostRun()
	{
		std::filesystem::copy(std::filesystem::path(REPOSITORY_DIR) / "Host/DemoProject", Folder.NativePath("Project"),
			std::filesystem::copy_options::recursive);
		// The demo project's user settings are those of Linux, in their folder and their line ends.
		const std::filesystem::path Settings = Folder.NativePath(HostSettingsFile).parent_path();
		if (!std::filesystem::exists(Settings))
		{
			std::filesystem::rename(Folder.NativePath("Project/Saved/Config/Linux"), Settings);
			std::string Text;
			for (const char Character : ReadSettings())
			{
				Text += Character == '\n' ? std::string("\r\n") : std::string(1, Character);
			}
			Folder.Write(HostSettingsFile, Text);
		}
	}

	/** Runs the program without a window, with small panes; both streams come back as one text. */
	FResult Run(const std::string& Arguments) const
	{
		std::vector<std::string> Words{
			"--headless", "--size", "320x180", "--project", Path("Project").string(), "--out", Path("out").string()};
		const std::vector<std::string> More = SplitCommandLine(Arguments);
		Words.insert(Words.end(), More.begin(), More.end());
		return RunProgram(TINTMILL_EDITOR, Words);
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
	std::string ReadSettings() const { return Folder.Read(HostSettingsFile); }

	/** Something in the run's folder. */
	std::filesystem::path Path(const std::string& Leaf) const { return Folder.NativePath(Leaf); }

	/** Writes a file into the run's folder. */
	void Write(const std::string& Leaf, const std::string& Bytes) const { Folder.Write(Leaf, Bytes); }

private:
	FTestFolder Folder;
};
