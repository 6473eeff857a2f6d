// Copyright The Tintmill authors. All rights reserved.
#include "Scratch.h"

#include <gtest/gtest.h>

namespace
{

std::string MakeStruct(const std::string& Words, const std::string& Declaration, const std::string& Section)
{
	return "USTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n" + Section + "\n\tUPROPERTY(" + Words + ")\n\t" + Declaration + "\n};\n";
}

/** Complains about a property that is declared in line 9, its macro in line 8. */
std::string Complain(const std::string& Words, const std::string& Declaration = "int32 X;", const std::string& Section = "public:")
{
	return ComplainAboutThing(MakeStruct(Words, Declaration, Section));
}

/** The flags of the first property in the generated source. */
std::string GetFlags(const std::string& Words, const std::string& Declaration = "int32 X;", const std::string& Section = "public:")
{
	const std::string Source = GenerateThing(MakeStruct(Words, Declaration, Section), "Thing.gen.cpp");
	const std::size_t At = Source.find("\", nullptr, (EPropertyFlags)");
	return At == std::string::npos ? Source : Source.substr(At + 28, 18);
}

const char* const Category =
	"An explicit Category specifier is required for any property exposed to the editor or Blueprints in an Engine module.";

}

TEST(PropertySpecifiers, GiveTheFlagsOfTheAccessSection)
{
	EXPECT_EQ(GetFlags("") + GetFlags("", "int32 X;", "protected:") + GetFlags("", "int32 X;", "private:"),
		"0x00100000000000000x00200800000000000x0040000000000000");
}

TEST(PropertySpecifiers, GiveTheConfigFlag)
{
	EXPECT_EQ(GetFlags("config"), "0x0010000000004000");
}

TEST(PropertySpecifiers, GiveAGlobalConfigPropertyBothFlags)
{
	EXPECT_EQ(GetFlags("GlobalConfig"), "0x0010000000044000");
}

TEST(PropertySpecifiers, GiveTheEditFlags)
{
	EXPECT_EQ(GetFlags("VisibleDefaultsOnly, BlueprintReadOnly, Category=X"), "0x0010000000030015");
}

TEST(PropertySpecifiers, GiveAWrappedObjectTheWrapperFlag)
{
	EXPECT_EQ(GetFlags("", "TSubclassOf<UObject> X;"), "0x0014000000000000");
}

TEST(PropertySpecifiers, HandConfigButNotAccessToTheElementOfAnArray)
{
	EXPECT_EQ(GetFlags("config", "TArray<FName> X;", "protected:"), "0x0000000000004000");
}

TEST(PropertySpecifiers, RefuseAnUnknownWord)
{
	EXPECT_EQ(Complain("confg"), Complaint(8, "Unknown variable specifier 'confg'"));
}

TEST(PropertySpecifiers, RefuseAWordOfTheEngineThatTheToolDoesNotDo)
{
	EXPECT_EQ(Complain("Instanced"), Complaint(8, "The variable specifier 'Instanced' is not in this header tool"));
}

TEST(PropertySpecifiers, RefuseConfigOnAnObject)
{
	EXPECT_EQ(Complain("config", "UObject* X;"), Complaint(9, "Not allowed to use 'config' with object variables"));
}

TEST(PropertySpecifiers, RefuseConfigOnAnArrayOfObjects)
{
	EXPECT_EQ(Complain("config", "TArray<UObject*> X;"), Complaint(9, "Not allowed to use 'config' with object variables"));
}

TEST(PropertySpecifiers, RefuseConfigOnAWeakReference)
{
	EXPECT_EQ(Complain("config", "TWeakObjectPtr<UObject> X;"), Complaint(9, "Not allowed to use 'config' with object variables"));
}

TEST(PropertySpecifiers, AllowConfigOnAClassReference)
{
	EXPECT_EQ(Complain("config", "TSubclassOf<UObject> X;"), "");
}

TEST(PropertySpecifiers, RefuseAnEditablePropertyWithoutCategory)
{
	EXPECT_EQ(Complain("EditAnywhere"), Complaint(9, Category));
}

TEST(PropertySpecifiers, RefuseABlueprintPropertyWithoutCategory)
{
	EXPECT_EQ(Complain("BlueprintReadWrite"), Complaint(9, Category));
}

TEST(PropertySpecifiers, RefuseACategoryWithoutValue)
{
	EXPECT_EQ(Complain("EditAnywhere, Category"), Complaint(8, "The specifier 'Category' must be given a value"));
}

TEST(PropertySpecifiers, RefuseBlueprintAccessToPrivateMembers)
{
	EXPECT_EQ(Complain("BlueprintReadOnly, Category=X", "int32 X;", "private:"),
		Complaint(9, "BlueprintReadOnly should not be used on private members"));
}

TEST(PropertySpecifiers, AllowBlueprintAccessToPrivateMembersThatSaySo)
{
	EXPECT_EQ(Complain("BlueprintReadOnly, Category=X, meta=(AllowPrivateAccess=\"true\")", "int32 X;", "private:"), "");
}

TEST(PropertySpecifiers, RefuseAMetaKeyWithTwoValues)
{
	EXPECT_EQ(Complain("meta=(A=1, A=2)"), Complaint(8, "Metadata key 'A' first seen with value '1' then '2'"));
}

TEST(PropertySpecifiers, RefuseDeprecatedProperties)
{
	EXPECT_EQ(Complain("", "int32 X_DEPRECATED;"), Complaint(9, "Properties named ..._DEPRECATED are not in this header tool"));
}
