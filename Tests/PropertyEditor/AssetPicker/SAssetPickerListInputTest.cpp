// Copyright The Tintmill authors. All rights reserved.

#include "AssetPickerFixture.h"
#include "UObject/Package.h"
#include <chrono>

using FAssetPickerInputTest = FAssetPickerTest;

TEST_F(FAssetPickerInputTest, ScrollsToTheInitialObject)
{
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Write(("Look" + std::to_string(100 + Index) + ".look").c_str());
	}
	Open(Find(TEXT("/Game/Look149.Look149")));
	EXPECT_TRUE(GetState().Rows[49].bVisible);
}

TEST_F(FAssetPickerInputTest, FocusesTheSearchBoxOnOpening)
{
	Write("Amber.look");
	Open();
	const TSharedPtr<SWidget> SearchBox = GetState().SearchBox;
	EXPECT_TRUE(SearchBox->HasKeyboardFocus() || SearchBox->HasFocusedDescendants());
}

TEST_F(FAssetPickerInputTest, ListsOnlyWhatTheSearchTextFits)
{
	Write("Amber.look");
	Write("TealLight.look");
	Open();
	User.Type(TEXT("light"));
	EXPECT_TRUE(IsText(GetNames(), TEXT("TealLight")));
}

TEST_F(FAssetPickerInputTest, ListsOnlyWhatAllWordsOfTheSearchTextFit)
{
	Write("TealDark.look");
	Write("TealLight.look");
	Open();
	User.Type(TEXT("light teal"));
	EXPECT_TRUE(IsText(GetNames(), TEXT("TealLight")));
}

TEST_F(FAssetPickerInputTest, ReportsAClickedAssetAndThenCloses)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	ClickAsset(TEXT("Teal"));
	EXPECT_TRUE(IsText(Events, TEXT("Set:Teal;Close;")));
}

TEST_F(FAssetPickerInputTest, LeavesItsMenuOpenAfterAClickOnAnAsset)
{
	Write("Amber.look");
	Open();
	ClickAsset(TEXT("Amber"));
	EXPECT_EQ(User.CountMenus(), 1);
}

TEST_F(FAssetPickerInputTest, ReportsAnAssetThatHasToBeScrolledTo)
{
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Write(("Look" + std::to_string(100 + Index) + ".look").c_str());
	}
	Open();
	ClickAsset(TEXT("Look149"));
	EXPECT_TRUE(IsText(Events, TEXT("Set:Look149;Close;")));
}

TEST_F(FAssetPickerInputTest, ScrollsWithTheWheel)
{
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Write(("Look" + std::to_string(100 + Index) + ".look").c_str());
	}
	Open();
	User.MoveTo(GetState().Rows[0].Centre);
	User.Wheel(-3.0f);
	EXPECT_FALSE(GetState().Rows[0].bVisible);
}

TEST_F(FAssetPickerInputTest, SelectsTheFirstAssetOnTheDownKey)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	User.Press(EKeys::Down);
	EXPECT_TRUE(IsText(GetSelected(), TEXT("Amber")));
}

TEST_F(FAssetPickerInputTest, SelectsAnAssetOnTheDownKeyEvenWithRowsAboveTheList)
{
	Write("Amber.look");
	Open(FAssetData(), true);
	User.Press(EKeys::Down);
	EXPECT_TRUE(IsText(GetSelected(), TEXT("Amber")));
}

TEST_F(FAssetPickerInputTest, ReportsNothingOnArrowKeys)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	User.Press(EKeys::Down);
	User.Press(EKeys::Down);
	User.Press(EKeys::Up);
	EXPECT_TRUE(IsText(Events, TEXT("")));
}

TEST_F(FAssetPickerInputTest, ReportsTheSelectedAssetOnEnter)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	User.Press(EKeys::Down);
	User.Press(EKeys::Down);
	User.Press(EKeys::Enter);
	EXPECT_TRUE(IsText(Events, TEXT("Set:Teal;Close;")));
}

TEST_F(FAssetPickerInputTest, ReportsTheFirstAssetOnEnterWithNothingSelected)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	User.Press(EKeys::Enter);
	EXPECT_TRUE(IsText(Events, TEXT("Set:Amber;Close;")));
}

TEST_F(FAssetPickerInputTest, ReportsNothingOnEnterInAnEmptyList)
{
	Open();
	User.Press(EKeys::Enter);
	EXPECT_TRUE(IsText(Events, TEXT("")));
}

TEST_F(FAssetPickerInputTest, OpensAndSearchesTenThousandAssetsWithoutDelay)
{
	for (int32 Index = 0; Index < 10000; ++Index)
	{
		const FString Name = FString(TEXT("Look")) + FString::FromInt(10000 + Index);
		UPackage* Package = CreatePackage(*(FString(TEXT("/Game/")) + Name));
		FAssetRegistryModule::AssetCreated(NewObject<UAssetPickerTestAsset>(Package, FName(*Name), RF_Public | RF_Standalone));
	}
	const std::chrono::steady_clock::time_point Start = std::chrono::steady_clock::now();
	Open();
	User.Type(TEXT("19999"));
	const double Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
	EXPECT_TRUE(GetNames() == TEXT("Look19999") && Seconds < 2.0) << Seconds;
}
