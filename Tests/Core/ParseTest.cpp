// Copyright The Tintmill authors. All rights reserved.

#include "Misc/Parse.h"

#include "Support/Text.h"
#include "gtest/gtest.h"

namespace
{
std::string Quoted(const TCHAR* Text)
{
	FString Value;
	return FParse::QuotedString(Text, Value) ? ToStd(Value) : "(refused)";
}
}

TEST(Parse, ValueStopsAtABlank)
{
	FString Value;
	EXPECT_TRUE(FParse::Value(TEXT("-size=1280x720 -out=dir"), TEXT("size="), Value));
	EXPECT_EQ("1280x720", ToStd(Value));
}

TEST(Parse, ValueStopsAtACommaUnlessToldOtherwise)
{
	FString Value;
	EXPECT_TRUE(FParse::Value(TEXT("(A=1,B=2)"), TEXT("A="), Value));
	EXPECT_EQ("1", ToStd(Value));
	EXPECT_TRUE(FParse::Value(TEXT("A=1,2"), TEXT("A="), Value, false));
	EXPECT_EQ("1,2", ToStd(Value));
}

TEST(Parse, QuotedValueKeepsItsBlanks)
{
	FString Value;
	EXPECT_TRUE(FParse::Value(TEXT("-LogCmds=\"LogTemp off, LogInit all\" -x"), TEXT("LogCmds="), Value, false));
	EXPECT_EQ("LogTemp off, LogInit all", ToStd(Value));
}

TEST(Parse, ValueIsNotFoundInsideALongerWord)
{
	FString Value;
	EXPECT_FALSE(FParse::Value(TEXT("-oversize=3"), TEXT("size="), Value));
}

TEST(Parse, NumbersTruthsAndNamesAreConverted)
{
	int32 Number = 0;
	float Fraction = 0.0f;
	bool bTruth = false;
	FName Name;
	const TCHAR* const Stream = TEXT("N=-7 F=0.25 B=True Name=Teal");
	EXPECT_TRUE(FParse::Value(Stream, TEXT("N="), Number));
	EXPECT_TRUE(FParse::Value(Stream, TEXT("F="), Fraction));
	EXPECT_TRUE(FParse::Bool(Stream, TEXT("B="), bTruth));
	EXPECT_TRUE(FParse::Value(Stream, TEXT("Name="), Name));
	EXPECT_EQ(-7, Number);
	EXPECT_EQ(0.25f, Fraction);
	EXPECT_TRUE(bTruth);
	EXPECT_TRUE(Name == FName(TEXT("Teal")));
}

TEST(Parse, SwitchIsAWholeWordOutsideQuotes)
{
	EXPECT_TRUE(FParse::Param(TEXT("Demo -Unattended -log"), TEXT("unattended")));
	EXPECT_FALSE(FParse::Param(TEXT("Demo -unattendedly"), TEXT("unattended")));
	EXPECT_FALSE(FParse::Param(TEXT("\"a -unattended b\""), TEXT("unattended")));
}

TEST(Parse, CommandMovesBehindTheWord)
{
	const TCHAR* Stream = TEXT("  Open /Game/Teal");
	EXPECT_FALSE(FParse::Command(&Stream, TEXT("Op")));
	EXPECT_TRUE(FParse::Command(&Stream, TEXT("open")));
	EXPECT_EQ("/Game/Teal", ToStd(Stream));
}

TEST(Parse, TokensAreWordsOrQuoted)
{
	const TCHAR* Stream = TEXT("one \"two \\\" three\" four");
	FString Token;
	EXPECT_TRUE(FParse::Token(Stream, Token, true));
	EXPECT_EQ("one", ToStd(Token));
	EXPECT_TRUE(FParse::Token(Stream, Token, true));
	EXPECT_EQ("two \" three", ToStd(Token));
	EXPECT_TRUE(FParse::Token(Stream, Token, true));
	EXPECT_FALSE(FParse::Token(Stream, Token, true));
}

TEST(Parse, LinesEndAtEveryKindOfLineEnd)
{
	const TCHAR* Stream = TEXT("a\r\n\nb");
	FString Line;
	EXPECT_TRUE(FParse::Line(&Stream, Line));
	EXPECT_EQ("a", ToStd(Line));
	EXPECT_TRUE(FParse::Line(&Stream, Line));
	EXPECT_EQ("", ToStd(Line));
	EXPECT_TRUE(FParse::Line(&Stream, Line));
	EXPECT_EQ("b", ToStd(Line));
	EXPECT_FALSE(FParse::Line(&Stream, Line));
}

TEST(Parse, QuotedStringIsUnescaped)
{
	EXPECT_EQ("a\"b\\c\nd", Quoted(TEXT("\"a\\\"b\\\\c\\nd\"")));
	EXPECT_EQ("\xc3\xa9!", Quoted(TEXT("\"\\u00e9\\x21\"")));
}

TEST(Parse, QuotedStringWithoutItsEndIsRefused)
{
	EXPECT_EQ("(refused)", Quoted(TEXT("\"abc")));
	EXPECT_EQ("(refused)", Quoted(TEXT("\"abc\\")));
	EXPECT_EQ("(refused)", Quoted(TEXT("abc\"")));
}

TEST(Parse, QuotedStringTellsHowFarItReached)
{
	FString Value;
	int32 NumRead = 0;
	EXPECT_TRUE(FParse::QuotedString(TEXT("\"ab\",rest"), Value, &NumRead));
	EXPECT_EQ(4, NumRead);
}

TEST(Parse, HexadecimalNumbersMayHaveTheirPrefix)
{
	EXPECT_EQ(0xffu, FParse::HexNumber(TEXT("0xFF")));
	EXPECT_EQ(0x1au, FParse::HexNumber(TEXT("1a")));
}
