// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/BrowserFixture.h"

#include <filesystem>
#include <fstream>

// A new look by the menus, its name, and what may go wrong with it.

namespace
{
class NewAsset : public FBrowserFixture
{
protected:
	bool HasFile(const char* Path) const
	{
		return std::filesystem::exists(TintmillHost::PathFromUtf8(TintmillHost::ToUtf8(Project.Path(Path))));
	}

	/** The name as it is edited. */
	void Name(const char* Text)
	{
		BeginNewLook();
		Type(Text);
		Wait(0.1);
	}

	std::string GetProblem() const { return ToText(Browser->GetNameProblem().ToString()); }
};

TEST_F(NewAsset, TheGreenButtonOffersTheCategories)
{
	Click("Add New");
	EXPECT_TRUE(Sees("Miscellaneous"));
}

TEST_F(NewAsset, TheCategoryOffersTheLook)
{
	Click("Add New");
	Hover("Miscellaneous");
	EXPECT_EQ(See("Tintmill").Kind, TintmillHost::ESeenKind::MenuRow);
}

TEST_F(NewAsset, ARightClickBesideTheTilesOffersTheSame)
{
	Person.Click(Browser->GetEmptyPlace(), EKeys::RightMouseButton);
	EXPECT_TRUE(Sees("Miscellaneous"));
}

TEST_F(NewAsset, NothingIsMadeBeforeTheNameIsConfirmed)
{
	BeginNewLook();
	EXPECT_FALSE(HasFile("Content/Looks/NewTintmillObject.cube"));
}

TEST_F(NewAsset, TheProposedNameIsFocused)
{
	BeginNewLook();
	EXPECT_TRUE(See("NewTintmillObject").Kind == TintmillHost::ESeenKind::Tile && Browser->IsNaming());
}

TEST_F(NewAsset, TypingReplacesTheProposedName)
{
	Name("Fresh");
	Press(EKeys::Enter);
	EXPECT_TRUE(HasFile("Content/Looks/Fresh.cube"));
}

TEST_F(NewAsset, EnterTakesTheProposedName)
{
	BeginNewLook();
	Press(EKeys::Enter);
	EXPECT_TRUE(HasFile("Content/Looks/NewTintmillObject.cube"));
}

TEST_F(NewAsset, ASecondOneIsProposedWithANumber)
{
	BeginNewLook();
	Press(EKeys::Enter);
	BeginNewLook();
	EXPECT_TRUE(Sees("NewTintmillObject1"));
}

TEST_F(NewAsset, TheBuilderOpensOnceOnTheNewLook)
{
	Name("Fresh");
	Press(EKeys::Enter);
	EXPECT_EQ(Builder->Opened, std::vector<std::string>({"Fresh"}));
}

TEST_F(NewAsset, TheNewLookIsListedAndSelected)
{
	Name("Fresh");
	Press(EKeys::Enter);
	Wait(0.1);
	EXPECT_EQ(ListSelection(), "Fresh");
}

TEST_F(NewAsset, TheNewLookIsListedOnceAfterTheFolderWasScanned)
{
	Name("Fresh");
	Press(EKeys::Enter);
	IAssetRegistry::GetChecked().ScanPathsSynchronous({FString(TEXT("/Game"))}, true);
	Wait(0.1);
	EXPECT_EQ(ListItems(), "Film|Amber|Cyan|Fresh|Teal");
}

TEST_F(NewAsset, EscapeMakesNothing)
{
	Name("Fresh");
	Press(EKeys::Escape);
	Wait(0.1);
	EXPECT_TRUE(!HasFile("Content/Looks/Fresh.cube") && ListItems() == "Film|Amber|Cyan|Teal") << ListItems();
}

TEST_F(NewAsset, EscapeOpensNoBuilder)
{
	Name("Fresh");
	Press(EKeys::Escape);
	EXPECT_TRUE(Builder->Opened.empty());
}

TEST_F(NewAsset, AClickElsewhereTakesTheName)
{
	Name("Fresh");
	Person.Click(Browser->GetEmptyPlace());
	Click("Search Content");
	EXPECT_TRUE(HasFile("Content/Looks/Fresh.cube"));
}

TEST_F(NewAsset, ATakenNameIsRefusedWithOneSentence)
{
	Name("Teal");
	EXPECT_EQ(GetProblem(), "An asset already exists at this location with the name 'Teal'.");
}

TEST_F(NewAsset, ATakenNameIsRefusedWhateverItsCase)
{
	Name("tEAL");
	EXPECT_EQ(GetProblem(), "An asset already exists at this location with the name 'tEAL'.");
}

TEST_F(NewAsset, ATakenNameKeepsTheNamingOpen)
{
	Name("Teal");
	Press(EKeys::Enter);
	EXPECT_TRUE(Browser->IsNaming());
}

TEST_F(NewAsset, TheSentenceIsInSight)
{
	Name("Teal");
	EXPECT_TRUE(Sees("An asset already exists at this location with the name 'Teal'."));
}

TEST_F(NewAsset, AMendedNameIsTaken)
{
	Name("Teal");
	Press(EKeys::Enter);
	Type("2");
	Press(EKeys::Enter);
	EXPECT_TRUE(HasFile("Content/Looks/Teal2.cube"));
}

TEST_F(NewAsset, CharactersThatNamesMayNotHaveAreNamed)
{
	Name("a/b.c");
	EXPECT_EQ(GetProblem(), "Name may not contain the following characters: /.");
}

TEST_F(NewAsset, ABlankIsNamed)
{
	Name("a b");
	EXPECT_EQ(GetProblem(), "Name may not contain the following characters: space");
}

TEST_F(NewAsset, AnEmptyNameIsRefused)
{
	BeginNewLook();
	Press(EKeys::Delete);
	EXPECT_EQ(GetProblem(), "Please provide a name for the asset.");
}

TEST_F(NewAsset, ANameThatNoFileCanHaveIsRefused)
{
	Name(std::string(300, 'x').c_str());
	EXPECT_EQ(GetProblem(), "This asset name is too long. Please choose a shorter name.");
}

TEST_F(NewAsset, ARefusedNameMakesNothingWhenTheFocusGoesElsewhere)
{
	Name("a b");
	Click("Search Content");
	Wait(0.1);
	EXPECT_EQ(ListItems(), "Film|Amber|Cyan|Teal");
}

TEST_F(NewAsset, ANameInAnotherScriptIsTaken)
{
	Name("\u6696\u8272");
	Press(EKeys::Enter);
	EXPECT_TRUE(HasFile("Content/Looks/\u6696\u8272.cube"));
}

/** The folder's place is taken by a file, which stops everybody, whoever the test runs as. */
class NewAssetInLostFolder : public NewAsset
{
protected:
	virtual void SetUp() override
	{
		NewAsset::SetUp();
		BeginNewLook();
		const std::filesystem::path Looks = TintmillHost::PathFromUtf8(TintmillHost::ToUtf8(Project.Path("Content/Looks")));
		std::filesystem::remove_all(Looks);
		std::ofstream(Looks) << "in the way";
		Type("Fresh");
		Press(EKeys::Enter);
		Wait(0.1);
	}
};

TEST_F(NewAssetInLostFolder, SaysWhyTheLookWasNotMade)
{
	EXPECT_NE(ReadNotices().find("The asset /Game/Looks/Fresh was not made: its file"), std::string::npos) << ReadNotices();
}

TEST_F(NewAssetInLostFolder, LeavesNoAssetBehind)
{
	EXPECT_TRUE(!Browser->IsNaming() && ListItems().find("Fresh") == std::string::npos) << ListItems();
}

TEST_F(NewAssetInLostFolder, OpensNoBuilder)
{
	EXPECT_TRUE(Builder->Opened.empty());
}
}
