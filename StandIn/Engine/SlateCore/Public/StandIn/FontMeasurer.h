// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

// The service behind FSlateFontMeasure. The default knows no fonts: a character is half an em wide, a wide one (East Asian,
// emoji) a whole em, a combining mark nothing; a line is four thirds of an em high.

namespace StandIn
{
/** Measures one line of text; sizes are in pixels. */
class IFontMeasurer
{
public:
	/** Destroys the measurer. */
	virtual ~IFontMeasurer() {}

	/** Returns the width of Length characters in a font whose size is multiplied by Scale. */
	virtual float MeasureLine(const TCHAR* Text, int32 Length, const FSlateFontInfo& Font, float Scale) = 0;

	/** Returns the height of a line. */
	virtual float GetLineHeight(const FSlateFontInfo& Font, float Scale) = 0;

	/** Returns the distance from a line's upper edge to the baseline. */
	virtual float GetAscent(const FSlateFontInfo& Font, float Scale) = 0;
};

/** Replaces the measurer; null restores the default. Returns the one that was in force, null for the default. */
SLATECORE_API TSharedPtr<IFontMeasurer> SetFontMeasurer(const TSharedPtr<IFontMeasurer>& Measurer);

/** Returns the measurer in force. */
SLATECORE_API IFontMeasurer& GetFontMeasurer();
}
