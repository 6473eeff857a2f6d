// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

// How the lines of the log are set.

namespace TintmillHost
{
/** Space on the left of the text, in Slate units. */
constexpr float LogTextIndent = 6.0f;

/** The font of the log. */
FSlateFontInfo GetLogFont();

/** The height of a line, in Slate units. */
float GetLogLineHeight();

/** The width of a text's first characters, in Slate units. */
float MeasureLog(const FString& Text, int32 Length);

/** The place between two characters that is nearest to a distance from the text's beginning; never between a character and what belongs to it. */
int32 FindLogColumn(const FString& Text, float Distance);

/** Where the word around a place begins (Step -1) or ends (Step 1). */
int32 FindLogWordEnd(const FString& Text, int32 Column, int32 Step);
}
