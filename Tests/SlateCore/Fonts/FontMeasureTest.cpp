// Copyright The Tintmill authors. All rights reserved.

#include "Fonts/FontMeasure.h"
#include "StandIn/FontMeasurer.h"
#include "Styling/CoreStyle.h"
#include "Support/SlateWidgets.h"
#include "gtest/gtest.h"

namespace
{
FSlateFontInfo NinePoints()
{
	return FCoreStyle::GetDefaultFontStyle(FName(TEXT("Regular")), 9);
}

/** Every character is ten wide, every line twenty high. */
class FTenMeasurer : public StandIn::IFontMeasurer
{
public:
	float MeasureLine(const TCHAR*, int32 Length, const FSlateFontInfo&, float Scale) override { return 10.0f * Length * Scale; }
	float GetLineHeight(const FSlateFontInfo&, float Scale) override { return 20.0f * Scale; }
	float GetAscent(const FSlateFontInfo&, float Scale) override { return 15.0f * Scale; }
};
}

TEST(FSlateFontMeasure, MeasuresHalfAnEmACharacterAndFourThirdsALine)
{
	EXPECT_EQ(FVector2D(30, 16), FSlateFontMeasure().Measure(TEXT("Hello"), NinePoints()));
}

TEST(FSlateFontMeasure, GivesWideCharactersAWholeEmAndCombiningOnesNothing)
{
	EXPECT_EQ(12.0f, FSlateFontMeasure().Measure(TEXT("\u65E5"), NinePoints()).X);
	EXPECT_EQ(6.0f, FSlateFontMeasure().Measure(TEXT("e\u0301"), NinePoints()).X);
	EXPECT_EQ(12.0f, FSlateFontMeasure().Measure(TEXT("\U0001F600"), NinePoints()).X);
}

TEST(FSlateFontMeasure, MeasuresTheWidestOfSeveralLines)
{
	EXPECT_EQ(FVector2D(24, 32), FSlateFontMeasure().Measure(TEXT("ab\nabcd"), NinePoints()));
}

TEST(FSlateFontMeasure, GrowsWithTheScale)
{
	EXPECT_EQ(FVector2D(12, 32), FSlateFontMeasure().Measure(TEXT("a"), NinePoints(), 2.0f));
}

TEST(FSlateFontMeasure, FindsTheCharacterAtAnOffset)
{
	const FString Text(TEXT("abc"));
	EXPECT_EQ(0, FSlateFontMeasure().FindCharacterIndexAtOffset(Text, NinePoints(), 2));
	EXPECT_EQ(1, FSlateFontMeasure().FindCharacterIndexAtOffset(Text, NinePoints(), 5));
	EXPECT_EQ(3, FSlateFontMeasure().FindCharacterIndexAtOffset(Text, NinePoints(), 99));
	EXPECT_EQ(1, FSlateFontMeasure().FindLastWholeCharacterIndexBeforeOffset(Text, NinePoints(), 13));
}

TEST(SetFontMeasurer, ReplacesTheServiceUntilItIsRestored)
{
	StandIn::SetFontMeasurer(MakeShareable(new FTenMeasurer()));
	const FVector2D Replaced = FSlateFontMeasure().Measure(TEXT("abc"), NinePoints());
	StandIn::SetFontMeasurer(TSharedPtr<StandIn::IFontMeasurer>());
	EXPECT_EQ(FVector2D(30, 20), Replaced);
	EXPECT_EQ(FVector2D(18, 16), FSlateFontMeasure().Measure(TEXT("abc"), NinePoints()));
}
