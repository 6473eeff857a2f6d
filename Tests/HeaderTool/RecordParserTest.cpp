// Copyright The Tintmill authors. All rights reserved.
#include "RecordParser.h"

#include "Scratch.h"

#include <gtest/gtest.h>

namespace
{

const char* const ClassBody = "Expected a GENERATED_BODY() at the start of class";

/** A class of which only the body differs, from line 6 on. */
std::string InClass(const std::string& Body)
{
	return "UCLASS()\nclass UThing : public UObject\n{\n" + Body + "};\n";
}

}

TEST(FRecordParser, RefusesAClassWithoutBodyMacro)
{
	EXPECT_EQ(ComplainAboutThing(InClass("public:\n\tint32 X;\n")), Complaint(4, ClassBody));
}

TEST(FRecordParser, RefusesAStructWithoutBodyMacro)
{
	EXPECT_EQ(ComplainAboutThing("USTRUCT()\nstruct FThing\n{\n\tint32 X;\n};\n"),
		Complaint(4, "Expected a GENERATED_BODY() at the start of struct"));
}

TEST(FRecordParser, RefusesABodyMacroThatIsNotTheFirst)
{
	EXPECT_EQ(ComplainAboutThing(InClass("public:\n\tGENERATED_BODY()\n")), Complaint(4, ClassBody));
}

TEST(FRecordParser, RefusesTheLegacyClassBodyInAStruct)
{
	EXPECT_EQ(ComplainAboutThing("USTRUCT()\nstruct FThing\n{\n\tGENERATED_UCLASS_BODY()\n};\n"),
		Complaint(4, "Expected a GENERATED_BODY() at the start of struct"));
}

TEST(FRecordParser, RefusesAnythingButAClassBehindUclass)
{
	EXPECT_EQ(
		ComplainAboutThing("UCLASS()\nstruct UThing : public UObject\n{\n};\n"), Complaint(4, "Missing 'class' in class declaration"));
}

TEST(FRecordParser, RefusesAForwardDeclaration)
{
	EXPECT_EQ(ComplainAboutThing("UCLASS()\nclass UThing;\n"), Complaint(4, "Missing '{' in class declaration"));
}

TEST(FRecordParser, RefusesInheritanceThatIsNotPublic)
{
	EXPECT_EQ(ComplainAboutThing("UCLASS()\nclass UThing : UObject\n{\n\tGENERATED_BODY()\n};\n"),
		Complaint(4, "Missing 'public' in inheritance"));
}

TEST(FRecordParser, RefusesAnotherModulesExportMacro)
{
	EXPECT_EQ(ComplainAboutThing("UCLASS()\nclass OTHER_API UThing : public UObject\n{\n\tGENERATED_BODY()\n};\n"),
		Complaint(4, "'OTHER_API' is not the export macro of this module, expecting 'SAMPLE_API'"));
}

TEST(FRecordParser, RefusesFunctions)
{
	EXPECT_EQ(ComplainAboutThing(InClass("\tGENERATED_BODY()\n\tUFUNCTION(BlueprintCallable)\n\tvoid X();\n")),
		Complaint(7, "'UFUNCTION' is not in this header tool"));
}

TEST(FRecordParser, RefusesFunctionsInStructs)
{
	EXPECT_EQ(ComplainAboutThing("USTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n\tUFUNCTION()\n\tvoid X();\n};\n"),
		Complaint(7, "USTRUCTs cannot contain UFUNCTIONs."));
}

TEST(FRecordParser, RefusesDynamicDelegatesInAClass)
{
	EXPECT_EQ(ComplainAboutThing(InClass("\tGENERATED_BODY()\n\tDECLARE_DYNAMIC_DELEGATE(FEvent);\n")),
		Complaint(7, "'DECLARE_DYNAMIC_DELEGATE' is not in this header tool"));
}

TEST(FRecordParser, RefusesAReflectedTypeInAClass)
{
	EXPECT_EQ(ComplainAboutThing(InClass("\tGENERATED_BODY()\n\tUENUM()\n\tenum class EX : uint8 { A };\n")),
		Complaint(7, "'UENUM' must not be inside a namespace or another class"));
}

TEST(FRecordParser, RefusesAPropertyInAnUnreflectedInnerStruct)
{
	EXPECT_EQ(ComplainAboutThing(InClass("\tGENERATED_BODY()\n\tstruct FInner\n\t{\n\t\tUPROPERTY()\n\t\tint32 X;\n\t};\n")),
		Complaint(9, "'UPROPERTY' must not be inside a class or function that is not reflected"));
}

TEST(FRecordParser, RefusesAMissingSemicolonBehindTheBody)
{
	EXPECT_EQ(ComplainAboutThing("USTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n}\nint X;\n"),
		Complaint(8, "Missing ';' in struct declaration"));
}

TEST(FRecordParser, StepsOverMembersOfEveryForm)
{
	EXPECT_EQ(ComplainAboutThing(InClass("\tGENERATED_BODY()\npublic:\n"
										 "\tUThing(int32 A) : X{A}, Y(B{A}) { if (A) { } }\n"
										 "\tDECLARE_EVENT(UThing, FChanged)\n"
										 "\tFChanged& OnChanged() { return Changed; }\n"
										 "\ttypedef int32 FNumber; using FOther = TArray<int32>;\n"
										 "\tenum { A = 1, B };\n"
										 "\tvirtual void Pure() = 0; void Deleted() = delete; int32 operator[](int32) const;\n"
										 "\tint32 X = 3; TArray<int32> Z = { 1, 2 }; int32 Bits : 3;\n"
										 "\ttemplate <typename T> friend class TFriend;\n;\n")),
		"");
}

TEST(FRecordParser, FindsAPropertyBehindAMacroWithoutSemicolon)
{
	EXPECT_EQ(ComplainAboutThing(InClass("\tGENERATED_BODY()\n\tSOME_MACRO(int32)\n\tUPROPERTY()\n\tFNope X;\n")),
		Complaint(9, "Unrecognized type 'FNope' - type must be a UCLASS, USTRUCT or UENUM"));
}

TEST(FRecordParser, KeepsAccessPrivateBehindTheBodyMacro)
{
	EXPECT_NE(GenerateThing(InClass("\tGENERATED_BODY()\n\tUPROPERTY()\n\tint32 X;\n"), "Thing.gen.cpp")
				  .find("(EPropertyFlags)0x0040000000000000"),
		std::string::npos);
}

TEST(FRecordParser, LeavesAccessPublicBehindTheLegacyBodyMacro)
{
	EXPECT_NE(GenerateThing(InClass("\tGENERATED_UCLASS_BODY()\n\tUPROPERTY()\n\tint32 X;\n"), "Thing.gen.cpp")
				  .find("(EPropertyFlags)0x0010000000000000"),
		std::string::npos);
}

TEST(FRecordParser, MarksPropertiesOfAProtectedSection)
{
	EXPECT_NE(GenerateThing(InClass("\tGENERATED_BODY()\nprotected:\n\tUPROPERTY()\n\tint32 X;\n"), "Thing.gen.cpp")
				  .find("(EPropertyFlags)0x0020080000000000"),
		std::string::npos);
}
