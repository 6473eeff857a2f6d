// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateBrush.h"

// A style set. Left out: sounds, dynamic image brushes, legacy brush search in other folders, parent styles.

/** A set of named style values, to be filled; it owns the brushes given to it. */
class SLATECORE_API FSlateStyleSet : public ISlateStyle
{
public:
	/** Makes an empty set of a name. */
	FSlateStyleSet(const FName& InStyleSetName);

	/** Destroys the set and its brushes. */
	~FSlateStyleSet() override;

	FSlateStyleSet(const FSlateStyleSet&) = delete;
	FSlateStyleSet& operator=(const FSlateStyleSet&) = delete;

	const FName& GetStyleSetName() const override;
	void GetResources(TArray<const FSlateBrush*>& OutResources) const override;
	void SetContentRoot(const FString& InContentRootDir) override;

	/** Returns the content root as it was set. */
	virtual FString GetContentRootDir() const;

	/** Returns content root / relative name + extension; the extension includes its dot. */
	virtual FString RootToContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension);

	/** Returns content root / relative name + extension; the extension includes its dot. */
	virtual FString RootToContentDir(const TCHAR* RelativePath, const TCHAR* Extension);

	/** Returns content root / relative name + extension; the extension includes its dot. */
	virtual FString RootToContentDir(const FString& RelativePath, const TCHAR* Extension);

	/** Returns content root / relative name. */
	virtual FString RootToContentDir(const ANSICHAR* RelativePath);

	/** Returns content root / relative name. */
	virtual FString RootToContentDir(const TCHAR* RelativePath);

	/** Returns content root / relative name. */
	virtual FString RootToContentDir(const FString& RelativePath);

	/** Sets the folder of the engine's own images. */
	virtual void SetCoreContentRoot(const FString& InCoreContentRootDir);

	/** Returns core content root / relative name + extension; the extension includes its dot. */
	virtual FString RootToCoreContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension);

	/** Returns core content root / relative name + extension; the extension includes its dot. */
	virtual FString RootToCoreContentDir(const FString& RelativePath, const TCHAR* Extension);

	float GetFloat(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	FVector2D GetVector(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	const FLinearColor& GetColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	const FSlateColor GetSlateColor(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	const FMargin& GetMargin(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	const FSlateBrush* GetBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;
	const FSlateBrush* GetOptionalBrush(const FName PropertyName, const ANSICHAR* Specifier = nullptr,
		const FSlateBrush* const InDefaultBrush = FStyleDefaults::GetNoBrush()) const override;
	FSlateBrush* GetDefaultBrush() const override;
	FSlateFontInfo GetFontStyle(const FName PropertyName, const ANSICHAR* Specifier = nullptr) const override;

	/** Sets a widget style, copied. */
	template <typename DefinitionType>
	void Set(const FName PropertyName, const DefinitionType& InStyleDefintion)
	{
		WidgetStyleValues.Add(PropertyName, MakeShareable(new DefinitionType(InStyleDefintion)));
	}

	/** Sets a number. */
	void Set(const FName PropertyName, const float InFloat) { FloatValues.Add(PropertyName, InFloat); }

	/** Sets a vector. */
	void Set(const FName PropertyName, const FVector2D& InVector) { Vector2DValues.Add(PropertyName, InVector); }

	/** Sets a linear colour. */
	void Set(const FName PropertyName, const FLinearColor& InColor) { ColorValues.Add(PropertyName, InColor); }

	/** Sets an sRGB colour. */
	void Set(const FName PropertyName, const FColor& InColor) { ColorValues.Add(PropertyName, FLinearColor(InColor)); }

	/** Sets a colour that may follow the foreground. */
	void Set(const FName PropertyName, const FSlateColor& InColor) { SlateColorValues.Add(PropertyName, InColor); }

	/** Sets a margin. */
	void Set(const FName PropertyName, const FMargin& InMargin) { MarginValues.Add(PropertyName, InMargin); }

	/** Sets a font. */
	void Set(const FName PropertyName, const FSlateFontInfo& InFontInfo) { FontInfoResources.Add(PropertyName, InFontInfo); }

	/** Sets a brush, of which the set becomes the owner; a brush that had the name lives on, unreachable, until the set dies. */
	template <typename BrushType>
	void Set(const FName PropertyName, BrushType* InBrush)
	{
		SetBrush(PropertyName, InBrush);
	}

protected:
	const FSlateWidgetStyle* GetWidgetStyleInternal(
		const FName DesiredTypeName, const FName StyleName, const FSlateWidgetStyle* DefaultStyle, bool bWarnIfNotFound) const override;

private:
	void SetBrush(const FName PropertyName, FSlateBrush* InBrush);
	void LogUnknown(const TCHAR* Kind, const FName StyleName) const;

	FName StyleSetName;
	FString ContentRootDir;
	FString CoreContentRootDir;
	TMap<FName, TSharedPtr<FSlateWidgetStyle>> WidgetStyleValues;
	TMap<FName, float> FloatValues;
	TMap<FName, FVector2D> Vector2DValues;
	TMap<FName, FLinearColor> ColorValues;
	TMap<FName, FSlateColor> SlateColorValues;
	TMap<FName, FMargin> MarginValues;
	TMap<FName, FSlateBrush*> BrushResources;
	TMap<FName, FSlateFontInfo> FontInfoResources;
	TArray<FSlateBrush*> ReplacedBrushes;
	FSlateBrush* DefaultBrush;
};
