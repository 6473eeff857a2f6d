// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/BrowserFixture.h"

// Selecting and opening tiles, by mouse and by keyboard.

namespace
{
class ContentSelection : public FBrowserFixture
{
protected:
	virtual void SetUp() override
	{
		FBrowserFixture::SetUp();
		ShowLooks();
	}
};

TEST_F(ContentSelection, FoldersComeBeforeAssetsByName)
{
	EXPECT_EQ(ListItems(), "Film|Amber|Cyan|Teal");
}

TEST_F(ContentSelection, AClickSelectsATileAlone)
{
	Click("Amber");
	Click("Teal");
	EXPECT_EQ(ListSelection(), "Teal");
}

TEST_F(ContentSelection, AClickWithControlAddsATile)
{
	Click("Amber");
	CtrlClick("Teal");
	EXPECT_EQ(ListSelection(), "Amber|Teal");
}

TEST_F(ContentSelection, AClickWithControlTakesASelectedTileAway)
{
	Click("Amber");
	CtrlClick("Teal");
	CtrlClick("Amber");
	EXPECT_EQ(ListSelection(), "Teal");
}

TEST_F(ContentSelection, AClickWithShiftSelectsAllFromTheLastOne)
{
	Click("Amber");
	ShiftClick("Teal");
	EXPECT_EQ(ListSelection(), "Amber|Cyan|Teal");
}

TEST_F(ContentSelection, AClickBesideTheTilesSelectsNothing)
{
	Click("Amber");
	Person.Click(Browser->GetEmptyPlace());
	EXPECT_EQ(ListSelection(), "");
}

TEST_F(ContentSelection, TheNumberOfItemsAndOfSelectedOnesIsShown)
{
	Click("Amber");
	CtrlClick("Teal");
	EXPECT_TRUE(Sees("4 items (2 selected)"));
}

TEST_F(ContentSelection, TheNumberOfItemsIsShownAloneWhenNothingIsSelected)
{
	EXPECT_TRUE(Sees("4 items"));
}

TEST_F(ContentSelection, ArrowsGoFromTileToTile)
{
	Click("Amber");
	Press(EKeys::Right);
	EXPECT_EQ(ListSelection(), "Cyan");
}

TEST_F(ContentSelection, ControlAndASelectsAll)
{
	Click("Amber");
	PressControl(EKeys::A);
	EXPECT_EQ(ListSelection(), "Amber|Film|Cyan|Teal");
}

TEST_F(ContentSelection, EscapeEndsTheSelection)
{
	Click("Amber");
	Press(EKeys::Escape);
	EXPECT_EQ(ListSelection(), "");
}

TEST_F(ContentSelection, ADoubleClickOpensTheBuilderOnceOnTheLook)
{
	DoubleClick("Teal");
	EXPECT_EQ(Builder->Opened, std::vector<std::string>({"Teal"}));
}

TEST_F(ContentSelection, ADoubleClickOpensTheClickedLookAloneOutOfASelection)
{
	Click("Amber");
	CtrlClick("Cyan");
	DoubleClick("Teal");
	EXPECT_EQ(Builder->Opened, std::vector<std::string>({"Teal"}));
}

TEST_F(ContentSelection, EnterOpensTheBuilderOnEverySelectedLook)
{
	Click("Amber");
	ShiftClick("Teal");
	Press(EKeys::Enter);
	EXPECT_EQ(Builder->Opened, std::vector<std::string>({"Amber", "Cyan", "Teal"}));
}

TEST_F(ContentSelection, EnterOnThreeLooksAndATextureOpensTheBuilderThreeTimes)
{
	Browser->ShowFolder(TEXT("/Game"));
	Click("Search Content");
	Type("a");
	Wait(0.1);
	for (const char* Label : {"Amber", "Cyan", "Teal", "Chart"})
	{
		CtrlClick(Label);
	}
	Press(EKeys::Enter);
	EXPECT_EQ(Builder->Opened, std::vector<std::string>({"Amber", "Cyan", "Teal"}));
}

TEST_F(ContentSelection, OpeningATextureSaysThatThereIsNoEditorForIt)
{
	Browser->ShowFolder(TEXT("/Game/Textures"));
	Wait(0.1);
	DoubleClick("Chart");
	EXPECT_NE(ReadNotices().find("Chart was not opened: there is no editor for assets of the class Texture2D here."), std::string::npos)
		<< ReadNotices();
}

TEST_F(ContentSelection, ADoubleClickOnAFolderShowsIt)
{
	DoubleClick("Film");
	Wait(0.1);
	EXPECT_EQ(ListItems(), "Silver");
}

TEST_F(ContentSelection, EnterOnAFolderShowsIt)
{
	Click("Film");
	Press(EKeys::Enter);
	EXPECT_EQ(ToText(Browser->GetFolder()), "/Game/Looks/Film");
}

TEST_F(ContentSelection, BackspaceGoesToTheFolderAbove)
{
	Click("Film");
	Press(EKeys::BackSpace);
	EXPECT_EQ(ToText(Browser->GetFolder()), "/Game");
}

TEST_F(ContentSelection, TheWheelWithControlMakesTilesLarger)
{
	const float Before = See("Cyan").Center.X - See("Amber").Center.X;
	Person.Hover(Browser->GetTilesCenter());
	Person.HoldModifiers(FModifierKeysState(false, false, true, false, false, false, false, false, false));
	Person.TurnWheel(1.0f);
	Wait(0.1);
	EXPECT_FLOAT_EQ(See("Cyan").Center.X - See("Amber").Center.X, Before + 16.0f);
}

/** With an asset of a class that nobody knows anything about. */
class UnknownAsset : public FBrowserFixture
{
protected:
	virtual void WriteProject() override
	{
		StandIn::FAssetFileType Type;
		Type.Extension = TEXT("odd");
		Type.ClassName = FName(TEXT("ToolMenu"));
		StandIn::RegisterAssetFileType(Type);
		Project.Write("Content/Strange.odd", "");
	}

	virtual void TearDown() override
	{
		FBrowserFixture::TearDown();
		StandIn::UnregisterAssetFileType(TEXT("odd"));
	}
};

TEST_F(UnknownAsset, IsOpenedWithoutHarmAndAWord)
{
	DoubleClick("Strange");
	EXPECT_NE(ReadNotices().find("there is no editor for assets of the class ToolMenu here."), std::string::npos) << ReadNotices();
}

TEST_F(UnknownAsset, GoesByTheNameOfItsClass)
{
	Hover("Strange");
	EXPECT_EQ(ReadToolTip(), "Strange|(ToolMenu)|Path:|/Game");
}
}
