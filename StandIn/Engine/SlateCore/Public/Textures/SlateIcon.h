// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class ISlateStyle;
struct FSlateBrush;

// An icon by the names of a style set and a brush; resolved when asked for.

/** An icon by the names of a style set and a brush. */
struct SLATECORE_API FSlateIcon
{
	/** Makes the icon that shows nothing. */
	FSlateIcon();

	/** Makes an icon; its small form is the brush "StyleName.Small". */
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName);

	/** Makes an icon with a name for its small form. */
	FSlateIcon(const FName& InStyleSetName, const FName& InStyleName, const FName& InSmallStyleName);

	/** Compares the names. */
	friend bool operator==(const FSlateIcon& A, const FSlateIcon& B)
	{
		return A.bIsSet == B.bIsSet && A.StyleSetName == B.StyleSetName && A.StyleName == B.StyleName
			&& A.SmallStyleName == B.SmallStyleName;
	}

	/** Compares the names. */
	friend bool operator!=(const FSlateIcon& A, const FSlateIcon& B) { return !(A == B); }

	/** Says whether the icon was given names. */
	bool IsSet() const { return bIsSet; }

	/** Returns the brush of the small form; the brush that paints nothing if there is none. */
	const FSlateBrush* GetSmallIcon() const;

	/** Returns the brush; the brush that paints nothing if there is none. */
	const FSlateBrush* GetIcon() const;

	/** Returns the style set or null. */
	const ISlateStyle* GetStyleSet() const;

	/** Returns the name of the brush. */
	const FName& GetStyleName() const { return StyleName; }

	/** Returns the name of the small brush. */
	const FName& GetSmallStyleName() const { return SmallStyleName; }

	/** Returns the name of the style set. */
	const FName& GetStyleSetName() const { return StyleSetName; }

private:
	FName StyleSetName;
	FName StyleName;
	FName SmallStyleName;
	bool bIsSet;
};
