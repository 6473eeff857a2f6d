// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"

// What a style gives for names that it does not know. Left out: sounds.

/** What a style gives for names that it does not know. */
class SLATECORE_API FStyleDefaults
{
public:
	/** Returns zero. */
	static float GetFloat() { return 0.0f; }

	/** Returns the zero vector. */
	static FVector2D GetVector2D() { return FVector2D(0.0f, 0.0f); }

	/** Returns white. */
	static const FLinearColor& GetColor();

	/** Returns white. */
	static FSlateColor GetSlateColor();

	/** Returns the margin without space. */
	static const FMargin& GetMargin();

	/** Returns a small font of the default family. */
	static const FSlateFontInfo& GetFontInfo();

	/** Returns the brush that paints nothing. */
	static const FSlateBrush* GetNoBrush();
};
