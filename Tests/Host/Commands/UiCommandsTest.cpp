// Copyright The Tintmill authors. All rights reserved.

#include "Host/Picture/PngFile.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

// The real program, whose window is used by what is written on it. Every test has a project of its own with two looks.

namespace
{
/** Opens the panel of pane 1. */
const std::string Panel = "click-pane 1; open 1 View; hover Tintmill; ";

struct FResult
{
	int Code = -1;
	std::string Output;
};

class UiCommands : public testing::Test
{
protected:
	virtual void SetUp() override
	{
		WriteLook("Red", "0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n");
		WriteLook("Green", "0 0 0\n0 0 0\n0 1 0\n0 1 0\n0 0 0\n0 0 0\n0 1 0\n0 1 0\n");
	}

	void WriteLook(const std::string& Name, const std::string& Rows) const
	{
		Folder.Write("Project/Content/" + Name + ".cube", "LUT_3D_SIZE 2\n" + Rows);
	}

	/** Runs commands in a window that is just large enough for the menus side by side. */
	FResult Run(const std::string& Commands, const std::string& Options = "") const
	{
		const std::string Line = std::string(TINTMILL_EDITOR) + " --headless --size 16x16 --window 1000x560 " + Options + " --out '"
			+ Folder.NativePath("out").string() + "' --project '" + Folder.NativePath("Project").string() + "' --exec '" + Commands
			+ "' 2>&1";
		FResult Result;
		std::FILE* const Pipe = popen(Line.c_str(), "r");
		std::array<char, 4096> Buffer;
		while (const size_t Count = std::fread(Buffer.data(), 1, Buffer.size(), Pipe))
		{
			Result.Output.append(Buffer.data(), Count);
		}
		const int Status = pclose(Pipe);
		Result.Code = WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
		return Result;
	}

	/** Expects that commands run to their end. */
	void ExpectDone(const std::string& Commands) const
	{
		const FResult Result = Run(Commands);
		EXPECT_EQ(Result.Code, 0) << Result.Output;
	}

	/** Expects that commands end with a complaint that contains a text. */
	void ExpectComplaint(const std::string& Commands, const std::string& Text) const
	{
		const FResult Result = Run(Commands);
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

TEST_F(UiCommands, AMenuIsOpenedByTheNameOfItsButton)
{
	ExpectDone("open 1 Lit; expect menus 1; expect visible View Mode");
}

TEST_F(UiCommands, ViewIsAnotherNameForTheButtonThatReadsLit)
{
	ExpectDone("open 0 View; expect menus 1; expect visible Tintmill");
}

TEST_F(UiCommands, AButtonWithoutAMenuMakesAComplaint)
{
	ExpectComplaint("open 1 Show", "The button 'Show' of pane 1 opens no menu here");
}

TEST_F(UiCommands, AnUnknownButtonMakesAComplaintWithTheButtonsThereAre)
{
	ExpectComplaint("open 1 Snap", "Nothing in sight is labeled 'Snap'; there is '\u25BC', 'Perspective', 'Lit', 'Show'.");
}

TEST_F(UiCommands, RestingOnTintmillOpensItsPanel)
{
	ExpectDone(
		Panel + "expect menus 2; expect visible Display Configuration; expect unchecked Enable Display; expect visible Select a TML Asset");
}

TEST_F(UiCommands, RestingOnARowShowsItsToolTip)
{
	ExpectDone(Panel + "expect tooltip Configure the viewport to use a Tintmill asset.");
}

TEST_F(UiCommands, TheToolTipGoesWithTheMouse)
{
	ExpectDone(Panel + "hover Display Configuration; expect absent Configure the viewport to use a Tintmill asset.");
}

TEST_F(UiCommands, APathRestsOnItsPartsInTurn)
{
	ExpectDone("open 1 View; hover Tintmill > Select a TML Asset; expect menus 3; expect visible Asset selection");
}

TEST_F(UiCommands, TheCheckBoxSwitchesAndLeavesTheMenuOpen)
{
	ExpectDone(Panel + "click-box Enable Display; expect menus 2; expect checked Enable Display; expect 1.enable on");
}

TEST_F(UiCommands, TheLabelSwitchesAndClosesTheMenu)
{
	ExpectDone(Panel + "click Enable Display; expect menus 0; expect 1.enable on");
}

TEST_F(UiCommands, SwitchingTwiceIsAsBefore)
{
	ExpectDone(Panel + "click-box Enable Display; click-box Enable Display; expect unchecked Enable Display; expect 1.enable off");
}

TEST_F(UiCommands, ARowWithoutACheckBoxMakesAComplaint)
{
	ExpectComplaint(Panel + "click-box Select a TML Asset", "'Select a TML Asset' has no check box.");
}

TEST_F(UiCommands, AGrayedRowCannotBeClicked)
{
	ExpectComplaint("open 1 View; click Wireframe", "'Wireframe' cannot be clicked now: it is grayed out.");
}

TEST_F(UiCommands, ThePickerOpensWithTheSearchBoxFocused)
{
	ExpectDone(Panel + "hover Select a TML Asset; expect focused Search Assets; expect visible 2 items");
}

TEST_F(UiCommands, TypingNarrowsTheList)
{
	ExpectDone(Panel + "hover Select a TML Asset; type gre; expect visible 1 item; expect visible Green; expect absent Red");
}

TEST_F(UiCommands, AClickOnALookChoosesItAndClosesThePicker)
{
	ExpectDone(Panel + "hover Select a TML Asset; click Red; expect menus 2; expect 1.look Red; expect visible Red");
}

TEST_F(UiCommands, EnterChoosesTheFirstLookFound)
{
	ExpectDone(Panel + "hover Select a TML Asset; type red; press Enter; expect 1.look Red");
}

TEST_F(UiCommands, ArrowKeysWalkTheListAndChooseNothing)
{
	ExpectDone(Panel
		+ "hover Select a TML Asset; press Down Down; expect visible 2 items (1 selected); expect 1.look none; press Enter; expect 1.look Red");
}

TEST_F(UiCommands, ClearEmptiesTheChoice)
{
	ExpectDone(Panel
		+ "hover Select a TML Asset; click Red; hover Red; expect visible Current Asset; click Clear; expect menus 0; expect 1.look none");
}

TEST_F(UiCommands, TheWholeMenuCanBeUsedWithoutTheMouse)
{
	ExpectDone("click-pane 1; open 1 View; press Up Right; expect menus 2; press Enter; expect 1.enable on");
}

TEST_F(UiCommands, EscapeClosesOneMenuAtATime)
{
	ExpectDone(Panel + "hover Select a TML Asset; expect menus 3; press Escape; expect menus 2");
}

TEST_F(UiCommands, AllMenusCanBeClosed)
{
	ExpectDone(Panel + "hover Select a TML Asset; type r; close-menus; expect menus 0");
}

TEST_F(UiCommands, AClickOnAPicturesPaneMakesItActive)
{
	ExpectDone("click-pane 2; expect active 2; click-pane 1; expect active 1");
}

TEST_F(UiCommands, TheSearchBoxTakesChords)
{
	ExpectDone(Panel + "hover Select a TML Asset; type red; press Ctrl+A; type green; expect visible Green; expect absent Red");
}

TEST_F(UiCommands, TextWithoutABoxMakesAComplaint)
{
	ExpectComplaint("close-menus; type hello", "Nothing takes the text 'hello': click a text box first.");
}

TEST_F(UiCommands, AnUnknownLabelMakesAComplaintWithTheLabelsInSight)
{
	ExpectComplaint("open 1 View; click Enable", "Nothing in sight is labeled 'Enable'; there is 'View Mode', 'Lit', 'Unlit'");
}

TEST_F(UiCommands, AnExpectationThatDoesNotHoldSaysWhatIsThere)
{
	ExpectComplaint("expect 1.look Red", "The field look of pane 1 was expected to be Red, and it is none.");
}

TEST_F(UiCommands, AnUnknownExpectationMakesAComplaint)
{
	ExpectComplaint("expect happiness now", "Nothing can be expected of 'happiness'");
}

TEST_F(UiCommands, AShotHasTheSizeOfTheWindow)
{
	ExpectDone("shot one.png");
	TintmillHost::FPicture Picture;
	ASSERT_EQ(TintmillHost::ReadPng(Folder.NativePath("out/one.png"), Picture), "");
	EXPECT_EQ(Picture.Width, 1000);
	EXPECT_EQ(Picture.Height, 560);
}

TEST_F(UiCommands, AShotAtTwiceTheScaleHasFourTimesThePixels)
{
	ExpectDone("layout OnePane; shot two.png 2");
	TintmillHost::FPicture Picture;
	ASSERT_EQ(TintmillHost::ReadPng(Folder.NativePath("out/two.png"), Picture), "");
	EXPECT_EQ(Picture.Width, 2000);
	EXPECT_EQ(Picture.Height, 1120);
}

TEST_F(UiCommands, AChosenLookChangesThePixelsOfItsPane)
{
	ExpectDone(Panel + "click-box Enable Display; hover Select a TML Asset; click Red; close-menus; hover Show; shot red.png");
	ExpectRed("red.png", 600, 150);
}

TEST_F(UiCommands, AlsoInAPaneThatIsNotDrawnAllTheTime)
{
	ExpectDone("click-pane 0; open 0 View; hover Tintmill; click-box Enable Display; hover Select a TML Asset; click Red; close-menus; "
			   "hover Project; shot red.png");
	ExpectRed("red.png", 100, 150);
}

TEST_F(UiCommands, ALookFarDownTheListIsScrolledTo)
{
	for (int Number = 0; Number < 30; ++Number)
	{
		WriteLook("Look" + std::to_string(100 + Number), "0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n");
	}
	ExpectDone(Panel + "hover Select a TML Asset; click Look125; expect 1.look Look125");
}

TEST_F(UiCommands, EveryLookHasAThumbnailOfItsOwn)
{
	ExpectDone("click-pane 0; open 0 View; hover Tintmill; hover Select a TML Asset; hover Browse; shot list.png");
	TintmillHost::FPicture Picture;
	ASSERT_EQ(TintmillHost::ReadPng(Folder.NativePath("out/list.png"), Picture), "");
	// The red look's thumbnail has no other color than red, the green look's none but green.
	int RedPixels = 0;
	int GreenPixels = 0;
	for (const FColor& Pixel : Picture.Pixels)
	{
		RedPixels += Pixel.R > 100 && Pixel.G == 0 && Pixel.B == 0 ? 1 : 0;
		GreenPixels += Pixel.G > 100 && Pixel.R == 0 && Pixel.B == 0 ? 1 : 0;
	}
	EXPECT_GT(RedPixels, 200);
	EXPECT_GT(GreenPixels, 200);
}

TEST_F(UiCommands, ALookThatCannotBeUsedIsListedWithTheThumbnailOfItsClass)
{
	Folder.Write("Project/Content/Broken.cube", "LUT_3D_SIZE 2\n0 0 0\n");
	ExpectDone(Panel + "hover Select a TML Asset; hover Browse; expect visible Broken; expect visible 3 items");
}

TEST_F(UiCommands, TheSameCommandsGiveTheSamePicture)
{
	const std::string Commands = Panel + "hover Select a TML Asset; shot ";
	ExpectDone(Commands + "first.png");
	ExpectDone(Commands + "second.png");
	EXPECT_EQ(Folder.Read("out/first.png"), Folder.Read("out/second.png"));
}

TEST_F(UiCommands, AWindowOfAnotherSizeHasPanesOfAnotherSize)
{
	ExpectDone("window 1200 700; shot large.png; open 1 View; expect visible Tintmill");
	TintmillHost::FPicture Picture;
	ASSERT_EQ(TintmillHost::ReadPng(Folder.NativePath("out/large.png"), Picture), "");
	EXPECT_EQ(Picture.Width, 1200);
}

TEST_F(UiCommands, AFolderThatCannotBeWrittenMakesOneSentence)
{
	Folder.Write("out", "a file in the way");
	ExpectComplaint("shot one.png", "Cannot write the picture");
}
}
