// Copyright The Tintmill authors. All rights reserved.

#include "ValueTextHelpers.h"
#include "gtest/gtest.h"

TEST(StructText, WritesAllFieldsInDeclarationOrderWithoutBlanks)
{
	EXPECT_EQ(ExportValue(FCoreTestInner()), "(bOn=False,Amount=1.000000,Thing=None)");
}

TEST(StructText, WritesOwnFieldsBeforeThoseOfTheParent)
{
	EXPECT_EQ(ExportValue(FCoreTestDerivedValues()), "(Own=0,bOn=False,Amount=1.000000,Thing=None)");
}

TEST(StructText, LeavesTransientFieldsOut)
{
	EXPECT_EQ(ExportValue(FCoreTestValues()).find("Passing"), std::string::npos);
}

TEST(StructText, LeavesFieldsEqualToGivenDefaultsOut)
{
	FCoreTestInner Value;
	Value.bOn = true;
	const FCoreTestInner Defaults;
	FString Text;
	FCoreTestInner::StaticStruct()->ExportText(Text, &Value, &Defaults, nullptr, PPF_None, nullptr);
	EXPECT_EQ(ToStd(Text), "(bOn=True)");
}

TEST(StructText, ReadsBackEveryKindOfField)
{
	FCoreTestValues Value;
	Value.bFlag = true;
	Value.bBitB = 1;
	Value.Int8 = -128;
	Value.Int16 = -32768;
	Value.Int32 = -2147483647 - 1;
	Value.Int64 = -9223372036854775807ll - 1;
	Value.Byte = 255;
	Value.UInt16 = 65535;
	Value.UInt32 = 4294967295u;
	Value.UInt64 = 18446744073709551615ull;
	Value.Float = -2.5f;
	Value.Double = 1e15;
	Value.Name = TEXT("A b(c),d_7");
	Value.String = TEXT("q\" b\\ n\n t\t '");
	Value.Text = FText::MakeLocalizable(TEXT("so \"there\""), TEXT("Space"), TEXT("Key"));
	Value.Kind = ECoreTestKind::Three;
	Value.Object = UObject::StaticClass();
	Value.Class = UClass::StaticClass();
	Value.Weak = UObject::StaticClass();
	Value.Inner.Amount = 3.0f;
	Value.Numbers.Append({1, -2, 3});
	Value.Strings.Append({TEXT("a,b"), TEXT("")});
	Value.Inners.SetNum(2);
	Value.Inners[1].bOn = true;
	Value.Fixed[1] = 4;
	const std::string Text = ExportValue(Value);
	const FValuesText Read(Text);
	EXPECT_EQ(ExportValue(Read.Value), Text);
}

TEST(StructText, ReadsBackWithoutAComplaint)
{
	EXPECT_TRUE(FValuesText(ExportValue(FCoreTestValues())).Errors.Lines.empty());
}

TEST(StructText, MustStartWithAParenthesis)
{
	const FValuesText Read("Int32=5");
	EXPECT_TRUE(!Read.bRead && Read->Int32 == 3);
}

TEST(StructText, ReadsFieldsInAnyOrder)
{
	const FValuesText Read("(Float=2.0,Int32=9,bFlag=True)");
	EXPECT_EQ(std::make_tuple(Read->Float, Read->Int32, Read->bFlag), std::make_tuple(2.0f, 9, true));
}

TEST(StructText, ToleratesBlanksBetweenItsParts)
{
	const FValuesText Read("  ( Int32 = 9 , Inner = ( bOn = True ) , Numbers = ( 1 , 2 ) )");
	EXPECT_EQ(std::make_tuple(Read->Int32, Read->Inner.bOn, Read->Numbers.Num()), std::make_tuple(9, true, 2));
}

TEST(StructText, MatchesNamesWithoutRegardToCase)
{
	EXPECT_EQ(FValuesText("(iNT32=9)")->Int32, 9);
}

TEST(StructText, SkipsUnknownFieldsAndReadsTheRest)
{
	const FValuesText Read("(Stranger=(A=1,B=\"x,)\"),Int32=9)");
	EXPECT_TRUE(Read.bRead && Read->Int32 == 9);
}

TEST(StructText, KeepsTheDefaultsOfMissingFields)
{
	const FValuesText Read("(Float=2.0)");
	EXPECT_EQ(Read->Int32, 3);
}

TEST(StructText, TakesTheFirstOfDuplicateFieldsAndWarns)
{
	const FValuesText Read("(Int32=9,Int32=10)");
	EXPECT_TRUE(Read->Int32 == 9 && Read.Errors.Lines == std::vector<std::string>{"redundant data: Int32=10)"});
}

TEST(StructText, WarnsOfAMissingEqualsSignAndSkips)
{
	const FValuesText Read("(Float,Int32=9)");
	EXPECT_TRUE(Read->Int32 == 9 && Read.Errors.Lines.size() == 1);
}

TEST(StructText, KeepsFieldsReadBeforeAMissingClosingParenthesis)
{
	const FValuesText Read("(Int32=9,Inner=(bOn=True");
	EXPECT_TRUE(!Read.bRead && Read->Int32 == 9 && Read->Inner.bOn);
}

TEST(StructText, AcceptsATrailingComma)
{
	const FValuesText Read("(Int32=9,)");
	EXPECT_TRUE(Read.bRead && Read->Int32 == 9 && Read.Errors.Lines.empty());
}

TEST(StructText, ReadsAnEmptyPairOfParentheses)
{
	EXPECT_TRUE(FValuesText("()").bRead);
}

TEST(StructText, ReturnsTheTextBehindIt)
{
	EXPECT_EQ(FValuesText("(Int32=9),tail").Rest, ",tail");
}

TEST(StructText, DoesNotReadTransientFields)
{
	EXPECT_EQ(FValuesText("(Passing=4)")->Passing, 0);
}

TEST(StructText, ReadsElementsOfFixedArraysByIndex)
{
	EXPECT_EQ(FValuesText("(Fixed[1]=4,Fixed(0)=5)")->Fixed[0], 5);
}

TEST(StructText, SkipsElementsBeyondAFixedArray)
{
	const FValuesText Read("(Fixed[2]=4,Int32=9)");
	EXPECT_TRUE(Read->Int32 == 9 && Read.Errors.Lines.size() == 1);
}

TEST(StructText, SurvivesEveryPrefixOfAGoodText)
{
	FCoreTestValues Value;
	Value.String = TEXT("x\"y");
	Value.Strings.Append({TEXT("a,b"), TEXT("")});
	Value.Text = FText::MakeLocalizable(TEXT("t"), TEXT("n"), TEXT("k"));
	const std::string Text = ExportValue(Value);
	for (size_t Length = 0; Length < Text.size(); ++Length)
	{
		EXPECT_FALSE(FValuesText(Text.substr(0, Length)).bRead) << Length;
	}
}
