// Copyright The Tintmill authors. All rights reserved.
#include "TypeTable.h"

#include "Scratch.h"

#include <gtest/gtest.h>

namespace
{

const char* const ClassRest = " : public UObject { GENERATED_BODY() };\n";
const char* const StructRest = " { GENERATED_BODY() };\n";

}

TEST(FTypeTable, KnowsTheClassesOfTheObjectSystem)
{
	EXPECT_NE(HeaderTool::FTypeTable().Find("UScriptStruct"), nullptr);
}

TEST(FTypeTable, RefusesAClassWithoutPrefix)
{
	EXPECT_EQ(ComplainAboutThing(std::string("UCLASS()\nclass Thing") + ClassRest),
		Complaint(4, "Class 'Thing' has an invalid Unreal prefix, expecting 'UThing'"));
}

TEST(FTypeTable, RefusesAClassWithAStructsPrefix)
{
	EXPECT_EQ(ComplainAboutThing(std::string("UCLASS()\nclass FThing") + ClassRest),
		Complaint(4, "Class 'FThing' has an invalid Unreal prefix, expecting 'UThing'"));
}

TEST(FTypeTable, RefusesAStructWithoutPrefix)
{
	EXPECT_EQ(ComplainAboutThing(std::string("USTRUCT()\nstruct Thing") + StructRest),
		Complaint(4, "Struct 'Thing' has an invalid Unreal prefix, expecting 'FThing'"));
}

TEST(FTypeTable, DoesNotTakeAWordThatStartsLikeAPrefixForOne)
{
	EXPECT_EQ(ComplainAboutThing(std::string("USTRUCT()\nstruct Found") + StructRest),
		Complaint(4, "Struct 'Found' has an invalid Unreal prefix, expecting 'FFound'"));
}

TEST(FTypeTable, RefusesAStructThatSharesItsNameWithAClass)
{
	FScratch Scratch;
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader(
		"Public/Thing.h", ThingOpening + std::string("UCLASS()\nclass UThing") + ClassRest + "USTRUCT()\nstruct FThing" + StructRest);
	Scratch.Run();
	EXPECT_EQ(Scratch.GetComplaints(),
		Complaint(6, "Struct 'FThing' shares engine name 'Thing' with class 'UThing' in Sample/Public/Thing.h(4)"));
}

TEST(FTypeTable, RefusesNamesThatDifferInCaseOnly)
{
	EXPECT_EQ(ComplainAboutThing(std::string("UCLASS()\nclass UThing") + ClassRest + "UCLASS()\nclass UTHING" + ClassRest),
		Complaint(6, "Class 'UTHING' shares engine name 'THING' with class 'UThing' in Sample/Public/Thing.h(4)"));
}

TEST(FTypeTable, RefusesAClassThatExistsInAnotherModule)
{
	FScratch Scratch;
	Scratch.AddModule("Base", "EngineRuntime");
	Scratch.AddHeader("Public/First.h", std::string("#include \"First.generated.h\"\nUCLASS()\nclass UThing") + ClassRest);
	Scratch.AddModule("Sample", "Runtime");
	Scratch.AddHeader("Public/Thing.h", ThingOpening + std::string("UCLASS()\nclass UThing") + ClassRest);
	Scratch.Run();
	EXPECT_EQ(Scratch.GetComplaints(), Complaint(4, "Duplicate class name: UThing also exists in file /Script/Base"));
}

TEST(FTypeTable, RefusesAClassOfTheObjectSystem)
{
	EXPECT_EQ(ComplainAboutThing(std::string("UCLASS()\nclass UPackage") + ClassRest),
		Complaint(4, "Duplicate class name: UPackage also exists in file /Script/CoreUObject"));
}

TEST(FTypeTable, RefusesAnActorsPrefixOnAPlainObject)
{
	EXPECT_EQ(ComplainAboutThing(std::string("UCLASS()\nclass AThing") + ClassRest),
		Complaint(4, "Class 'AThing' has an invalid Unreal prefix, expecting 'UThing'"));
}

TEST(FTypeTable, RefusesAnActorWithoutItsPrefix)
{
	EXPECT_EQ(ComplainAboutThing(
				  std::string("UCLASS()\nclass AActor") + ClassRest + "UCLASS()\nclass UThing : public AActor { GENERATED_BODY() };\n"),
		Complaint(6, "Class 'UThing' has an invalid Unreal prefix, expecting 'AThing'"));
}
