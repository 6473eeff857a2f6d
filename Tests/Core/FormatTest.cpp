// Copyright The Tintmill authors. All rights reserved.

#include "Containers/UnrealString.h"

#include "Support/Printers.h"
#include "gtest/gtest.h"
#include <cstdio>

namespace
{
/** What the C library makes of a format and a number. */
template <typename ValueType>
std::string Reference(const char* Format, ValueType Value)
{
	char Buffer[512];
	std::snprintf(Buffer, sizeof(Buffer), Format, Value);
	return Buffer;
}
}

TEST(Format, SignedIntegers)
{
	EXPECT_EQ("-7 7 0", ToStd(FString::Printf(TEXT("%d %i %d"), -7, 7, 0)));
	EXPECT_EQ("-2147483648", ToStd(FString::Printf(TEXT("%d"), MIN_int32)));
	EXPECT_EQ("-9223372036854775808", ToStd(FString::Printf(TEXT("%lld"), MIN_int64)));
}

TEST(Format, UnsignedIntegers)
{
	EXPECT_EQ("4294967295", ToStd(FString::Printf(TEXT("%u"), MAX_uint32)));
	EXPECT_EQ("18446744073709551615", ToStd(FString::Printf(TEXT("%llu"), MAX_uint64)));
}

TEST(Format, SixtyFourBitLengthOfTheOtherCompiler)
{
	EXPECT_EQ("-5000000000", ToStd(FString::Printf(TEXT("%I64d"), (int64)-5000000000)));
}

TEST(Format, HexadecimalIntegers)
{
	EXPECT_EQ("ff FF 0xff 00FF", ToStd(FString::Printf(TEXT("%x %X %#x %04X"), 255, 255, 255, 255)));
}

TEST(Format, IntegersLikeTheCLibrary)
{
	for (const int32 Value : {0, 1, -1, 42, -12345, MAX_int32})
	{
		EXPECT_EQ(Reference("%8d|", Value), ToStd(FString::Printf(TEXT("%8d|"), Value)));
		EXPECT_EQ(Reference("%-8d|", Value), ToStd(FString::Printf(TEXT("%-8d|"), Value)));
		EXPECT_EQ(Reference("%08d|", Value), ToStd(FString::Printf(TEXT("%08d|"), Value)));
		EXPECT_EQ(Reference("%+d|", Value), ToStd(FString::Printf(TEXT("%+d|"), Value)));
		EXPECT_EQ(Reference("% d|", Value), ToStd(FString::Printf(TEXT("% d|"), Value)));
		EXPECT_EQ(Reference("%.4d|", Value), ToStd(FString::Printf(TEXT("%.4d|"), Value)));
		EXPECT_EQ(Reference("%8.4d|", Value), ToStd(FString::Printf(TEXT("%8.4d|"), Value)));
		EXPECT_EQ(Reference("%o|", Value), ToStd(FString::Printf(TEXT("%o|"), Value)));
	}
}

TEST(Format, FloatingPointLikeTheCLibrary)
{
	for (const double Value : {0.0, -0.0, 0.35, -1.5, 1.0 / 3.0, 1e-7, 123456789.125, 1e300, 2.5, 0.05})
	{
		EXPECT_EQ(Reference("%f|", Value), ToStd(FString::Printf(TEXT("%f|"), Value)));
		EXPECT_EQ(Reference("%.2f|", Value), ToStd(FString::Printf(TEXT("%.2f|"), Value)));
		EXPECT_EQ(Reference("%.0f|", Value), ToStd(FString::Printf(TEXT("%.0f|"), Value)));
		EXPECT_EQ(Reference("%12.3f|", Value), ToStd(FString::Printf(TEXT("%12.3f|"), Value)));
		EXPECT_EQ(Reference("%-12.3f|", Value), ToStd(FString::Printf(TEXT("%-12.3f|"), Value)));
		EXPECT_EQ(Reference("%+012.3f|", Value), ToStd(FString::Printf(TEXT("%+012.3f|"), Value)));
		EXPECT_EQ(Reference("%e|", Value), ToStd(FString::Printf(TEXT("%e|"), Value)));
		EXPECT_EQ(Reference("%g|", Value), ToStd(FString::Printf(TEXT("%g|"), Value)));
		EXPECT_EQ(Reference("%G|", Value), ToStd(FString::Printf(TEXT("%G|"), Value)));
		EXPECT_EQ(Reference("%.17g|", Value), ToStd(FString::Printf(TEXT("%.17g|"), Value)));
	}
}

TEST(Format, SixDecimalsCutSmallNumbersToZero)
{
	EXPECT_EQ("0.000000", ToStd(FString::Printf(TEXT("%f"), 1e-7f)));
}

TEST(Format, TextsWithWidthAndPrecision)
{
	EXPECT_EQ("[  ab][ab  ][a]", ToStd(FString::Printf(TEXT("[%4s][%-4s][%.1s]"), TEXT("ab"), TEXT("ab"), TEXT("ab"))));
}

TEST(Format, WidthAndPrecisionFromArguments)
{
	EXPECT_EQ("[   ab][7.25  ]", ToStd(FString::Printf(TEXT("[%*s][%*.*f]"), 5, TEXT("ab"), -6, 2, 7.25)));
}

TEST(Format, PrecisionReadsNoFurtherThanItMust)
{
	const TCHAR NotTerminated[2] = {'x', 'y'};
	EXPECT_EQ("xy", ToStd(FString::Printf(TEXT("%.*s"), 2, (const TCHAR*)NotTerminated)));
}

TEST(Format, NullTextIsSaidToBeNull)
{
	EXPECT_EQ("(null)", ToStd(FString::Printf(TEXT("%s"), (const TCHAR*)nullptr)));
}

TEST(Format, NarrowTexts)
{
	EXPECT_EQ("one two", ToStd(FString::Printf(TEXT("%S %hs"), "one", "two")));
}

TEST(Format, CharactersAndPercentSigns)
{
	EXPECT_EQ("a 100%", ToStd(FString::Printf(TEXT("%c %d%%"), TEXT('a'), 100)));
}

TEST(Format, PointersHaveSixteenDigits)
{
	EXPECT_EQ("0x00000000000000ff", ToStd(FString::Printf(TEXT("%p"), (void*)255)));
}

TEST(Format, LongTextsAreNotCut)
{
	const FString Long = FString::ChrN(5000, TEXT('x'));
	EXPECT_EQ(5002, FString::Printf(TEXT("<%s>"), *Long).Len());
}

TEST(Format, BufferReportsWhatDoesNotFit)
{
	TCHAR Buffer[4];
	EXPECT_EQ(3, FCString::Snprintf(Buffer, 4, TEXT("%d"), 123));
	EXPECT_EQ(-1, FCString::Snprintf(Buffer, 4, TEXT("%d"), 1234));
	EXPECT_EQ("123", ToStd(Buffer));
}

TEST(FormatDeathTest, UnknownConversionIsFatal)
{
	EXPECT_DEATH(FString::Printf(TEXT("%y"), 1), "Unknown conversion in a format: %y");
}

TEST(FormatDeathTest, FormatThatEndsInsideAConversionIsFatal)
{
	EXPECT_DEATH(FString::Printf(TEXT("50%")), "A format ends inside a conversion");
}
