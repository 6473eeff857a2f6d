// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/SThumbnail.h"

#include "Host/ContentBrowser/AssetWords.h"
#include "Host/ContentBrowser/ContentStyle.h"

#include "ClassIconFinder.h"
#include "IAssetTypeActions.h"
#include "Rendering/DrawElements.h"
#include "StandIn/AssetThumbnails.h"
#include "StandIn/FontMeasurer.h"
#include "StandIn/TextLines.h"

#include <algorithm>
#include <cmath>

namespace TintmillHost
{
namespace
{
/** The widest picture of a class: it is drawn for this size. */
constexpr float MaxClassPicture = 64.0f;

/** Space kept free around the picture of a class. */
constexpr float ClassPictureMargin = 8.0f;

constexpr float MarkSize = 20.0f;
constexpr float MarkInset = 3.0f;

void PaintBox(FSlateWindowElementList& Elements, int32 Layer, const FGeometry& Geometry, const FVector2D& Place, const FVector2D& Size,
	const FSlateBrush* Brush, const FLinearColor& Color = FLinearColor::White)
{
	FSlateDrawElement::MakeBox(Elements, static_cast<uint32>(Layer), Geometry.ToPaintGeometry(Place, Size), Brush, ESlateDrawEffect::None,
		Color * Brush->TintColor.GetSpecifiedColor());
}
}

void SThumbnail::Construct(const FArguments& InArgs)
{
	SetCanTick(false);
	Item = InArgs._Item;
}

int32 SThumbnail::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle&, bool) const
{
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	if (Item->IsFolder())
	{
		const float Edge = std::floor(Size.X * 0.8f);
		const FSlateBrush* const Folder = ContentStyle::GetFolderBrush();
		PaintBox(OutDrawElements, LayerId, AllottedGeometry, (Size - FVector2D(Edge, Edge)) * 0.5f, FVector2D(Edge, Edge), Folder);
		return LayerId;
	}

	PaintBox(OutDrawElements, LayerId, AllottedGeometry, FVector2D(0.0f, 0.0f), Size, ContentStyle::GetThumbnailGround());
	const float Strip = ContentStyle::GetStripHeight(Size.X);
	const FSlateBrush* const Own = Item->Kind == EContentKind::Asset ? StandIn::FindAssetThumbnail(Item->Asset) : nullptr;
	if (Own != nullptr)
	{
		PaintBox(OutDrawElements, LayerId + 1, AllottedGeometry, FVector2D(0.0f, 0.0f), FVector2D(Size.X, Size.Y - Strip), Own);
	}
	else
	{
		PaintClass(AllottedGeometry, OutDrawElements, LayerId + 1, Size.Y - Strip);
	}
	if (const TSharedPtr<IAssetTypeActions> Actions = FindTypeActions(GetItemClass(*Item)))
	{
		FColor Color = Actions->GetTypeColor();
		Color.A = 255;
		PaintBox(OutDrawElements, LayerId + 2, AllottedGeometry, FVector2D(0.0f, Size.Y - Strip), FVector2D(Size.X, Strip),
			ContentStyle::GetWhiteBrush(), FLinearColor(Color));
	}
	if (!GetAssetProblem(*Item).IsEmpty())
	{
		const FSlateBrush* const Mark = ContentStyle::GetWarningBrush();
		PaintBox(OutDrawElements, LayerId + 2, AllottedGeometry, FVector2D(MarkInset, Size.Y - Strip - MarkSize - MarkInset),
			FVector2D(MarkSize, MarkSize), Mark);
	}
	return LayerId + 2;
}

void SThumbnail::PaintClass(const FGeometry& Geometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, float Edge) const
{
	if (const FSlateBrush* const Brush = FClassIconFinder::FindThumbnailForClass(GetItemClass(*Item)))
	{
		const float Length = std::floor(std::min(MaxClassPicture, Edge - ClassPictureMargin));
		const FVector2D Place((Geometry.GetLocalSize().X - Length) * 0.5f, (Edge - Length) * 0.5f);
		PaintBox(OutDrawElements, LayerId, Geometry, FVector2D(std::floor(Place.X), std::floor(Place.Y)), FVector2D(Length, Length), Brush);
		return;
	}
	// A class without a picture shows its name.
	const FSlateFontInfo Font = ContentStyle::GetFont(8);
	StandIn::IFontMeasurer& Measurer = StandIn::GetFontMeasurer();
	const float Room = Geometry.GetLocalSize().X - ClassPictureMargin;
	const FString Name = StandIn::CutWithEllipsis(GetTypeName(*Item).ToString(), Font, Room);
	const float Width = Name.IsEmpty() ? 0.0f : Measurer.MeasureLine(*Name, Name.Len(), Font, 1.0f);
	const float Height = Measurer.GetLineHeight(Font, 1.0f);
	const FVector2D Place(std::floor((Geometry.GetLocalSize().X - Width) * 0.5f), std::floor((Edge - Height) * 0.5f));
	FSlateDrawElement::MakeText(OutDrawElements, static_cast<uint32>(LayerId), Geometry.ToPaintGeometry(Place, FVector2D(Width, Height)),
		Name, Font, ESlateDrawEffect::None, ContentStyle::GetDimTextColor());
}

FVector2D SThumbnail::ComputeDesiredSize(float) const
{
	return FVector2D(ContentStyle::ThumbnailSize, ContentStyle::ThumbnailSize);
}
}
