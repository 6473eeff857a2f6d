// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/ElementDump.h"
#include "Rendering/DrawElements.h"
#include "StandIn/BrushShape.h"
#include "Widgets/SWidget.h"

namespace StandIn
{
namespace
{
int32 RoundToInt(float Value)
{
	return static_cast<int32>(Value < 0.0f ? Value - 0.5f : Value + 0.5f);
}

FString DescribeRect(const FSlateRect& Rect)
{
	return FString::Printf(TEXT("%d,%d %dx%d"), RoundToInt(Rect.Left), RoundToInt(Rect.Top), RoundToInt(Rect.Right - Rect.Left),
		RoundToInt(Rect.Bottom - Rect.Top));
}

FString DescribeColor(const FLinearColor& Color)
{
	const FColor Encoded = Color.ToFColor(true);
	return FString::Printf(TEXT("#%02X%02X%02X%02X"), static_cast<int32>(Encoded.R), static_cast<int32>(Encoded.G),
		static_cast<int32>(Encoded.B), static_cast<int32>(Encoded.A));
}

FString DescribeElement(const FSlateDrawElement& Element)
{
	switch (Element.GetElementType())
	{
	case EElementType::ET_Text:
		return FString::Printf(TEXT("text '%s' %s %s %d"), *Element.GetText(), *Element.GetFontInfo().GetFamilyName(),
			*Element.GetFontInfo().TypefaceFontName.ToString(), Element.GetFontInfo().Size);
	case EElementType::ET_Line:
		return FString::Printf(TEXT("line of %d points"), Element.GetPoints().Num());
	case EElementType::ET_Viewport:
		return TEXT("viewport");
	default:
		break;
	}
	if (GetBrushShape(Element.GetBrush()) != EBrushShape::None)
	{
		return FString::Printf(TEXT("shape %d"), static_cast<int32>(GetBrushShape(Element.GetBrush())));
	}
	return Element.GetBrush().GetResourceName().IsNone()
		? FString(TEXT("box"))
		: FString::Printf(TEXT("image '%s'"), *Element.GetBrush().GetResourceName().ToString());
}

void DumpWidget(const TSharedRef<SWidget>& Widget, int32 Depth, FString& OutText)
{
	for (int32 Index = 0; Index < Depth; ++Index)
	{
		OutText += TEXT("\t");
	}
	const FVector2D Size = Widget->GetDesiredSize();
	OutText += FString::Printf(TEXT("%s %dx%d"), *Widget->GetTypeAsString(), RoundToInt(Size.X), RoundToInt(Size.Y));
	if (Widget->GetVisibility() != EVisibility::Visible && Widget->GetVisibility() != EVisibility::SelfHitTestInvisible)
	{
		OutText += FString::Printf(TEXT(" %s"), *Widget->GetVisibility().ToString());
	}
	if (!Widget->IsEnabled())
	{
		OutText += TEXT(" disabled");
	}
	OutText += TEXT("\n");
	FChildren* Children = Widget->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		DumpWidget(Children->GetChildAt(Index), Depth + 1, OutText);
	}
}
}

FString DumpElements(const FSlateWindowElementList& ElementList)
{
	FString Text;
	const TArray<int32> Order = ElementList.GetDrawOrder();
	for (int32 Index = 0; Index < Order.Num(); ++Index)
	{
		const FSlateDrawElement& Element = ElementList.GetElements()[Order[Index]];
		Text += FString::Printf(TEXT("%d %s at %s %s"), Element.GetLayer(), *DescribeElement(Element), *DescribeRect(Element.GetRect()),
			*DescribeColor(Element.GetTint()));
		if (Element.GetClipRect().IsSet())
		{
			Text += FString::Printf(TEXT(" clip %s"), *DescribeRect(Element.GetClipRect().GetValue()));
		}
		Text += Element.IsDisabled() ? TEXT(" disabled\n") : TEXT("\n");
	}
	return Text;
}

FString DumpWidgets(const TSharedRef<SWidget>& Root)
{
	FString Text;
	DumpWidget(Root, 0, Text);
	return Text;
}
}
