// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/EditorState.h"

#include "Tests/Host/HostRun.h"

#include <gtest/gtest.h>

// The real program, which is started again and again on one project.

namespace
{
class EditorState : public testing::Test
{
protected:
	FProgramResult Run(const std::string& Commands) const { return Project.Run("--last-session --exec '" + Commands + "'"); }

	/** Starts the program and lists the panes. */
	std::string Panes() const { return Run("panes").Output; }

	void WriteState(const std::string& Lines) const { Project.Write(HostSettingsFile, "[TintmillHost]\n" + Lines); }

	FHostRun Project;
};

TEST_F(EditorState, TheLayoutComesBack)
{
	Run("layout TwoPanesHoriz");
	const std::string Output = Panes();
	EXPECT_NE(Output.find("TwoPanesHoriz.Viewport 1.Viewport0"), std::string::npos) << Output;
}

TEST_F(EditorState, TheActivePaneComesBack)
{
	Run("activate 3");
	const std::string Output = Panes();
	EXPECT_NE(Output.find("* FourPanes2x2.Viewport 1.Viewport3"), std::string::npos) << Output;
}

TEST_F(EditorState, TheMapComesBack)
{
	Run("map open Stage");
	const std::string Output = Run("map").Output;
	EXPECT_NE(Output.find("/Game/Maps/Stage"), std::string::npos) << Output;
}

TEST_F(EditorState, AnUntouchedSessionLeavesTheSettingsByteForByte)
{
	const std::string Before = Project.ReadSettings();
	Run("panes; tick 0.5");
	EXPECT_EQ(Project.ReadSettings(), Before);
}

TEST_F(EditorState, ASessionAsTheLastOneLeavesTheSettingsByteForByte)
{
	Run("layout TwoPanesHoriz; activate 0; map open Stage");
	const std::string Before = Project.ReadSettings();
	Run("panes; tick 0.5");
	EXPECT_EQ(Project.ReadSettings(), Before);
}

TEST_F(EditorState, GoingBackLeavesTheSettingsByteForByte)
{
	const std::string Before = Project.ReadSettings();
	const std::string Listed = Panes();
	const std::string Active = Listed.substr(Listed.find("\n* ") + std::string("\n* FourPanes2x2.Viewport 1.Viewport").size(), 1);
	Run("activate 3; tick; activate " + Active);
	EXPECT_EQ(Project.ReadSettings(), Before);
}

TEST_F(EditorState, WhatNobodyCanHaveMeantIsLeftOut)
{
	WriteState("Viewport1Layout=NinePanes\nViewport1Handles=nan -1 1e300\nViewport1Filled=Viewport77\nViewport2Layout=\nViewport3Layout=x\n"
			   "FrontViewportTab=9999999999\nActivePane=Nowhere.Viewport 1.Viewport0\nMap=/Game/Maps/Gone\nBottomShare=nan\n");
	const FProgramResult Result = Run("panes; map");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_NE(Result.Output.find("FourPanes2x2.Viewport 1.Viewport3"), std::string::npos) << Result.Output;
	EXPECT_EQ(Result.Output.find("Viewport 2"), std::string::npos) << Result.Output;
}

TEST_F(EditorState, MapNamesThatLeadElsewhereAreLeftOut)
{
	for (const char* const Map : {"/Game/../../etc/passwd", "/Game/", "Stage", "/Nowhere/Stage", "/Game/Maps/Stage.umap"})
	{
		WriteState(std::string("Map=") + Map + "\n");
		EXPECT_EQ(Run("panes").Code, 0) << Map;
	}
}

TEST_F(EditorState, WithoutTheLastSessionARunWithoutAWindowStartsAfresh)
{
	Run("layout TwoPanesHoriz");
	const std::string Output = Project.Execute("panes").Output;
	EXPECT_NE(Output.find("FourPanes2x2.Viewport 1.Viewport0"), std::string::npos) << Output;
}
}
