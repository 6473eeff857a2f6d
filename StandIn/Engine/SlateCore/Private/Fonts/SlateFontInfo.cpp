// Copyright The Tintmill authors. All rights reserved.

#include "Fonts/SlateFontInfo.h"

FSlateFontInfo::FSlateFontInfo()
	: Size(0)
{}

FSlateFontInfo::FSlateFontInfo(TSharedPtr<const FCompositeFont> InCompositeFont, const int32 InSize, const FName& InTypefaceFontName)
	: CompositeFont(InCompositeFont)
	, TypefaceFontName(InTypefaceFontName)
	, Size(InSize)
{}

FSlateFontInfo::FSlateFontInfo(const FString& InFontName, uint16 InSize)
	: CompositeFont(MakeShareable(new FCompositeFont(InFontName)))
	, Size(static_cast<int32>(InSize))
{}

FString FSlateFontInfo::GetFamilyName() const
{
	return CompositeFont.IsValid() ? CompositeFont->FamilyName : FCompositeFont().FamilyName;
}

bool FSlateFontInfo::operator==(const FSlateFontInfo& Other) const
{
	return Size == Other.Size && TypefaceFontName == Other.TypefaceFontName && GetFamilyName() == Other.GetFamilyName();
}
