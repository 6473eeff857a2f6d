// Copyright The Tintmill authors. All rights reserved.

#include "HAL/PlatformMisc.h"
#include "HAL/PlatformProcess.h"

#include "Containers/UnrealString.h"
#include "Support/Text.h"
#include "gtest/gtest.h"

#include <stdlib.h>
#include <type_traits>

static_assert(std::is_same<TCHAR, wchar_t>::value, "Texts are made of wchar_t on Windows.");
static_assert(sizeof(TCHAR) == 2, "Texts are UTF-16.");

TEST(WindowsPlatform, SignBeyondSixteenBitsTakesTwoUnits)
{
	const FString Text(UTF8_TO_TCHAR("\xf0\x9f\x98\x80"));
	ASSERT_EQ(2, Text.Len());
	EXPECT_EQ(0xD83D, Text[0]);
	EXPECT_EQ(0xDE00, Text[1]);
	EXPECT_EQ("\xf0\x9f\x98\x80", ToStd(Text));
}

TEST(WindowsPlatform, EnvironmentIsReadAsUtf16)
{
	_wputenv_s(L"TINTMILL_TEST_USER", L"J\u00fcrgen \u8272");
	EXPECT_EQ("J\xc3\xbcrgen \xe8\x89\xb2", ToStd(FPlatformMisc::GetEnvironmentVariable(TEXT("TINTMILL_TEST_USER"))));
	_wputenv_s(L"TINTMILL_TEST_USER", L"");
}

TEST(WindowsPlatform, ConfigurationAndBinariesHaveTheirOwnNames)
{
	EXPECT_EQ("Windows", ToStd(FPlatformMisc::GetIniPlatform()));
	EXPECT_EQ("Win64", ToStd(FPlatformProcess::GetBinariesSubdirectory()));
}
