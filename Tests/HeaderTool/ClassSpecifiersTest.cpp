// Copyright The Tintmill authors. All rights reserved.
#include "ClassSpecifiers.h"

#include "Scratch.h"

#include <gtest/gtest.h>

namespace
{

/** The flags in the generated source of a class with these words. */
std::string GetFlags(const std::string& Words)
{
	const std::string Source =
		GenerateThing("UCLASS(" + Words + ")\nclass UThing : public UObject { GENERATED_BODY() };\n", "Thing.gen.cpp");
	const std::size_t At = Source.find("\t\t0x");
	return At == std::string::npos ? Source : Source.substr(At + 2, 10);
}

std::string Complain(const std::string& Words)
{
	return ComplainAboutThing("UCLASS(" + Words + ")\nclass UThing : public UObject { GENERATED_BODY() };\n");
}

}

TEST(FClassSpecifiers, GivesEveryClassMatchedSerializersAndNative)
{
	EXPECT_EQ(GetFlags(""), "0x000000A0");
}

TEST(FClassSpecifiers, GivesAConfigClassTheConfigFlag)
{
	EXPECT_EQ(GetFlags("config=Engine"), "0x000000A4");
}

TEST(FClassSpecifiers, JoinsTheFlagsOfSeveralWords)
{
	EXPECT_EQ(GetFlags("Abstract, Transient, MinimalAPI, NotPlaceable, PerObjectConfig, EditInlineNew"), "0x000816A9");
}

TEST(FClassSpecifiers, RefusesAnUnknownWord)
{
	EXPECT_EQ(Complain("configg=Engine"), Complaint(3, "Unknown class specifier 'configg'"));
}

TEST(FClassSpecifiers, RefusesAWordOfTheEngineThatItDoesNotDo)
{
	EXPECT_EQ(Complain("DefaultToInstanced"), Complaint(3, "The class specifier 'DefaultToInstanced' is not in this header tool"));
}

TEST(FClassSpecifiers, RefusesConfigWithoutName)
{
	EXPECT_EQ(Complain("config"), Complaint(3, "The specifier 'config' must be given a value"));
}

TEST(FClassSpecifiers, RefusesHideCategoriesWithoutValue)
{
	EXPECT_EQ(Complain("hidecategories"), Complaint(3, "The specifier 'hidecategories' must be given a value"));
}

TEST(FClassSpecifiers, RefusesToInheritAConfigNameThatIsNotThere)
{
	EXPECT_EQ(Complain("config=inherit"), Complaint(3, "Cannot inherit config filename: parent class UObject is not marked config."));
}

TEST(FClassSpecifiers, RefusesAnUnknownOuterClass)
{
	EXPECT_EQ(Complain("within=UNope"), Complaint(3, "Unrecognized type 'UNope' - type must be a UCLASS, USTRUCT or UENUM"));
}

TEST(FClassSpecifiers, RefusesAMetaKeyWithTwoValues)
{
	EXPECT_EQ(Complain("meta=(A=\"1\", a=\"2\")"), Complaint(3, "Metadata key 'a' first seen with value '1' then '2'"));
}

TEST(FClassSpecifiers, RefusesAnUnknownWordOfAStruct)
{
	EXPECT_EQ(
		ComplainAboutThing("USTRUCT(config)\nstruct FThing { GENERATED_BODY() };\n"), Complaint(3, "Unknown struct specifier 'config'"));
}

TEST(FClassSpecifiers, RefusesAWordOfTheEngineOfAStruct)
{
	EXPECT_EQ(ComplainAboutThing("USTRUCT(NoExport)\nstruct FThing { GENERATED_BODY() };\n"),
		Complaint(3, "The struct specifier 'NoExport' is not in this header tool"));
}

TEST(FClassSpecifiers, RefusesAnUnknownWordOfAnEnum)
{
	EXPECT_EQ(ComplainAboutThing("UENUM(What)\nenum class EThing : uint8 { A };\n"), Complaint(3, "Unknown enum specifier 'What'"));
}
