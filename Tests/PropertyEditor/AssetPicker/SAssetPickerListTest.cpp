// Copyright The Tintmill authors. All rights reserved.

#include "AssetPickerFixture.h"

using FAssetPickerListTest = FAssetPickerTest;

TEST_F(FAssetPickerListTest, ListsTheAssetsOfTheClassByName)
{
	Write("Zinc.look");
	Write("amber.look");
	Write("Teal.look");
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("amber|Teal|Zinc")));
}

TEST_F(FAssetPickerListTest, ListsAssetsOfDerivedClasses)
{
	Write("Amber.look");
	Write("Teal.child");
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("Amber|Teal")));
}

TEST_F(FAssetPickerListTest, ListsNoAssetsOfOtherClasses)
{
	Write("Amber.look");
	Write("Stone.other");
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("Amber")));
}

TEST_F(FAssetPickerListTest, ListsAssetsInFolders)
{
	Write("Looks/Amber.look");
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("Amber")));
}

TEST_F(FAssetPickerListTest, ListsWhatIsOnDiskAtEachOpening)
{
	Write("Amber.look");
	Open();
	FSlateApplication::Get().DismissAllMenus();
	Write("Teal.look");
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("Amber|Teal")));
}

TEST_F(FAssetPickerListTest, HidesAnAssetForWhichTheFilterIsTrue)
{
	Write("Amber.look");
	Write("Teal.look");
	Filter = FOnShouldFilterAsset::CreateLambda([](const FAssetData& Asset) { return Asset.AssetName == FName("Amber"); });
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("Teal")));
}

TEST_F(FAssetPickerListTest, HidesAssetsOfDisallowedClasses)
{
	Write("Amber.look");
	Write("Teal.child");
	const TArray<const UClass*> Disallowed({UAssetPickerTestChild::StaticClass()});
	User.Open(PropertyCustomizationHelpers::MakeAssetPickerWithMenu(FAssetData(), false, false, Classes, Disallowed, TArray<UFactory*>(),
		FOnShouldFilterAsset(), FOnAssetSelected(), FSimpleDelegate()));
	EXPECT_TRUE(IsText(GetNames(), TEXT("Amber")));
}

TEST_F(FAssetPickerListTest, NamesTheTypeByItsActions)
{
	FAssetToolsModule::GetModule().Get().RegisterAssetTypeActions(MakeShared<FPickerTestActions>());
	Write("Amber.look");
	Open();
	EXPECT_TRUE(IsText(GetState().Rows[0].TypeLabel, TEXT("Look")));
}

TEST_F(FAssetPickerListTest, NamesTheTypeByItsClassWithoutActions)
{
	Write("Amber.look");
	Open();
	EXPECT_TRUE(IsText(GetState().Rows[0].TypeLabel, TEXT("AssetPickerTestAsset")));
}

TEST_F(FAssetPickerListTest, CountsTheAssets)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	EXPECT_TRUE(IsText(GetState().CountText, TEXT("2 items")));
}

TEST_F(FAssetPickerListTest, CountsOneAssetInTheSingular)
{
	Write("Amber.look");
	Open();
	EXPECT_TRUE(IsText(GetState().CountText, TEXT("1 item")));
}

TEST_F(FAssetPickerListTest, SelectsTheInitialObject)
{
	Write("Amber.look");
	Write("Teal.look");
	Open(Find(TEXT("/Game/Teal.Teal")));
	EXPECT_TRUE(IsText(GetSelected(), TEXT("Teal")));
}

TEST_F(FAssetPickerListTest, SelectsNothingWithoutInitialObject)
{
	Write("Amber.look");
	Open();
	EXPECT_TRUE(IsText(GetSelected(), TEXT("")));
}
