// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/ISlateStyle.h"

// The engine's own style: the dark theme of the editor. Its brushes name shapes (see StandIn/BrushShape.h), not files.

/** The engine's own style set, "CoreStyle". */
class SLATECORE_API FCoreStyle
{
public:
	/** Returns the style, which exists and is registered from the first use on. */
	static const ISlateStyle& Get();

	/** Makes a style set of the default values. */
	static TSharedRef<ISlateStyle> Create(const FName& InStyleSetName = FName(TEXT("CoreStyle")));

	/** Makes the default style the one in force. */
	static void ResetToDefault();

	/** Returns the default font family. */
	static TSharedRef<const FCompositeFont> GetDefaultFont();

	/** Returns a face of the default family at a size in points. */
	static FSlateFontInfo GetDefaultFontStyle(const FName InTypefaceFontName, const int32 InSize);
};
