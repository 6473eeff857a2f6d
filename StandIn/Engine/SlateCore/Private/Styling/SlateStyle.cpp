// Copyright The Tintmill authors. All rights reserved.

#include "Styling/SlateStyle.h"
#include "SlateGlobals.h"
#include "StandIn/BrushShape.h"

FSlateStyleSet::FSlateStyleSet(const FName& InStyleSetName)
	: StyleSetName(InStyleSetName)
	, DefaultBrush(new StandIn::FShapeBrush(
		  StandIn::EBrushShape::Checkerboard, FVector2D(16.0f, 16.0f), FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))))
{}

FSlateStyleSet::~FSlateStyleSet()
{
	for (TPair<FName, FSlateBrush*>& Pair : BrushResources)
	{
		delete Pair.Value;
	}
	for (int32 Index = 0; Index < ReplacedBrushes.Num(); ++Index)
	{
		delete ReplacedBrushes[Index];
	}
	delete DefaultBrush;
}

const FName& FSlateStyleSet::GetStyleSetName() const
{
	return StyleSetName;
}

void FSlateStyleSet::GetResources(TArray<const FSlateBrush*>& OutResources) const
{
	for (const TPair<FName, FSlateBrush*>& Pair : BrushResources)
	{
		OutResources.Add(Pair.Value);
	}
	for (const TPair<FName, TSharedPtr<FSlateWidgetStyle>>& Pair : WidgetStyleValues)
	{
		Pair.Value->GetResources(OutResources);
	}
}

void FSlateStyleSet::SetContentRoot(const FString& InContentRootDir)
{
	ContentRootDir = InContentRootDir;
}

FString FSlateStyleSet::GetContentRootDir() const
{
	return ContentRootDir;
}

FString FSlateStyleSet::RootToContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension)
{
	return (ContentRootDir / FString(RelativePath)) + Extension;
}

FString FSlateStyleSet::RootToContentDir(const TCHAR* RelativePath, const TCHAR* Extension)
{
	return (ContentRootDir / RelativePath) + Extension;
}

FString FSlateStyleSet::RootToContentDir(const FString& RelativePath, const TCHAR* Extension)
{
	return (ContentRootDir / RelativePath) + Extension;
}

FString FSlateStyleSet::RootToContentDir(const ANSICHAR* RelativePath)
{
	return ContentRootDir / FString(RelativePath);
}

FString FSlateStyleSet::RootToContentDir(const TCHAR* RelativePath)
{
	return ContentRootDir / RelativePath;
}

FString FSlateStyleSet::RootToContentDir(const FString& RelativePath)
{
	return ContentRootDir / RelativePath;
}

void FSlateStyleSet::SetCoreContentRoot(const FString& InCoreContentRootDir)
{
	CoreContentRootDir = InCoreContentRootDir;
}

FString FSlateStyleSet::RootToCoreContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension)
{
	return (CoreContentRootDir / FString(RelativePath)) + Extension;
}

FString FSlateStyleSet::RootToCoreContentDir(const FString& RelativePath, const TCHAR* Extension)
{
	return (CoreContentRootDir / RelativePath) + Extension;
}

float FSlateStyleSet::GetFloat(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Name = Join(PropertyName, Specifier);
	if (const float* Value = FloatValues.Find(Name))
	{
		return *Value;
	}
	LogUnknown(TEXT("float"), Name);
	return FStyleDefaults::GetFloat();
}

FVector2D FSlateStyleSet::GetVector(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Name = Join(PropertyName, Specifier);
	if (const FVector2D* Value = Vector2DValues.Find(Name))
	{
		return *Value;
	}
	LogUnknown(TEXT("FVector2D"), Name);
	return FStyleDefaults::GetVector2D();
}

const FLinearColor& FSlateStyleSet::GetColor(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Name = Join(PropertyName, Specifier);
	if (const FLinearColor* Value = ColorValues.Find(Name))
	{
		return *Value;
	}
	LogUnknown(TEXT("FLinearColor"), Name);
	return FStyleDefaults::GetColor();
}

const FSlateColor FSlateStyleSet::GetSlateColor(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Name = Join(PropertyName, Specifier);
	if (const FSlateColor* Value = SlateColorValues.Find(Name))
	{
		return *Value;
	}
	if (const FLinearColor* Value = ColorValues.Find(Name))
	{
		return FSlateColor(*Value);
	}
	LogUnknown(TEXT("FSlateColor"), Name);
	return FStyleDefaults::GetSlateColor();
}

const FMargin& FSlateStyleSet::GetMargin(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Name = Join(PropertyName, Specifier);
	if (const FMargin* Value = MarginValues.Find(Name))
	{
		return *Value;
	}
	LogUnknown(TEXT("FMargin"), Name);
	return FStyleDefaults::GetMargin();
}

const FSlateBrush* FSlateStyleSet::GetBrush(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Name = Join(PropertyName, Specifier);
	if (FSlateBrush* const* Brush = BrushResources.Find(Name))
	{
		return *Brush;
	}
	LogUnknown(TEXT("Brush"), Name);
	return GetDefaultBrush();
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(
	const FName PropertyName, const ANSICHAR* Specifier, const FSlateBrush* const InDefaultBrush) const
{
	FSlateBrush* const* Brush = BrushResources.Find(Join(PropertyName, Specifier));
	return Brush != nullptr ? *Brush : InDefaultBrush;
}

FSlateBrush* FSlateStyleSet::GetDefaultBrush() const
{
	return DefaultBrush;
}

FSlateFontInfo FSlateStyleSet::GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier) const
{
	const FName Name = Join(PropertyName, Specifier);
	if (const FSlateFontInfo* Value = FontInfoResources.Find(Name))
	{
		return *Value;
	}
	LogUnknown(TEXT("FSlateFontInfo"), Name);
	return FStyleDefaults::GetFontInfo();
}

const FSlateWidgetStyle* FSlateStyleSet::GetWidgetStyleInternal(
	const FName DesiredTypeName, const FName StyleName, const FSlateWidgetStyle* DefaultStyle, bool bWarnIfNotFound) const
{
	const TSharedPtr<FSlateWidgetStyle>* Style = WidgetStyleValues.Find(StyleName);
	if (Style == nullptr || (*Style)->GetTypeName() != DesiredTypeName)
	{
		if (bWarnIfNotFound)
		{
			LogUnknown(*DesiredTypeName.ToString(), StyleName);
		}
		return DefaultStyle;
	}
	return Style->Get();
}

void FSlateStyleSet::SetBrush(const FName PropertyName, FSlateBrush* InBrush)
{
	check(InBrush != nullptr);
	if (FSlateBrush* const* Existing = BrushResources.Find(PropertyName))
	{
		if (*Existing != InBrush)
		{
			ReplacedBrushes.Add(*Existing);
		}
	}
	BrushResources.Add(PropertyName, InBrush);
}

void FSlateStyleSet::LogUnknown(const TCHAR* Kind, const FName StyleName) const
{
	UE_LOG(LogSlateStyle, Warning, TEXT("Missing Resource from '%s' Style: 'Unable to find %s '%s'.'"), *StyleSetName.ToString(), Kind,
		*StyleName.ToString());
}
