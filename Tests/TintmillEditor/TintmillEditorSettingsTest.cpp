// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditorSettings.h"

#include "Support/Printers.h"
#include "Support/Text.h"
#include "TintmillEditor/ModuleFixture.h"

#include "CoreGlobals.h"
#include "Misc/ConfigCacheIni.h"
#include "StandIn/ReflectionData.h"
#include "TintmillObject.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

// The settings class and the pair: their reflection data value by value, their two operations, and what lands in the ini.

namespace
{
class FTintmillEditorSettings : public FModuleFixture
{
protected:
	virtual void SetUp() override { WriteLook("Teal"); }

	static UTintmillLevelViewportSettings* Settings() { return GetMutableDefault<UTintmillLevelViewportSettings>(); }

	static void Save() { Settings()->SaveConfig(CPF_Config, nullptr, GConfig, true); }

	static FTintmillDisplayConfiguration MakeConfiguration(bool bEnable, float Intensity)
	{
		FTintmillDisplayConfiguration Configuration;
		Configuration.bEnableDisplay = bEnable;
		Configuration.Intensity = Intensity;
		return Configuration;
	}

	static UScriptStruct* PairStruct() { return FTMLPerViewportDisplaySettingPair::StaticStruct(); }

	static const FProperty* FindProperty(const UStruct* Struct, const TCHAR* Name) { return Struct->FindPropertyByName(FName(Name)); }

	/** Metadata as "key=value" in the order of declaration. */
	template <typename FieldType>
	static std::vector<std::string> MetaDataOf(const FieldType* Field)
	{
		std::vector<std::string> Result;
		for (const TPair<FString, FString>& Entry : StandIn::GetMetaDataInOrder(Field))
		{
			Result.push_back(ToStd(Entry.Key) + "=" + ToStd(Entry.Value));
		}
		return Result;
	}

	static const FArrayProperty* ViewportsSettings()
	{
		return CastField<FArrayProperty>(FindProperty(UTintmillLevelViewportSettings::StaticClass(), TEXT("ViewportsSettings")));
	}
};

TEST_F(FTintmillEditorSettings, TheClassIsDeclaredInTheModulesScriptPackage)
{
	PreInit();
	EXPECT_EQ(UTintmillLevelViewportSettings::StaticClass()->GetPathName(),
		FString(TEXT("/Script/TintmillEditor.TintmillLevelViewportSettings")));
}

TEST_F(FTintmillEditorSettings, ThePackageIsCompiledInAndEditorOnly)
{
	PreInit();
	EXPECT_TRUE(UTintmillLevelViewportSettings::StaticClass()->GetOutermost()->HasAllPackagesFlags(PKG_CompiledIn | PKG_EditorOnly));
}

TEST_F(FTintmillEditorSettings, TheClassIsAConfigClassOfTheUsersSettings)
{
	PreInit();
	EXPECT_EQ(UTintmillLevelViewportSettings::StaticClass()->ClassConfigName, FName(TEXT("EditorPerProjectUserSettings")));
}

TEST_F(FTintmillEditorSettings, TheClassHasTheFlagsConfigMatchedSerializersAndNative)
{
	PreInit();
	const uint32 Flags = static_cast<uint32>(UTintmillLevelViewportSettings::StaticClass()->ClassFlags);
	EXPECT_EQ(Flags & 0x000000A4u, 0x000000A4u);
}

TEST_F(FTintmillEditorSettings, TheClassIsNeitherPerObjectNorDefaultNorGlobalConfig)
{
	PreInit();
	EXPECT_FALSE(UTintmillLevelViewportSettings::StaticClass()->HasAnyClassFlags(
		CLASS_PerObjectConfig | CLASS_DefaultConfig | CLASS_GlobalUserConfig | CLASS_ProjectUserConfig));
}

TEST_F(FTintmillEditorSettings, TheClassDerivesFromUObject)
{
	PreInit();
	EXPECT_EQ(UTintmillLevelViewportSettings::StaticClass()->GetSuperClass(), UObject::StaticClass());
}

TEST_F(FTintmillEditorSettings, TheArrayIsAProtectedConfigProperty)
{
	PreInit();
	EXPECT_EQ(static_cast<uint64>(StandIn::GetDeclaredPropertyFlags(ViewportsSettings())), 0x0020080000004000ull);
}

TEST_F(FTintmillEditorSettings, TheArrayIsNeitherEditedNorSeenByBlueprints)
{
	PreInit();
	EXPECT_FALSE(ViewportsSettings()->HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible));
}

TEST_F(FTintmillEditorSettings, TheArraysElementsAreConfigAndNothingElse)
{
	PreInit();
	EXPECT_EQ(static_cast<uint64>(StandIn::GetDeclaredPropertyFlags(ViewportsSettings()->Inner)), 0x0000000000004000ull);
}

TEST_F(FTintmillEditorSettings, TheArraysElementsArePairs)
{
	PreInit();
	EXPECT_EQ(CastField<FStructProperty>(ViewportsSettings()->Inner)->Struct, PairStruct());
}

TEST_F(FTintmillEditorSettings, ThePairIsNativeAndHasNoSuperStruct)
{
	PreInit();
	EXPECT_EQ(PairStruct()->GetSuperStruct(), nullptr);
	EXPECT_EQ(static_cast<uint32>(StandIn::GetDeclaredStructFlags(PairStruct())), 0x00000001u);
}

TEST_F(FTintmillEditorSettings, ThePairsReflectedNameHasNoPrefix)
{
	PreInit();
	EXPECT_EQ(PairStruct()->GetName(), FString(TEXT("TMLPerViewportDisplaySettingPair")));
}

TEST_F(FTintmillEditorSettings, ThePairHoldsTheIdentifierBeforeTheConfiguration)
{
	PreInit();
	TArray<FString> Names;
	for (TFieldIterator<FProperty> It(PairStruct()); It; ++It)
	{
		Names.Add(It->GetName());
	}
	EXPECT_EQ(Names, (TArray<FString>{TEXT("ViewportIdentifier"), TEXT("DisplayConfiguration")}));
}

TEST_F(FTintmillEditorSettings, ThePairsFieldsArePublicConfigProperties)
{
	PreInit();
	for (TFieldIterator<FProperty> It(PairStruct()); It; ++It)
	{
		EXPECT_EQ(static_cast<uint64>(StandIn::GetDeclaredPropertyFlags(*It)), 0x0010000000004000ull) << TCHAR_TO_UTF8(*It->GetName());
	}
}

TEST_F(FTintmillEditorSettings, ThePairsConfigurationIsTheRuntimeModulesStruct)
{
	PreInit();
	const FStructProperty* const Property = CastField<FStructProperty>(FindProperty(PairStruct(), TEXT("DisplayConfiguration")));
	EXPECT_EQ(Property->Struct, FTintmillDisplayConfiguration::StaticStruct());
}

TEST_F(FTintmillEditorSettings, TheIdentifiersMetadataKeepsTheTwoBlanksOfItsComment)
{
	PreInit();
	EXPECT_EQ(MetaDataOf(FindProperty(PairStruct(), TEXT("ViewportIdentifier"))),
		(std::vector<std::string>{"Comment=/*  Name associated with this viewport's layout to identify it. */",
			"ModuleRelativePath=Private/TintmillEditorSettings.h", "ToolTip=Name associated with this viewport's layout to identify it."}));
}

TEST_F(FTintmillEditorSettings, TheConfigurationsMetadataIsCommentPathAndToolTip)
{
	PreInit();
	EXPECT_EQ(MetaDataOf(FindProperty(PairStruct(), TEXT("DisplayConfiguration"))),
		(std::vector<std::string>{"Comment=/* Display configuration for a given viewport */",
			"ModuleRelativePath=Private/TintmillEditorSettings.h", "ToolTip=Display configuration for a given viewport"}));
}

TEST_F(FTintmillEditorSettings, TheClassMetadataKeepsTheLinesOfItsComment)
{
	PreInit();
	EXPECT_EQ(MetaDataOf(UTintmillLevelViewportSettings::StaticClass()),
		(std::vector<std::string>{
			"Comment=/**\n* List of Tintmill objects associated to level viewport instances linked with an identifier\n*/",
			"IncludePath=TintmillEditorSettings.h", "ModuleRelativePath=Private/TintmillEditorSettings.h",
			"ToolTip=List of Tintmill objects associated to level viewport instances linked with an identifier"}));
}

TEST_F(FTintmillEditorSettings, TheArraysMetadataIsCommentPathAndToolTip)
{
	PreInit();
	EXPECT_EQ(MetaDataOf(ViewportsSettings()),
		(std::vector<std::string>{"Comment=/** Settings associated to each viewport that was configured */",
			"ModuleRelativePath=Private/TintmillEditorSettings.h", "ToolTip=Settings associated to each viewport that was configured"}));
}

TEST_F(FTintmillEditorSettings, TheArraysElementsHaveNoMetadata)
{
	PreInit();
	EXPECT_EQ(MetaDataOf(ViewportsSettings()->Inner), std::vector<std::string>());
}

TEST_F(FTintmillEditorSettings, ThePairsOnlyMetadataIsItsPath)
{
	PreInit();
	EXPECT_EQ(MetaDataOf(PairStruct()), std::vector<std::string>{"ModuleRelativePath=Private/TintmillEditorSettings.h"});
}

TEST_F(FTintmillEditorSettings, ThePairHasNativeStructOperations)
{
	PreInit();
	EXPECT_NE(PairStruct()->GetCppStructOps(), nullptr);
}

TEST_F(FTintmillEditorSettings, TheClassLivesWithinAnyObject)
{
	PreInit();
	EXPECT_EQ(UTintmillLevelViewportSettings::StaticClass()->ClassWithin, UObject::StaticClass());
}

TEST_F(FTintmillEditorSettings, TheClassIsDeclaredWithTheConfigFlagAlone)
{
	EXPECT_EQ(static_cast<uint32>(UTintmillLevelViewportSettings::StaticClassFlags), static_cast<uint32>(CLASS_Config | CLASS_Intrinsic));
}

TEST_F(FTintmillEditorSettings, TheArrayIsTheClassesOnlyProperty)
{
	PreInit();
	TArray<FString> Names;
	for (TFieldIterator<FProperty> It(UTintmillLevelViewportSettings::StaticClass()); It; ++It)
	{
		Names.Add(It->GetName());
	}
	EXPECT_EQ(Names, TArray<FString>{TEXT("ViewportsSettings")});
}

TEST_F(FTintmillEditorSettings, NoObjectOfTheClassIsEverMadeBesideTheDefaultOne)
{
	WriteSettings({MakePair("FourPanes2x2.Viewport 1.Viewport0", true, "0.500000", "Teal")});
	StartEditor(TEXT("FourPanes2x2"));
	TArray<FString> Names;
	for (TObjectIterator<UTintmillLevelViewportSettings> It(RF_NoFlags); It; ++It)
	{
		Names.Add(It->GetName());
	}
	EXPECT_EQ(Names, TArray<FString>{TEXT("Default__TintmillLevelViewportSettings")});
}

TEST_F(FTintmillEditorSettings, AnEmptySectionGivesNoConfigurations)
{
	WriteSettings({});
	PreInit();
	EXPECT_EQ(Settings()->FindDisplayConfiguration(TEXT("A")), nullptr);
}

TEST_F(FTintmillEditorSettings, IdentifiersThatDifferByNumberAreNotTheSame)
{
	WriteSettings({MakePair("A_1", true, "1.000000", "")});
	PreInit();
	EXPECT_EQ(Settings()->FindDisplayConfiguration(TEXT("A_2")), nullptr);
	EXPECT_EQ(Settings()->FindDisplayConfiguration(TEXT("A")), nullptr);
}

TEST_F(FTintmillEditorSettings, APairWithoutAConfigurationHasTheDefaults)
{
	WriteSettings({"(ViewportIdentifier=\"A\")"});
	PreInit();
	ASSERT_NE(Settings()->FindDisplayConfiguration(TEXT("A")), nullptr);
	EXPECT_FALSE(Settings()->FindDisplayConfiguration(TEXT("A"))->bEnableDisplay);
	EXPECT_FLOAT_EQ(Settings()->FindDisplayConfiguration(TEXT("A"))->Intensity, 1.0f);
	EXPECT_EQ(Settings()->FindDisplayConfiguration(TEXT("A"))->LookAsset, nullptr);
}

TEST_F(FTintmillEditorSettings, AnEmptyFileGivesNoConfigurations)
{
	PreInit();
	EXPECT_EQ(Settings()->FindDisplayConfiguration(TEXT("OnePane.Viewport 1.Viewport0")), nullptr);
}

TEST_F(FTintmillEditorSettings, TheDefaultObjectKnowsWhatTheFileHeldBeforeAnybodyAsked)
{
	WriteSettings({MakePair("A", true, "0.500000", "Teal")});
	PreInit();
	EXPECT_FLOAT_EQ(Settings()->FindDisplayConfiguration(TEXT("A"))->Intensity, 0.5f);
}

TEST_F(FTintmillEditorSettings, ASavedLookIsLoadedWithTheSettings)
{
	WriteSettings({MakePair("A", true, "1.000000", "Teal")});
	PreInit();
	EXPECT_EQ(LookName(Settings()->FindDisplayConfiguration(TEXT("A"))), "Teal");
}

TEST_F(FTintmillEditorSettings, IdentifiersThatDifferByCaseAreTheSame)
{
	WriteSettings({MakePair("OnePane.Viewport 1.Viewport0", true, "1.000000", "")});
	PreInit();
	EXPECT_NE(Settings()->FindDisplayConfiguration(TEXT("onepane.viewport 1.viewport0")), nullptr);
}

TEST_F(FTintmillEditorSettings, TheFirstSaveCreatesTheSection)
{
	PreInit();
	Settings()->SetDisplayConfiguration(TEXT("A"), MakeConfiguration(true, 1.0f));
	Save();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair("A", true, "1.000000", "")});
}

TEST_F(FTintmillEditorSettings, ANewIdentifierIsAppended)
{
	WriteSettings({MakePair("B", true, "1.000000", ""), MakePair("A", true, "1.000000", "")});
	PreInit();
	Settings()->SetDisplayConfiguration(TEXT("0"), MakeConfiguration(false, 0.25f));
	Save();
	EXPECT_EQ(ReadSettings(),
		(std::vector<std::string>{
			MakePair("B", true, "1.000000", ""), MakePair("A", true, "1.000000", ""), MakePair("0", false, "0.250000", "")}));
}

TEST_F(FTintmillEditorSettings, AKnownIdentifierKeepsItsPlace)
{
	WriteSettings({MakePair("A", true, "1.000000", ""), MakePair("B", true, "1.000000", "")});
	PreInit();
	Settings()->SetDisplayConfiguration(TEXT("A"), MakeConfiguration(false, 0.5f));
	Save();
	EXPECT_EQ(ReadSettings(), (std::vector<std::string>{MakePair("A", false, "0.500000", ""), MakePair("B", true, "1.000000", "")}));
}

TEST_F(FTintmillEditorSettings, OfTwoPairsWithOneIdentifierTheFirstIsFound)
{
	WriteSettings({MakePair("A", true, "0.250000", ""), MakePair("A", true, "0.750000", "")});
	PreInit();
	EXPECT_FLOAT_EQ(Settings()->FindDisplayConfiguration(TEXT("A"))->Intensity, 0.25f);
}

TEST_F(FTintmillEditorSettings, OfTwoPairsWithOneIdentifierTheSecondIsWrittenBackUnchanged)
{
	WriteSettings({MakePair("A", true, "0.250000", ""), MakePair("A", true, "0.750000", "")});
	PreInit();
	Settings()->SetDisplayConfiguration(TEXT("A"), MakeConfiguration(false, 1.0f));
	Save();
	EXPECT_EQ(ReadSettings(), (std::vector<std::string>{MakePair("A", false, "1.000000", ""), MakePair("A", true, "0.750000", "")}));
}

TEST_F(FTintmillEditorSettings, ALookIsWrittenAsClassAndQuotedPath)
{
	WriteSettings({MakePair("A", true, "1.000000", "Teal")});
	PreInit();
	Save();
	EXPECT_EQ(ReadSettings(), std::vector<std::string>{MakePair("A", true, "1.000000", "Teal")});
}

TEST_F(FTintmillEditorSettings, ASavedConfigurationIsACopy)
{
	PreInit();
	FTintmillDisplayConfiguration Configuration = MakeConfiguration(true, 0.5f);
	Settings()->SetDisplayConfiguration(TEXT("A"), Configuration);
	Configuration.Intensity = 1.0f;
	EXPECT_FLOAT_EQ(Settings()->FindDisplayConfiguration(TEXT("A"))->Intensity, 0.5f);
}
}
