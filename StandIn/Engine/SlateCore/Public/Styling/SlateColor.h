// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class FWidgetStyle;

// A colour, or the wish to use the foreground colour in force. The engine reflects this struct; here it is plain.

/** A colour, or the wish to use the foreground colour in force; linear RGB. */
struct SLATECORE_API FSlateColor
{
	/** Makes the default colour, a magenta that is meant to be replaced. */
	FSlateColor();

	/** Makes a colour of a value. */
	FSlateColor(const FLinearColor& InColor);

	/** Makes a colour that follows a shared value. */
	FSlateColor(const TSharedRef<FLinearColor>& InColor);

	/** Returns the colour: the specified one or the foreground of the style in force. */
	const FLinearColor& GetColor(const FWidgetStyle& InWidgetStyle) const;

	/** Returns the specified colour; meaningful only if one is specified. */
	FLinearColor GetSpecifiedColor() const;

	/** Says whether a colour is specified. */
	bool IsColorSpecified() const { return ColorUseRule == EColorRule::Specified || ColorUseRule == EColorRule::Linked; }

	/** Makes the wish for the foreground colour in force. */
	static FSlateColor UseForeground();

	/** Makes the wish for the foreground colour in force, subdued. */
	static FSlateColor UseSubduedForeground();

	/** Compares rule and colour. */
	bool operator==(const FSlateColor& Other) const;

	/** Compares rule and colour. */
	bool operator!=(const FSlateColor& Other) const { return !(*this == Other); }

private:
	enum class EColorRule : uint8
	{
		Specified,
		Linked,
		Foreground,
		ForegroundSubdued
	};

	FLinearColor SpecifiedColor;
	EColorRule ColorUseRule;
	TSharedPtr<FLinearColor> LinkedColor;
};
