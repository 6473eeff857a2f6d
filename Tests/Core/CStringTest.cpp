// Copyright The Tintmill authors. All rights reserved.

#include "Misc/CString.h"

#include "Support/Printers.h"
#include "gtest/gtest.h"
#include <cmath>

TEST(CString, LengthCountsUnitsNotCodePoints)
{
	EXPECT_EQ(0, FCString::Strlen(TEXT("")));
	EXPECT_EQ(3, FCString::Strlen(TEXT("abc")));
	EXPECT_EQ(2, FCString::Strlen(TEXT("\U0001F600")));
}

TEST(CString, ComparisonOrdersByUnit)
{
	EXPECT_EQ(0, FCString::Strcmp(TEXT("abc"), TEXT("abc")));
	EXPECT_LT(FCString::Strcmp(TEXT("Abc"), TEXT("abc")), 0);
	EXPECT_GT(FCString::Strcmp(TEXT("abcd"), TEXT("abc")), 0);
	EXPECT_GT(FCString::Strcmp(TEXT("\u00e9"), TEXT("z")), 0);
}

TEST(CString, ComparisonWithoutCaseFoldsAsciiOnly)
{
	EXPECT_EQ(0, FCString::Stricmp(TEXT("HeLLo"), TEXT("hEllO")));
	EXPECT_NE(0, FCString::Stricmp(TEXT("\u00c9"), TEXT("\u00e9")));
	EXPECT_EQ(0, FCStringAnsi::Stricmp("ABC", "abc"));
}

TEST(CString, LimitedComparisonLooksNoFurther)
{
	EXPECT_EQ(0, FCString::Strncmp(TEXT("abcX"), TEXT("abcY"), 3));
	EXPECT_NE(0, FCString::Strncmp(TEXT("abcX"), TEXT("abcY"), 4));
	EXPECT_EQ(0, FCString::Strnicmp(TEXT("ABx"), TEXT("aby"), 2));
}

TEST(CString, SearchesFindFirstAndLast)
{
	const TCHAR* const Text = TEXT("a.b.c");
	EXPECT_EQ(Text + 1, FCString::Strchr(Text, '.'));
	EXPECT_EQ(Text + 3, FCString::Strrchr(Text, '.'));
	EXPECT_EQ(nullptr, FCString::Strchr(Text, 'x'));
	EXPECT_EQ(Text + 2, FCString::Strstr(Text, TEXT("b.")));
	EXPECT_EQ(nullptr, FCString::Strstr(Text, TEXT("B.")));
	EXPECT_EQ(Text + 2, FCString::Stristr(Text, TEXT("B.")));
}

TEST(CString, CopiesAreCutAndTerminated)
{
	TCHAR Buffer[4];
	FCString::Strcpy(Buffer, 4, TEXT("abcdef"));
	EXPECT_EQ("abc", ToStd(Buffer));
	FCString::Strcpy(Buffer, 4, TEXT("a"));
	FCString::Strcat(Buffer, 4, TEXT("bcd"));
	EXPECT_EQ("abc", ToStd(Buffer));
}

TEST(CString, IntegersAreReadUpToTheFirstOtherCharacter)
{
	EXPECT_EQ(42, FCString::Atoi(TEXT("  42abc")));
	EXPECT_EQ(-7, FCString::Atoi(TEXT("-7")));
	EXPECT_EQ(0, FCString::Atoi(TEXT("abc")));
	EXPECT_EQ(MAX_int32, FCString::Atoi(TEXT("99999999999")));
	EXPECT_EQ(5000000000, FCString::Atoi64(TEXT("5000000000")));
	EXPECT_EQ(MIN_int64, FCString::Atoi64(TEXT("-9223372036854775808")));
	EXPECT_EQ(MAX_uint64, FCString::Strtoui64(TEXT("18446744073709551615"), nullptr, 10));
}

TEST(CString, BaseSixteenTakesItsPrefix)
{
	EXPECT_EQ(255, FCString::Strtoi(TEXT("0xFF"), nullptr, 16));
	EXPECT_EQ(255, FCString::Strtoi(TEXT("ff"), nullptr, 16));
	EXPECT_EQ(255, FCString::Strtoi(TEXT("0xff"), nullptr, 0));
}

TEST(CString, EndOfANumberIsReported)
{
	const TCHAR* const Text = TEXT("12px");
	TCHAR* End = nullptr;
	FCString::Strtoi(Text, &End, 10);
	EXPECT_EQ(Text + 2, End);
	FCString::Strtoi(Text + 2, &End, 10);
	EXPECT_EQ(Text + 2, End);
}

TEST(CString, FloatingPointNumbersHaveAPointInEveryLocale)
{
	EXPECT_FLOAT_EQ(0.35f, FCString::Atof(TEXT("0.35")));
	EXPECT_FLOAT_EQ(-1.5f, FCString::Atof(TEXT(" -1.5,7")));
	EXPECT_FLOAT_EQ(2.0f, FCString::Atof(TEXT("+2")));
	EXPECT_DOUBLE_EQ(1e-7, FCString::Atod(TEXT("1e-7")));
	EXPECT_EQ(0.0f, FCString::Atof(TEXT("x")));
	EXPECT_EQ(0.0f, FCString::Atof(TEXT("")));
}

TEST(CString, FloatingPointNumbersOutOfRangeBecomeZeroOrInfinity)
{
	EXPECT_TRUE(std::isinf(FCString::Atod(TEXT("1e999"))));
	EXPECT_LT(FCString::Atod(TEXT("-1e999")), 0.0);
	EXPECT_EQ(0.0, FCString::Atod(TEXT("1e-999")));
}

TEST(CString, NumericTextIsOneNumber)
{
	EXPECT_TRUE(FCString::IsNumeric(TEXT("-12.5")));
	EXPECT_FALSE(FCString::IsNumeric(TEXT("1.2.3")));
	EXPECT_FALSE(FCString::IsNumeric(TEXT("12a")));
	EXPECT_FALSE(FCString::IsNumeric(TEXT("-")));
}

TEST(CString, TruthIsReadFromWordsAndNumbers)
{
	EXPECT_TRUE(FCString::ToBool(TEXT("true")));
	EXPECT_TRUE(FCString::ToBool(TEXT("YES")));
	EXPECT_TRUE(FCString::ToBool(TEXT("1")));
	EXPECT_FALSE(FCString::ToBool(TEXT("False")));
	EXPECT_FALSE(FCString::ToBool(TEXT("0")));
	EXPECT_FALSE(FCString::ToBool(TEXT("maybe")));
}
