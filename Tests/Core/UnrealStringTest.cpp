// Copyright The Tintmill authors. All rights reserved.

#include "Containers/UnrealString.h"

#include "Support/Printers.h"
#include "gtest/gtest.h"

namespace
{
std::string Joined(const TArray<FString>& Parts)
{
	return ToStd(FString::Join(Parts, TEXT("|")));
}
}

TEST(FString, EmptyStringHasNoMemoryAndIsNeverNull)
{
	const FString Empty;
	EXPECT_EQ(0, Empty.Len());
	EXPECT_TRUE(Empty.IsEmpty());
	ASSERT_NE(nullptr, *Empty);
	EXPECT_EQ(0, **Empty);
}

TEST(FString, NullGivesTheEmptyString)
{
	EXPECT_TRUE(FString((const TCHAR*)nullptr).IsEmpty());
	EXPECT_TRUE(FString((const ANSICHAR*)nullptr).IsEmpty());
}

TEST(FString, ConstructsFromNarrowTextAndFromAPart)
{
	EXPECT_EQ("abc", ToStd(FString("abc")));
	EXPECT_EQ("ab", ToStd(FString(2, TEXT("abc"))));
}

TEST(FString, OperatorsCompareWithoutCase)
{
	EXPECT_TRUE(FString(TEXT("ABC")) == FString(TEXT("abc")));
	EXPECT_TRUE(FString(TEXT("ABC")) == TEXT("abc"));
	EXPECT_FALSE(FString(TEXT("ABC")) != TEXT("abc"));
	EXPECT_TRUE(FString(TEXT("abc")) < FString(TEXT("ABD")));
}

TEST(FString, EqualsRegardsCaseUnlessAskedNotTo)
{
	EXPECT_FALSE(FString(TEXT("ABC")).Equals(TEXT("abc")));
	EXPECT_TRUE(FString(TEXT("ABC")).Equals(TEXT("abc"), ESearchCase::IgnoreCase));
}

TEST(FString, HashIgnoresCase)
{
	EXPECT_EQ(GetTypeHash(FString(TEXT("Tint"))), GetTypeHash(FString(TEXT("tINT"))));
	EXPECT_NE(GetTypeHash(FString(TEXT("Tint"))), GetTypeHash(FString(TEXT("Mill"))));
}

TEST(FString, AssigningADifferentSpellingKeepsTheNewOne)
{
	FString Text(TEXT("abc"));
	Text = TEXT("ABC");
	EXPECT_EQ("ABC", ToStd(Text));
}

TEST(FString, AppendingKeepsTheTerminator)
{
	FString Text(TEXT("a"));
	Text += TEXT("b");
	Text += FString(TEXT("c"));
	Text += TEXT('d');
	Text.AppendInt(5);
	EXPECT_EQ("abcd5", ToStd(Text));
	EXPECT_EQ(5, Text.Len());
	EXPECT_EQ(0, (*Text)[5]);
}

TEST(FString, AppendingAStringToItselfDoublesIt)
{
	FString Text(TEXT("abc"));
	for (int32 Round = 0; Round < 6; ++Round)
	{
		Text += Text;
	}
	EXPECT_EQ(192, Text.Len());
	EXPECT_EQ("abcabc", ToStd(Text.Left(6)));
}

TEST(FString, PlusJoinsEveryMixOfOperands)
{
	const FString Text(TEXT("b"));
	EXPECT_EQ("abc", ToStd(TEXT("a") + Text + TEXT("c")));
	EXPECT_EQ("bb", ToStd(Text + Text));
	EXPECT_EQ("xb", ToStd(TEXT('x') + Text));
	EXPECT_EQ("bx", ToStd(Text + TEXT('x')));
}

TEST(FString, PathsAreJoinedWithExactlyOneSlash)
{
	EXPECT_EQ("a/b", ToStd(FString(TEXT("a")) / TEXT("b")));
	EXPECT_EQ("a/b", ToStd(FString(TEXT("a/")) / TEXT("b")));
	EXPECT_EQ("a/b", ToStd(FString(TEXT("a")) / TEXT("/b")));
	EXPECT_EQ("a/b", ToStd(FString(TEXT("a/")) / FString(TEXT("/b"))));
	EXPECT_EQ("b", ToStd(FString() / TEXT("b")));
}

TEST(FString, PartsAreClampedToTheString)
{
	const FString Text(TEXT("abcde"));
	EXPECT_EQ("ab", ToStd(Text.Left(2)));
	EXPECT_EQ("abcde", ToStd(Text.Left(9)));
	EXPECT_EQ("", ToStd(Text.Left(-1)));
	EXPECT_EQ("abc", ToStd(Text.LeftChop(2)));
	EXPECT_EQ("de", ToStd(Text.Right(2)));
	EXPECT_EQ("cde", ToStd(Text.RightChop(2)));
	EXPECT_EQ("bcd", ToStd(Text.Mid(1, 3)));
	EXPECT_EQ("cde", ToStd(Text.Mid(2)));
	EXPECT_EQ("", ToStd(Text.Mid(9, 2)));
}

TEST(FString, SearchIgnoresCaseByDefault)
{
	const FString Text(TEXT("One two ONE"));
	EXPECT_EQ(0, Text.Find(TEXT("one")));
	EXPECT_EQ(8, Text.Find(TEXT("one"), ESearchCase::IgnoreCase, ESearchDir::FromEnd));
	EXPECT_EQ(8, Text.Find(TEXT("ONE"), ESearchCase::CaseSensitive));
	EXPECT_EQ(8, Text.Find(TEXT("one"), ESearchCase::IgnoreCase, ESearchDir::FromStart, 1));
	EXPECT_EQ(INDEX_NONE, Text.Find(TEXT("three")));
	EXPECT_TRUE(Text.Contains(TEXT("TWO")));
	EXPECT_FALSE(Text.Contains(TEXT("TWO"), ESearchCase::CaseSensitive));
}

TEST(FString, BeginningAndEndIgnoreCaseByDefault)
{
	const FString Text(TEXT("Look.cube"));
	EXPECT_TRUE(Text.StartsWith(TEXT("look")));
	EXPECT_FALSE(Text.StartsWith(TEXT("look"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Text.EndsWith(TEXT(".CUBE")));
	EXPECT_FALSE(Text.EndsWith(TEXT(".CUBE"), ESearchCase::CaseSensitive));
	EXPECT_FALSE(Text.StartsWith(TEXT("")));
	EXPECT_FALSE(Text.EndsWith(TEXT("")));
}

TEST(FString, CharactersAreFoundFromBothEnds)
{
	const FString Text(TEXT("a/b/c"));
	int32 Index = 0;
	EXPECT_TRUE(Text.FindChar('/', Index));
	EXPECT_EQ(1, Index);
	EXPECT_TRUE(Text.FindLastChar('/', Index));
	EXPECT_EQ(3, Index);
	EXPECT_FALSE(Text.FindChar('x', Index));
	EXPECT_EQ(INDEX_NONE, Index);
}

TEST(FString, SplitCutsAtTheFirstOrLastPlace)
{
	FString Left;
	FString Right;
	EXPECT_TRUE(FString(TEXT("a=b=c")).Split(TEXT("="), &Left, &Right));
	EXPECT_EQ("a", ToStd(Left));
	EXPECT_EQ("b=c", ToStd(Right));
	EXPECT_TRUE(FString(TEXT("a=b=c")).Split(TEXT("="), &Left, &Right, ESearchCase::IgnoreCase, ESearchDir::FromEnd));
	EXPECT_EQ("a=b", ToStd(Left));
	EXPECT_FALSE(FString(TEXT("abc")).Split(TEXT("="), &Left, nullptr));
}

TEST(FString, ReplaceIgnoresCaseByDefaultAndCounts)
{
	EXPECT_EQ("x-x", ToStd(FString(TEXT("ab-AB")).Replace(TEXT("ab"), TEXT("x"))));
	EXPECT_EQ("x-AB", ToStd(FString(TEXT("ab-AB")).Replace(TEXT("ab"), TEXT("x"), ESearchCase::CaseSensitive)));
	FString Text(TEXT("aaa"));
	EXPECT_EQ(3, Text.ReplaceInline(TEXT("a"), TEXT("aa")));
	EXPECT_EQ("aaaaaa", ToStd(Text));
}

TEST(FString, TrimmingRemovesWhiteSpaceAtTheEnds)
{
	EXPECT_EQ("a b", ToStd(FString(TEXT(" \t a b \r\n")).TrimStartAndEnd()));
	EXPECT_EQ("a ", ToStd(FString(TEXT(" a ")).TrimStart()));
	EXPECT_EQ(" a", ToStd(FString(TEXT(" a ")).TrimEnd()));
	EXPECT_EQ("", ToStd(FString(TEXT("   ")).TrimStartAndEnd()));
}

TEST(FString, QuotesAreTrimmedOnce)
{
	bool bRemoved = false;
	EXPECT_EQ("a", ToStd(FString(TEXT("\"a\"")).TrimQuotes(&bRemoved)));
	EXPECT_TRUE(bRemoved);
	EXPECT_EQ("\"a\"", ToStd(FString(TEXT("\"\"a\"\"")).TrimQuotes()));
}

TEST(FString, ParsingDropsEmptyPartsUnlessAskedNotTo)
{
	TArray<FString> Parts;
	EXPECT_EQ(2, FString(TEXT(",a,,b,")).ParseIntoArray(Parts, TEXT(",")));
	EXPECT_EQ("a|b", Joined(Parts));
	EXPECT_EQ(5, FString(TEXT(",a,,b,")).ParseIntoArray(Parts, TEXT(","), false));
	EXPECT_EQ("|a||b|", Joined(Parts));
}

TEST(FString, LinesEndWithAnyLineBreak)
{
	TArray<FString> Lines;
	FString(TEXT("a\r\nb\nc\rd")).ParseIntoArrayLines(Lines);
	EXPECT_EQ("a|b|c|d", Joined(Lines));
}

TEST(FString, WhiteSpaceSeparatesWords)
{
	TArray<FString> Words;
	FString(TEXT(" a\tb  c;d ")).ParseIntoArrayWS(Words, TEXT(";"));
	EXPECT_EQ("a|b|c|d", Joined(Words));
}

TEST(FString, EscapesAreWrittenAndReadBack)
{
	const FString Raw(TEXT("a\"b\\c\nd\te'"));
	EXPECT_EQ("a\\\"b\\\\c\\nd\\te\\'", ToStd(Raw.ReplaceCharWithEscapedChar()));
	EXPECT_TRUE(Raw.ReplaceCharWithEscapedChar().ReplaceEscapedCharWithChar().Equals(Raw));
}

TEST(FString, FloatsLoseTheirTrailingZeros)
{
	EXPECT_EQ("1.0", ToStd(FString::SanitizeFloat(1.0)));
	EXPECT_EQ("0.35", ToStd(FString::SanitizeFloat(0.35)));
	EXPECT_EQ("2", ToStd(FString::SanitizeFloat(2.0, 0)));
	EXPECT_EQ("10", ToStd(FString::SanitizeFloat(10.0, 0)));
	EXPECT_EQ("1.500", ToStd(FString::SanitizeFloat(1.5, 3)));
}

TEST(FString, WildcardsMatchAnyTextOrCharacter)
{
	EXPECT_TRUE(FString(TEXT("Look.Cube")).MatchesWildcard(TEXT("*.cube")));
	EXPECT_TRUE(FString(TEXT("abc")).MatchesWildcard(TEXT("a?c")));
	EXPECT_FALSE(FString(TEXT("abcd")).MatchesWildcard(TEXT("a?c")));
	EXPECT_TRUE(FString(TEXT("")).MatchesWildcard(TEXT("*")));
}

TEST(FString, RemovingPrefixAndSuffixTellsWhetherTheyWereThere)
{
	FString Text(TEXT("/Game/Looks"));
	EXPECT_TRUE(Text.RemoveFromStart(TEXT("/game")));
	EXPECT_FALSE(Text.RemoveFromStart(TEXT("/game")));
	EXPECT_TRUE(Text.RemoveFromEnd(TEXT("s")));
	EXPECT_EQ("/Look", ToStd(Text));
}

TEST(FString, CaseChangesAsciiLettersOnly)
{
	EXPECT_EQ("ABC\xC3\xA9", ToStd(FString(TEXT("abc\u00e9")).ToUpper()));
	EXPECT_EQ("abc", ToStd(FString(TEXT("ABC")).ToLower()));
}

TEST(FString, InsertingAndRemovingInTheMiddle)
{
	FString Text(TEXT("ad"));
	Text.InsertAt(1, FString(TEXT("bc")));
	EXPECT_EQ("abcd", ToStd(Text));
	Text.RemoveAt(1, 2);
	EXPECT_EQ("ad", ToStd(Text));
	EXPECT_EQ("  ad", ToStd(Text.LeftPad(4)));
	EXPECT_EQ("ad  ", ToStd(Text.RightPad(4)));
	EXPECT_EQ("da", ToStd(Text.Reverse()));
}

TEST(FStringDeathTest, CharactersOutsideAreFatal)
{
	const FString Text(TEXT("abc"));
	EXPECT_DEATH((void)Text[3], "String index out of bounds: Index 3 from a string with a length of 3");
}
