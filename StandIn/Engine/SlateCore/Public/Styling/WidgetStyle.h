// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Styling/SlateColor.h"

// Colours that go down the tree with a paint pass.

/** The tint and the foreground colour in force, handed down from parent to child. */
class SLATECORE_API FWidgetStyle
{
public:
	/** Makes the style of a window: no tint, default foreground. */
	FWidgetStyle();

	/** Multiplies the tint. */
	FWidgetStyle& BlendColorAndOpacityTint(const FLinearColor& InTint);

	/** Multiplies the opacity. */
	FWidgetStyle& BlendOpacity(float InOpacity);

	/** Sets the foreground colour; the wish for the foreground leaves it. */
	FWidgetStyle& SetForegroundColor(const TAttribute<FSlateColor>& InForeground);

	/** Sets the foreground colour; the wish for the foreground leaves it. */
	FWidgetStyle& SetForegroundColor(const FSlateColor& InForeground);

	/** Returns the tint. */
	const FLinearColor& GetColorAndOpacityTint() const { return ColorAndOpacityTint; }

	/** Returns the foreground colour. */
	const FLinearColor& GetForegroundColor() const { return ForegroundColor; }

	/** Returns the subdued foreground colour. */
	const FLinearColor& GetSubduedForegroundColor() const { return SubduedForeground; }

	/** The alpha of the subdued foreground relative to the foreground. */
	static const float SubdueAmount;

private:
	FLinearColor ColorAndOpacityTint;
	FLinearColor ForegroundColor;
	FLinearColor SubduedForeground;
};
