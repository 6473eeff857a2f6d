// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

struct FSlateBrush;

// The base of the styles of whole widgets. The engine reflects these structs; here they are plain.

/** The base of the styles of whole widgets. */
struct SLATECORE_API FSlateWidgetStyle
{
	/** Makes a style. */
	FSlateWidgetStyle() {}

	/** Destroys the style. */
	virtual ~FSlateWidgetStyle() {}

	/** Adds the brushes that the style uses to a list. */
	virtual void GetResources(TArray<const FSlateBrush*>& /*OutBrushes*/) const {}

	/** Returns the name of the style's type. */
	virtual const FName GetTypeName() const { return FName(TEXT("FSlateWidgetStyle")); }
};
