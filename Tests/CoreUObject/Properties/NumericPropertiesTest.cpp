// Copyright The Tintmill authors. All rights reserved.

#include "ValueTextHelpers.h"
#include "gtest/gtest.h"

TEST(NumericProperties, WriteFloatsWithSixDecimals)
{
	FCoreTestValues Value;
	Value.Float = 0.35f;
	EXPECT_EQ(ExportField(Value, TEXT("Float")), "0.350000");
}

TEST(NumericProperties, WriteVerySmallFloatsAsZero)
{
	FCoreTestValues Value;
	Value.Float = 1e-7f;
	EXPECT_EQ(ExportField(Value, TEXT("Float")), "0.000000");
}

TEST(NumericProperties, WriteIntegersPlain)
{
	FCoreTestValues Value;
	Value.Int32 = 17777;
	EXPECT_EQ(ExportField(Value, TEXT("Int32")), "17777");
}

TEST(NumericProperties, TakeTheLeadingNumberAndSkipTheRest)
{
	const FValuesText Read("(Int32=12abc,Float=2.5 junk (a,b),UInt16=7)");
	EXPECT_EQ(std::make_tuple(Read->Int32, Read->Float, Read->UInt16), std::make_tuple(12, 2.5f, uint16(7)));
}

TEST(NumericProperties, KeepTheDefaultForTextThatIsNoNumber)
{
	const FValuesText Read("(Int32=abc,Float=\"1\",UInt16=7)");
	EXPECT_EQ(std::make_tuple(Read->Int32, Read->Float, Read->UInt16), std::make_tuple(3, 0.5f, uint16(7)));
}

TEST(NumericProperties, KeepTheDefaultForANumberThatDoesNotFit)
{
	const FValuesText Read("(Int8=128,UInt16=-1,Int32=2147483648,UInt64=18446744073709551616,Float=1e99)");
	EXPECT_EQ(std::make_tuple(Read->Int8, Read->UInt16, Read->Int32, Read->UInt64, Read->Float),
		std::make_tuple(int8(0), uint16(0), 3, uint64(0), 0.5f));
}

TEST(NumericProperties, KeepTheDefaultForNotANumberAndInfinity)
{
	const FValuesText Read("(Float=nan,Double=inf)");
	EXPECT_EQ(std::make_tuple(Read->Float, Read->Double), std::make_tuple(0.5f, 0.0));
}

TEST(NumericProperties, ReadExponentsSignsAndTheSuffixOfAFloat)
{
	const FValuesText Read("(Float=+1.5e1f,Double=-.5)");
	EXPECT_EQ(std::make_tuple(Read->Float, Read->Double), std::make_tuple(15.0f, -0.5));
}

TEST(BoolProperty, WritesTrueAndFalse)
{
	FCoreTestValues Value;
	Value.bFlag = true;
	EXPECT_EQ(ExportField(Value, TEXT("bFlag")) + ExportField(Value, TEXT("bBitA")), "TrueFalse");
}

TEST(BoolProperty, ReadsAllItsWordsInAnyCase)
{
	for (const char* Word : {"True", "TRUE", "yes", "Yes", "1"})
	{
		EXPECT_TRUE(FValuesText(std::string("(bFlag=") + Word + ")")->bFlag) << Word;
	}
}

TEST(BoolProperty, ReadsFalseNoAndZero)
{
	for (const char* Word : {"False", "NO", "0"})
	{
		FValuesText Read(std::string("(bFlag=True,Inner=(bOn=") + Word + "))");
		EXPECT_TRUE(!Read->Inner.bOn && Read.Errors.Lines.empty()) << Word;
	}
}

TEST(BoolProperty, KeepsItsDefaultForOtherWords)
{
	const FValuesText Read("(bFlag=Sure,Int32=9)");
	EXPECT_TRUE(!Read->bFlag && Read->Int32 == 9);
}

TEST(BoolProperty, SetsSingleBitsApartFromTheirNeighbours)
{
	const FValuesText Read("(bBitB=True)");
	EXPECT_TRUE(Read->bBitB == 1 && Read->bBitA == 0);
}

TEST(EnumProperty, WritesTheShortNameOfAnEnumerator)
{
	FCoreTestValues Value;
	Value.Kind = ECoreTestKind::Two;
	EXPECT_EQ(ExportField(Value, TEXT("Kind")), "Two");
}

TEST(EnumProperty, ReadsShortAndFullNamesInAnyCase)
{
	EXPECT_TRUE(
		FValuesText("(Kind=three)")->Kind == ECoreTestKind::Three && FValuesText("(Kind=ECoreTestKind::Two)")->Kind == ECoreTestKind::Two);
}

TEST(EnumProperty, KeepsItsDefaultForAnUnknownName)
{
	const FValuesText Read("(Kind=Four,Int32=9)");
	EXPECT_TRUE(Read->Kind == ECoreTestKind::One && Read->Int32 == 9 && Read.Errors.Lines.size() == 1);
}

TEST(EnumProperty, WritesAValueWithoutEnumeratorAsInvalid)
{
	FCoreTestValues Value;
	Value.Kind = ECoreTestKind(77);
	EXPECT_EQ(ExportField(Value, TEXT("Kind")), "(INVALID)");
}
