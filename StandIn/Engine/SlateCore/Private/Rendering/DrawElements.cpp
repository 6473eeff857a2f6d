// Copyright The Tintmill authors. All rights reserved.

#include "Rendering/DrawElements.h"
#include "Widgets/SWindow.h"

FSlateDrawElement& FSlateDrawElement::Add(FSlateWindowElementList& ElementList, EElementType InType, uint32 InLayer,
	const FPaintGeometry& PaintGeometry, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	FSlateDrawElement& Element = ElementList.AddElement();
	Element.ElementType = InType;
	Element.LayerId = static_cast<int32>(InLayer);
	Element.Geometry = PaintGeometry;
	Element.DrawEffects = InDrawEffects;
	Element.Tint = InTint;
	return Element;
}

void FSlateDrawElement::MakeBox(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const FSlateBrush* InBrush, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	check(InBrush != nullptr);
	if (InBrush->GetDrawType() != ESlateBrushDrawType::NoDrawType)
	{
		Add(ElementList, EElementType::ET_Box, InLayer, PaintGeometry, InDrawEffects, InTint).Brush = *InBrush;
	}
}

void FSlateDrawElement::MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const FString& InText, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	if (InText.Len() > 0)
	{
		FSlateDrawElement& Element = Add(ElementList, EElementType::ET_Text, InLayer, PaintGeometry, InDrawEffects, InTint);
		Element.Text = InText;
		Element.FontInfo = InFontInfo;
	}
}

void FSlateDrawElement::MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const FText& InText, const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	MakeText(ElementList, InLayer, PaintGeometry, InText.ToString(), InFontInfo, InDrawEffects, InTint);
}

void FSlateDrawElement::MakeLines(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	const TArray<FVector2D>& Points, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint, bool /*bAntialias*/, float Thickness)
{
	if (Points.Num() > 1)
	{
		FSlateDrawElement& Element = Add(ElementList, EElementType::ET_Line, InLayer, PaintGeometry, InDrawEffects, InTint);
		Element.Thickness = Thickness;
		for (int32 Index = 0; Index < Points.Num(); ++Index)
		{
			Element.Points.Add(Points[Index] * PaintGeometry.DrawScale + PaintGeometry.DrawPosition);
		}
	}
}

void FSlateDrawElement::MakeViewport(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry,
	TSharedPtr<const ISlateViewport> Viewport, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	Add(ElementList, EElementType::ET_Viewport, InLayer, PaintGeometry, InDrawEffects, InTint).Viewport = Viewport;
}

FSlateWindowElementList::FSlateWindowElementList(const TSharedPtr<SWindow>& InPaintWindow)
	: PaintWindow(InPaintWindow)
{}

void FSlateWindowElementList::PushClip(const FSlateClippingZone& InClipZone)
{
	FSlateRect Rect = InClipZone.GetBoundingBox();
	if (ClipStack.Num() > 0 && InClipZone.GetShouldIntersectParent())
	{
		Rect = Rect.IntersectionWith(ClipStack.Last());
	}
	ClipStack.Add(Rect);
}

void FSlateWindowElementList::PopClip()
{
	check(ClipStack.Num() > 0);
	ClipStack.RemoveAt(ClipStack.Num() - 1);
}

TOptional<FSlateRect> FSlateWindowElementList::GetClipRect() const
{
	return ClipStack.Num() > 0 ? TOptional<FSlateRect>(ClipStack.Last()) : TOptional<FSlateRect>();
}

TArray<int32> FSlateWindowElementList::GetDrawOrder() const
{
	TArray<int32> Order;
	Order.Reserve(Elements.Num());
	int32 Highest = 0;
	for (int32 Index = 0; Index < Elements.Num(); ++Index)
	{
		Highest = FMath::Max(Highest, Elements[Index].GetLayer());
	}
	// Counting by layer keeps the order of painting within one.
	TArray<TArray<int32>> Layers;
	Layers.SetNum(Highest + 1);
	for (int32 Index = 0; Index < Elements.Num(); ++Index)
	{
		Layers[FMath::Max(Elements[Index].GetLayer(), 0)].Add(Index);
	}
	for (int32 Layer = 0; Layer < Layers.Num(); ++Layer)
	{
		Order.Append(Layers[Layer]);
	}
	return Order;
}

void FSlateWindowElementList::ResetElementList()
{
	check(ClipStack.Num() == 0);
	Elements.Reset();
}

FSlateDrawElement& FSlateWindowElementList::AddElement()
{
	const int32 Index = Elements.Add(FSlateDrawElement());
	Elements[Index].ClipRect = GetClipRect();
	return Elements[Index];
}
