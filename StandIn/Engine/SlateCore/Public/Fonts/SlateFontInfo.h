// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class UObject;

// Which font a text is set in. Fonts are families by name here; left out: font assets, outlines, materials, letter spacing,
// composite fonts of several families.

/** A font family by name. */
struct FCompositeFont
{
	/** Makes a family. */
	FCompositeFont(const FString& InFamilyName = FString(TEXT("Roboto")))
		: FamilyName(InFamilyName)
	{}

	/** The family's name as a font system knows it. */
	FString FamilyName;
};

/** A font family, a face of it and a size. */
struct SLATECORE_API FSlateFontInfo
{
	/** The family; the default family if null. */
	TSharedPtr<const FCompositeFont> CompositeFont;

	/** The face: Regular, Bold, Italic, BoldItalic, Light, Mono. */
	FName TypefaceFontName;

	/** The size in points at 96 dots an inch: 9 points are 12 pixels. */
	int32 Size;

	/** Makes an invalid font. */
	FSlateFontInfo();

	/** Makes a font of a family, size and face. */
	FSlateFontInfo(TSharedPtr<const FCompositeFont> InCompositeFont, const int32 InSize, const FName& InTypefaceFontName = NAME_None);

	/** Makes a font of a family name or file and a size. */
	FSlateFontInfo(const FString& InFontName, uint16 InSize);

	/** Says whether the font has a family and a size. */
	bool HasValidFont() const { return CompositeFont.IsValid() && Size > 0; }

	/** Returns the family's name. */
	FString GetFamilyName() const;

	/** Returns the height of the em square, in Slate units. */
	float GetEmHeight() const { return static_cast<float>(Size) * 96.0f / 72.0f; }

	/** Compares family, face and size. */
	bool IsIdentialTo(const FSlateFontInfo& Other) const { return *this == Other; }

	/** Compares family, face and size. */
	bool operator==(const FSlateFontInfo& Other) const;

	/** Compares family, face and size. */
	bool operator!=(const FSlateFontInfo& Other) const { return !(*this == Other); }
};
