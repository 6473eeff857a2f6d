// Copyright The Tintmill authors. All rights reserved.

#include "PropertyCustomizationHelpers.h"
#include "AssetPickerTestAsset.h"
#include "AssetPickerTestChild.h"
#include "AssetPickerTestFactory.h"
#include "AssetPickerTestOther.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsModule.h"
#include "AssetTypeActions_Base.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/AssetPickerRows.h"
#include "Support/MenuUser.h"
#include <chrono>
#include <filesystem>
#include <fstream>

namespace
{
namespace fs = std::filesystem;

/** Type actions that give the assets a name. */
class FPickerTestActions : public FAssetTypeActions_Base
{
public:
	virtual FText GetName() const override { return FText::FromString(TEXT("Look")); }
	virtual UClass* GetSupportedClass() const override { return UAssetPickerTestAsset::StaticClass(); }
	virtual FColor GetTypeColor() const override { return FColor(10, 200, 30); }
	virtual uint32 GetCategories() override { return EAssetTypeCategories::Misc; }
	virtual void OpenAssetEditor(const TArray<UObject*>&, TSharedPtr<IToolkitHost>) override {}
};

/** A content folder with assets, and a person in front of a picker. */
class FAssetPickerTest : public ::testing::Test
{
protected:
	FAssetPickerTest()
	{
		const ::testing::TestInfo* Info = ::testing::UnitTest::GetInstance()->current_test_info();
		Folder = fs::temp_directory_path() / (std::string("AssetPicker-") + Info->name());
		fs::remove_all(Folder);
		fs::create_directories(Folder);
		Register("look", "AssetPickerTestAsset");
		Register("child", "AssetPickerTestChild");
		Register("other", "AssetPickerTestOther");
		StandIn::RegisterMountPoint(TEXT("/Game/"), UTF8_TO_TCHAR((Folder.generic_string() + "/").c_str()));
		Classes.Add(UAssetPickerTestAsset::StaticClass());
	}

	~FAssetPickerTest() override
	{
		FSlateApplication::Get().DismissAllMenus();
		FModuleManager::Get().UnloadModule("AssetTools");
		FModuleManager::Get().UnloadModule("AssetRegistry");
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		for (const TCHAR* Extension : {TEXT("look"), TEXT("child"), TEXT("other")})
		{
			StandIn::UnregisterAssetFileType(Extension);
		}
		fs::remove_all(Folder);
	}

	/** Makes a kind of asset known. */
	void Register(const char* Extension, const char* ClassName)
	{
		StandIn::FAssetFileType Type;
		Type.Extension = UTF8_TO_TCHAR(Extension);
		Type.ClassName = FName(ClassName);
		StandIn::RegisterAssetFileType(Type);
	}

	/** Puts an asset on disk. */
	void Write(const char* FileName) { std::ofstream(Folder / FileName) << "x"; }

	/** The data of an asset on disk. */
	static FAssetData Find(const TCHAR* Path)
	{
		IAssetRegistry& Registry = FModuleManager::LoadModuleChecked<FAssetRegistryModule>("AssetRegistry").Get();
		Registry.ScanPathsSynchronous(TArray<FString>({TEXT("/Game")}), true);
		return Registry.GetAssetByObjectPath(FName(Path));
	}

	/** Pops a picker up. */
	void Open(const FAssetData& Initial = FAssetData(), const bool bAllowClear = false, const bool bAllowCopyPaste = false,
		const TArray<UFactory*>& Factories = TArray<UFactory*>())
	{
		User.Open(PropertyCustomizationHelpers::MakeAssetPickerWithMenu(Initial, bAllowClear, bAllowCopyPaste, Classes, Factories, Filter,
			FOnAssetSelected::CreateLambda([this](const FAssetData& Asset) {
				Events += TEXT("Set:") + (Asset.IsValid() ? Asset.AssetName.ToString() : FString(TEXT("-"))) + TEXT(";");
			}),
			FSimpleDelegate::CreateLambda([this]() { Events += TEXT("Close;"); })));
		User.Wait(0.1f);
		User.Wait(0.1f);
	}

	/** What the picker shows. */
	StandIn::FAssetPickerState GetState() const { return StandIn::GetAssetPickerState(User.GetMenu(0).ToSharedRef()); }

	/** Names of the listed assets, separated by "|". */
	FString GetNames() const
	{
		FString Names;
		for (const StandIn::FAssetPickerRow& Row : GetState().Rows)
		{
			Names += (Names.IsEmpty() ? TEXT("") : TEXT("|")) + Row.Label;
		}
		return Names;
	}

	/** Name of the selected asset, or "". */
	FString GetSelected() const
	{
		for (const StandIn::FAssetPickerRow& Row : GetState().Rows)
		{
			if (Row.bSelected)
			{
				return Row.Label;
			}
		}
		return FString();
	}

	/** Clicks a listed asset. */
	void ClickAsset(const TCHAR* Label)
	{
		StandIn::ScrollAssetPickerTo(User.GetMenu(0).ToSharedRef(), Label);
		for (const StandIn::FAssetPickerRow& Row : GetState().Rows)
		{
			if (Row.Label == Label)
			{
				User.ClickAt(Row.Centre);
				return;
			}
		}
		ADD_FAILURE() << "no such asset";
	}

	fs::path Folder;
	FObjectSystemScope ObjectSystem;
	FMenuUser User;
	TArray<const UClass*> Classes;
	FOnShouldFilterAsset Filter;
	FString Events;
};
}

TEST_F(FAssetPickerTest, ListsTheAssetsOfTheClassByName)
{
	Write("Zinc.look");
	Write("amber.look");
	Write("Teal.look");
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("amber|Teal|Zinc")));
}

TEST_F(FAssetPickerTest, ListsAssetsOfDerivedClasses)
{
	Write("Amber.look");
	Write("Teal.child");
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("Amber|Teal")));
}

TEST_F(FAssetPickerTest, ListsNoAssetsOfOtherClasses)
{
	Write("Amber.look");
	Write("Stone.other");
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("Amber")));
}

TEST_F(FAssetPickerTest, ListsAssetsInFolders)
{
	fs::create_directories(Folder / "Looks");
	Write("Looks/Amber.look");
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("Amber")));
}

TEST_F(FAssetPickerTest, ListsWhatIsOnDiskAtEachOpening)
{
	Write("Amber.look");
	Open();
	FSlateApplication::Get().DismissAllMenus();
	Write("Teal.look");
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("Amber|Teal")));
}

TEST_F(FAssetPickerTest, HidesAnAssetForWhichTheFilterIsTrue)
{
	Write("Amber.look");
	Write("Teal.look");
	Filter = FOnShouldFilterAsset::CreateLambda([](const FAssetData& Asset) { return Asset.AssetName == FName("Amber"); });
	Open();
	EXPECT_TRUE(IsText(GetNames(), TEXT("Teal")));
}

TEST_F(FAssetPickerTest, HidesAssetsOfDisallowedClasses)
{
	Write("Amber.look");
	Write("Teal.child");
	const TArray<const UClass*> Disallowed({UAssetPickerTestChild::StaticClass()});
	User.Open(PropertyCustomizationHelpers::MakeAssetPickerWithMenu(FAssetData(), false, false, Classes, Disallowed, TArray<UFactory*>(),
		FOnShouldFilterAsset(), FOnAssetSelected(), FSimpleDelegate()));
	EXPECT_TRUE(IsText(GetNames(), TEXT("Amber")));
}

TEST_F(FAssetPickerTest, NamesTheTypeByItsActions)
{
	FAssetToolsModule::GetModule().Get().RegisterAssetTypeActions(MakeShared<FPickerTestActions>());
	Write("Amber.look");
	Open();
	EXPECT_TRUE(IsText(GetState().Rows[0].TypeLabel, TEXT("Look")));
}

TEST_F(FAssetPickerTest, NamesTheTypeByItsClassWithoutActions)
{
	Write("Amber.look");
	Open();
	EXPECT_TRUE(IsText(GetState().Rows[0].TypeLabel, TEXT("AssetPickerTestAsset")));
}

TEST_F(FAssetPickerTest, CountsTheAssets)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	EXPECT_TRUE(IsText(GetState().CountText, TEXT("2 items")));
}

TEST_F(FAssetPickerTest, CountsOneAssetInTheSingular)
{
	Write("Amber.look");
	Open();
	EXPECT_TRUE(IsText(GetState().CountText, TEXT("1 item")));
}

TEST_F(FAssetPickerTest, SelectsTheInitialObject)
{
	Write("Amber.look");
	Write("Teal.look");
	Open(Find(TEXT("/Game/Teal.Teal")));
	EXPECT_TRUE(IsText(GetSelected(), TEXT("Teal")));
}

TEST_F(FAssetPickerTest, SelectsNothingWithoutInitialObject)
{
	Write("Amber.look");
	Open();
	EXPECT_TRUE(IsText(GetSelected(), TEXT("")));
}

TEST_F(FAssetPickerTest, ScrollsToTheInitialObject)
{
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Write(("Look" + std::to_string(100 + Index) + ".look").c_str());
	}
	Open(Find(TEXT("/Game/Look149.Look149")));
	EXPECT_TRUE(GetState().Rows[49].bVisible);
}

TEST_F(FAssetPickerTest, FocusesTheSearchBoxOnOpening)
{
	Write("Amber.look");
	Open();
	const TSharedPtr<SWidget> SearchBox = GetState().SearchBox;
	EXPECT_TRUE(SearchBox->HasKeyboardFocus() || SearchBox->HasFocusedDescendants());
}

TEST_F(FAssetPickerTest, ListsOnlyWhatTheSearchTextFits)
{
	Write("Amber.look");
	Write("TealLight.look");
	Open();
	User.Type(TEXT("light"));
	EXPECT_TRUE(IsText(GetNames(), TEXT("TealLight")));
}

TEST_F(FAssetPickerTest, ListsOnlyWhatAllWordsOfTheSearchTextFit)
{
	Write("TealDark.look");
	Write("TealLight.look");
	Open();
	User.Type(TEXT("light teal"));
	EXPECT_TRUE(IsText(GetNames(), TEXT("TealLight")));
}

TEST_F(FAssetPickerTest, ReportsAClickedAssetAndThenCloses)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	ClickAsset(TEXT("Teal"));
	EXPECT_TRUE(IsText(Events, TEXT("Set:Teal;Close;")));
}

TEST_F(FAssetPickerTest, LeavesItsMenuOpenAfterAClickOnAnAsset)
{
	Write("Amber.look");
	Open();
	ClickAsset(TEXT("Amber"));
	EXPECT_EQ(User.CountMenus(), 1);
}

TEST_F(FAssetPickerTest, ReportsAnAssetThatHasToBeScrolledTo)
{
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Write(("Look" + std::to_string(100 + Index) + ".look").c_str());
	}
	Open();
	ClickAsset(TEXT("Look149"));
	EXPECT_TRUE(IsText(Events, TEXT("Set:Look149;Close;")));
}

TEST_F(FAssetPickerTest, ScrollsWithTheWheel)
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

TEST_F(FAssetPickerTest, SelectsTheFirstAssetOnTheDownKey)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	User.Press(EKeys::Down);
	EXPECT_TRUE(IsText(GetSelected(), TEXT("Amber")));
}

TEST_F(FAssetPickerTest, SelectsAnAssetOnTheDownKeyEvenWithRowsAboveTheList)
{
	Write("Amber.look");
	Open(FAssetData(), true);
	User.Press(EKeys::Down);
	EXPECT_TRUE(IsText(GetSelected(), TEXT("Amber")));
}

TEST_F(FAssetPickerTest, ReportsInvalidDataOnTheNoneButton)
{
	Write("Amber.look");
	Open(FAssetData(), true);
	const StandIn::FAssetPickerState State = GetState();
	User.ClickAt(FVector2D(State.ListTopLeft.X + State.ListSize.X * 0.5f, State.ListTopLeft.Y - 8.0f));
	EXPECT_TRUE(IsText(Events, TEXT("Set:-;Close;")));
}

TEST_F(FAssetPickerTest, ReportsNothingOnArrowKeys)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	User.Press(EKeys::Down);
	User.Press(EKeys::Down);
	User.Press(EKeys::Up);
	EXPECT_TRUE(IsText(Events, TEXT("")));
}

TEST_F(FAssetPickerTest, ReportsTheSelectedAssetOnEnter)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	User.Press(EKeys::Down);
	User.Press(EKeys::Down);
	User.Press(EKeys::Enter);
	EXPECT_TRUE(IsText(Events, TEXT("Set:Teal;Close;")));
}

TEST_F(FAssetPickerTest, ReportsTheFirstAssetOnEnterWithNothingSelected)
{
	Write("Amber.look");
	Write("Teal.look");
	Open();
	User.Press(EKeys::Enter);
	EXPECT_TRUE(IsText(Events, TEXT("Set:Amber;Close;")));
}

TEST_F(FAssetPickerTest, ReportsNothingOnEnterInAnEmptyList)
{
	Open();
	User.Press(EKeys::Enter);
	EXPECT_TRUE(IsText(Events, TEXT("")));
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
	EXPECT_TRUE(PropertyCustomizationHelpers::GetNewAssetFactoriesForClasses(Classes).Contains(
		GetMutableDefault<UAssetPickerTestFactory>()));
}

TEST_F(FAssetPickerTest, FindsNoFactoriesOfADisallowedClass)
{
	EXPECT_EQ(PropertyCustomizationHelpers::GetNewAssetFactoriesForClasses(Classes, Classes).Num(), 0);
}

TEST_F(FAssetPickerTest, OpensAndSearchesTenThousandAssetsWithoutDelay)
{
	for (int32 Index = 0; Index < 10000; ++Index)
	{
		Write(("Look" + std::to_string(10000 + Index) + ".look").c_str());
	}
	const std::chrono::steady_clock::time_point Start = std::chrono::steady_clock::now();
	Open();
	User.Type(TEXT("19999"));
	const double Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
	EXPECT_TRUE(GetNames() == TEXT("Look19999") && Seconds < 5.0) << Seconds;
}
