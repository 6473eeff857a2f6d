// Copyright The Tintmill authors. All rights reserved.

#include "PropertyCustomizationHelpers.h"
#include "AssetPickerFixture.h"

TEST_F(FAssetPickerTest, ReportsInvalidDataOnTheNoneButton)
{
	Write("Amber.look");
	Open(FAssetData(), true);
	const StandIn::FAssetPickerState State = GetState();
	User.ClickAt(FVector2D(State.ListTopLeft.X + State.ListSize.X * 0.5f, State.ListTopLeft.Y - 8.0f));
	EXPECT_TRUE(IsText(Events, TEXT("Set:-;Close;")));
}

TEST_F(FAssetPickerTest, ShowsOnlyTheBrowserWithoutAnythingElseToOffer)
{
	Open();
	EXPECT_TRUE(IsText(User.GetHeadings(), TEXT("Browse")));
}

TEST_F(FAssetPickerTest, OffersNoClearUnlessAllowed)
{
	Open();
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("")));
}

TEST_F(FAssetPickerTest, OffersClearIfAllowed)
{
	Open(FAssetData(), true);
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Clear")));
}

TEST_F(FAssetPickerTest, ClearReportsInvalidDataAndThenCloses)
{
	Open(FAssetData(), true);
	User.Click(TEXT("Clear"));
	EXPECT_TRUE(IsText(Events, TEXT("Set:-;Close;")));
}

TEST_F(FAssetPickerTest, OffersEditOfAnInitialObject)
{
	Write("Amber.look");
	Open(Find(TEXT("/Game/Amber.Amber")));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Edit")));
}

TEST_F(FAssetPickerTest, OffersCopyAndPasteIfAllowed)
{
	Write("Amber.look");
	Open(Find(TEXT("/Game/Amber.Amber")), true, true);
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Edit|Copy|Paste|Clear")));
}

TEST_F(FAssetPickerTest, OffersCopyAndPasteInTheShorterForm)
{
	User.Open(PropertyCustomizationHelpers::MakeAssetPickerWithMenu(
		FAssetData(), false, Classes, TArray<UFactory*>(), FOnShouldFilterAsset(), FOnAssetSelected(), FSimpleDelegate()));
	EXPECT_TRUE(IsText(User.GetLabels(), TEXT("Copy|Paste")));
}

TEST_F(FAssetPickerTest, PastesWhatWasCopied)
{
	Write("Amber.look");
	Open(Find(TEXT("/Game/Amber.Amber")), false, true);
	User.Click(TEXT("Copy"));
	Events.Empty();
	Open(FAssetData(), false, true);
	User.Click(TEXT("Paste"));
	EXPECT_TRUE(IsText(Events, TEXT("Set:Amber;Close;")));
}

TEST_F(FAssetPickerTest, DoesNotPasteAnAssetOfAnotherClass)
{
	Write("Stone.other");
	Open(Find(TEXT("/Game/Stone.Stone")), false, true);
	User.Click(TEXT("Copy"));
	Open(FAssetData(), false, true);
	EXPECT_FALSE(User.FindRow(TEXT("Paste")).bEnabled);
}

TEST_F(FAssetPickerTest, ListsTheFactoriesOfNewAssets)
{
	Open(FAssetData(), false, false, TArray<UFactory*>({GetMutableDefault<UAssetPickerTestFactory>()}));
	EXPECT_TRUE(IsText(User.GetHeadings(), TEXT("Create New Asset|Browse")));
}

TEST_F(FAssetPickerTest, FindsTheFactoriesOfAClass)
{
	EXPECT_TRUE(
		PropertyCustomizationHelpers::GetNewAssetFactoriesForClasses(Classes).Contains(GetMutableDefault<UAssetPickerTestFactory>()));
}

TEST_F(FAssetPickerTest, FindsNoFactoriesOfADisallowedClass)
{
	EXPECT_EQ(PropertyCustomizationHelpers::GetNewAssetFactoriesForClasses(Classes, Classes).Num(), 0);
}
