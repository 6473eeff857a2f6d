// Copyright The Tintmill authors. All rights reserved.

#include "Factories/TintmillObjectFactoryNew.h"

#include "TintmillEditor/LookBuilderFixture.h"
#include "TintmillTestLook.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsModule.h"
#include "IAssetTools.h"
#include "StandIn/AssetActivation.h"
#include "StandIn/AtomicFile.h"
#include "StandIn/LookFiles.h"
#include "StandIn/Notices.h"
#include "StandIn/Registrations.h"
#include "TintmillObject.h"
#include "UObject/Class.h"
#include "UObject/MetaData.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "UnrealClient.h"

#include <gtest/gtest.h>

// New look assets: the factory, its reflection data value by value, and the road from the new-asset menu to the look builder.

namespace
{
static_assert(sizeof(UTintmillObjectFactoryNew) == sizeof(UFactory), "the factory keeps nothing of its own");

class FTintmillObjectFactoryNew : public FLookBuilderFixture
{
protected:
	static UClass* FactoryClass() { return UTintmillObjectFactoryNew::StaticClass(); }

	static const UTintmillObjectFactoryNew& Defaults() { return *GetDefault<UTintmillObjectFactoryNew>(); }

	/** Makes an object with a factory of its own. */
	static UObject* Create(EObjectFlags Flags, UClass* Class = UTintmillObject::StaticClass(), UObject* Context = nullptr)
	{
		UTintmillObjectFactoryNew* const Factory = NewObject<UTintmillObjectFactoryNew>();
		return Factory->FactoryCreateNew(Class, GetTransientPackage(), TEXT("Made"), Flags, Context, GWarn);
	}

	/** The lines of the new-asset menu that are this factory's, as "submenu / label". */
	static std::string ListMenuLines()
	{
		FEventLog Lines;
		for (const StandIn::FNewAssetMenuEntry& Entry : StandIn::ListNewAssetMenu())
		{
			if (Entry.Factory->GetClass() == FactoryClass())
			{
				Lines.Add(ToStd(Entry.Category) + " / " + ToStd(Entry.Label));
			}
		}
		return Lines.Get();
	}

	/** Makes a look as a person does, under the name that is proposed. */
	static UObject* MakeNewLook()
	{
		StandIn::FPendingNewAsset Pending;
		EXPECT_TRUE(StandIn::BeginNewAsset(GetMutableDefault<UTintmillObjectFactoryNew>(), TEXT("/Game/Looks"), Pending));
		return StandIn::CommitNewAsset(Pending, FString(Pending.AssetName));
	}

	/** The files in the folder of the looks, separated by blanks. */
	std::string ListFiles() const
	{
		FEventLog Names;
		for (const std::string& Name : Project.List("Content/Looks"))
		{
			Names.Add(Name);
		}
		return Names.Get();
	}

	static bool IsInMemory(const TCHAR* ObjectPath) { return StaticFindObject(UObject::StaticClass(), nullptr, ObjectPath) != nullptr; }
};

/** Lets every write of a file fail at its last step but one while it lives. */
class FFailingDisk
{
public:
	FFailingDisk()
	{
		StandIn::SetAtomicFileHook([](StandIn::EAtomicFileStep Step, const TCHAR*) { return Step != StandIn::EAtomicFileStep::Replace; });
	}
	~FFailingDisk() { StandIn::SetAtomicFileHook(nullptr); }
};

TEST_F(FTintmillObjectFactoryNew, IsDeclaredInTheModulesScriptPackage)
{
	PreInit();
	EXPECT_EQ(FactoryClass()->GetPathName(), FString(TEXT("/Script/TintmillEditor.TintmillObjectFactoryNew")));
}

TEST_F(FTintmillObjectFactoryNew, DerivesFromTheEnginesFactory)
{
	PreInit();
	EXPECT_EQ(FactoryClass()->GetSuperClass(), UFactory::StaticClass());
}

TEST_F(FTintmillObjectFactoryNew, HasTheClassFlagsNativeAndMatchedSerializersAlone)
{
	PreInit();
	EXPECT_EQ(static_cast<uint32>(FactoryClass()->ClassFlags) & 0xFFu, 0xA0u);
}

TEST_F(FTintmillObjectFactoryNew, IsNotIntrinsicAndHasNoExportMacro)
{
	PreInit();
	EXPECT_FALSE(FactoryClass()->HasAnyClassFlags(CLASS_RequiredAPI | CLASS_MinimalAPI));
}

TEST_F(FTintmillObjectFactoryNew, HasNoConfigurationOfItsOwn)
{
	PreInit();
	EXPECT_EQ(FactoryClass()->ClassConfigName, UFactory::StaticClass()->ClassConfigName);
}

TEST_F(FTintmillObjectFactoryNew, AddsNoProperties)
{
	PreInit();
	EXPECT_FALSE(static_cast<bool>(TFieldIterator<FProperty>(FactoryClass(), EFieldIteratorFlags::ExcludeSuper)));
}

TEST_F(FTintmillObjectFactoryNew, HasItsMetadataInTheOrderOfTheirKeys)
{
	PreInit();
	std::string Text;
	for (const TPair<FName, FString>& Pair : *UMetaData::GetMapForObject(FactoryClass()))
	{
		Text += ToStd(Pair.Key) + "=" + ToStd(Pair.Value) + "\n";
	}
	EXPECT_EQ(Text,
		"Comment=/** Implements a factory for UTintmillObject objects. */\n"
		"HideCategories=Object\n"
		"IncludePath=Factories/TintmillObjectFactoryNew.h\n"
		"ModuleRelativePath=Private/Factories/TintmillObjectFactoryNew.h\n"
		"ToolTip=Implements a factory for UTintmillObject objects.\n");
}

TEST_F(FTintmillObjectFactoryNew, MakesLooks)
{
	PreInit();
	EXPECT_EQ(Defaults().GetSupportedClass(), UTintmillObject::StaticClass());
}

TEST_F(FTintmillObjectFactoryNew, MakesNewAssets)
{
	PreInit();
	EXPECT_TRUE(Defaults().bCreateNew);
}

TEST_F(FTintmillObjectFactoryNew, HasNewAssetsOpened)
{
	PreInit();
	EXPECT_TRUE(Defaults().bEditAfterNew);
}

TEST_F(FTintmillObjectFactoryNew, ImportsNothing)
{
	PreInit();
	EXPECT_FALSE(Defaults().bEditorImport || Defaults().bText || Defaults().Formats.Num() > 0);
}

TEST_F(FTintmillObjectFactoryNew, IsListedInTheMenuWhateverItsFlagsSay)
{
	PreInit();
	UTintmillObjectFactoryNew* const Factory = NewObject<UTintmillObjectFactoryNew>();
	Factory->bCreateNew = false;
	EXPECT_TRUE(Factory->ShouldShowInNewMenu());
}

TEST_F(FTintmillObjectFactoryNew, IsInCategory64)
{
	PreInit();
	EXPECT_EQ(Defaults().GetMenuCategories(), 64u);
}

TEST_F(FTintmillObjectFactoryNew, IsInCategory64WhateverActionsAreRegistered)
{
	PreInit();
	const TSharedPtr<IAssetTypeActions> Registered =
		FAssetToolsModule::GetModule().Get().GetAssetTypeActionsForClass(UTintmillObject::StaticClass()).Pin();
	FAssetToolsModule::GetModule().Get().UnregisterAssetTypeActions(Registered.ToSharedRef());
	EXPECT_EQ(Defaults().GetMenuCategories(), 64u);
}

TEST_F(FTintmillObjectFactoryNew, IsCalledWhatTheActionsCallTheType)
{
	PreInit();
	EXPECT_EQ(Defaults().GetDisplayName().ToString(), FString(TEXT("Tintmill")));
}

TEST_F(FTintmillObjectFactoryNew, ProposesANameAfterTheClass)
{
	PreInit();
	EXPECT_EQ(Defaults().GetDefaultNewAssetName(), FString(TEXT("NewTintmillObject")));
}

TEST_F(FTintmillObjectFactoryNew, MakesAnObjectOfTheGivenClass)
{
	PreInit();
	EXPECT_EQ(Create(RF_Public)->GetClass(), UTintmillObject::StaticClass());
}

TEST_F(FTintmillObjectFactoryNew, MakesAnObjectOfAGivenDerivedClass)
{
	PreInit();
	EXPECT_EQ(Create(RF_Public, UTintmillTestLook::StaticClass())->GetClass(), UTintmillTestLook::StaticClass());
}

TEST_F(FTintmillObjectFactoryNew, MakesTheObjectInTheGivenParentUnderTheGivenName)
{
	PreInit();
	EXPECT_EQ(Create(RF_Public)->GetPathName(), GetTransientPackage()->GetPathName() + TEXT(".Made"));
}

TEST_F(FTintmillObjectFactoryNew, GivesTheObjectTheFlagsOfAnAssetAndNoOthers)
{
	PreInit();
	EXPECT_EQ(Create(RF_Public | RF_Standalone | RF_Transactional)->GetFlags(), RF_Public | RF_Standalone | RF_Transactional);
}

TEST_F(FTintmillObjectFactoryNew, AddsNoFlagToASingleOne)
{
	PreInit();
	EXPECT_EQ(Create(RF_Transient)->GetFlags(), RF_Transient);
}

TEST_F(FTintmillObjectFactoryNew, AddsNoFlagToNone)
{
	PreInit();
	EXPECT_EQ(Create(RF_NoFlags)->GetFlags(), RF_NoFlags);
}

TEST_F(FTintmillObjectFactoryNew, TakesNothingFromTheContext)
{
	PreInit();
	UTintmillObject* const Context = NewObject<UTintmillTestLook>();
	UObject* const Made = Create(RF_Public, UTintmillObject::StaticClass(), Context);
	EXPECT_TRUE(Made != Context && Made->GetClass() == UTintmillObject::StaticClass() && Made->GetOuter() == GetTransientPackage());
}

TEST_F(FTintmillObjectFactoryNew, IsReachedByTheFormThatTheEditorCalls)
{
	PreInit();
	UFactory* const Factory = NewObject<UTintmillObjectFactoryNew>();
	UObject* const Made = Factory->FactoryCreateNew(
		UTintmillObject::StaticClass(), GetTransientPackage(), TEXT("Made"), RF_Public, nullptr, GWarn, TEXT("Somewhere"));
	EXPECT_TRUE(Made && Made->GetFlags() == RF_Public);
}

TEST_F(FTintmillObjectFactoryNew, IsFoundByItsClassAlone)
{
	PreInit();
	EXPECT_TRUE(FAssetToolsModule::GetModule().Get().GetNewAssetFactories().Contains(GetMutableDefault<UTintmillObjectFactoryNew>()));
}

TEST_F(FTintmillObjectFactoryNew, IsRegisteredNowhere)
{
	InitEngine();
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		EXPECT_NE(Registration.Owner, &Defaults()) << ToStd(Registration.Name);
	}
}

TEST_F(FTintmillObjectFactoryNew, StandsInTheMenuOnceUnderMiscellaneous)
{
	PreInit();
	EXPECT_EQ(ListMenuLines(), "Miscellaneous / Tintmill");
}

TEST_F(FTintmillObjectFactoryNew, ANewLookOpensTheBuilderOnce)
{
	OpenEditor();
	UObject* const Look = MakeNewLook();
	ASSERT_EQ(Builder.Requests.size(), 1u);
	EXPECT_EQ(Builder.Requests[0].Asset, Look);
}

TEST_F(FTintmillObjectFactoryNew, ANewLookIsOpenedOnTheActivePanesPictureWithoutItsLook)
{
	OpenEditor();
	SwitchOn(TEXT("Teal"));
	MakeNewLook();
	EXPECT_EQ(Builder.Requests.at(0).Pixels, GetPlainPicture());
}

TEST_F(FTintmillObjectFactoryNew, ANewLookHasTheProposedName)
{
	OpenEditor();
	EXPECT_EQ(MakeNewLook()->GetPathName(), FString(TEXT("/Game/Looks/NewTintmillObject.NewTintmillObject")));
}

TEST_F(FTintmillObjectFactoryNew, ASecondNewLookHasANumber)
{
	OpenEditor();
	MakeNewLook();
	EXPECT_EQ(MakeNewLook()->GetName(), FString(TEXT("NewTintmillObject1")));
}

TEST_F(FTintmillObjectFactoryNew, ANewLookHasTheFlagsThatTheEditorPasses)
{
	OpenEditor();
	EXPECT_EQ(MakeNewLook()->GetFlags(), RF_Public | RF_Standalone | RF_Transactional);
}

TEST_F(FTintmillObjectFactoryNew, ANewLookIsListedAmongTheAssets)
{
	OpenEditor();
	MakeNewLook();
	EXPECT_TRUE(IAssetRegistry::GetChecked().GetAssetByObjectPath(TEXT("/Game/Looks/NewTintmillObject.NewTintmillObject")).IsValid());
}

TEST_F(FTintmillObjectFactoryNew, ANewLookIsAFile)
{
	OpenEditor();
	MakeNewLook();
	EXPECT_EQ(ListFiles(), "Amber.cube NewTintmillObject.cube Rose.cube Teal.cube");
}

TEST_F(FTintmillObjectFactoryNew, ANewLookIsReadFromItsFile)
{
	OpenEditor();
	const UTintmillObject* const Look = static_cast<UTintmillObject*>(MakeNewLook());
	EXPECT_EQ(StandIn::GetLookState(Look), StandIn::ELookState::Ready);
}

TEST_F(FTintmillObjectFactoryNew, ANewLookLeavesThePictureAsItIs)
{
	OpenEditor();
	MakeNewLook();
	SwitchOn(TEXT("NewTintmillObject"));
	GetActiveViewport()->Draw(true);
	EXPECT_EQ(GetActiveViewport()->GetPresentedSurface().Pixels[5], GetScenePixel(5));
}

TEST_F(FTintmillObjectFactoryNew, ANewLookIsThereWhenTheEditorStartsAgain)
{
	OpenEditor();
	MakeNewLook();
	ExitEditor();
	PreInit();
	EXPECT_NE(LoadLook(TEXT("NewTintmillObject")), nullptr);
}

TEST_F(FTintmillObjectFactoryNew, ALookWhoseNameIsNotConfirmedIsNoFile)
{
	OpenEditor();
	StandIn::FPendingNewAsset Pending;
	StandIn::BeginNewAsset(GetMutableDefault<UTintmillObjectFactoryNew>(), TEXT("/Game/Looks"), Pending);
	StandIn::CancelNewAsset(Pending);
	EXPECT_EQ(ListFiles(), "Amber.cube Rose.cube Teal.cube");
}

TEST_F(FTintmillObjectFactoryNew, ALookThatCannotBeWrittenIsNotMade)
{
	OpenEditor();
	const FFailingDisk FailingDisk;
	EXPECT_EQ(MakeNewLook(), nullptr);
}

TEST_F(FTintmillObjectFactoryNew, ALookThatCannotBeWrittenLeavesNoFile)
{
	OpenEditor();
	const FFailingDisk FailingDisk;
	MakeNewLook();
	EXPECT_EQ(ListFiles(), "Amber.cube Rose.cube Teal.cube");
}

TEST_F(FTintmillObjectFactoryNew, ALookThatCannotBeWrittenLeavesNoObject)
{
	OpenEditor();
	const FFailingDisk FailingDisk;
	MakeNewLook();
	EXPECT_FALSE(IsInMemory(TEXT("/Game/Looks/NewTintmillObject")));
}

TEST_F(FTintmillObjectFactoryNew, ALookThatCannotBeWrittenDoesNotReachTheBuilder)
{
	OpenEditor();
	const FFailingDisk FailingDisk;
	MakeNewLook();
	EXPECT_TRUE(Builder.Requests.empty());
}

TEST_F(FTintmillObjectFactoryNew, ALookThatCannotBeWrittenMakesOneNotice)
{
	OpenEditor();
	const FFailingDisk FailingDisk;
	MakeNewLook();
	ASSERT_EQ(StandIn::GetNotices().Num(), 1);
	EXPECT_TRUE(StandIn::GetNotices()[0].Text.Contains(TEXT("NewTintmillObject.cube cannot be written (injected failure)")));
}

TEST_F(FTintmillObjectFactoryNew, ALookThatCouldNotBeWrittenCanBeMadeAfterwards)
{
	OpenEditor();
	{
		const FFailingDisk FailingDisk;
		MakeNewLook();
	}
	EXPECT_NE(MakeNewLook(), nullptr);
}

TEST_F(FTintmillObjectFactoryNew, TheNoticeGoesWhenTheLookIsMade)
{
	OpenEditor();
	{
		const FFailingDisk FailingDisk;
		MakeNewLook();
	}
	MakeNewLook();
	EXPECT_EQ(StandIn::GetNotices().Num(), 0);
}
}
