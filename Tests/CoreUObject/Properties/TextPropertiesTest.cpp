// Copyright The Tintmill authors. All rights reserved.

#include "ValueTextHelpers.h"
#include "gtest/gtest.h"

TEST(NameProperty, IsQuotedInsideOfAStructWithoutEscapes)
{
	FCoreTestValues Value;
	Value.Name = TEXT("A\\b c");
	EXPECT_EQ(ExportField(Value, TEXT("Name")), "\"A\\b c\"");
}

TEST(NameProperty, IsBareOutsideOfAStruct)
{
	FCoreTestValues Value;
	Value.Name = TEXT("A b_3");
	EXPECT_EQ(ExportField(Value, TEXT("Name"), PPF_None), "A b_3");
}

TEST(NameProperty, WritesNoNameAsNone)
{
	EXPECT_EQ(ExportField(FCoreTestValues(), TEXT("Name")) + ExportField(FCoreTestValues(), TEXT("Name"), PPF_None), "\"None\"None");
}

TEST(NameProperty, ReadsAQuotedNameWithBlanksAndParentheses)
{
	EXPECT_EQ(ToStd(FValuesText("(Name=\"FourPanes2x2.Viewport 1.(x)\")")->Name), "FourPanes2x2.Viewport 1.(x)");
}

TEST(NameProperty, ReadsABareNameUpToTheNextBlank)
{
	EXPECT_EQ(ToStd(FValuesText("(Name=Viewport 1,Int32=9)")->Name), "Viewport");
}

TEST(NameProperty, ReadsNoneAndAnEmptyQuoteAsNoName)
{
	EXPECT_TRUE(FValuesText("(Name=none)")->Name.IsNone() && FValuesText("(Name=\"\")")->Name.IsNone());
}

TEST(NameProperty, RefusesATextThatIsTooLongForAName)
{
	const FValuesText Read("(Name=\"" + std::string(2000, 'x') + "\",Int32=9)");
	EXPECT_TRUE(Read->Name.IsNone() && Read->Int32 == 9);
}

TEST(StrProperty, IsBareOutsideOfAStruct)
{
	FCoreTestValues Value;
	Value.String = TEXT("a \"b\"");
	EXPECT_EQ(ExportField(Value, TEXT("String"), PPF_None), "a \"b\"");
}

TEST(StrProperty, IsQuotedWithEscapesInsideOfAStruct)
{
	FCoreTestValues Value;
	Value.String = TEXT("a \"b\" \\ \n");
	EXPECT_EQ(ExportField(Value, TEXT("String")), "\"a \\\"b\\\" \\\\ \\n\"");
}

TEST(StrProperty, WritesAnEmptyStringAsEmptyQuotes)
{
	EXPECT_EQ(ExportField(FCoreTestValues(), TEXT("String")), "\"\"");
}

TEST(StrProperty, ToleratesABareToken)
{
	EXPECT_EQ(ToStd(FValuesText("(String=word,Int32=9)")->String), "word");
}

TEST(StrProperty, KeepsItsDefaultWhenTheQuoteStaysOpen)
{
	const FValuesText Read("(Int32=9,String=\"open)");
	EXPECT_TRUE(!Read.bRead && Read->Int32 == 9 && Read->String.IsEmpty());
}

TEST(StrProperty, ReadsTextsBeyondAscii)
{
	EXPECT_EQ(ToStd(FValuesText("(String=\"\xC3\xA4\xF0\x9F\x8E\xA8\")")->String), "\xC3\xA4\xF0\x9F\x8E\xA8");
}

TEST(TextProperty, WritesNamespaceKeyAndSourceOfALocalizableText)
{
	FCoreTestValues Value;
	Value.Text = FText::MakeLocalizable(TEXT("Hello"), TEXT("Ns"), TEXT("Key"));
	EXPECT_EQ(ExportField(Value, TEXT("Text")), "NSLOCTEXT(\"Ns\", \"Key\", \"Hello\")");
}

TEST(TextProperty, WritesPlainTextsQuotedInsideOfAStruct)
{
	FCoreTestValues Value;
	Value.Text = FText::FromString(TEXT("Hello"));
	EXPECT_EQ(ExportField(Value, TEXT("Text")), "\"Hello\"");
}

TEST(TextProperty, ReadsALocalizableTextBack)
{
	const FValuesText Read("(Text=NSLOCTEXT(\"Ns\",\"Key\" , \"Hel\\\"lo\"),Int32=9)");
	EXPECT_TRUE(
		Read->Int32 == 9 && FTextInspector::GetKey(Read->Text).GetValue() == TEXT("Key") && Read->Text.ToString() == TEXT("Hel\"lo"));
}

TEST(TextProperty, KeepsItsDefaultForABrokenCall)
{
	const FValuesText Read("(Text=NSLOCTEXT(\"Ns\",Key),Int32=9)");
	EXPECT_TRUE(Read->Int32 == 9 && Read->Text.IsEmpty());
}
