// Copyright The Tintmill authors. All rights reserved.
#include "MemberParser.h"

#include "Diagnostics.h"
#include "Scratch.h"
#include "Tokenizer.h"

#include <gtest/gtest.h>

namespace
{

HeaderTool::FProperty Parse(const std::string& Text)
{
	HeaderTool::FTokenStream Tokens(HeaderTool::FTokenizer("UPROPERTY() " + Text).Tokenize());
	const HeaderTool::FToken Macro = Tokens.Next();
	return HeaderTool::FMemberParser(Tokens).ParseProperty(Macro, HeaderTool::EAccess::Public);
}

std::string GetProblem(const std::string& Text)
{
	try
	{
		Parse(Text);
	}
	catch (const HeaderTool::FSyntaxError& Problem)
	{
		return Problem.what();
	}
	return "";
}

}

TEST(FMemberParser, ReadsTypeAndName)
{
	EXPECT_EQ(Parse("int32 Count;").Name, "Count");
}

TEST(FMemberParser, StepsOverTheElaboratedTypeKeyword)
{
	EXPECT_EQ(Parse("class UThing* Thing;").TypeExpression.Name, "UThing");
}

TEST(FMemberParser, CountsPointers)
{
	EXPECT_EQ(Parse("UThing** Thing;").TypeExpression.Pointers, 2);
}

TEST(FMemberParser, ReadsTemplateArguments)
{
	EXPECT_EQ(Parse("TArray<TSubclassOf<UThing>> Things;").TypeExpression.Arguments[0].Arguments[0].Name, "UThing");
}

TEST(FMemberParser, ReadsQualifiedNames)
{
	EXPECT_EQ(Parse("TEnumAsByte<EKind::Type> Kind;").TypeExpression.Arguments[0].Name, "EKind::Type");
}

TEST(FMemberParser, NoticesFixedArrays)
{
	EXPECT_TRUE(Parse("int32 X[2 * (3 + 1)];").bFixedArray);
}

TEST(FMemberParser, NoticesBitFields)
{
	EXPECT_TRUE(Parse("uint8 bX : 1;").bBitField);
}

TEST(FMemberParser, StepsOverInitialValues)
{
	EXPECT_EQ(GetProblem("FVector X = FVector(1, {2; 3});") + GetProblem("int32 X{3};") + GetProblem("uint8 bX : 1 = 0;"), "");
}

TEST(FMemberParser, RefusesAMissingName)
{
	EXPECT_EQ(GetProblem("int32;"), "Missing variable name");
}

TEST(FMemberParser, RefusesSeveralNames)
{
	EXPECT_EQ(GetProblem("int32 X, Y;"), "Missing ';' in variable definition");
}

TEST(FMemberParser, RefusesWiderBitFields)
{
	EXPECT_EQ(GetProblem("uint8 X : 2;"), "Bad or missing bit field size for 'X', must be 1.");
}

TEST(FMemberParser, RefusesAnOpenTemplate)
{
	EXPECT_EQ(GetProblem("TArray<int32 X;"), "Missing '>' in TArray");
}

TEST(FMemberParser, RefusesEndlessNesting)
{
	std::string Type;
	for (int Depth = 0; Depth < 100000; ++Depth)
	{
		Type += "TArray<";
	}
	EXPECT_EQ(GetProblem(Type), "Nested containers are not supported.");
}

TEST(FMemberParser, GoesOnBehindAMemberThatItRefuses)
{
	EXPECT_EQ(
		ComplainAboutThing("USTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n\tUPROPERTY()\n\tint32;\n\tUPROPERTY()\n\tint32 A, B;\n};\n"),
		Complaint(8, "Missing variable name") + Complaint(10, "Missing ';' in variable definition"));
}
