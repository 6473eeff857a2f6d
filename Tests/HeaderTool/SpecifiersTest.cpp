// Copyright The Tintmill authors. All rights reserved.
#include "Specifiers.h"

#include "Diagnostics.h"
#include "Scratch.h"
#include "TokenStream.h"
#include "Tokenizer.h"

#include <gtest/gtest.h>

namespace
{

HeaderTool::FSpecifierSet Parse(const std::string& Text)
{
	HeaderTool::FTokenStream Tokens(HeaderTool::FTokenizer(Text).Tokenize());
	return HeaderTool::ParseSpecifiers(Tokens, "UCLASS");
}

std::string GetProblem(const std::string& Text)
{
	try
	{
		Parse(Text);
	}
	catch (const HeaderTool::FSyntaxError& Problem)
	{
		return std::to_string(Problem.GetLine()) + ": " + Problem.what();
	}
	return "";
}

}

TEST(ParseSpecifiers, ReadsAnEmptyList)
{
	EXPECT_TRUE(Parse("()").Specifiers.empty());
}

TEST(ParseSpecifiers, FindsWordsWithoutRegardToCase)
{
	EXPECT_NE(Parse("(Config=Engine)").Find("config"), nullptr);
}

TEST(ParseSpecifiers, ReadsAValueWithoutQuotes)
{
	EXPECT_EQ(Parse("(Category = Look | Basic)").Specifiers[0].GetJoinedValues(), "Look|Basic");
}

TEST(ParseSpecifiers, ReadsAValueInQuotes)
{
	EXPECT_EQ(Parse("(Category=\"A, B\")").Specifiers[0].GetJoinedValues(), "A, B");
}

TEST(ParseSpecifiers, ReadsAListOfValues)
{
	EXPECT_EQ(Parse("(hidecategories=(Object, \"A B\"))").Specifiers[0].Values, (std::vector<std::string>{"Object", "A B"}));
}

TEST(ParseSpecifiers, KeepsMetaApart)
{
	EXPECT_EQ(Parse("(abstract, meta=(A=\"1\", B, C=2), transient)").Meta.size(), 3u);
}

TEST(ParseSpecifiers, KnowsTheLineOfTheClosingParenthesis)
{
	EXPECT_EQ(Parse("(abstract,\n transient\n)").LastLine, 3);
}

TEST(ParseSpecifiers, ComplainsAboutAMissingOpeningParenthesis)
{
	EXPECT_EQ(GetProblem("class"), "1: Missing '(' in UCLASS declaration");
}

TEST(ParseSpecifiers, ComplainsAboutAMissingClosingParenthesis)
{
	EXPECT_EQ(GetProblem("(abstract\nclass X"), "2: Missing ')' in UCLASS declaration");
}

TEST(ParseSpecifiers, ComplainsAboutAListThatNeverEnds)
{
	EXPECT_EQ(GetProblem("(abstract,"), "1: Missing ')' in UCLASS declaration");
}

TEST(ParseSpecifiers, ComplainsAboutAMissingValue)
{
	EXPECT_EQ(GetProblem("(config=)"), "1: Missing value in UCLASS declaration");
}

TEST(ParseSpecifiers, ComplainsAboutSomethingThatIsNoName)
{
	EXPECT_EQ(GetProblem("(17)"), "1: Missing specifier name in UCLASS declaration");
}

TEST(ParseSpecifiers, ReportsAnUnterminatedPropertyAndGoesOnBehindIt)
{
	EXPECT_EQ(ComplainAboutThing(
				  "USTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n\tUPROPERTY(config\n\tint32 X;\n\tUPROPERTY()\n\tFNope Y;\n};\n"),
		Complaint(8, "Missing ')' in UPROPERTY declaration")
			+ Complaint(10, "Unrecognized type 'FNope' - type must be a UCLASS, USTRUCT or UENUM"));
}
