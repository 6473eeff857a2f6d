// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditor/ViewMenuFixture.h"

#include "InputCoreTypes.h"
#include "TintmillObject.h"

// The module's menus used with the keyboard alone, from the View menu to the pick.

namespace
{
class FMenuKeyboard : public FViewMenuFixture
{
protected:
	FMenuKeyboard()
	{
		WriteLook("Amber");
		WriteLook("Indigo");
		WriteLook("Teal");
		ShowEditor(TEXT("OnePane"));
		OpenViewMenu();
	}

	void Press(std::initializer_list<FKey> Keys)
	{
		for (const FKey& Key : Keys)
		{
			User->Press(Key);
			User->Wait(0.05f);
		}
	}

	/** From the open View menu to the panel: its row is the last one. */
	void GoToPanel() { Press({EKeys::End, EKeys::Right}); }

	/** From there to the picker. */
	void GoToPicker()
	{
		GoToPanel();
		Press({EKeys::End, EKeys::Right});
	}

	bool IsSearching() const
	{
		const TSharedPtr<SWidget> SearchBox = FindWidget(GetLastMenu(), TEXT("SSearchBox"));
		return SearchBox.IsValid() && (SearchBox->HasKeyboardFocus() || SearchBox->HasFocusedDescendants());
	}
};
}

TEST_F(FMenuKeyboard, RightOpensThePanelAndGoesToTheToggle)
{
	GoToPanel();
	EXPECT_TRUE(User->FindRow(TEXT("Enable Display")).bHighlighted);
}

TEST_F(FMenuKeyboard, DownInThePanelGoesToTheLook)
{
	GoToPanel();
	Press({EKeys::Down});
	EXPECT_TRUE(FindLookRow().bHighlighted);
}

TEST_F(FMenuKeyboard, LeftInThePanelGoesBackToTheViewMenu)
{
	GoToPanel();
	Press({EKeys::Left});
	EXPECT_EQ(1, User->CountMenus());
	EXPECT_TRUE(User->FindRow(TEXT("Tintmill")).Widget->HasKeyboardFocus());
}

TEST_F(FMenuKeyboard, SpaceTogglesAndClosesAllMenus)
{
	GoToPanel();
	Press({EKeys::SpaceBar});
	EXPECT_EQ(0, User->CountMenus());
	EXPECT_TRUE(FindRecord(0)->bEnableDisplay);
}

TEST_F(FMenuKeyboard, RightOnTheLookOpensThePickerReadyToSearch)
{
	GoToPicker();
	EXPECT_EQ(3, User->CountMenus());
	EXPECT_TRUE(IsSearching());
}

TEST_F(FMenuKeyboard, EnterOnTheLookOpensThePickerReadyToSearch)
{
	GoToPanel();
	Press({EKeys::End, EKeys::Enter});
	EXPECT_EQ(3, User->CountMenus());
	EXPECT_TRUE(IsSearching());
}

TEST_F(FMenuKeyboard, WithALookThePickerIsReadyToSearchToo)
{
	CloseMenus();
	SetRecord(0, true, 1.0f, LoadLook("Teal"));
	OpenViewMenu();
	GoToPicker();
	EXPECT_TRUE(IsSearching());
}

TEST_F(FMenuKeyboard, DownAndEnterPickTheFirstLook)
{
	GoToPicker();
	Press({EKeys::Down, EKeys::Enter});
	EXPECT_EQ("Amber", LookName(FindRecord(0)));
}

TEST_F(FMenuKeyboard, DownTwiceAndEnterPickTheSecondLook)
{
	GoToPicker();
	Press({EKeys::Down, EKeys::Down, EKeys::Enter});
	EXPECT_EQ("Indigo", LookName(FindRecord(0)));
}

TEST_F(FMenuKeyboard, UpGoesBackInTheList)
{
	GoToPicker();
	Press({EKeys::Down, EKeys::Down, EKeys::Down, EKeys::Up, EKeys::Enter});
	EXPECT_EQ("Indigo", LookName(FindRecord(0)));
}

TEST_F(FMenuKeyboard, SearchDownAndEnterPickAmongWhatWasFound)
{
	GoToPicker();
	User->Type(TEXT("tea"));
	Press({EKeys::Down, EKeys::Enter});
	EXPECT_EQ("Teal", LookName(FindRecord(0)));
}

TEST_F(FMenuKeyboard, APickLeavesTheFocusOnTheLooksRow)
{
	GoToPicker();
	Press({EKeys::Down, EKeys::Enter});
	EXPECT_EQ(2, User->CountMenus());
	EXPECT_TRUE(FindLookRow().Widget->HasKeyboardFocus());
}

TEST_F(FMenuKeyboard, EscapeClosesOneMenuAfterTheOther)
{
	GoToPicker();
	std::string Counts;
	for (int Time = 0; Time < 3; ++Time)
	{
		Press({EKeys::Escape});
		Counts += std::to_string(User->CountMenus());
	}
	EXPECT_EQ("210", Counts);
}

TEST_F(FMenuKeyboard, EscapeChangesNothing)
{
	GoToPicker();
	Press({EKeys::Down, EKeys::Escape, EKeys::Escape, EKeys::Escape});
	EXPECT_EQ("", LookName(FindRecord(0)));
	EXPECT_FALSE(FindRecord(0)->bEnableDisplay);
}

TEST_F(FMenuKeyboard, HomeAndEndGoToTheEndsOfThePanel)
{
	GoToPanel();
	Press({EKeys::End});
	EXPECT_TRUE(FindLookRow().Widget->HasKeyboardFocus());
	Press({EKeys::Home});
	EXPECT_TRUE(User->FindRow(TEXT("Enable Display")).Widget->HasKeyboardFocus());
}

TEST_F(FMenuKeyboard, TabGoesFromTheToggleToTheLook)
{
	GoToPanel();
	Press({EKeys::Tab});
	EXPECT_TRUE(FindLookRow().Widget->HasKeyboardFocus());
}

TEST_F(FMenuKeyboard, ClearIsReachedWithTheKeyboard)
{
	CloseMenus();
	SetRecord(0, true, 1.0f, LoadLook("Teal"));
	OpenViewMenu();
	GoToPicker();
	// From the search box to the rows above it.
	User->Press(EKeys::Escape);
	ASSERT_EQ(2, User->CountMenus());
	Press({EKeys::Right});
	const StandIn::FMenuRow Clear = User->FindRow(TEXT("Clear"));
	FSlateApplication::Get().SetKeyboardFocus(Clear.Widget);
	Press({EKeys::Enter});
	EXPECT_EQ("", LookName(FindRecord(0)));
}
