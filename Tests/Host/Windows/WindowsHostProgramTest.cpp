// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/HostProgramFixture.h"

// The real program with the real libraries, on what is particular to Windows: its paths, its line ends, text beyond the old code pages.

namespace
{
class WindowsHostProgram : public FHostProgramFixture
{
protected:
	/** Makes a project with a red look, in a folder below the test's own. */
	void MakeProject(const std::string& Name) const
	{
		Folder.Write(Name + "/Content/Looks/Red.cube", "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n");
	}
};

TEST_F(WindowsHostProgram, TakesAPathWithDriveAndBackslashes)
{
	MakeProject("Project");
	const std::string Path = Folder.NativePath("Project").make_preferred().string();
	ASSERT_EQ(Path.substr(1, 2), ":\\") << Path;
	const FProgramResult Result = Run("--project '" + Path + "' --exec looks");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_NE(Result.Output.find("/Game/Looks/Red"), std::string::npos) << Result.Output;
}

TEST_F(WindowsHostProgram, TakesAPathInAnyScriptAndPrintsItAsUtf8)
{
	const std::string Name = "J\xc3\xbcrgen \xe8\x89\xb2";
	MakeProject(Name);
	const FProgramResult Result = Run("--project '" + Folder.NativePath(Name).string() + "' --exec looks");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_NE(Result.Output.find("/Game/Looks/Red"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find(Name + "/Content"), std::string::npos) << Result.Output;
}

TEST_F(WindowsHostProgram, SavesInTheProjectOfAUserInAnyScriptWithTheLineEndsOfWindows)
{
	const std::string Name = "J\xc3\xbcrgen \xe8\x89\xb2";
	MakeProject(Name);
	const FProgramResult Result = Run("--project '" + Folder.NativePath(Name).string() + "' --exec 'set 1 intensity 0.25'");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	const std::string Saved = Folder.Read(Name + "/Saved/Config/Windows/EditorPerProjectUserSettings.ini");
	EXPECT_NE(Saved.find("Intensity=0.250000"), std::string::npos) << Saved;
	EXPECT_NE(Saved.find("]\r\nViewportsSettings="), std::string::npos) << Saved;
	for (size_t At = Saved.find('\n'); At != std::string::npos; At = Saved.find('\n', At + 1))
	{
		ASSERT_EQ(Saved.substr(At - 1, 1), "\r") << "at " << At;
	}
}

TEST_F(WindowsHostProgram, ReadsSettingsWithTheLineEndsOfWindows)
{
	MakeProject("Project");
	WriteSettings(Pair(1, "0.500000", Look("Red")));
	const std::string Unix = ReadSettings();
	std::string Windows;
	for (const char Character : Unix)
	{
		Windows += Character == '\n' ? std::string("\r\n") : std::string(1, Character);
	}
	Folder.Write(HostSettingsFile, Windows);
	const FProgramResult Result = RunProject("--exec 'record 1'");
	EXPECT_NE(Result.Output.find("Intensity=0.5"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("Red"), std::string::npos) << Result.Output;
}

TEST_F(WindowsHostProgram, TakesAPathInAnotherCase)
{
	MakeProject("Project");
	const FProgramResult Result = Run("--project '" + Folder.NativePath("PROJECT").string() + "' --exec looks");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_NE(Result.Output.find("/Game/Looks/Red"), std::string::npos) << Result.Output;
}

TEST_F(WindowsHostProgram, SaysThatPicturesNeedWhatItWasBuiltWithout)
{
	MakeProject("Project");
	const FProgramResult Result = RunProject("--exec 'picture 0'");
	EXPECT_EQ(Result.Code, 2);
	EXPECT_NE(Result.Output.find("built without the libraries that pictures are written and read with"), std::string::npos)
		<< Result.Output;
}
}
