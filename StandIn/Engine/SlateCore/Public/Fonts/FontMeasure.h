// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

// How large a text is. Measuring is a service (see StandIn/FontMeasurer.h) with a fixed default.

/** Measures texts in fonts; sizes are in pixels at the given font scale. */
class SLATECORE_API FSlateFontMeasure
{
public:
	/** Measures a string; a line break starts a new line. */
	FVector2D Measure(const FString& Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

	/** Measures a text. */
	FVector2D Measure(const FText& Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

	/** Measures a terminated string. */
	FVector2D Measure(const TCHAR* Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

	/** Measures the characters from StartIndex up to, not including, EndIndex. */
	FVector2D Measure(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
		bool bIncludeKerningWithPrecedingChar = true, float FontScale = 1.0f) const;

	/** Returns the index of the character at a horizontal offset; the text's length behind its end. */
	int32 FindCharacterIndexAtOffset(
		const FString& Text, const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, float FontScale = 1.0f) const;

	/** Returns the index of the last whole character before a horizontal offset, INDEX_NONE if none fits. */
	int32 FindLastWholeCharacterIndexBeforeOffset(
		const FString& Text, const FSlateFontInfo& InFontInfo, const int32 HorizontalOffset, float FontScale = 1.0f) const;

	/** Returns the height of a line. */
	uint16 GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

	/** Returns the distance from a line's lower edge up to the baseline, as a negative number. */
	int16 GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;
};
