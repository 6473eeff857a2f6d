// Copyright The Tintmill authors. All rights reserved.

#include "AssetTypeActions_Base.h"
#include "AssetRegistry/ARFilter.h"
#include "AssetToolsFixture.h"
#include "Widgets/SWidget.h"

using FAssetTypeActionsBaseTest = FAssetToolsFixture;

namespace
{
FTestActions Actions()
{
	return FTestActions(UAssetToolsTestAsset::StaticClass());
}
}

TEST_F(FAssetTypeActionsBaseTest, HasNoActions)
{
	EXPECT_FALSE(Actions().HasActions(TArray<UObject*>()));
}

TEST_F(FAssetTypeActionsBaseTest, CanFilter)
{
	EXPECT_TRUE(Actions().CanFilter());
}

TEST_F(FAssetTypeActionsBaseTest, CanLocalize)
{
	EXPECT_TRUE(Actions().CanLocalize());
}

TEST_F(FAssetTypeActionsBaseTest, CannotMerge)
{
	EXPECT_FALSE(Actions().CanMerge());
}

TEST_F(FAssetTypeActionsBaseTest, IsNotImported)
{
	EXPECT_FALSE(Actions().IsImportedAsset());
}

TEST_F(FAssetTypeActionsBaseTest, DoesNotForceTheLevelEditor)
{
	EXPECT_FALSE(Actions().ShouldForceWorldCentric());
}

TEST_F(FAssetTypeActionsBaseTest, HasNoDescription)
{
	EXPECT_TRUE(Actions().GetAssetDescription(FAssetData()).IsEmpty());
}

TEST_F(FAssetTypeActionsBaseTest, HasNoSubMenus)
{
	EXPECT_EQ(Actions().GetSubMenus().Num(), 0);
}

TEST_F(FAssetTypeActionsBaseTest, HasNoThumbnailOverlay)
{
	EXPECT_FALSE(Actions().GetThumbnailOverlay(FAssetData()).IsValid());
}

TEST_F(FAssetTypeActionsBaseTest, FindsAssetsOfTheClassAndItsChildren)
{
	FARFilter Filter;
	Actions().BuildBackendFilter(Filter);
	EXPECT_TRUE(Filter.ClassNames.Contains(FName("AssetToolsTestAsset")) && Filter.bRecursiveClasses);
}

TEST_F(FAssetTypeActionsBaseTest, ShowsAnObjectUnderItsName)
{
	UObject* Object = NewObject<UAssetToolsTestAsset>(GetTransientPackage(), "Teal");
	EXPECT_EQ(Actions().GetObjectDisplayName(Object), FString(TEXT("Teal")));
}

TEST_F(FAssetTypeActionsBaseTest, AllowsAllAssetsToBeOpened)
{
	const TArray<FAssetData> Given({FAssetData(), FAssetData()});
	EXPECT_EQ(Actions().GetValidAssetsForPreviewOrEdit(Given, false).Num(), 2);
}

TEST_F(FAssetTypeActionsBaseTest, RefusesToOpenThePropertyEditor)
{
	FTestActions TestActions = Actions();
	EXPECT_DEATH(TestActions.FAssetTypeActions_Base::OpenAssetEditor(TArray<UObject*>()), "not in this stand-in: FSimpleAssetEditor");
}
