// Copyright The Tintmill authors. All rights reserved.

#include "ConfigTestBase.h"

// Reading a saved ini file.

namespace
{
class ConfigRead : public FConfigTestBase
{};
}

TEST_F(ConfigRead, RepeatedBareKeysAreAnArrayInFileOrder)
{
	WriteFile("[S]\nK=c\nOther=x\nK=a\nK=b\n");
	EXPECT_EQ(FTexts({"c", "a", "b"}), Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigRead, BlanksAroundLineKeyAndValueAreDropped)
{
	WriteFile("  [S]  \n\t Key \t=  some value \t\n");
	EXPECT_EQ(FTexts({"some value"}), Get(TEXT("S"), TEXT("Key")));
}

TEST_F(ConfigRead, SectionAndKeyNamesIgnoreCase)
{
	WriteFile("[/Script/Module.Class]\nViewportsSettings=1\n");
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("/script/module.CLASS"), TEXT("viewportssettings")));
}

TEST_F(ConfigRead, CommentsAndLinesWithoutEqualsAreIgnored)
{
	WriteFile("; K=1\n[S]\n;K=2\nK\nK=3\nnonsense\n");
	EXPECT_EQ(FTexts({"3"}), Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigRead, OnlyTheFirstEqualsSignDivides)
{
	WriteFile("[S]\nK=(A=1,B=2)\n");
	EXPECT_EQ(FTexts({"(A=1,B=2)"}), Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigRead, EmptyValueIsAValue)
{
	WriteFile("[S]\nK=\n");
	EXPECT_EQ(FTexts({""}), Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigRead, QuotedValueIsUnescaped)
{
	WriteFile("[S]\nK=\" a \\\"b\\\" // {c} \"\n");
	EXPECT_EQ(FTexts({" a \"b\" // {c} "}), Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigRead, QuoteThatIsNeverClosedStandsForItself)
{
	WriteFile("[S]\nK=\"half\nL=1\n");
	EXPECT_EQ(FTexts({"\"half"}), Get(TEXT("S"), TEXT("K")));
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("L")));
}

TEST_F(ConfigRead, RepeatedSectionsAreMerged)
{
	WriteFile("[S]\nK=1\n\n[T]\nK=x\n\n[s]\nK=2\n");
	EXPECT_EQ(FTexts({"1", "2"}), Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigRead, LinesAboveTheFirstSectionAreIgnored)
{
	WriteFile("K=0\n[S]\nK=1\n");
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigRead, OperatorsInASavedFileAreUnrelatedKeys)
{
	WriteFile("[S]\nK=1\n+K=2\n-K=1\n!K=x\n");
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("K")));
	EXPECT_EQ(FTexts({"2"}), Get(TEXT("S"), TEXT("+K")));
}

TEST_F(ConfigRead, WindowsLineEndsAndAMissingLastOneMakeNoDifference)
{
	WriteFile("[S]\r\nK=1\r\nL=2");
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("K")));
	EXPECT_EQ(FTexts({"2"}), Get(TEXT("S"), TEXT("L")));
}

TEST_F(ConfigRead, Utf8IsReadWithAndWithoutMark)
{
	WriteFile("[S]\nK=caf\xc3\xa9\n");
	EXPECT_EQ(FTexts({"caf\xc3\xa9"}), Get(TEXT("S"), TEXT("K")));
	Cache.UnloadFile(File());
	WriteFile("\xef\xbb\xbf[S]\nK=caf\xc3\xa9\n");
	EXPECT_EQ(FTexts({"caf\xc3\xa9"}), Get(TEXT("S"), TEXT("K")));
}

TEST_F(ConfigRead, Utf16IsReadInBothOrders)
{
	const std::string Text = "[S]\r\nK=1\r\n";
	std::string Little = "\xff\xfe";
	std::string Big = "\xfe\xff";
	for (const char Char : Text)
	{
		Little += {Char, '\0'};
		Big += {'\0', Char};
	}
	WriteFile(Little);
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("K")));
	Cache.UnloadFile(File());
	WriteFile(Big);
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("K")));
	EXPECT_EQ(FTexts(), Notices());
}

TEST_F(ConfigRead, NumbersAndTruthsAreConverted)
{
	WriteFile("[S]\nI=-17\nF=0.350000\nT=true\nN=No\n");
	int32 Integer = 0;
	float Float = 0.0f;
	bool bTrue = false;
	bool bNo = true;
	EXPECT_TRUE(Cache.GetInt(TEXT("S"), TEXT("I"), Integer, File()));
	EXPECT_TRUE(Cache.GetFloat(TEXT("S"), TEXT("F"), Float, File()));
	EXPECT_TRUE(Cache.GetBool(TEXT("S"), TEXT("T"), bTrue, File()));
	EXPECT_TRUE(Cache.GetBool(TEXT("S"), TEXT("N"), bNo, File()));
	EXPECT_EQ(-17, Integer);
	EXPECT_FLOAT_EQ(0.35f, Float);
	EXPECT_TRUE(bTrue);
	EXPECT_FALSE(bNo);
}

TEST_F(ConfigRead, MissingKeySectionAndFileAreToldApartFromEmptyOnes)
{
	WriteFile("[S]\nK=1\n");
	FString Value = TEXT("untouched");
	EXPECT_FALSE(Cache.GetString(TEXT("S"), TEXT("L"), Value, File()));
	EXPECT_FALSE(Cache.GetString(TEXT("T"), TEXT("K"), Value, File()));
	EXPECT_FALSE(Cache.GetString(TEXT("S"), TEXT("K"), Value, Folder.Path("missing.ini")));
	EXPECT_EQ("untouched", ToStd(Value));
	EXPECT_EQ(FTexts(), Notices());
}

TEST_F(ConfigRead, SectionIsListedAsLines)
{
	WriteFile("[S]\nB=2\nA=1\nA=3\n");
	TArray<FString> Lines;
	EXPECT_TRUE(Cache.GetSection(TEXT("S"), Lines, File()));
	ASSERT_EQ(3, Lines.Num());
	EXPECT_EQ("B=2", ToStd(Lines[0]));
	EXPECT_EQ("A=1", ToStd(Lines[1]));
	EXPECT_EQ("A=3", ToStd(Lines[2]));
	EXPECT_FALSE(Cache.GetSection(TEXT("T"), Lines, File()));
}

TEST_F(ConfigRead, OverlongKeyIsSomebodysTextAndNotFatal)
{
	WriteFile("[S]\n" + std::string(5000, 'k') + "=1\nL=2\n");
	EXPECT_EQ(FTexts({"2"}), Get(TEXT("S"), TEXT("L")));
}

TEST_F(ConfigRead, HundredThousandEntriesAreReadSwiftly)
{
	std::string Text = "[S]\n";
	for (int32 Index = 0; Index < 50000; ++Index)
	{
		Text += "Same=" + std::to_string(Index) + "\nKey" + std::to_string(Index) + "x=1\n";
	}
	WriteFile(Text);
	const FTexts Values = Get(TEXT("S"), TEXT("Same"));
	ASSERT_EQ(50000u, Values.size());
	EXPECT_EQ("0", Values.front());
	EXPECT_EQ("49999", Values.back());
	EXPECT_EQ(FTexts({"1"}), Get(TEXT("S"), TEXT("Key49999x")));
}
