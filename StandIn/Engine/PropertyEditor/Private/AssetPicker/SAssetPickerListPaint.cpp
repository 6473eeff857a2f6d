// Copyright The Tintmill authors. All rights reserved.

#include "AssetPicker/SAssetPickerList.h"
#include "AssetPicker/AssetPickerListPrivate.h"
#include "Brushes/SlateColorBrush.h"
#include "ClassIconFinder.h"
#include "Rendering/DrawElements.h"
#include "StandIn/AssetThumbnails.h"
#include "StandIn/TextLines.h"
#include "Styling/CoreStyle.h"

namespace AssetPickerListPrivate
{
const FLinearColor TextColor(0.72f, 0.72f, 0.72f);
const FLinearColor DimTextColor(0.3f, 0.3f, 0.3f);
const FLinearColor SelectionColor(0.728f, 0.364f, 0.003f);
const FLinearColor HoverColor(0.09f, 0.09f, 0.09f);
const FLinearColor PlateColor(0.012f, 0.012f, 0.012f);
const FLinearColor ScrollBarColor(0.2f, 0.2f, 0.2f);

const FSlateBrush* White()
{
	static const FSlateColorBrush Brush(FLinearColor::White);
	return &Brush;
}
}

int32 SAssetPickerList::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle&, bool) const
{
	if (PendingScrollIndex != INDEX_NONE)
	{
		SAssetPickerList* This = const_cast<SAssetPickerList*>(this);
		const int32 Index = PendingScrollIndex;
		This->PendingScrollIndex = INDEX_NONE;
		if (Index < Shown.Num() && GetViewHeight() > 0.0f)
		{
			This->ScrollTo(Index);
		}
	}
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const float RowWidth = Size.X - (NeedsScrollBar() ? AssetPickerListPrivate::ScrollBarWidth : 0.0f);
	OutDrawElements.PushClip(FSlateClippingZone(AllottedGeometry));
	int32 TopLayer = LayerId;
	const int32 First = static_cast<int32>(Offset / AssetPickerListPrivate::RowHeight);
	for (int32 Index = First; Index < Shown.Num(); ++Index)
	{
		const float Y = AssetPickerListPrivate::RowHeight * static_cast<float>(Index) - Offset;
		if (Y >= Size.Y)
		{
			break;
		}
		TopLayer = FMath::Max(TopLayer,
			PaintRow(Index, FVector2D(0.0f, Y), FVector2D(RowWidth, AssetPickerListPrivate::RowHeight), AllottedGeometry, OutDrawElements,
				LayerId));
	}
	if (NeedsScrollBar())
	{
		const float ThumbHeight = FMath::Max(16.0f, Size.Y * Size.Y / GetContentHeight());
		const float ThumbY = (Size.Y - ThumbHeight) * Offset / GetMaxOffset();
		FSlateDrawElement::MakeBox(OutDrawElements, ++TopLayer,
			AllottedGeometry.ToPaintGeometry(
				FVector2D(RowWidth + 1.0f, ThumbY), FVector2D(AssetPickerListPrivate::ScrollBarWidth - 2.0f, ThumbHeight)),
			AssetPickerListPrivate::White(), ESlateDrawEffect::None, AssetPickerListPrivate::ScrollBarColor);
	}
	OutDrawElements.PopClip();
	return TopLayer;
}

int32 SAssetPickerList::PaintRow(const int32 Index, const FVector2D& Position, const FVector2D& Size, const FGeometry& AllottedGeometry,
	FSlateWindowElementList& OutDrawElements, int32 LayerId) const
{
	using namespace AssetPickerListPrivate;
	const FItem& Item = GetShownItem(Index);
	const TSharedPtr<IAssetTypeActions> Actions = FindActions(Item.Asset);
	const bool bSelected = Index == SelectedIndex;
	if (bSelected || Index == HoveredIndex)
	{
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(Position, Size), White(),
			ESlateDrawEffect::None, bSelected ? SelectionColor : HoverColor);
	}
	const FVector2D Thumbnail = Position + FVector2D(4.0f, 4.0f);
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 1,
		AllottedGeometry.ToPaintGeometry(Thumbnail, FVector2D(ThumbnailSize, ThumbnailSize)), White(), ESlateDrawEffect::None, PlateColor);
	if (const FSlateBrush* OwnThumbnail = StandIn::FindAssetThumbnail(Item.Asset))
	{
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 2,
			AllottedGeometry.ToPaintGeometry(Thumbnail, FVector2D(ThumbnailSize, ThumbnailSize - StripHeight)), OwnThumbnail,
			ESlateDrawEffect::None, FLinearColor::White);
	}
	else if (const FSlateBrush* Brush = FClassIconFinder::FindThumbnailForClass(Item.Asset.GetClass()))
	{
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 2,
			AllottedGeometry.ToPaintGeometry(Thumbnail + FVector2D(2.0f, 1.0f), FVector2D(ThumbnailSize - 4.0f, ThumbnailSize - 4.0f)),
			Brush, ESlateDrawEffect::None, FLinearColor::White);
	}
	if (Actions.IsValid())
	{
		FColor Color = Actions->GetTypeColor();
		Color.A = 255;
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 3,
			AllottedGeometry.ToPaintGeometry(
				Thumbnail + FVector2D(0.0f, ThumbnailSize - StripHeight), FVector2D(ThumbnailSize, StripHeight)),
			White(), ESlateDrawEffect::None, FLinearColor(Color));
	}
	const FVector2D TextPosition = Position + FVector2D(ThumbnailSize + 12.0f, 4.0f);
	const FVector2D TextSize(FMath::Max(0.0f, Size.X - ThumbnailSize - 14.0f), 16.0f);
	const FLinearColor NameColor = bSelected ? FLinearColor::Black : TextColor;
	const FLinearColor TypeColor = bSelected ? FLinearColor(0.05f, 0.03f, 0.0f) : DimTextColor;
	const FSlateFontInfo NameFont = FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 9);
	const FSlateFontInfo TypeFont = FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 8);
	FSlateDrawElement::MakeText(OutDrawElements, LayerId + 3, AllottedGeometry.ToPaintGeometry(TextPosition, TextSize),
		StandIn::CutWithEllipsis(Item.Label, NameFont, TextSize.X), NameFont, ESlateDrawEffect::None, NameColor);
	FSlateDrawElement::MakeText(OutDrawElements, LayerId + 3,
		AllottedGeometry.ToPaintGeometry(TextPosition + FVector2D(0.0f, 16.0f), TextSize),
		StandIn::CutWithEllipsis(GetTypeLabel(Item.Asset), TypeFont, TextSize.X), TypeFont, ESlateDrawEffect::None, TypeColor);
	return LayerId + 3;
}
