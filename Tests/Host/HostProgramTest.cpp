// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/HostProgramFixture.h"

// The real program with the real shared libraries: what it says, saves and ends with.

namespace
{
typedef FHostProgramFixture HostProgram;

std::string LibraryName(const std::string& Module)
{
	return (PLATFORM_WINDOWS ? "UE4Editor-" + Module + ".dll" : "libUE4Editor-" + Module + ".so");
}

TEST_F(HostProgram, EndsWithCodeTwoForAMissingProject)
{
	const FProgramResult Result = Run("--project '/no/such folder'");
	EXPECT_EQ(Result.Code, 2);
	EXPECT_EQ(Result.Output, "There is no project folder /no/such folder: give the folder that holds your look files with --project.\n");
}

TEST_F(HostProgram, EndsWithCodeTwoForAnUnknownCommand)
{
	const FProgramResult Result = RunProject("--exec 'paint'");
	EXPECT_EQ(Result.Code, 2);
	EXPECT_NE(Result.Output.find("There is no command 'paint'"), std::string::npos);
}

TEST_F(HostProgram, EndsWithCodeZeroOnAnEmptyProject)
{
	const FProgramResult Result = RunProject("");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
}

TEST_F(HostProgram, OfTwoPairsWithOneKeyTheFirstIsShown)
{
	WriteRedLook("Red");
	WriteSettings(Pair(1, "1.000000", "None") + Pair(1, "1.000000", Look("Red")));
	const FProgramResult Result = RunProject("--exec 'record 1'");
	EXPECT_NE(Result.Output.find("LookAsset=None"), std::string::npos) << Result.Output;
}

TEST_F(HostProgram, ALookThatDoesNotExistMakesOneNoticeWithFileAndLine)
{
	WriteRedLook("Red");
	WriteSettings(Pair(0, "1.000000", "None") + Pair(1, "1.000000", Look("Gone")));
	const FProgramResult Result = RunProject("--exec 'notices'");
	const size_t First = Result.Output.find("\nNotice: ");
	ASSERT_NE(First, std::string::npos) << Result.Output;
	EXPECT_EQ(Result.Output.find("\nNotice: ", First + 1), std::string::npos) << Result.Output;
	const std::string Notice = Result.Output.substr(First + 1, Result.Output.find('\n', First + 1) - First - 1);
	EXPECT_NE(Notice.find("EditorPerProjectUserSettings.ini"), std::string::npos) << Notice;
	EXPECT_NE(Notice.find(".ini:3"), std::string::npos) << Notice;
	EXPECT_NE(Notice.find("Gone"), std::string::npos) << Notice;
}

TEST_F(HostProgram, ARunWithoutChangesLeavesTheSettingsByteForByte)
{
	WriteRedLook("Red");
	WriteSettings(Pair(0, "1.000000", Look("Red")) + Pair(1, "0.250000", "None") + Pair(2, "1.000000", Look("Red"))
		+ Pair(3, "1.000000", Look("Red")));
	const std::string Before = ReadSettings();
	RunProject("");
	EXPECT_EQ(ReadSettings(), Before);
}

TEST_F(HostProgram, AChangeOfARecordIsSavedWhenTheEditorCloses)
{
	WriteSettings(Pair(1, "1.000000", "None"));
	RunProject("--exec 'set 1 intensity 0.25'");
	EXPECT_NE(ReadSettings().find("Viewport1\",DisplayConfiguration=(bEnableDisplay=True,Intensity=0.250000"), std::string::npos)
		<< ReadSettings();
}

TEST_F(HostProgram, LogsBothKindsOfLines)
{
	WriteSettings(Pair(1, "1.000000", "None"));
	const FProgramResult Result = RunProject("--exec ''");
	EXPECT_NE(Result.Output.find("LogTemp: Warning: SetupViewportDisplaySettings"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("LogTemp: Warning: OnLevelViewportClientListChanged"), std::string::npos) << Result.Output;
}

TEST_F(HostProgram, ListsWhatTheModuleRegistered)
{
	const FProgramResult Result = RunProject("--exec 'registered TintmillEditor'");
	EXPECT_NE(Result.Output.find("Delegates: FWorldDelegates::OnPreWorldInitialization"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("TMLDisplaySubMenu"), std::string::npos) << Result.Output;
}

TEST_F(HostProgram, TakesAPlainFolderOfLookFilesAsAProject)
{
	Folder.Write("Plain/Red.cube", "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n");
	const FProgramResult Result = Run("--project '" + Folder.NativePath("Plain").string() + "' --exec looks");
	EXPECT_NE(Result.Output.find("/Game/Red"), std::string::npos) << Result.Output;
}

TEST_F(HostProgram, AMissingModuleLibraryIsTheEnginesFatalErrorThatNamesIt)
{
	const std::filesystem::path Program(TINTMILL_EDITOR);
	const std::filesystem::path Platform = Program.parent_path().filename();
	const std::filesystem::path Engine = Folder.NativePath("Engine");
	std::filesystem::create_directories(Engine / "Binaries" / Platform);
	for (const std::filesystem::path& Name : {Program.filename(), std::filesystem::path(LibraryName("Engine"))})
	{
		std::filesystem::copy_file(Program.parent_path() / Name, Engine / "Binaries" / Platform / Name);
	}
	std::filesystem::copy(Program.parent_path() / "../../Plugins", Engine / "Plugins", std::filesystem::copy_options::recursive);
	std::filesystem::remove(Engine / "Plugins/Tintmill/Binaries" / Platform / LibraryName("TintmillEditor"));
	const FProgramResult Result =
		Run("--project '" + Folder.NativePath("Project").string() + "'", (Engine / "Binaries" / Platform / Program.filename()).string());
	EXPECT_NE(Result.Code, 0);
	EXPECT_NE(Result.Output.find("Assertion failed: Module [File:"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("\nTintmillEditor\n"), std::string::npos) << Result.Output;
}
}
