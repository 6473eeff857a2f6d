// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateWidgetStyle.h"
#include "Styling/StyleDefaults.h"

// A set of named style values. Left out: sounds, dynamic image brushes.

/** A set of named style values, to be read. */
class SLATECORE_API ISlateStyle
{
public:
	/** Destroys the style. */
	virtual ~ISlateStyle() {}

	/** Returns the name of the set. */
	virtual const FName& GetStyleSetName() const = 0;

	/** Adds all brushes of the set to a list. */
	virtual void GetResources(TArray<const FSlateBrush*>& OutResources) const = 0;

	/** Sets the folder that relative image names start from. */
	virtual void SetContentRoot(const FString& InContentRootDir) = 0;

	/** Returns a number; 0 with a log if it is unknown. */
	virtual float GetFloat(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

	/** Returns a vector; zero with a log if it is unknown. */
	virtual FVector2D GetVector(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

	/** Returns a colour; white with a log if it is unknown. */
	virtual const FLinearColor& GetColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

	/** Returns a colour that may follow the foreground; white with a log if it is unknown. */
	virtual const FSlateColor GetSlateColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

	/** Returns a margin; none with a log if it is unknown. */
	virtual const FMargin& GetMargin(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

	/** Returns a brush; the default brush with a log if it is unknown, never null. */
	virtual const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

	/** Returns a brush, or the given default without a log. */
	virtual const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr,
		const FSlateBrush* const InDefaultBrush = FStyleDefaults::GetNoBrush()) const = 0;

	/** Returns the brush that stands for unknown ones. */
	virtual FSlateBrush* GetDefaultBrush() const = 0;

	/** Returns a font; the default font with a log if it is unknown. */
	virtual FSlateFontInfo GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const = 0;

	/** Returns the style of a widget; the type's default with a log if it is unknown. */
	template <typename WidgetStyleType>
	const WidgetStyleType& GetWidgetStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const
	{
		const FSlateWidgetStyle* ExistingStyle =
			GetWidgetStyleInternal(WidgetStyleType::TypeName, Join(PropertyName, Specifier), &WidgetStyleType::GetDefault(), true);
		return static_cast<const WidgetStyleType&>(*ExistingStyle);
	}

	/** Says whether there is a widget style of the type and name. */
	template <typename WidgetStyleType>
	bool HasWidgetStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const
	{
		return GetWidgetStyleInternal(WidgetStyleType::TypeName, Join(PropertyName, Specifier), nullptr, false) != nullptr;
	}

	/** Returns a name with a specifier appended; without one the name itself. */
	static FName Join(FName A, const ANSICHAR* B);

protected:
	/** Finds a widget style; the given default if there is none, with a log if wanted. */
	virtual const FSlateWidgetStyle* GetWidgetStyleInternal(
		const FName DesiredTypeName, const FName StyleName, const FSlateWidgetStyle* DefaultStyle, bool bWarnIfNotFound) const = 0;
};
