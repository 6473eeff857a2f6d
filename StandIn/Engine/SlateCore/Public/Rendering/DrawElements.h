// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Clipping.h"
#include "Layout/PaintGeometry.h"
#include "Layout/SlateRect.h"
#include "Misc/Optional.h"
#include "Rendering/RenderingCommon.h"
#include "Styling/SlateBrush.h"

class SWindow;

// What painting ends in: a list of boxes, lines, texts and viewports. Who turns it into pixels is the host's choice. Left out:
// gradients, splines, rotated boxes, custom drawers, cached elements.

/** What a draw element is. */
enum class EElementType : uint8
{
	ET_Box,
	ET_Text,
	ET_Line,
	ET_Viewport
};

/** One thing to draw. Which fields count depends on the type. */
class SLATECORE_API FSlateDrawElement
{
public:
	/** Draws a brush over an area; a brush that paints nothing adds nothing. */
	static void MakeBox(class FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
		const FSlateBrush* InBrush, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None,
		const FLinearColor& InTint = FLinearColor::White);

	/** Draws one line of text from the upper left corner of an area; an empty text adds nothing. */
	static void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FString& InText,
		const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None,
		const FLinearColor& InTint = FLinearColor::White);

	/** Draws one line of text from the upper left corner of an area; an empty text adds nothing. */
	static void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FText& InText,
		const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None,
		const FLinearColor& InTint = FLinearColor::White);

	/** Draws a polyline through points of the area's own space; fewer than two points add nothing. */
	static void MakeLines(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
		const TArray<FVector2D>& Points, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None,
		const FLinearColor& InTint = FLinearColor::White, bool bAntialias = true, float Thickness = 1.0f);

	/** Draws the picture of a viewport over an area. */
	static void MakeViewport(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
		TSharedPtr<const ISlateViewport> Viewport, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None,
		const FLinearColor& InTint = FLinearColor::White);

	/** Returns what the element is. */
	EElementType GetElementType() const { return ElementType; }

	/** Returns the layer; higher ones lie above lower ones, equal ones in list order. */
	int32 GetLayer() const { return LayerId; }

	/** Returns place and size. */
	const FPaintGeometry& GetPaintGeometry() const { return Geometry; }

	/** Returns the area covered, in desktop space. */
	FSlateRect GetRect() const { return FSlateRect::FromPointAndExtent(Geometry.DrawPosition, Geometry.GetDrawSize()); }

	/** Returns the variations of drawing. */
	ESlateDrawEffect GetDrawEffects() const { return DrawEffects; }

	/** Returns the colour, linear RGBA; a box's brush tint is already in it. */
	const FLinearColor& GetTint() const { return Tint; }

	/** Returns the rectangle outside of which nothing is drawn, unset for none. */
	const TOptional<FSlateRect>& GetClipRect() const { return ClipRect; }

	/** Returns a box's brush, copied when it was painted. */
	const FSlateBrush& GetBrush() const { return Brush; }

	/** Returns a text's characters. */
	const FString& GetText() const { return Text; }

	/** Returns a text's font; its size is in Slate units before the geometry's scale. */
	const FSlateFontInfo& GetFontInfo() const { return FontInfo; }

	/** Returns a line's points, in desktop space. */
	const TArray<FVector2D>& GetPoints() const { return Points; }

	/** Returns a line's thickness, in Slate units before the geometry's scale. */
	float GetThickness() const { return Thickness; }

	/** Returns a viewport's source. */
	const TSharedPtr<const ISlateViewport>& GetViewport() const { return Viewport; }

	/** Says whether the effects ask for the look of a disabled widget. */
	bool IsDisabled() const { return (DrawEffects & ESlateDrawEffect::DisabledEffect) != ESlateDrawEffect::None; }

private:
	friend class FSlateWindowElementList;

	static FSlateDrawElement& Add(FSlateWindowElementList& ElementList, EElementType InType, uint32 InLayer,
		const FPaintGeometry& PaintGeometry, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint);

	EElementType ElementType = EElementType::ET_Box;
	int32 LayerId = 0;
	FPaintGeometry Geometry;
	ESlateDrawEffect DrawEffects = ESlateDrawEffect::None;
	FLinearColor Tint = FLinearColor::White;
	TOptional<FSlateRect> ClipRect;
	FSlateBrush Brush;
	FString Text;
	FSlateFontInfo FontInfo;
	TArray<FVector2D> Points;
	float Thickness = 1.0f;
	TSharedPtr<const ISlateViewport> Viewport;
};

/** What one window draws, in the order of painting. */
class SLATECORE_API FSlateWindowElementList
{
public:
	/** Makes an empty list of a window. */
	explicit FSlateWindowElementList(const TSharedPtr<SWindow>& InPaintWindow);

	/** Returns the window, if it lives. */
	TSharedPtr<SWindow> GetPaintWindow() const { return PaintWindow.Pin(); }

	/** Cuts off what is added from now on, until PopClip. */
	void PushClip(const FSlateClippingZone& InClipZone);

	/** Ends the last PushClip; without one it is a fatal error. */
	void PopClip();

	/** Returns the rectangle in force, unset for none. */
	TOptional<FSlateRect> GetClipRect() const;

	/** Returns the elements in the order of painting. */
	const TArray<FSlateDrawElement>& GetElements() const { return Elements; }

	/** Returns the elements' indices from the lowest layer to the highest, equal layers in the order of painting. */
	TArray<int32> GetDrawOrder() const;

	/** Empties the list; pushed clips must have been popped. */
	void ResetElementList();

	/** Adds an element of the clip rectangle in force and returns it; for FSlateDrawElement. */
	FSlateDrawElement& AddElement();

private:
	TWeakPtr<SWindow> PaintWindow;
	TArray<FSlateDrawElement> Elements;
	TArray<FSlateRect> ClipStack;
};
