// Copyright The Tintmill authors. All rights reserved.

#include "Styling/CoreStyle.h"
#include "Styling/CoreStyleContent.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

namespace
{
TSharedPtr<ISlateStyle>& CoreStyleInstance()
{
	static TSharedPtr<ISlateStyle> Instance;
	return Instance;
}
}

const ISlateStyle& FCoreStyle::Get()
{
	if (!CoreStyleInstance().IsValid())
	{
		ResetToDefault();
	}
	return *CoreStyleInstance();
}

TSharedRef<ISlateStyle> FCoreStyle::Create(const FName& InStyleSetName)
{
	const TSharedRef<FSlateStyleSet> Style = MakeShareable(new FSlateStyleSet(InStyleSetName));
	CoreStyleContent::AddBasics(*Style);
	CoreStyleContent::AddControls(*Style);
	CoreStyleContent::AddMenus(*Style);
	CoreStyleContent::AddToolBars(*Style);
	return Style;
}

void FCoreStyle::ResetToDefault()
{
	TSharedPtr<ISlateStyle>& Instance = CoreStyleInstance();
	const TSharedRef<ISlateStyle> NewStyle = Create();
	if (Instance.IsValid())
	{
		FSlateStyleRegistry::UnRegisterSlateStyle(*Instance);
	}
	Instance = NewStyle;
	FSlateStyleRegistry::RegisterSlateStyle(*Instance);
}

TSharedRef<const FCompositeFont> FCoreStyle::GetDefaultFont()
{
	static const TSharedRef<const FCompositeFont> DefaultFont = MakeShareable(new FCompositeFont());
	return DefaultFont;
}

FSlateFontInfo FCoreStyle::GetDefaultFontStyle(const FName InTypefaceFontName, const int32 InSize)
{
	return FSlateFontInfo(GetDefaultFont(), InSize, InTypefaceFontName);
}
