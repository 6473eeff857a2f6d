// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/Commands/UiFixture.h"

// The real program, whose window is used by what is written on it. Every test has a project of its own with two looks.

namespace
{
typedef FUiFixture UiCommands;

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
	ExpectComplaint("open 1 Maximize", "The button 'Maximize' of pane 1 opens no menu here");
}

TEST_F(UiCommands, AnUnknownButtonMakesAComplaintWithTheButtonsThereAre)
{
	ExpectComplaint("open 1 Snap", "Nothing in sight is labeled 'Snap'; there is '\u25BC', 'Perspective', 'Lit', 'Show', 'Maximize'.");
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
	ExpectDone("click Output Log; " + Panel
		+ "hover Select a TML Asset; type gre; expect visible 1 item; expect visible Green; expect absent Red");
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
	ExpectDone("click Output Log; " + Panel
		+ "hover Select a TML Asset; type red; press Ctrl+A; type green; expect visible Green; expect absent Red");
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

TEST_F(UiCommands, ALookFarDownTheListIsScrolledTo)
{
	for (int Number = 0; Number < 30; ++Number)
	{
		WriteLook("Look" + std::to_string(100 + Number), "0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n0 0 0\n1 0 0\n");
	}
	ExpectDone(Panel + "hover Select a TML Asset; click Look125; expect 1.look Look125");
}

TEST_F(UiCommands, ALookThatCannotBeUsedIsListedWithTheThumbnailOfItsClass)
{
	Folder.Write("Project/Content/Broken.cube", "LUT_3D_SIZE 2\n0 0 0\n");
	ExpectDone(Panel + "hover Select a TML Asset; hover Browse; expect visible Broken; expect visible 3 items");
}
}
