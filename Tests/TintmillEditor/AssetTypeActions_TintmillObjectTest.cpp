// Copyright The Tintmill authors. All rights reserved.

#include "AssetTypeActions_TintmillObject.h"

#include "Support/Printers.h"
#include "TintmillEditor/ModuleFixture.h"
#include "TintmillTestLook.h"

#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetData.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsModule.h"
#include "AssetTypeCategories.h"
#include "Factories/TintmillObjectFactoryNew.h"
#include "IAssetTools.h"
#include "Modules/ModuleManager.h"
#include "TintmillObject.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/SWidget.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>

// How the content browser presents look assets. What opening them does is in AssetTypeActions_TintmillObjectOpenTest.cpp.

namespace
{
static_assert(sizeof(FAssetTypeActions_TintmillObject) == sizeof(FAssetTypeActions_Base), "the actions keep nothing of their own");

const TCHAR* const Invitation = TEXT("Double click to open up the tintmill builder.");

class FAssetTypeActionsOfLooks : public FModuleFixture
{
protected:
	virtual void SetUp() override
	{
		WriteLook("Teal");
		PreInit();
	}

	/** What is known of an asset by its place and class alone. */
	static FAssetData MakeData(const TCHAR* Name)
	{
		return FAssetData(
			FName(*(FString(TEXT("/Game/Looks/")) + Name)), FName(TEXT("/Game/Looks")), FName(Name), FName(TEXT("TintmillObject")));
	}

	FString Describe(const FAssetData& Data) const { return Actions.GetAssetDescription(Data).ToString(); }

	static IAssetTools& Tools() { return FAssetToolsModule::GetModule().Get(); }

	/** The actions that the module registered. */
	static TSharedPtr<IAssetTypeActions> GetRegistered()
	{
		return Tools().GetAssetTypeActionsForClass(UTintmillObject::StaticClass()).Pin();
	}

	FAssetTypeActions_TintmillObject Actions;
	const TArray<UObject*> Nothing;
};

typedef FAssetTypeActionsOfLooks FAssetTypeActionsOfLooksDeathTest;

TEST_F(FAssetTypeActionsOfLooks, CallTheTypeTintmill)
{
	EXPECT_EQ(Actions.GetName().ToString(), FString(TEXT("Tintmill")));
}

TEST_F(FAssetTypeActionsOfLooks, NameTheTypeUnderItsShortKey)
{
	EXPECT_EQ(FTextInspector::GetKey(Actions.GetName()).GetValue(), FString(TEXT("AssetTypeActions_Tintmill")));
}

TEST_F(FAssetTypeActionsOfLooks, NameTheTypeInTheirOwnNamespace)
{
	EXPECT_EQ(FTextInspector::GetNamespace(Actions.GetName()).GetValue(), FString(TEXT("AssetTypeActions_TintmillObject")));
}

TEST_F(FAssetTypeActionsOfLooks, AreForLooks)
{
	EXPECT_EQ(Actions.GetSupportedClass(), UTintmillObject::StaticClass());
}

TEST_F(FAssetTypeActionsOfLooks, PaintTheTypeWhite)
{
	EXPECT_EQ(Actions.GetTypeColor(), FColor(255, 255, 255, 255));
}

TEST_F(FAssetTypeActionsOfLooks, PutTheTypeIntoCategory64)
{
	EXPECT_EQ(Actions.GetCategories(), 64u);
}

TEST_F(FAssetTypeActionsOfLooks, StayInCategory64WhateverCategoriesAreRegistered)
{
	Tools().RegisterAdvancedAssetCategory(TEXT("Tintmill"), FText::FromString(TEXT("Tintmill")));
	EXPECT_EQ(GetRegistered()->GetCategories(), 64u);
}

TEST_F(FAssetTypeActionsOfLooks, CallLooksNotImported)
{
	EXPECT_FALSE(Actions.IsImportedAsset());
}

TEST_F(FAssetTypeActionsOfLooks, AreRegisteredForDerivedLooksToo)
{
	EXPECT_EQ(Tools().GetAssetTypeActionsForClass(UTintmillTestLook::StaticClass()).Pin(), GetRegistered());
}

TEST_F(FAssetTypeActionsOfLooks, OfferNoActionsOfTheirOwn)
{
	EXPECT_FALSE(Actions.HasActions(Nothing));
}

TEST_F(FAssetTypeActionsOfLooks, LeaveActivationToTheEditor)
{
	EXPECT_FALSE(Actions.AssetsActivatedOverride(Nothing, EAssetTypeActivationMethod::DoubleClicked));
}

TEST_F(FAssetTypeActionsOfLooks, LeaveActivationByEnterToTheEditor)
{
	EXPECT_FALSE(Actions.AssetsActivatedOverride(Nothing, EAssetTypeActivationMethod::Opened));
}

TEST_F(FAssetTypeActionsOfLooks, TakeEveryAssetForOpening)
{
	EXPECT_EQ(Actions.GetValidAssetsForPreviewOrEdit(TArray<FAssetData>({MakeData(TEXT("Teal"))}), false).Num(), 1);
}

TEST_F(FAssetTypeActionsOfLooks, LetLooksBeFiltered)
{
	EXPECT_TRUE(Actions.CanFilter());
}

TEST_F(FAssetTypeActionsOfLooks, FilterForLooksAndWhatDerivesFromThem)
{
	FARFilter Filter;
	Actions.BuildBackendFilter(Filter);
	EXPECT_TRUE(Filter.bRecursiveClasses && Filter.ClassNames == TArray<FName>({FName(TEXT("TintmillObject"))}));
}

TEST_F(FAssetTypeActionsOfLooks, LetLooksBeLocalized)
{
	EXPECT_TRUE(Actions.CanLocalize());
}

TEST_F(FAssetTypeActionsOfLooks, DoNotMergeLooks)
{
	EXPECT_FALSE(Actions.CanMerge());
}

TEST_F(FAssetTypeActionsOfLooks, DoNotForceTheWorldsEditor)
{
	EXPECT_FALSE(Actions.ShouldForceWorldCentric());
}

TEST_F(FAssetTypeActionsOfLooks, HaveNoThumbnailInformation)
{
	EXPECT_EQ(Actions.GetThumbnailInfo(nullptr), nullptr);
}

TEST_F(FAssetTypeActionsOfLooks, LayNothingOverTheThumbnail)
{
	EXPECT_FALSE(Actions.GetThumbnailOverlay(MakeData(TEXT("Teal"))).IsValid());
}

TEST_F(FAssetTypeActionsOfLooks, NameNoSourceFiles)
{
	TArray<FString> Paths;
	Actions.GetResolvedSourceFilePaths(Nothing, Paths);
	EXPECT_EQ(Paths.Num(), 0);
}

TEST_F(FAssetTypeActionsOfLooks, LabelNoSourceFiles)
{
	TArray<FString> Labels;
	Actions.GetSourceFileLabels(Nothing, Labels);
	EXPECT_EQ(Labels.Num(), 0);
}

TEST_F(FAssetTypeActionsOfLooks, NestInNoSubmenu)
{
	EXPECT_EQ(Actions.GetSubMenus().Num(), 0);
}

TEST_F(FAssetTypeActionsOfLooksDeathTest, CompareLooksTheEnginesWay)
{
	EXPECT_DEATH(Actions.PerformAssetDiff(nullptr, nullptr, FRevisionInfo(), FRevisionInfo()), "FAssetTypeActions_Base::PerformAssetDiff");
}

TEST_F(FAssetTypeActionsOfLooks, DescribeALookByAnInvitation)
{
	EXPECT_EQ(Describe(FAssetData(NewObject<UTintmillObject>())), FString(Invitation));
}

TEST_F(FAssetTypeActionsOfLooks, DescribeADerivedLookByTheInvitation)
{
	EXPECT_EQ(Describe(FAssetData(NewObject<UTintmillTestLook>())), FString(Invitation));
}

TEST_F(FAssetTypeActionsOfLooks, FindThatALookOnDiskIsNotLoadedYet)
{
	EXPECT_FALSE(MakeData(TEXT("Teal")).IsAssetLoaded());
}

TEST_F(FAssetTypeActionsOfLooks, DescribeALookThatIsNotLoadedYet)
{
	EXPECT_EQ(Describe(MakeData(TEXT("Teal"))), FString(Invitation));
}

TEST_F(FAssetTypeActionsOfLooks, LoadALookToDescribeIt)
{
	Describe(MakeData(TEXT("Teal")));
	EXPECT_TRUE(MakeData(TEXT("Teal")).IsAssetLoaded());
}

TEST_F(FAssetTypeActionsOfLooks, DescribeAnObjectOfAnotherClassByNothing)
{
	EXPECT_EQ(Describe(FAssetData(NewObject<UTintmillObjectFactoryNew>())), FString());
}

TEST_F(FAssetTypeActionsOfLooks, GoByTheObjectAndNotByTheClassThatIsSaidOfIt)
{
	NewObject<UTintmillObjectFactoryNew>(CreatePackage(TEXT("/Temp/Said")), TEXT("Said"));
	const FAssetData Data(FName(TEXT("/Temp/Said")), FName(TEXT("/Temp")), FName(TEXT("Said")), FName(TEXT("TintmillObject")));
	EXPECT_EQ(Describe(Data), FString());
}

TEST_F(FAssetTypeActionsOfLooks, DescribeAMissingAssetByNothing)
{
	EXPECT_EQ(Describe(MakeData(TEXT("Missing"))), FString());
}

TEST_F(FAssetTypeActionsOfLooks, DescribeInvalidDataByNothing)
{
	EXPECT_EQ(Describe(FAssetData()), FString());
}

TEST_F(FAssetTypeActionsOfLooks, KeepTheInvitationItselfFromTranslation)
{
	EXPECT_FALSE(FTextInspector::GetKey(Actions.GetAssetDescription(MakeData(TEXT("Teal")))).IsSet());
}

TEST_F(FAssetTypeActionsOfLooks, OfferThePatternOfTheDescriptionForTranslationUnderItsLongKey)
{
	// Translators' tools read the source, so this is where the key counts; the formatted text no longer tells it.
	std::ifstream File(REPOSITORY_DIR "/Source/TintmillEditor/Private/AssetTypeActions_TintmillObject.cpp");
	const std::string Source((std::istreambuf_iterator<char>(File)), std::istreambuf_iterator<char>());
	const std::regex Pattern(
		R"re(#define LOCTEXT_NAMESPACE "AssetTypeActions_TintmillObject"[^#]*LOCTEXT\("AssetTypeActions_TintmillObject_Description", "\{0\}"\))re");
	EXPECT_TRUE(std::regex_search(Source, Pattern));
}
}
