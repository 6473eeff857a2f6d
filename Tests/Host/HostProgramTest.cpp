// Copyright The Tintmill authors. All rights reserved.

#include "Host/Picture/PngFile.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

// The real program with the real shared libraries, on projects of its own.

namespace
{
struct FResult
{
	int Code = -1;
	std::string Output;
};

class HostProgram : public testing::Test
{
protected:
	/** Runs the program on the project without a window; both streams come back as one text. */
	FResult Run(const std::string& Arguments, const std::string& Program = TINTMILL_EDITOR) const
	{
		const std::string Command =
			Program + " --headless --size 64x36 --out '" + Folder.NativePath("out").string() + "' " + Arguments + " 2>&1";
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

	FResult RunProject(const std::string& Arguments) const
	{
		return Run("--project '" + Folder.NativePath("Project").string() + "' " + Arguments);
	}

	void WriteSettings(const std::string& Pairs) const
	{
		Folder.Write("Project/Saved/Config/Linux/EditorPerProjectUserSettings.ini",
			"[/Script/TintmillEditor.TintmillLevelViewportSettings]\n" + Pairs + "\n");
	}

	std::string ReadSettings() const { return Folder.Read("Project/Saved/Config/Linux/EditorPerProjectUserSettings.ini"); }

	static std::string Pair(int Pane, const std::string& Intensity, const std::string& Look)
	{
		return "ViewportsSettings=(ViewportIdentifier=\"FourPanes2x2.Viewport 1.Viewport" + std::to_string(Pane)
			+ "\",DisplayConfiguration=(bEnableDisplay=True,Intensity=" + Intensity + ",LookAsset=" + Look + "))\n";
	}

	static std::string Look(const std::string& Name) { return "TintmillObject'\"/Game/Looks/" + Name + "." + Name + "\"'"; }

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

TEST_F(HostProgram, EndsWithCodeTwoForAMissingProject)
{
	const FResult Result = Run("--project '/no/such folder'");
	EXPECT_EQ(Result.Code, 2);
	EXPECT_EQ(Result.Output, "There is no project folder /no/such folder: give the folder that holds your look files with --project.\n");
}

TEST_F(HostProgram, EndsWithCodeTwoForAnUnknownCommand)
{
	const FResult Result = RunProject("--exec 'paint'");
	EXPECT_EQ(Result.Code, 2);
	EXPECT_NE(Result.Output.find("There is no command 'paint'"), std::string::npos);
}

TEST_F(HostProgram, EndsWithCodeZeroOnAnEmptyProject)
{
	const FResult Result = RunProject("");
	EXPECT_EQ(Result.Code, 0) << Result.Output;
}

TEST_F(HostProgram, WritesTwoPicturesForEveryPane)
{
	RunProject("");
	for (int Pane = 0; Pane < 4; ++Pane)
	{
		const std::string Stem = "FourPanes2x2-Viewport1-Viewport" + std::to_string(Pane);
		EXPECT_EQ(ReadPicture(Stem + "-with-look.png").Width, 64);
		EXPECT_EQ(ReadPicture(Stem + "-without-look.png").Height, 36);
	}
}

TEST_F(HostProgram, ShowsASavedLookOnItsPane)
{
	WriteRedLook("Red");
	WriteSettings(Pair(1, "1.000000", Look("Red")));
	const FResult Result = RunProject("--exec 'picture 1 one.png'");
	ASSERT_EQ(Result.Code, 0) << Result.Output;
	for (const FColor& Pixel : ReadPicture("one.png").Pixels)
	{
		ASSERT_EQ(Pixel.G, 0);
		ASSERT_EQ(Pixel.B, 0);
	}
}

TEST_F(HostProgram, LeavesAPaneWithoutALookAlone)
{
	WriteRedLook("Red");
	WriteSettings(Pair(1, "1.000000", Look("Red")));
	RunProject("--exec 'pictures'");
	const std::string Stem = "FourPanes2x2-Viewport1-Viewport2";
	EXPECT_TRUE(ReadPicture(Stem + "-with-look.png").Pixels == ReadPicture(Stem + "-without-look.png").Pixels);
}

TEST_F(HostProgram, HalfIntensityLiesHalfWayBetween)
{
	WriteRedLook("Red");
	WriteSettings(Pair(1, "0.500000", Look("Red")));
	RunProject("--exec 'pictures'");
	const TintmillHost::FPicture Without = ReadPicture("FourPanes2x2-Viewport1-Viewport1-without-look.png");
	const TintmillHost::FPicture With = ReadPicture("FourPanes2x2-Viewport1-Viewport1-with-look.png");
	for (int32 Index = 0; Index < With.Pixels.Num(); ++Index)
	{
		ASSERT_NEAR(With.Pixels[Index].G, Without.Pixels[Index].G / 2.0, 1.0);
	}
}

TEST_F(HostProgram, OfTwoPairsWithOneKeyTheFirstIsShown)
{
	WriteRedLook("Red");
	WriteSettings(Pair(1, "1.000000", "None") + Pair(1, "1.000000", Look("Red")));
	const FResult Result = RunProject("--exec 'record 1'");
	EXPECT_NE(Result.Output.find("LookAsset=None"), std::string::npos) << Result.Output;
}

TEST_F(HostProgram, ALookThatDoesNotExistMakesOneNoticeWithFileAndLine)
{
	WriteSettings(Pair(0, "1.000000", "None") + Pair(1, "1.000000", Look("Gone")));
	const FResult Result = RunProject("--exec 'notices'");
	const size_t First = Result.Output.find("\nNotice: ");
	ASSERT_NE(First, std::string::npos) << Result.Output;
	EXPECT_EQ(Result.Output.find("\nNotice: ", First + 1), std::string::npos) << Result.Output;
	const std::string Notice = Result.Output.substr(First + 1, Result.Output.find('\n', First + 1) - First - 1);
	EXPECT_NE(Notice.find("EditorPerProjectUserSettings.ini"), std::string::npos) << Notice;
	EXPECT_NE(Notice.find(".ini:3"), std::string::npos) << Notice;
	EXPECT_NE(Notice.find("Gone"), std::string::npos) << Notice;
}

TEST_F(HostProgram, ABrokenLookFileMakesOneNoticeWithFileLineAndReason)
{
	Folder.Write("Project/Content/Looks/Broken.cube", "LUT_3D_SIZE 2\n0 0 0\n1 0,5 0\n");
	WriteSettings(Pair(1, "1.000000", Look("Broken")));
	const FResult Result = RunProject("--exec 'pictures; notices'");
	EXPECT_NE(Result.Output.find("Broken.cube(3)"), std::string::npos) << Result.Output;
	const std::string Stem = "FourPanes2x2-Viewport1-Viewport1";
	EXPECT_TRUE(ReadPicture(Stem + "-with-look.png").Pixels == ReadPicture(Stem + "-without-look.png").Pixels);
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
	const FResult Result = RunProject("--exec ''");
	EXPECT_NE(Result.Output.find("LogTemp: Warning: SetupViewportDisplaySettings"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("LogTemp: Warning: OnLevelViewportClientListChanged"), std::string::npos) << Result.Output;
}

TEST_F(HostProgram, ListsWhatTheModuleRegistered)
{
	const FResult Result = RunProject("--exec 'registered TintmillEditor'");
	EXPECT_NE(Result.Output.find("Delegates: FWorldDelegates::OnPreWorldInitialization"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("TMLDisplaySubMenu"), std::string::npos) << Result.Output;
}

TEST_F(HostProgram, TakesAPlainFolderOfLookFilesAsAProject)
{
	Folder.Write("Plain/Red.cube", "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n");
	const FResult Result = Run("--project '" + Folder.NativePath("Plain").string() + "' --exec looks");
	EXPECT_NE(Result.Output.find("/Game/Red"), std::string::npos) << Result.Output;
}

TEST_F(HostProgram, AMissingModuleLibraryIsTheEnginesFatalErrorThatNamesIt)
{
	const std::filesystem::path Binaries = std::filesystem::path(TINTMILL_EDITOR).parent_path();
	const std::filesystem::path Engine = Folder.NativePath("Engine");
	std::filesystem::create_directories(Engine / "Binaries/Linux");
	for (const char* const Name : {"tintmill-editor", "libUE4Editor-Engine.so"})
	{
		std::filesystem::copy_file(Binaries / Name, Engine / "Binaries/Linux" / Name);
	}
	std::filesystem::copy(Binaries / "../../Plugins", Engine / "Plugins", std::filesystem::copy_options::recursive);
	std::filesystem::remove(Engine / "Plugins/Tintmill/Binaries/Linux/libUE4Editor-TintmillEditor.so");
	const FResult Result =
		Run("--project '" + Folder.NativePath("Project").string() + "'", (Engine / "Binaries/Linux/tintmill-editor").string());
	EXPECT_NE(Result.Code, 0);
	EXPECT_NE(Result.Output.find("Assertion failed: Module [File:"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("\nTintmillEditor\n"), std::string::npos) << Result.Output;
}

TEST_F(HostProgram, AFolderThatCannotBeWrittenMakesOneSentence)
{
	Folder.Write("out", "a file in the way");
	const FResult Result = RunProject("--exec 'picture 0'");
	EXPECT_EQ(Result.Code, 2);
	EXPECT_NE(Result.Output.find("Cannot write the picture"), std::string::npos) << Result.Output;
}
}
