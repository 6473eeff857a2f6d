// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/BrowserFixture.h"
#include "Host/ContentBrowser/SFolderTree.h"

// Finding one's way: search, breadcrumbs, and the tree of folders.

namespace
{
class ContentSearch : public FBrowserFixture
{
protected:
	void Search(const char* Text)
	{
		Click("Search Content");
		Type(Text);
		Wait(0.1);
	}

	void ClickFolder(const TCHAR* Path)
	{
		const TSharedPtr<TintmillHost::SFolderRow> Row = Browser->FindFolderRow(Path);
		ASSERT_TRUE(Row.IsValid());
		Person.Click(Row->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f)));
	}

	void ClickArrow(const TCHAR* Path)
	{
		const TSharedPtr<TintmillHost::SFolderRow> Row = Browser->FindFolderRow(Path);
		ASSERT_TRUE(Row.IsValid());
		Person.Click(Row->GetArrowCenter());
	}
};

TEST_F(ContentSearch, TheRootShowsItsFolders)
{
	EXPECT_EQ(ListItems(), "Looks|Textures");
}

TEST_F(ContentSearch, ASearchLooksThroughAllFoldersBelow)
{
	Search("sil");
	EXPECT_EQ(ListItems(), "Silver");
}

TEST_F(ContentSearch, ASearchDoesNotLookOutsideOfTheShownFolder)
{
	ShowLooks();
	Search("chart");
	EXPECT_EQ(ListItems(), "");
}

TEST_F(ContentSearch, EveryWordOfASearchIsPartOfTheName)
{
	Search("r a");
	EXPECT_EQ(ListItems(), "Amber|Chart");
}

TEST_F(ContentSearch, ASearchFindsFoldersToo)
{
	Search("film");
	EXPECT_EQ(ListItems(), "Film");
}

TEST_F(ContentSearch, AWordThatIsPartOfNoClassFromItsStartFindsNamesAlone)
{
	Search("object");
	EXPECT_EQ(ListItems(), "");
}

TEST_F(ContentSearch, ASearchFindsAssetsByTheirClass)
{
	Search("texture2d");
	EXPECT_EQ(ListItems(), "Chart");
}

TEST_F(ContentSearch, ASearchWithoutResultsSaysSo)
{
	Search("nothing at all");
	EXPECT_TRUE(Sees("No results, check your filter."));
}

TEST_F(ContentSearch, EscapeInTheSearchBringsBackWhatWasShown)
{
	ShowLooks();
	Search("teal");
	Press(EKeys::Escape);
	Wait(0.1);
	EXPECT_EQ(ListItems(), "Film|Amber|Cyan|Teal");
}

TEST_F(ContentSearch, DownInTheSearchGoesToTheFirstTile)
{
	Search("teal");
	Press(EKeys::Down);
	EXPECT_EQ(ListSelection(), "Teal");
}

TEST_F(ContentSearch, ControlAndFGoToTheSearchFromAnywhereInTheContentBrowser)
{
	ClickFolder(TEXT("/Game/Looks"));
	PressControl(EKeys::F);
	EXPECT_TRUE(See("Search Content").bFocused);
}

TEST_F(ContentSearch, ABreadcrumbShowsTheFolderAbove)
{
	Browser->ShowFolder(TEXT("/Game/Looks/Film"));
	Wait(0.1);
	Click("Content");
	EXPECT_EQ(ToText(Browser->GetFolder()), "/Game");
}

TEST_F(ContentSearch, AFolderInTheTreeIsShownByAClick)
{
	ClickFolder(TEXT("/Game/Looks"));
	EXPECT_EQ(ListItems(), "Film|Amber|Cyan|Teal");
}

TEST_F(ContentSearch, AFolderInTheTreeIsCollapsedAtFirst)
{
	EXPECT_FALSE(Browser->FindFolderRow(TEXT("/Game/Looks/Film")).IsValid());
}

TEST_F(ContentSearch, TheArrowInTheTreeExpandsAFolder)
{
	ClickArrow(TEXT("/Game/Looks"));
	Wait(0.1);
	EXPECT_TRUE(Browser->FindFolderRow(TEXT("/Game/Looks/Film")).IsValid());
}

TEST_F(ContentSearch, TheArrowInTheTreeCollapsesAnExpandedFolder)
{
	ClickArrow(TEXT("/Game/Looks"));
	Wait(0.1);
	ClickArrow(TEXT("/Game/Looks"));
	Wait(0.1);
	EXPECT_FALSE(Browser->FindFolderRow(TEXT("/Game/Looks/Film")).IsValid());
}

TEST_F(ContentSearch, AShownFolderIsExpandedInTheTree)
{
	Browser->ShowFolder(TEXT("/Game/Looks/Film"));
	Wait(0.1);
	EXPECT_TRUE(Browser->FindFolderRow(TEXT("/Game/Looks/Film"))->IsItemSelected());
}

TEST_F(ContentSearch, TheArrowKeysExpandAndShowFoldersInTheTree)
{
	ClickFolder(TEXT("/Game/Looks"));
	Press(EKeys::Right);
	Press(EKeys::Down);
	EXPECT_EQ(ToText(Browser->GetFolder()), "/Game/Looks/Film");
}

TEST_F(ContentSearch, AnEmptyFolderSaysWhatCanBeDone)
{
	std::filesystem::create_directory(TintmillHost::PathFromUtf8(TintmillHost::ToUtf8(Project.Path("Content/Empty"))));
	IAssetRegistry::GetChecked().AddPath(TEXT("/Game/Empty"));
	Browser->ShowFolder(TEXT("/Game/Empty"));
	Wait(0.1);
	EXPECT_TRUE(Sees("Drop files here or right click to create content."));
}
}
