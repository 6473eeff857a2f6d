// Copyright The Tintmill authors. All rights reserved.
#include "Tokenizer.h"

#include <gtest/gtest.h>

namespace
{

using HeaderTool::ETokenKind;
using HeaderTool::FToken;

std::vector<FToken> Tokenize(const std::string& Text)
{
	return HeaderTool::FTokenizer(Text).Tokenize();
}

/** The texts of all tokens, a blank between two. */
std::string Join(const std::string& Text)
{
	std::string Result;
	for (const FToken& Token : Tokenize(Text))
	{
		Result += (Result.empty() || Token.Kind == ETokenKind::End ? "" : " ") + Token.Text;
	}
	return Result;
}

}

TEST(FTokenizer, CutsNamesNumbersAndPunctuation)
{
	EXPECT_EQ(Join("TArray<TFoo<int32>>&x=0x1Fu+1.5e-3f;"), "TArray < TFoo < int32 > > & x = 0x1Fu + 1.5e-3f ;");
}

TEST(FTokenizer, KeepsTheScopeOperatorWhole)
{
	EXPECT_EQ(Join("A::B:C"), "A :: B : C");
}

TEST(FTokenizer, ReadsDigitSeparatorsAsPartOfANumber)
{
	EXPECT_EQ(Tokenize("1'000'000;")[0].Text, "1'000'000");
}

TEST(FTokenizer, EndsWithAnEndToken)
{
	EXPECT_EQ(Tokenize("").back().Kind, ETokenKind::End);
}

TEST(FTokenizer, ResolvesEscapesInStrings)
{
	EXPECT_EQ(Tokenize("\"a\\\"b\\\\c\\n\"")[0].Text, "a\"b\\c\n");
}

TEST(FTokenizer, ReadsRawStringsToTheirOwnEnd)
{
	EXPECT_EQ(Tokenize("R\"x(a)\"b)x\" c")[0].Text, "a)\"b");
}

TEST(FTokenizer, TakesStringPrefixesForPartOfTheString)
{
	EXPECT_EQ(Tokenize("u8\"a\"")[0].Kind, ETokenKind::String);
}

TEST(FTokenizer, CountsLinesThroughCommentsStringsAndRawStrings)
{
	EXPECT_EQ(Tokenize("/*\n\n*/ // x\nR\"(\n\n)\"\n end")[1].Line, 7);
}

TEST(FTokenizer, JoinsContinuationLinesOfADirective)
{
	EXPECT_EQ(Tokenize("#define A \\\n  B\nC")[0].Text, "define A    B");
}

TEST(FTokenizer, LeavesCommentsOutOfDirectives)
{
	EXPECT_EQ(Tokenize("#if /* really */ X // why\n")[0].Text, "if   X ");
}

TEST(FTokenizer, TakesAHashInsideALineForPunctuation)
{
	EXPECT_EQ(Tokenize("a #b")[1].Kind, ETokenKind::Symbol);
}

TEST(FTokenizer, GivesATokenTheBlockCommentBeforeIt)
{
	EXPECT_EQ(Tokenize("a /** b */ c")[1].Comment, "/** b */");
}

TEST(FTokenizer, GivesATokenOnlyTheLastOfSeveralBlockComments)
{
	EXPECT_EQ(Tokenize("/* a */ /* b */ c")[0].Comment, "/* b */");
}

TEST(FTokenizer, JoinsConsecutiveLineComments)
{
	EXPECT_EQ(Tokenize("// a\n// b\nc")[0].Comment, "// a\n// b\n");
}

TEST(FTokenizer, PartsLineCommentsAtAnEmptyLine)
{
	EXPECT_EQ(Tokenize("// a\n\n// b\nc")[0].Comment, "// b\n");
}

TEST(FTokenizer, KeepsALineCommentAcrossAnEmptyLineBeforeTheToken)
{
	EXPECT_EQ(Tokenize("// a\n\nc")[0].Comment, "// a\n");
}

TEST(FTokenizer, LosesACommentAtADirective)
{
	EXPECT_EQ(Tokenize("// a\n#include \"b\"\nc")[1].Comment, "");
}

TEST(FTokenizer, DropsCarriageReturns)
{
	EXPECT_EQ(Tokenize("/* a\r\n b */ c\r\n")[0].Comment, "/* a\n b */");
}

TEST(FTokenizer, DropsAByteOrderMark)
{
	EXPECT_EQ(Tokenize("\xEF\xBB\xBF#pragma once\n")[0].Kind, ETokenKind::Directive);
}

TEST(FTokenizer, ComplainsAboutAnUnterminatedComment)
{
	EXPECT_EQ(Tokenize("a /* b")[1].Text, "End of class header encountered inside comment");
}

TEST(FTokenizer, ComplainsAboutAnUnterminatedString)
{
	EXPECT_EQ(Tokenize("\"a\nb")[0].Text, "Unterminated quoted string");
}

TEST(FTokenizer, ComplainsAboutAnUnterminatedCharacter)
{
	EXPECT_EQ(Tokenize("'a\nb")[0].Text, "Unterminated character constant");
}
