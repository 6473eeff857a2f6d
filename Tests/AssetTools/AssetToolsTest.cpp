// Copyright The Tintmill authors. All rights reserved.

#include "AssetToolsFixture.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "StandIn/Registrations.h"

using FAssetToolsTest = FAssetToolsFixture;

TEST_F(FAssetToolsTest, GiveTheRegisteredActionsOfAClass)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	EXPECT_EQ(Tools().GetAssetTypeActionsForClass(UAssetToolsTestAsset::StaticClass()).Pin().Get(), &Actions.Get());
}

TEST_F(FAssetToolsTest, GiveTheActionsOfAnAncestor)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	EXPECT_EQ(Tools().GetAssetTypeActionsForClass(UAssetToolsTestChild::StaticClass()).Pin().Get(), &Actions.Get());
}

TEST_F(FAssetToolsTest, PreferTheActionsOfTheNearestAncestor)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestChild::StaticClass());
	Register(UAssetToolsTestAsset::StaticClass());
	EXPECT_EQ(Tools().GetAssetTypeActionsForClass(UAssetToolsTestChild::StaticClass()).Pin().Get(), &Actions.Get());
}

TEST_F(FAssetToolsTest, PreferTheActionsRegisteredLast)
{
	Register(UAssetToolsTestAsset::StaticClass());
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	EXPECT_EQ(Tools().GetAssetTypeActionsForClass(UAssetToolsTestAsset::StaticClass()).Pin().Get(), &Actions.Get());
}

TEST_F(FAssetToolsTest, GiveNoActionsOfAnUnknownClass)
{
	Register(UAssetToolsTestChild::StaticClass());
	EXPECT_FALSE(Tools().GetAssetTypeActionsForClass(UAssetToolsTestAsset::StaticClass()).IsValid());
}

TEST_F(FAssetToolsTest, MarkRegisteredActionsAsSupported)
{
	EXPECT_TRUE(Register(UAssetToolsTestAsset::StaticClass())->IsSupported());
}

TEST_F(FAssetToolsTest, HoldRegisteredActions)
{
	const TWeakPtr<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	EXPECT_TRUE(Actions.IsValid());
}

TEST_F(FAssetToolsTest, LetUnregisteredActionsGo)
{
	TSharedPtr<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	const TWeakPtr<FTestActions> Weak = Actions;
	Tools().UnregisterAssetTypeActions(Actions.ToSharedRef());
	Actions.Reset();
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(FAssetToolsTest, UnregisterTheSameReferenceOnly)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	Tools().UnregisterAssetTypeActions(MakeShared<FTestActions>(UAssetToolsTestAsset::StaticClass()));
	EXPECT_EQ(Tools().GetAssetTypeActionsForClass(UAssetToolsTestAsset::StaticClass()).Pin().Get(), &Actions.Get());
}

TEST_F(FAssetToolsTest, ListActionsRegisteredTwiceTwice)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	Tools().RegisterAssetTypeActions(Actions);
	TArray<TWeakPtr<IAssetTypeActions>> List;
	Tools().GetAssetTypeActionsList(List);
	EXPECT_EQ(List.Num(), 2);
}

TEST_F(FAssetToolsTest, ListTheirActionsAsRegistrations)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	int32 Found = 0;
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		Found += Registration.Registry == TEXT("AssetTypeActions") && Registration.Owner == &Actions.Get() ? 1 : 0;
	}
	EXPECT_EQ(Found, 1);
}

TEST_F(FAssetToolsTest, AreGoneOnceTheirModuleIsUnloaded)
{
	Tools();
	FModuleManager::Get().UnloadModule("AssetTools");
	EXPECT_EQ(FModuleManager::GetModulePtr<FAssetToolsModule>("AssetTools"), nullptr);
}

TEST_F(FAssetToolsTest, ForgetEverythingWhenTheirModuleIsUnloaded)
{
	Register(UAssetToolsTestAsset::StaticClass());
	FModuleManager::Get().UnloadModule("AssetTools");
	EXPECT_FALSE(Tools().GetAssetTypeActionsForClass(UAssetToolsTestAsset::StaticClass()).IsValid());
}

TEST_F(FAssetToolsTest, GiveANewCategoryTheFirstFreeBit)
{
	EXPECT_EQ(Tools().RegisterAdvancedAssetCategory("A", FText()), EAssetTypeCategories::FirstUser);
}

TEST_F(FAssetToolsTest, GiveAKnownCategoryItsBit)
{
	const EAssetTypeCategories::Type Bit = Tools().RegisterAdvancedAssetCategory("A", FText());
	EXPECT_EQ(Tools().RegisterAdvancedAssetCategory("A", FText()), Bit);
}

TEST_F(FAssetToolsTest, PutACategoryIntoMiscOnceAllBitsAreTaken)
{
	for (int32 Index = 0; Index < 22; ++Index)
	{
		Tools().RegisterAdvancedAssetCategory(FName(*(FString(TEXT("Category_")) + FString::FromInt(Index) + TEXT("x"))), FText());
	}
	EXPECT_EQ(Tools().RegisterAdvancedAssetCategory("One too many", FText()), EAssetTypeCategories::Misc);
}

TEST_F(FAssetToolsTest, MakeAnAssetInItsPackage)
{
	EXPECT_EQ(Create(TEXT("Teal"), MakeFactory())->GetPathName(), FString(TEXT("/Game/Looks/Teal.Teal")));
}

TEST_F(FAssetToolsTest, MakeAnAssetPublicStandaloneAndTransactional)
{
	const EObjectFlags Expected = RF_Public | RF_Standalone | RF_Transactional;
	EXPECT_TRUE(Create(TEXT("Teal"), MakeFactory())->HasAllFlags(Expected));
}

TEST_F(FAssetToolsTest, TellTheFactoryWhoCalls)
{
	UAssetToolsTestFactory* Factory = MakeFactory();
	Create(TEXT("Teal"), Factory);
	EXPECT_EQ(Factory->LastCallingContext, FName("Test"));
}

TEST_F(FAssetToolsTest, DoNotConfigureTheFactory)
{
	Create(TEXT("Teal"), MakeFactory());
	EXPECT_EQ(UAssetToolsTestFactory::NumConfigured, 0);
}

TEST_F(FAssetToolsTest, DoNotOpenANewAsset)
{
	const TSharedRef<FTestActions> Actions = Register(UAssetToolsTestAsset::StaticClass());
	UAssetToolsTestFactory* Factory = MakeFactory();
	Factory->bEditAfterNew = true;
	Create(TEXT("Teal"), Factory);
	EXPECT_EQ(Actions->NumOpened, 0);
}

TEST_F(FAssetToolsTest, MarkThePackageOfANewAssetAsDirty)
{
	EXPECT_TRUE(Create(TEXT("Teal"), MakeFactory())->GetOutermost()->IsDirty());
}

TEST_F(FAssetToolsTest, TellTheRegistryOfANewAsset)
{
	Create(TEXT("Teal"), MakeFactory());
	EXPECT_TRUE(FAssetRegistryModule::GetRegistry().GetAssetByObjectPath("/Game/Looks/Teal.Teal").IsValid());
}

TEST_F(FAssetToolsTest, GiveNullWhenTheFactoryRefuses)
{
	UAssetToolsTestFactory* Factory = MakeFactory();
	Factory->bRefuse = true;
	EXPECT_EQ(Create(TEXT("Teal"), Factory), nullptr);
}

TEST_F(FAssetToolsTest, GiveNullForANameThatIsTaken)
{
	Create(TEXT("Teal"), MakeFactory());
	EXPECT_EQ(Create(TEXT("Teal"), MakeFactory()), nullptr);
}

TEST_F(FAssetToolsTest, ProposeThePlainNameFirst)
{
	FString PackageName;
	FString AssetName;
	Tools().CreateUniqueAssetName(TEXT("/Game/Looks/NewLook"), FString(), PackageName, AssetName);
	EXPECT_EQ(AssetName, FString(TEXT("NewLook")));
}

TEST_F(FAssetToolsTest, ProposeANumberedNameWhenThePlainOneIsTaken)
{
	Create(TEXT("NewLook"), MakeFactory());
	Create(TEXT("NewLook1"), MakeFactory());
	FString PackageName;
	FString AssetName;
	Tools().CreateUniqueAssetName(TEXT("/Game/Looks/NewLook"), FString(), PackageName, AssetName);
	EXPECT_EQ(PackageName, FString(TEXT("/Game/Looks/NewLook2")));
}

TEST_F(FAssetToolsTest, ListTheFactoriesOfTheNewAssetMenu)
{
	EXPECT_TRUE(Tools().GetNewAssetFactories().Contains(GetMutableDefault<UAssetToolsTestFactory>()));
}

TEST_F(FAssetToolsTest, ListNoAbstractFactories)
{
	EXPECT_FALSE(Tools().GetNewAssetFactories().Contains(GetMutableDefault<UFactory>()));
}
