// Copyright The Tintmill authors. All rights reserved.
#include "EnumParser.h"

#include "Scratch.h"

#include <gtest/gtest.h>

TEST(FEnumParser, ReadsValuesOfEveryForm)
{
	EXPECT_EQ(
		ComplainAboutThing(
			"UENUM()\nenum class EThing : uint8\n{\n\tA = (1 << 2), B UMETA(Hidden), C = Max(1, 2) UMETA(DisplayName = \"c\"), D\n};\n"),
		"");
}

TEST(FEnumParser, RefusesAnythingButAnEnumBehindUenum)
{
	EXPECT_EQ(ComplainAboutThing("UENUM()\nclass EThing { A };\n"), Complaint(4, "Missing 'enum' in UENUM declaration"));
}

TEST(FEnumParser, RefusesAnEnumInANamespace)
{
	EXPECT_EQ(ComplainAboutThing("UENUM()\nnamespace EThing { enum Type { A }; }\n"),
		Complaint(4, "An enum in a namespace is not in this header tool; declare an enum class"));
}

TEST(FEnumParser, RefusesAMissingComma)
{
	EXPECT_EQ(
		ComplainAboutThing("UENUM()\nenum class EThing : uint8\n{\n\tA\n\tB\n};\n"), Complaint(7, "Missing ',' in UENUM declaration"));
}

TEST(FEnumParser, RefusesAnOpenValue)
{
	EXPECT_EQ(ComplainAboutThing("UENUM()\nenum class EThing : uint8\n{\n\tA = (1,\n};\n"), Complaint(8, "Unexpected end of file"));
}

TEST(FEnumParser, RefusesAnEmptyEnum)
{
	EXPECT_EQ(
		ComplainAboutThing("UENUM()\nenum class EThing : uint8 { };\n"), Complaint(4, "Enumeration must contain at least one enumerator"));
}

TEST(FEnumParser, RefusesTheSameValueTwice)
{
	EXPECT_EQ(ComplainAboutThing("UENUM()\nenum class EThing : uint8 { A, B, a };\n"), Complaint(4, "Duplicate enumeration tag a"));
}

TEST(FEnumParser, RefusesAValueForTheEditorAlone)
{
	EXPECT_EQ(ComplainAboutThing("UENUM()\nenum class EThing : uint8\n{\n\tA,\n#if WITH_EDITORONLY_DATA\n\tB\n#endif\n};\n"),
		Complaint(8, "An enumerator inside WITH_EDITORONLY_DATA is not in this header tool"));
}

TEST(FEnumParser, TakesTheCommentOfAValue)
{
	EXPECT_NE(GenerateThing("UENUM()\nenum class EThing : uint8\n{\n\t/** First. */\n\tA\n};\n", "Thing.gen.cpp")
				  .find("{ \"A.ToolTip\", \"First.\" },"),
		std::string::npos);
}
