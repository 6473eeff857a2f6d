// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/FontMeasure.h"

class ISlateStyle;

// The renderer as widgets see it: a way to the font measure. Everything else about drawing is the host's.

/** The renderer as widgets see it. */
class SLATECORE_API FSlateRenderer
{
public:
	/** Makes a renderer. */
	FSlateRenderer();

	/** Destroys the renderer. */
	virtual ~FSlateRenderer() {}

	/** Returns the service that measures texts. */
	TSharedRef<FSlateFontMeasure> GetFontMeasureService() const { return FontMeasure; }

	/** Is told of a style that was registered; images are loaded when they are first drawn. */
	virtual void LoadStyleResources(const ISlateStyle& Style);

private:
	TSharedRef<FSlateFontMeasure> FontMeasure;
};
