// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AssetActivation.h"
#include "AssetToolsFixture.h"
#include "Editor.h"
#include "StandIn/EngineLoop.h"

namespace
{
/** Asset tools in a running editor without user interface. */
class FAssetActivationTest : public FAssetToolsFixture
{
protected:
	FAssetActivationTest()
	{
		StandIn::FEngineLoopOptions Options;
		Options.bLoadPlugins = false;
		Options.bSlate = false;
		Options.bCommandlet = true;
		Loop.PreInit(Options);
		Loop.Init();
	}

	~FAssetActivationTest() override { Loop.Exit(); }

	static FAssetData MakeAssetData(const TCHAR* Name) { return FAssetData(Create(Name, MakeFactory())); }

	StandIn::FEngineLoop Loop;
};
}

TEST_F(FAssetActivationTest, ADoubleClickOpensTheAsset)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	StandIn::ActivateAssets(TArray<FAssetData>({MakeAssetData(TEXT("A"))}), EAssetTypeActivationMethod::DoubleClicked);
	EXPECT_EQ(Actions->NumOpened, 1);
}

TEST_F(FAssetActivationTest, ADoubleClickAsksTheActionsBeforeOpening)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	StandIn::ActivateAssets(TArray<FAssetData>({MakeAssetData(TEXT("A"))}), EAssetTypeActivationMethod::DoubleClicked);
	EXPECT_EQ(Actions->NumActivated, 1);
}

TEST_F(FAssetActivationTest, ADoubleClickThatTheActionsTakeOpensNothing)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	Actions->bTakesActivation = true;
	StandIn::ActivateAssets(TArray<FAssetData>({MakeAssetData(TEXT("A"))}), EAssetTypeActivationMethod::DoubleClicked);
	EXPECT_EQ(Actions->NumOpened, 0);
}

TEST_F(FAssetActivationTest, AssetsOfOneTypeAreOpenedTogether)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	StandIn::ActivateAssets(
		TArray<FAssetData>({MakeAssetData(TEXT("A")), MakeAssetData(TEXT("B"))}), EAssetTypeActivationMethod::DoubleClicked);
	EXPECT_EQ(Actions->LastOpened.Num(), 2);
}

TEST_F(FAssetActivationTest, APreviewOpensNothing)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	StandIn::ActivateAssets(TArray<FAssetData>({MakeAssetData(TEXT("A"))}), EAssetTypeActivationMethod::Previewed);
	EXPECT_EQ(Actions->NumOpened, 0);
}

TEST_F(FAssetActivationTest, AnAssetThatCannotBeLoadedIsSkipped)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	StandIn::ActivateAssets(TArray<FAssetData>({FAssetData()}), EAssetTypeActivationMethod::DoubleClicked);
	EXPECT_EQ(Actions->NumOpened, 0);
}

TEST_F(FAssetActivationTest, ANewAssetIsNotMadeBeforeItsNameIsConfirmed)
{
	StandIn::FPendingNewAsset Pending;
	StandIn::BeginNewAsset(GetMutableDefault<UAssetToolsTestFactory>(), TEXT("/Game/Looks"), Pending);
	EXPECT_EQ(
		StaticFindObject(UObject::StaticClass(), nullptr, TEXT("/Game/Looks/NewAssetToolsTestAsset.NewAssetToolsTestAsset")), nullptr);
	StandIn::CancelNewAsset(Pending);
}

TEST_F(FAssetActivationTest, ANewAssetIsConfiguredFirst)
{
	StandIn::FPendingNewAsset Pending;
	StandIn::BeginNewAsset(GetMutableDefault<UAssetToolsTestFactory>(), TEXT("/Game/Looks"), Pending);
	StandIn::CancelNewAsset(Pending);
	EXPECT_EQ(UAssetToolsTestFactory::NumConfigured, 1);
}

TEST_F(FAssetActivationTest, AFactoryCancelsANewAssetWhenItIsConfigured)
{
	UAssetToolsTestFactory::bConfigure = false;
	StandIn::FPendingNewAsset Pending;
	EXPECT_FALSE(StandIn::BeginNewAsset(GetMutableDefault<UAssetToolsTestFactory>(), TEXT("/Game/Looks"), Pending));
}

TEST_F(FAssetActivationTest, ANewAssetGetsTheConfirmedName)
{
	StandIn::FPendingNewAsset Pending;
	StandIn::BeginNewAsset(GetMutableDefault<UAssetToolsTestFactory>(), TEXT("/Game/Looks"), Pending);
	EXPECT_EQ(StandIn::CommitNewAsset(Pending, TEXT("Teal"))->GetPathName(), FString(TEXT("/Game/Looks/Teal.Teal")));
}

TEST_F(FAssetActivationTest, ANewAssetIsOpenedIfItsFactoryAsksForIt)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	StandIn::FPendingNewAsset Pending;
	StandIn::BeginNewAsset(GetMutableDefault<UAssetToolsTestFactory>(), TEXT("/Game/Looks"), Pending);
	Pending.Factory->bEditAfterNew = true;
	StandIn::CommitNewAsset(Pending, TEXT("Teal"));
	EXPECT_EQ(Actions->NumOpened, 1);
}

TEST_F(FAssetActivationTest, TheNewAssetMenuPutsMiscellaneousAssetsIntoASubmenu)
{
	FString Category;
	for (const StandIn::FNewAssetMenuEntry& Entry : StandIn::ListNewAssetMenu())
	{
		Category = Entry.Factory == GetMutableDefault<UAssetToolsTestFactory>() ? Entry.Category : Category;
	}
	EXPECT_EQ(Category, FString(TEXT("Miscellaneous")));
}
