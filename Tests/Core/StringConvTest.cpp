// Copyright The Tintmill authors. All rights reserved.

#include "Containers/StringConv.h"

#include "Support/Printers.h"
#include "gtest/gtest.h"

namespace
{
std::string FromUtf8(const char* Bytes)
{
	// Shown as UTF-16 units, so that replacements can be told from what was there.
	const FUTF8ToTCHAR Converted(Bytes);
	std::string Units;
	for (int32 Index = 0; Index < Converted.Length(); ++Index)
	{
		char Unit[8];
		std::snprintf(Unit, sizeof(Unit), "%04X ", (unsigned)Converted.Get()[Index]);
		Units += Unit;
	}
	return Units;
}

std::string ToUtf8(std::initializer_list<int32> Units)
{
	FString Text;
	for (const int32 Unit : Units)
	{
		Text.AppendChar((TCHAR)Unit);
	}
	return FTCHARToUTF8(*Text).Get();
}
}

TEST(StringConv, EveryLengthOfUtf8IsReadAndWritten)
{
	EXPECT_EQ("0041 00E9 20AC D83D DE00 ", FromUtf8("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"));
	EXPECT_EQ("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", ToUtf8({0x41, 0xE9, 0x20AC, 0xD83D, 0xDE00}));
}

TEST(StringConv, LoneSurrogatesBecomeQuestionMarks)
{
	EXPECT_EQ("a?b", ToUtf8({'a', 0xD83D, 'b'}));
	EXPECT_EQ("a?b", ToUtf8({'a', 0xDE00, 'b'}));
	EXPECT_EQ("??", ToUtf8({0xDE00, 0xD83D}));
}

TEST(StringConv, BrokenUtf8BecomesOneQuestionMarkForEachBadByte)
{
	EXPECT_EQ("003F 0041 ",
		FromUtf8("\x80"
				 "A"));
	EXPECT_EQ("003F 0041 ",
		FromUtf8("\xC3"
				 "A"));
	EXPECT_EQ("003F 003F ", FromUtf8("\xE2\x82"));
	EXPECT_EQ("003F ", FromUtf8("\xFF"));
}

TEST(StringConv, OverlongSurrogateAndTooLargeCodePointsAreNotRead)
{
	EXPECT_EQ("003F 003F ", FromUtf8("\xC0\xAF"));
	EXPECT_EQ("003F 003F 003F ", FromUtf8("\xE0\x80\xAF"));
	EXPECT_EQ("003F 003F 003F ", FromUtf8("\xED\xA0\x80"));
	EXPECT_EQ("003F 003F 003F 003F ", FromUtf8("\xF4\x90\x80\x80"));
}

TEST(StringConv, AsciiConversionReplacesWhatIsNotAscii)
{
	EXPECT_STREQ("a?c", TCHAR_TO_ANSI(TEXT("a\u00e9c")));
	EXPECT_EQ(FString(TEXT("abc")), FString(ANSI_TO_TCHAR("abc")));
}

TEST(StringConv, LengthLeavesOutTheTerminator)
{
	const FTCHARToUTF8 Converted(TEXT("\u00e9\u00e9"));
	EXPECT_EQ(4, Converted.Length());
	EXPECT_EQ(0, Converted.Get()[4]);
}

TEST(StringConv, PartOfAStringIsConverted)
{
	EXPECT_STREQ("ab", FTCHARToUTF8(TEXT("abcdef"), 2).Get());
}

TEST(StringConv, LongStringsAreConvertedWhole)
{
	const FString Long = FString::ChrN(1000, (TCHAR)0x20AC);
	EXPECT_EQ(3000, FTCHARToUTF8(*Long).Length());
	EXPECT_TRUE(FString(UTF8_TO_TCHAR(TCHAR_TO_UTF8(*Long))).Equals(Long));
}

TEST(StringConv, NullGivesNull)
{
	EXPECT_EQ(nullptr, FTCHARToUTF8(nullptr).Get());
}

TEST(StringConv, ConverterCanBeMoved)
{
	FTCHARToUTF8 Short(TEXT("abc"));
	const FTCHARToUTF8 Moved(MoveTemp(Short));
	EXPECT_STREQ("abc", Moved.Get());
}
