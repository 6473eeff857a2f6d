// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/Frame/FrameFixture.h"

#include "Host/Frame/FrameMenus.h"

#include "ToolMenus.h"

using namespace TintmillHost;

namespace
{
class FrameMenus : public FFrameFixture
{};

TEST_F(FrameMenus, ShowTheNameOfTheProject)
{
	EXPECT_TRUE(StandIn::FindText(Frame.ToSharedRef(), TEXT("Test")).IsValid());
}

TEST_F(FrameMenus, ListTheLevelsOfTheProject)
{
	Click("File > Open Level");
	EXPECT_TRUE(Sees("Hall") && Sees("Yard"));
}

TEST_F(FrameMenus, OpenALevel)
{
	Click("File > Open Level > Hall");
	EXPECT_EQ(GetOpenMap(), "/Game/Maps/Hall");
}

TEST_F(FrameMenus, NameTheLevelOnTheTab)
{
	Click("File > Open Level > Hall");
	EXPECT_TRUE(StandIn::FindText(Frame.ToSharedRef(), TEXT("Hall")).IsValid());
}

TEST_F(FrameMenus, MarkTheLevelThatIsOpen)
{
	Click("File > Open Level > Hall");
	Click("File > Open Level");
	EXPECT_TRUE(See("Hall").bChecked && !See("Yard").bChecked);
}

TEST_F(FrameMenus, MakeANewLevel)
{
	Click("File > Open Level > Hall");
	Click("File > New Level");
	EXPECT_TRUE(GetOpenMap().starts_with("/Temp/")) << GetOpenMap();
}

TEST_F(FrameMenus, OpenALevelFromTheToolBar)
{
	Click("Levels");
	Click("Yard");
	EXPECT_EQ(GetOpenMap(), "/Game/Maps/Yard");
}

TEST_F(FrameMenus, SayThatAProjectHasNoLevels)
{
	Project.Write("Content/Maps/Hall.umap", "");
	std::filesystem::remove_all(std::filesystem::path(ToUtf8(Project.Path("Content/Maps"))));
	Click("Levels");
	EXPECT_TRUE(Sees("There are no levels in this project"));
}

TEST_F(FrameMenus, GiveTheTabAnotherLayout)
{
	Click("Window > Viewport Layouts > Two Panes Horiz");
	EXPECT_EQ(StandIn::GetViewportLayout(), FName("TwoPanesHoriz"));
}

TEST_F(FrameMenus, MarkTheLayoutOfTheTabInFront)
{
	Click("Window > Viewport Layouts");
	EXPECT_TRUE(See("Four Panes 2x2").bChecked);
}

TEST_F(FrameMenus, OfferEveryLayout)
{
	Click("Window > Viewport Layouts");
	int Missing = 0;
	for (const char* Name : {"One Pane", "Two Panes Horiz", "Two Panes Vert", "Three Panes Left", "Three Panes Right", "Three Panes Top",
			 "Three Panes Bottom", "Four Panes Left", "Four Panes Right", "Four Panes Top", "Four Panes Bottom", "Four Panes 2x2"})
	{
		Missing += Sees(Name) ? 0 : 1;
	}
	EXPECT_EQ(Missing, 0);
}

TEST_F(FrameMenus, OpenASecondTabOfViewports)
{
	Click("Window > Viewports > Viewport 2");
	EXPECT_EQ(StandIn::GetFrontViewportTab(), 2);
}

TEST_F(FrameMenus, CloseATabOfViewports)
{
	Click("Window > Viewports > Viewport 2");
	Click("Window > Viewports > Viewport 2");
	EXPECT_EQ(StandIn::GetViewportTabs(), TArray<int32>({1}));
}

TEST_F(FrameMenus, KeepTheFirstTabOfViewports)
{
	Click("Window > Viewports");
	EXPECT_FALSE(See("Viewport 1").bEnabled);
}

TEST_F(FrameMenus, CloseTheContentBrowser)
{
	Click("Window");
	Click("Content Browser");
	EXPECT_FALSE(Frame->IsPanelOpen("ContentBrowser"));
}

TEST_F(FrameMenus, MarkThePanelsThatAreOpen)
{
	Click("Window");
	EXPECT_TRUE(See("Content Browser").bChecked && See("Output Log").bChecked);
}

TEST_F(FrameMenus, ListTheKeysInAWindow)
{
	Click("Help");
	Click("Keyboard Shortcuts");
	EXPECT_TRUE(Sees("Alt+L") && Sees("Alt+P") && Sees("Ctrl+Shift+F"));
}

TEST_F(FrameMenus, CloseTheListOfKeysOnEscape)
{
	Click("Help");
	Click("Keyboard Shortcuts");
	Press(EKeys::Escape);
	EXPECT_FALSE(Sees("Alt+L"));
}

TEST_F(FrameMenus, ShowTheListOfKeysOnlyOnce)
{
	Press(EKeys::F1);
	Press(EKeys::F1);
	EXPECT_EQ(Window->GetChildWindows().Num(), 1);
}

TEST_F(FrameMenus, ShowTheKeysBesideTheirEntries)
{
	Click("Edit");
	EXPECT_TRUE(StandIn::FindTextOnDesktop(TEXT("Alt+L")).IsValid());
}

TEST_F(FrameMenus, AreGoneWithTheWindow)
{
	CloseWindow();
	const bool bGone = UToolMenus::Get()->FindMenu(TintmillHost::FrameMenus::MainMenu) == nullptr;
	OpenWindow();
	EXPECT_TRUE(bGone);
}

TEST_F(FrameMenus, ShowWhatAPlugInAddsToThem)
{
	UToolMenus::Get()
		->ExtendMenu("LevelEditor.MainMenu.Window")
		->AddSection("Mine")
		.AddEntry(FToolMenuEntry::InitMenuEntry("Mine", FText::FromString(TEXT("Mine")), FText(), FSlateIcon(), FUIAction()));
	Wait(0.1);
	Click("Window");
	EXPECT_TRUE(Sees("Mine"));
}

TEST_F(FrameMenus, TurnAFailureIntoANotice)
{
	Frame->Try("It did not work", [] { throw FCommandError("the reason"); });
	EXPECT_EQ(ToText(StandIn::GetNotices().Last().Text), "It did not work: the reason");
}
}
