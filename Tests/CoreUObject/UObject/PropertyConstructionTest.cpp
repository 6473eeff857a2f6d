// Copyright The Tintmill authors. All rights reserved.

#include "CoreTestObjects.h"
#include "CoreTestSettings.h"
#include "StandIn/ReflectionData.h"
#include "Support/Printers.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "gtest/gtest.h"

namespace
{
FProperty* Find(const UStruct* Struct, const TCHAR* Name)
{
	return Struct->FindPropertyByName(FName(Name));
}
}

TEST(PropertyConstruction, KeepsDeclarationOrder)
{
	std::string Names;
	for (TFieldIterator<FProperty> It(FCoreTestInner::StaticStruct()); It; ++It)
	{
		Names += ToStd(It->GetName()) + " ";
	}
	EXPECT_EQ(Names, "bOn Amount Thing ");
}

TEST(PropertyConstruction, GivesTheFlagsOfGeneratedCode)
{
	const FProperty* Pairs = Find(UCoreTestSettings::StaticClass(), TEXT("Pairs"));
	EXPECT_EQ(StandIn::GetDeclaredPropertyFlags(Pairs), CPF_Config | CPF_Protected | CPF_NativeAccessSpecifierProtected);
}

TEST(PropertyConstruction, GivesTheElementOfAConfigArrayTheConfigFlagOnly)
{
	const FArrayProperty* Pairs = CastField<FArrayProperty>(Find(UCoreTestSettings::StaticClass(), TEXT("Pairs")));
	EXPECT_EQ(StandIn::GetDeclaredPropertyFlags(Pairs->Inner), CPF_Config);
}

TEST(PropertyConstruction, WorksOutWhatGeneratedCodeLeavesOut)
{
	const FProperty* Number = Find(UCoreTestObject::StaticClass(), TEXT("Number"));
	EXPECT_TRUE(Number->HasAllPropertyFlags(CPF_ComputedFlags));
}

TEST(PropertyConstruction, GivesPropertiesTheOffsetsOfTheirMembers)
{
	UCoreTestObject* Object = NewObject<UCoreTestObject>();
	EXPECT_EQ(Find(UCoreTestObject::StaticClass(), TEXT("Number"))->ContainerPtrToValuePtr<int32>(Object), &Object->Number);
}

TEST(PropertyConstruction, FindsTheBitsOfBitFields)
{
	FCoreTestValues Value;
	CastField<FBoolProperty>(Find(FCoreTestValues::StaticStruct(), TEXT("bBitB")))->SetPropertyValue_InContainer(&Value, true);
	EXPECT_TRUE(Value.bBitB == 1 && Value.bBitA == 0);
}

TEST(PropertyConstruction, GivesMetaDataInTheOrderOfItsDeclaration)
{
	const TArray<TPair<FString, FString>> MetaData = StandIn::GetMetaDataInOrder(UCoreTestSettings::StaticClass());
	std::string Keys;
	for (const TPair<FString, FString>& Entry : MetaData)
	{
		Keys += ToStd(Entry.Key) + " ";
	}
	EXPECT_EQ(Keys, "Comment IncludePath ModuleRelativePath ToolTip ");
}

TEST(PropertyConstruction, KeepsTheCommentOfAPropertyRaw)
{
	EXPECT_EQ(Find(FCoreTestPair::StaticStruct(), TEXT("Identifier"))->GetMetaData(TEXT("Comment")), TEXT("/*  Name of the pane. */"));
}

TEST(PropertyConstruction, AnswersUnknownMetaDataKeysWithNothing)
{
	EXPECT_TRUE(UCoreTestSettings::StaticClass()->FindMetaData(TEXT("NoSuchKey")) == nullptr
		&& UCoreTestSettings::StaticClass()->GetMetaData(TEXT("NoSuchKey")).IsEmpty());
}

TEST(PropertyConstruction, NamesTypesAsInCpp)
{
	FString Extended;
	const FProperty* Pairs = Find(UCoreTestSettings::StaticClass(), TEXT("Pairs"));
	const FString Type = Pairs->GetCPPType(&Extended);
	EXPECT_EQ(ToStd(Type + Extended), "TArray<FCoreTestPair>");
}

TEST(PropertyConstruction, CastsFieldsByTheirKind)
{
	const FField* Class = Find(FCoreTestValues::StaticStruct(), TEXT("Class"));
	EXPECT_TRUE(CastField<FObjectProperty>(Class) != nullptr && CastField<FClassProperty>(Class) != nullptr
		&& CastField<FWeakObjectProperty>(Class) == nullptr);
}

TEST(ScriptStruct, KeepsTheFlagsOfGeneratedCode)
{
	EXPECT_EQ(StandIn::GetDeclaredStructFlags(FCoreTestPair::StaticStruct()), STRUCT_Native);
}

TEST(ScriptStruct, KnowsItsSuperStruct)
{
	EXPECT_EQ(FCoreTestDerivedValues::StaticStruct()->GetSuperStruct(), FCoreTestInner::StaticStruct());
}

TEST(ScriptStruct, ComparesPropertyByProperty)
{
	FCoreTestInner A;
	FCoreTestInner B;
	B.Amount = 2.0f;
	EXPECT_TRUE(
		FCoreTestInner::StaticStruct()->CompareScriptStruct(&A, &A, 0) && !FCoreTestInner::StaticStruct()->CompareScriptStruct(&A, &B, 0));
}

TEST(ScriptStruct, HasTheSizeAndAlignmentOfCpp)
{
	EXPECT_TRUE(FCoreTestValues::StaticStruct()->GetStructureSize() == int32(sizeof(FCoreTestValues))
		&& FCoreTestValues::StaticStruct()->GetMinAlignment() == int32(alignof(FCoreTestValues)));
}

TEST(Enum, KnowsNamesAndValues)
{
	const UEnum* Enum = StaticEnum<ECoreTestKind>();
	EXPECT_TRUE(Enum->GetValueByNameString(TEXT("Two")) == 5 && Enum->GetNameByValue(5) == FName("ECoreTestKind::Two")
		&& Enum->GetNameStringByValue(6) == TEXT("Three"));
}

TEST(Enum, AddsAMaximum)
{
	EXPECT_EQ(StaticEnum<ECoreTestKind>()->GetMaxEnumValue(), 7);
}

TEST(Package, OfAModuleIsCompiledIn)
{
	EXPECT_TRUE(UCoreTestSettings::StaticClass()->GetOutermost()->HasAnyPackageFlags(PKG_CompiledIn)
		&& UCoreTestSettings::StaticClass()->GetOutermost()->GetName() == TEXT("/Script/CoreUObjectTestTypes"));
}
