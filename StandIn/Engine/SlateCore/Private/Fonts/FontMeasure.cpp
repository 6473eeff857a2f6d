// Copyright The Tintmill authors. All rights reserved.

#include "Fonts/FontMeasure.h"
#include "StandIn/FontMeasurer.h"

FVector2D FSlateFontMeasure::Measure(const FString& Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return Measure(Text, 0, Text.Len(), InFontInfo, true, FontScale);
}

FVector2D FSlateFontMeasure::Measure(const FText& Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return Measure(Text.ToString(), InFontInfo, FontScale);
}

FVector2D FSlateFontMeasure::Measure(const TCHAR* Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return Measure(FString(Text), InFontInfo, FontScale);
}

FVector2D FSlateFontMeasure::Measure(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
	bool /*bIncludeKerningWithPrecedingChar*/, float FontScale) const
{
	StandIn::IFontMeasurer& Measurer = StandIn::GetFontMeasurer();
	const TCHAR* Characters = *Text;
	float Width = 0.0f;
	int32 LineCount = 1;
	int32 LineStart = StartIndex;
	for (int32 Index = StartIndex; Index <= EndIndex; ++Index)
	{
		if (Index == EndIndex || Characters[Index] == TEXT('\n'))
		{
			const int32 Length = Index - LineStart;
			Width = FMath::Max(Width, Length > 0 ? Measurer.MeasureLine(Characters + LineStart, Length, InFontInfo, FontScale) : 0.0f);
			LineStart = Index + 1;
			LineCount += Index == EndIndex ? 0 : 1;
		}
	}
	return FVector2D(Width, Measurer.GetLineHeight(InFontInfo, FontScale) * static_cast<float>(LineCount));
}

int32 FSlateFontMeasure::FindCharacterIndexAtOffset(
	const FString& Text, const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, float FontScale) const
{
	float Before = 0.0f;
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		const float After = Measure(Text, 0, Index + 1, InFontInfo, true, FontScale).X;
		if (static_cast<float>(HorizontalOffset) < (Before + After) / 2.0f)
		{
			return Index;
		}
		Before = After;
	}
	return Text.Len();
}

int32 FSlateFontMeasure::FindLastWholeCharacterIndexBeforeOffset(
	const FString& Text, const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, float FontScale) const
{
	int32 LastWhole = INDEX_NONE;
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		if (Measure(Text, 0, Index + 1, InFontInfo, true, FontScale).X > static_cast<float>(HorizontalOffset))
		{
			break;
		}
		LastWhole = Index;
	}
	return LastWhole;
}

uint16 FSlateFontMeasure::GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return static_cast<uint16>(StandIn::GetFontMeasurer().GetLineHeight(InFontInfo, FontScale));
}

int16 FSlateFontMeasure::GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	StandIn::IFontMeasurer& Measurer = StandIn::GetFontMeasurer();
	return static_cast<int16>(Measurer.GetAscent(InFontInfo, FontScale) - Measurer.GetLineHeight(InFontInfo, FontScale));
}
