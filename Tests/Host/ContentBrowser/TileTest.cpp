// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/BrowserFixture.h"
#include "Host/ContentBrowser/ContentStyle.h"
#include "Host/ContentBrowser/STileName.h"
#include "StandIn/AssetThumbnails.h"
#include "StandIn/Clipboard.h"
#include "StandIn/FontMeasurer.h"

// What a tile shows and tells.

namespace
{
class ContentTile : public FBrowserFixture
{
protected:
	virtual void SetUp() override
	{
		FBrowserFixture::SetUp();
		ShowLooks();
	}
};

TEST_F(ContentTile, TheToolTipOfALookTellsNameTypeDescriptionAndPath)
{
	Hover("Teal");
	EXPECT_EQ(ReadToolTip(), "Teal|(Tintmill)|Double click to open up the tintmill builder.|Path:|/Game/Looks");
}

TEST_F(ContentTile, TheToolTipOfATextureTellsItsType)
{
	Browser->ShowFolder(TEXT("/Game/Textures"));
	Wait(0.1);
	Hover("Chart");
	EXPECT_EQ(ReadToolTip(), "Chart|(Texture)|Path:|/Game/Textures");
}

TEST_F(ContentTile, TheToolTipOfAFolderTellsItsPath)
{
	Hover("Film");
	EXPECT_EQ(ReadToolTip(), "Film|Path:|/Game/Looks/Film");
}

TEST_F(ContentTile, TheMenuOfALookHasWhatWorks)
{
	RightClick("Teal");
	EXPECT_TRUE(Sees("Edit...") && Sees("Copy Reference") && Sees("Copy File Path") && !Sees("Delete") && !Sees("Rename"));
}

TEST_F(ContentTile, EditInTheMenuOpensTheBuilderOnEverySelectedLook)
{
	Click("Amber");
	CtrlClick("Teal");
	RightClick("Teal");
	Click("Edit...");
	EXPECT_EQ(Builder->Opened, std::vector<std::string>({"Amber", "Teal"}));
}

TEST_F(ContentTile, ARightClickSelectsATileThatIsNot)
{
	Click("Amber");
	RightClick("Teal");
	EXPECT_EQ(ListSelection(), "Teal");
}

TEST_F(ContentTile, CopyReferencePutsTheClassAndPathOnTheClipboard)
{
	RightClick("Teal");
	Click("Copy Reference");
	EXPECT_EQ(ToText(StandIn::GetClipboardText()), "TintmillObject'/Game/Looks/Teal.Teal'");
}

TEST_F(ContentTile, CopyFilePathPutsTheFileOnTheClipboard)
{
	RightClick("Teal");
	Click("Copy File Path");
	EXPECT_EQ(ToText(StandIn::GetClipboardText()), ToText(Project.Path("Content/Looks/Teal.cube")));
}

TEST_F(ContentTile, OpenInTheMenuOfAFolderShowsIt)
{
	RightClick("Film");
	Click("Open");
	EXPECT_EQ(ToText(Browser->GetFolder()), "/Game/Looks/Film");
}

TEST_F(ContentTile, ALookHasAPictureOfItsOwnOnceItWasShown)
{
	Wait(0.2);
	FAssetData Asset;
	for (const TintmillHost::FContentItemPtr& Item : Browser->GetItems())
	{
		Asset = ToText(Item->Label) == "Teal" ? Item->Asset : Asset;
	}
	EXPECT_NE(StandIn::FindAssetThumbnail(Asset), nullptr);
}

TEST(TileName, AShortNameIsOneLine)
{
	EXPECT_EQ(TintmillHost::STileName::BreakName(TEXT("Teal"), 80.0f).Num(), 1);
}

TEST(TileName, ALongNameIsTwoLines)
{
	EXPECT_EQ(TintmillHost::STileName::BreakName(TEXT("A_name_that_is_much_longer_than_two_lines_of_a_tile_are_wide"), 80.0f).Num(), 2);
}

TEST(TileName, TheSecondLineOfALongNameEndsInAnEllipsis)
{
	const TArray<FString> Lines =
		TintmillHost::STileName::BreakName(TEXT("A_name_that_is_much_longer_than_two_lines_of_a_tile_are_wide"), 80.0f);
	EXPECT_EQ(ToText(Lines.Last().Right(1)), "\u2026");
}

class WideTileName : public testing::TestWithParam<const char16_t*>
{};

TEST_P(WideTileName, StaysInItsTile)
{
	const FSlateFontInfo Font = TintmillHost::ContentStyle::GetFont(8);
	for (const FString& Line : TintmillHost::STileName::BreakName(FString(reinterpret_cast<const TCHAR*>(GetParam())), 80.0f))
	{
		EXPECT_LE(StandIn::GetFontMeasurer().MeasureLine(*Line, Line.Len(), Font, 1.0f), 80.0f);
	}
}

INSTANTIATE_TEST_SUITE_P(Names, WideTileName,
	testing::Values(u"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW",
		u"\u0645\u0638\u0647\u0631_\u062F\u0627\u0641\u0626_\u0644\u0644\u0641\u064A\u0644\u0645_\u0627\u0644\u0642\u062F\u064A\u0645_\u062C\u062F\u0627",
		u"\u6696\u8272\u6696\u8272\u6696\u8272\u6696\u8272\u6696\u8272\u6696\u8272\u6696\u8272\u6696\u8272\u6696\u8272",
		u"one two three four five six seven eight nine ten"));
}
