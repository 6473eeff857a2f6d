// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/PngFile.h"
#include "Support/ProgramRun.h"
#include "Support/TestFolder.h"
#include "Tests/Host/HostRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/** The real program with the real shared libraries, on a project of its own. */
class FHostProgramFixture : public testing::Test
{
protected:
	/** Runs the program without a window; both streams come back as one text. */
	FProgramResult Run(const std::string& Arguments, const std::string& Program = TINTMILL_EDITOR) const
	{
		std::vector<std::string> Words{"--headless", "--size", "64x36", "--out", Folder.NativePath("out").string()};
		const std::vector<std::string> More = SplitCommandLine(Arguments);
		Words.insert(Words.end(), More.begin(), More.end());
		return RunProgram(Program, Words);
	}

	/** Runs it on the project. */
	FProgramResult RunProject(const std::string& Arguments) const
	{
		return Run("--project '" + Folder.NativePath("Project").string() + "' " + Arguments);
	}

	/** Writes the project's user settings with these pairs of pane and look. */
	void WriteSettings(const std::string& Pairs) const
	{
		Folder.Write(HostSettingsFile, "[/Script/TintmillEditor.TintmillLevelViewportSettings]\n" + Pairs + "\n");
	}

	/** The project's user settings. */
	std::string ReadSettings() const { return Folder.Read(HostSettingsFile); }

	/** A line of the user settings. */
	static std::string Pair(int Pane, const std::string& Intensity, const std::string& Look)
	{
		return "ViewportsSettings=(ViewportIdentifier=\"FourPanes2x2.Viewport 1.Viewport" + std::to_string(Pane)
			+ "\",DisplayConfiguration=(bEnableDisplay=True,Intensity=" + Intensity + ",LookAsset=" + Look + "))\n";
	}

	/** A look of the project as the settings name it. */
	static std::string Look(const std::string& Name) { return "TintmillObject'\"/Game/Looks/" + Name + "." + Name + "\"'"; }

	/** A picture that the program has written. */
	TintmillHost::FPicture ReadPicture(const std::string& Name) const
	{
		TintmillHost::FPicture Picture;
		EXPECT_EQ(TintmillHost::ReadPng(Folder.NativePath("out/" + Name), Picture), "");
		return Picture;
	}

	/** A look that keeps red and takes away the rest. */
	void WriteRedLook(const std::string& Name) const
	{
		Folder.Write("Project/Content/Looks/" + Name + ".cube", "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n");
	}

	virtual void SetUp() override { std::filesystem::create_directories(Folder.NativePath("Project/Content/Looks")); }

	FTestFolder Folder;
};
