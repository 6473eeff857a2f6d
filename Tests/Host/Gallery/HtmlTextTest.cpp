// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/HtmlText.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
TEST(HtmlText, WhatHtmlUsesIsEscaped)
{
	EXPECT_EQ(EscapeHtml("<a href=\"x\">R&D</a>"), "&lt;a href=&quot;x&quot;&gt;R&amp;D&lt;/a&gt;");
}

TEST(HtmlText, TextOfOtherScriptsStaysAsItIs)
{
	EXPECT_EQ(EscapeHtml("Größe 色 😀"), "Größe 色 😀");
}

TEST(HtmlText, BytesThatAreNoTextBecomeAMark)
{
	EXPECT_EQ(EscapeHtml("a\xFF\xC3"), "a\xEF\xBF\xBD\xEF\xBF\xBD");
	EXPECT_EQ(EscapeHtml("\xED\xA0\x80"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
	EXPECT_EQ(EscapeHtml(std::string("\0\x1B", 2)), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(HtmlText, TabsStayAndCarriageReturnsGo)
{
	EXPECT_EQ(EscapeHtml("a\tb\r\n"), "a\tb\n");
}

TEST(HtmlText, BytesAreWrittenInBase64)
{
	EXPECT_EQ(EncodeBase64(""), "");
	EXPECT_EQ(EncodeBase64("f"), "Zg==");
	EXPECT_EQ(EncodeBase64("fo"), "Zm8=");
	EXPECT_EQ(EncodeBase64("foo"), "Zm9v");
	EXPECT_EQ(EncodeBase64("foob"), "Zm9vYg==");
	EXPECT_EQ(EncodeBase64("\xFF\xFE\xFD"), "//79");
}

TEST(HtmlText, TimesAreReadable)
{
	EXPECT_EQ(DescribeSeconds(0.00042), "0.4 ms");
	EXPECT_EQ(DescribeSeconds(0.0271), "27 ms");
	EXPECT_EQ(DescribeSeconds(1.317), "1.32 s");
}
}
