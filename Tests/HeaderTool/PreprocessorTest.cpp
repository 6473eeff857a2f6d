// Copyright The Tintmill authors. All rights reserved.
#include "Preprocessor.h"

#include "Scratch.h"
#include "Tokenizer.h"

#include <gtest/gtest.h>

namespace
{

/** The texts of the tokens that are left, a blank behind each; tokens for the editor alone with a star. */
std::string Filter(const std::string& Text)
{
	HeaderTool::FDiagnostics Diagnostics;
	HeaderTool::FPreprocessor Preprocessor("File.h", Diagnostics);
	std::string Result;
	for (const HeaderTool::FToken& Token : Preprocessor.Filter(HeaderTool::FTokenizer(Text).Tokenize()))
	{
		Result += Token.Text + (Token.bEditorOnly ? "* " : Token.Text.empty() ? "" : " ");
	}
	return Result + (Diagnostics.HasErrors() ? Diagnostics.Get()[0].Text : "");
}

std::string GetRefusal(const std::string& Macro)
{
	return "'" + Macro + "' must not be inside preprocessor blocks, except for WITH_EDITORONLY_DATA";
}

}

TEST(FPreprocessor, ReadsTheKnownConditions)
{
	EXPECT_EQ(Filter("#if WITH_EDITOR\na\n#endif\n#if WITH_HOT_RELOAD\nb\n#endif\n#if 1\nc\n#endif\n#ifdef WITH_EDITOR\nd\n#endif\n"),
		"a b c d ");
}

TEST(FPreprocessor, MarksWhatIsForTheEditorAlone)
{
	EXPECT_EQ(Filter("a\n#if WITH_EDITORONLY_DATA\nb\n#endif // x\nc"), "a b* c ");
}

TEST(FPreprocessor, SkipsOtherConditions)
{
	EXPECT_EQ(Filter("#if FOO\na\n#elif BAR\nb\n#else\nc\n#endif\n#ifndef X\nd\n#endif\n#if CPP\ne\n#endif\nf"), "f ");
}

TEST(FPreprocessor, ReadsTheOtherSideOfZero)
{
	EXPECT_EQ(Filter("#if 0\na\n#else\nb\n#endif"), "b ");
}

TEST(FPreprocessor, SkipsTheOtherSideOfAKnownCondition)
{
	EXPECT_EQ(Filter("#if WITH_EDITORONLY_DATA\na\n#else\nb\n#endif"), "a* ");
}

TEST(FPreprocessor, SkipsWhatIsNestedInASkippedBlock)
{
	EXPECT_EQ(Filter("#if FOO\n#if 1\na\n#endif\n#endif\nb"), "b ");
}

TEST(FPreprocessor, DoesNotLookIntoZero)
{
	EXPECT_EQ(Filter("#if 0\nUCLASS() don't /* x */ \"\n#endif\na"), "a ");
}

TEST(FPreprocessor, ComplainsAboutAnUnmatchedEnd)
{
	EXPECT_EQ(Filter("#endif\n"), "Unmatched '#endif'");
}

TEST(FPreprocessor, ComplainsAboutAMissingEnd)
{
	EXPECT_EQ(Filter("#if 1\na"), "a Missing '#endif' for this preprocessor block");
}

TEST(FPreprocessor, RefusesAClassInAPreprocessorBlock)
{
	EXPECT_EQ(ComplainAboutThing("#if WITH_EDITOR\nUCLASS()\nclass UThing : public UObject\n{\n\tGENERATED_BODY()\n};\n#endif\n"),
		Complaint(4, GetRefusal("UCLASS")));
}

TEST(FPreprocessor, RefusesAStructInAnUnknownPreprocessorBlock)
{
	EXPECT_EQ(ComplainAboutThing("#ifndef THING\nUSTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n};\n#endif\n"),
		Complaint(4, GetRefusal("USTRUCT")));
}

TEST(FPreprocessor, RefusesAPropertyInAPreprocessorBlock)
{
	EXPECT_EQ(
		ComplainAboutThing("USTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n#if WITH_EDITOR\n\tUPROPERTY()\n\tint32 X;\n#endif\n};\n"),
		Complaint(8, GetRefusal("UPROPERTY")));
}

TEST(FPreprocessor, RefusesAFunctionInAPreprocessorBlock)
{
	EXPECT_EQ(ComplainAboutThing(
				  "UCLASS()\nclass UThing : public UObject\n{\n\tGENERATED_BODY()\n#if FOO\n\tUFUNCTION()\n\tvoid X();\n#endif\n};\n"),
		Complaint(8, GetRefusal("UFUNCTION")));
}
