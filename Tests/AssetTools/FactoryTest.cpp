// Copyright The Tintmill authors. All rights reserved.

#include "AssetToolsFixture.h"

using UFactoryTest = FAssetToolsFixture;

TEST_F(UFactoryTest, IsNamedByTheActionsOfItsClass)
{
	Register(UAssetToolsTestAsset::StaticClass());
	EXPECT_EQ(MakeFactory()->GetDisplayName().ToString(), FString(TEXT("Look")));
}

TEST_F(UFactoryTest, IsNamedByItsClassInWordsWithoutActions)
{
	EXPECT_EQ(MakeFactory()->GetDisplayName().ToString(), FString(TEXT("Asset Tools Test Asset")));
}

TEST_F(UFactoryTest, IsInTheCategoriesOfTheActions)
{
	Register(UAssetToolsTestAsset::StaticClass());
	EXPECT_EQ(MakeFactory()->GetMenuCategories(), static_cast<uint32>(EAssetTypeCategories::Sounds));
}

TEST_F(UFactoryTest, IsInMiscWithoutActions)
{
	EXPECT_EQ(MakeFactory()->GetMenuCategories(), static_cast<uint32>(EAssetTypeCategories::Misc));
}

TEST_F(UFactoryTest, ProposesANameWithoutThePrefixOfTheClass)
{
	EXPECT_EQ(MakeFactory()->GetDefaultNewAssetName(), FString(TEXT("NewAssetToolsTestAsset")));
}

TEST_F(UFactoryTest, ShowsInTheNewMenuExactlyIfItCanCreate)
{
	UAssetToolsTestFactory* Factory = MakeFactory();
	Factory->bCreateNew = false;
	EXPECT_FALSE(Factory->ShouldShowInNewMenu());
}

TEST_F(UFactoryTest, SupportsItsClass)
{
	EXPECT_TRUE(MakeFactory()->DoesSupportClass(UAssetToolsTestAsset::StaticClass()));
}

TEST_F(UFactoryTest, DoesNotSupportAnotherClass)
{
	EXPECT_FALSE(MakeFactory()->DoesSupportClass(UAssetToolsTestChild::StaticClass()));
}

TEST_F(UFactoryTest, ByDefaultCannotCreate)
{
	EXPECT_FALSE(GetDefault<UFactory>()->CanCreateNew());
}

TEST_F(UFactoryTest, ByDefaultIsNotEditedAfterCreation)
{
	EXPECT_FALSE(GetDefault<UFactory>()->bEditAfterNew);
}

TEST_F(UFactoryTest, TheFormWithSevenArgumentsForwardsToTheOneWithSix)
{
	UAssetToolsTestFactory* Factory = MakeFactory();
	const UObject* Made =
		Factory->FactoryCreateNew(UAssetToolsTestAsset::StaticClass(), GetTransientPackage(), "X", RF_Public, nullptr, nullptr, "Context");
	EXPECT_NE(Made, nullptr);
}

TEST_F(UFactoryTest, PassesTheFlagsOnUnchanged)
{
	const UObject* Made = MakeFactory()->FactoryCreateNew(
		UAssetToolsTestAsset::StaticClass(), GetTransientPackage(), "X", RF_Public, nullptr, nullptr, "Context");
	EXPECT_FALSE(Made->HasAnyFlags(RF_Standalone | RF_Transactional));
}
