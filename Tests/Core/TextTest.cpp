// Copyright The Tintmill authors. All rights reserved.

#include "Internationalization/Internationalization.h"

#include "Internationalization/Text.h"
#include "Support/Printers.h"
#include "gtest/gtest.h"
#include <limits>

#define LOCTEXT_NAMESPACE "TextTest"

namespace
{
std::string Formatted(const FText& Text)
{
	return ToStd(Text.ToString());
}
}

TEST(FText, LocalizableTextKnowsNamespaceKeyAndSource)
{
	const FText Text = LOCTEXT("Key", "Words");
	EXPECT_EQ("Words", Formatted(Text));
	EXPECT_EQ("TextTest", ToStd(FTextInspector::GetNamespace(Text).GetValue()));
	EXPECT_EQ("Key", ToStd(FTextInspector::GetKey(Text).GetValue()));
	EXPECT_EQ("Words", ToStd(*FTextInspector::GetSourceString(Text)));
	EXPECT_EQ("Words", ToStd(FTextInspector::GetDisplayString(Text)));
	EXPECT_TRUE(FTextInspector::ShouldGatherForLocalization(Text));
}

TEST(FText, NamespaceCanBeNamedOnTheSpot)
{
	const FText Text = NSLOCTEXT("Elsewhere", "Key", "Words");
	EXPECT_EQ("Elsewhere", ToStd(FTextInspector::GetNamespace(Text).GetValue()));
}

TEST(FText, TwoTextsThatShareAKeyKeepTheirOwnWords)
{
	const FText First = LOCTEXT("Shared", "One");
	const FText Second = LOCTEXT("Shared", "Two");
	EXPECT_EQ("One", Formatted(First));
	EXPECT_EQ("Two", Formatted(Second));
	EXPECT_FALSE(First.IdenticalTo(Second));
}

TEST(FText, PlainTextHasNeitherNamespaceNorKey)
{
	for (const FText& Text : {FText::FromString(TEXT("Plain")), FText::GetEmpty(), FText(), INVTEXT("Plain"), FText::FromName("Plain")})
	{
		EXPECT_FALSE(FTextInspector::GetNamespace(Text).IsSet());
		EXPECT_FALSE(FTextInspector::GetKey(Text).IsSet());
	}
}

TEST(FText, InvariantTextSaysSo)
{
	EXPECT_TRUE(INVTEXT("Same everywhere").IsCultureInvariant());
	EXPECT_FALSE(LOCTEXT("Key", "Words").IsCultureInvariant());
}

TEST(FText, EmptyAndWhiteSpace)
{
	EXPECT_TRUE(FText().IsEmpty());
	EXPECT_TRUE(FText::FromString(TEXT(" \t")).IsEmptyOrWhitespace());
	EXPECT_FALSE(FText::FromString(TEXT(" ")).IsEmpty());
}

TEST(FText, ComparisonRegardsCaseUnlessAskedNotTo)
{
	EXPECT_TRUE(LOCTEXT("A", "Words").EqualTo(FText::FromString(TEXT("Words"))));
	EXPECT_FALSE(LOCTEXT("A", "Words").EqualTo(FText::FromString(TEXT("words"))));
	EXPECT_TRUE(LOCTEXT("A", "Words").EqualToCaseIgnored(FText::FromString(TEXT("words"))));
}

TEST(FText, CopiesAreIdenticalAndEqualWordsAloneAreNot)
{
	const FText Text = FText::FromString(TEXT("Words"));
	const FText Copy(Text);
	EXPECT_TRUE(Text.IdenticalTo(Copy));
	EXPECT_FALSE(Text.IdenticalTo(FText::FromString(TEXT("Words"))));
}

TEST(FText, OrderedArgumentsFillTheirPlaces)
{
	EXPECT_EQ("b before a", Formatted(FText::Format(LOCTEXT("Order", "{1} before {0}"), INVTEXT("a"), INVTEXT("b"))));
}

TEST(FText, PlaceholderWithoutArgumentStaysAsTyped)
{
	EXPECT_EQ("a {1} {Name}", Formatted(FText::Format(INVTEXT("{0} {1} {Name}"), INVTEXT("a"))));
}

TEST(FText, NamedArgumentsFillTheirPlaces)
{
	FFormatNamedArguments Arguments;
	Arguments.Add(TEXT("Look"), INVTEXT("Teal"));
	Arguments.Add(TEXT("Count"), 1234567);
	EXPECT_EQ("Teal 1,234,567 {Other}", Formatted(FText::Format(INVTEXT("{Look} {Count} {Other}"), Arguments)));
}

TEST(FText, BackTickTakesABraceItsMeaning)
{
	EXPECT_EQ("{0} a", Formatted(FText::Format(INVTEXT("`{0`} {0}"), INVTEXT("a"))));
}

TEST(FText, ArgumentsAreNotSearchedForPlaceholders)
{
	EXPECT_EQ("{1} x", Formatted(FText::Format(INVTEXT("{0} {1}"), INVTEXT("{1}"), INVTEXT("x"))));
}

TEST(FText, NumbersAreGroupedWithAtMostThreeDecimals)
{
	EXPECT_EQ("0", Formatted(FText::AsNumber(0)));
	EXPECT_EQ("-1,234", Formatted(FText::AsNumber(-1234)));
	EXPECT_EQ("999", Formatted(FText::AsNumber(999)));
	EXPECT_EQ("1,234.568", Formatted(FText::AsNumber(1234.5678)));
	EXPECT_EQ("0.35", Formatted(FText::AsNumber(0.35f)));
	EXPECT_EQ("-9,223,372,036,854,775,808", Formatted(FText::AsNumber(std::numeric_limits<int64>::min())));
}

TEST(FText, NumberOptionsSetDigitsAndGrouping)
{
	FNumberFormattingOptions Options;
	Options.UseGrouping = false;
	Options.MinimumFractionalDigits = 2;
	Options.MaximumFractionalDigits = 2;
	EXPECT_EQ("1234.50", Formatted(FText::AsNumber(1234.5, &Options)));
}

TEST(FText, PercentagesAreWhole)
{
	EXPECT_EQ("50%", Formatted(FText::AsPercent(0.5f)));
}

TEST(FText, JoinPutsTheDelimiterBetween)
{
	EXPECT_EQ("a, b", Formatted(FText::Join(INVTEXT(", "), {INVTEXT("a"), INVTEXT("b")})));
}

TEST(FTextDeathTest, ArgumentModifiersAreRefused)
{
	EXPECT_DEATH(FText::Format(INVTEXT("{0}|plural(one=look,other=looks)"), 2), "not in this stand-in: FText::Format argument modifiers");
}

#undef LOCTEXT_NAMESPACE
