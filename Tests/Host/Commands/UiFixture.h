// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/PngFile.h"
#include "Support/ProgramRun.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <string>

/** Opens the panel of pane 1. */
static const std::string Panel = "click-pane 1; open 1 View; hover Tintmill; ";

/** The real program, whose window is used by what is written on it; a project with two looks. */
class FUiFixture : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		WriteLook("Red", "0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n");
		WriteLook("Green", "0 0 0\n0 0 0\n0 1 0\n0 1 0\n0 0 0\n0 0 0\n0 1 0\n0 1 0\n");
	}

	/** Writes a look of eight rows. */
	void WriteLook(const std::string& Name, const std::string& Rows) const
	{
		Folder.Write("Project/Content/" + Name + ".cube", "LUT_3D_SIZE 2\n" + Rows);
	}

	/** Runs commands in a window that is just large enough for the menus side by side. */
	FProgramResult Run(const std::string& Commands) const
	{
		return RunProgram(TINTMILL_EDITOR,
			{"--headless", "--size", "16x16", "--window", "1000x720", "--out", Folder.NativePath("out").string(), "--project",
				Folder.NativePath("Project").string(), "--exec", Commands});
	}

	/** Expects that commands run to their end. */
	void ExpectDone(const std::string& Commands) const
	{
		const FProgramResult Result = Run(Commands);
		EXPECT_EQ(Result.Code, 0) << Result.Output;
	}

	/** Expects that commands end with a complaint that contains a text. */
	void ExpectComplaint(const std::string& Commands, const std::string& Text) const
	{
		const FProgramResult Result = Run(Commands);
		EXPECT_EQ(Result.Code, 2) << Result.Output;
		EXPECT_NE(Result.Output.find(Text), std::string::npos) << Result.Output;
	}

	/** Expects that 300 x 100 pixels of a picture are of no other color than red. */
	void ExpectRed(const std::string& File, int Left, int Top) const
	{
		TintmillHost::FPicture Picture;
		ASSERT_EQ(TintmillHost::ReadPng(Folder.NativePath("out/" + File), Picture), "");
		for (int Y = Top; Y < Top + 100; ++Y)
		{
			for (int X = Left; X < Left + 300; ++X)
			{
				const FColor Pixel = Picture.Pixels[Y * Picture.Width + X];
				ASSERT_EQ(Pixel.G, 0) << X << ", " << Y;
				ASSERT_EQ(Pixel.B, 0) << X << ", " << Y;
			}
		}
	}

	FTestFolder Folder;
};
