// Copyright The Tintmill authors. All rights reserved.

#include "Host/LookBuilder/SLookBuilder.h"

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Fonts/FontMeasure.h"
#include "Misc/Paths.h"
#include "Rendering/DrawElements.h"
#include "StandIn/LookBuilder.h"
#include "StandIn/LookFiles.h"
#include "Styling/CoreStyle.h"
#include "TintmillObject.h"

#include <algorithm>
#include <cmath>

namespace TintmillHost
{
namespace
{
constexpr float HeaderHeight = 26.0f;
constexpr float FooterHeight = 24.0f;
constexpr float Inset = 8.0f;
constexpr float MaxZoom = 64.0f;
constexpr float ZoomStep = 1.25f;

const FLinearColor PanelColor(FColor(0x3E, 0x3E, 0x3E, 0xFF));
const FLinearColor TextColor(0.72f, 0.72f, 0.72f);
const FLinearColor DimTextColor(0.4f, 0.4f, 0.4f);
const FLinearColor ShadeColor(0.0f, 0.0f, 0.0f, 0.6f);

const FSlateBrush* White()
{
	static const FSlateColorBrush Brush(FLinearColor::White);
	return &Brush;
}

/** A file as people know it: from the project's folder on. */
FString FromProject(const FString& File)
{
	const FString Folder = FPaths::ConvertRelativePathToFull(FPaths::ProjectDir());
	return File.StartsWith(Folder) ? File.RightChop(Folder.Len()) : File;
}

/** The size of the picture's area in a widget of this size. */
FVector2D GetAreaSize(const FVector2D& Size)
{
	return FVector2D(Size.X, std::max(0.0f, Size.Y - HeaderHeight - FooterHeight));
}

FString ToWords(const FColor& Color)
{
	return FString::Printf(TEXT("%d %d %d"), static_cast<int32>(Color.R), static_cast<int32>(Color.G), static_cast<int32>(Color.B));
}
}

void SLookBuilder::Construct(const FArguments& InArgs)
{
	Look = InArgs._Look;
	Picture = std::make_unique<FBuilderPicture>(StandIn::FLookBuilderRequest{nullptr, FTintmillAPI_ImageDesc(), {}});
	Brush = std::make_unique<FSlateImageBrush>(FName(*(TEXT("LookBuilder:") + InArgs._Look->GetPathName())), FVector2D(640.0f, 360.0f));
	SetCanTick(false);
}

void SLookBuilder::SetPicture(const FBuilderPicture& InPicture)
{
	*Picture = InPicture;
	View = FBuilderView();
	bHoversPixel = false;
	Regrade();
}

void SLookBuilder::Regrade()
{
	Picture->Grade(Look.Get());
}

FName SLookBuilder::GetBrushName() const
{
	return Brush->GetResourceName();
}

FVector2D SLookBuilder::GetPlace(const FVector2D& Share) const
{
	const FGeometry& Geometry = GetCachedGeometry();
	const FVector2D Area = GetAreaSize(Geometry.GetLocalSize());
	return Geometry.LocalToAbsolute(FVector2D(Share.X * Area.X, HeaderHeight + Share.Y * Area.Y));
}

FString SLookBuilder::GetTitle() const
{
	const UTintmillObject* const Asset = Look.Get();
	if (Asset == nullptr)
	{
		return TEXT("The look is gone.");
	}
	const FString Problem = StandIn::GetLookProblem(Asset);
	const FString File = FromProject(StandIn::GetLookFileName(Asset));
	return Problem.IsEmpty() ? (File.IsEmpty() ? FString(TEXT("no file")) : File) : Problem;
}

FString SLookBuilder::GetValues() const
{
	if (Picture->IsEmpty())
	{
		return FString();
	}
	const FIntPoint Size = Picture->GetSize();
	const float Scale = Picture->GetScale(GetAreaSize(GetCachedGeometry().GetLocalSize()), View);
	const FString Facts =
		FString::Printf(TEXT("%d x %d pixels, zoom %d %%"), Size.X, Size.Y, static_cast<int32>(std::lround(Scale * 100.0f)));
	if (!bHoversPixel)
	{
		return Facts;
	}
	return FString::Printf(TEXT("%s     pixel %d, %d     before %s     after %s"), *Facts, Hovered.X, Hovered.Y,
		*ToWords(Picture->GetBefore(Hovered)), *ToWords(Picture->GetAfter(Hovered)));
}

FVector2D SLookBuilder::ToArea(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent, FVector2D& OutArea) const
{
	OutArea = GetAreaSize(MyGeometry.GetLocalSize());
	return MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()) - FVector2D(0.0f, HeaderHeight);
}

FVector2D SLookBuilder::GetShare(const FVector2D& Area, const FVector2D& Point) const
{
	const FIntPoint Size = Picture->GetSize();
	const FVector2D Pixels(static_cast<float>(Size.X), static_cast<float>(Size.Y));
	const float Scale = Picture->GetScale(Area, View);
	return FVector2D(
		View.Center.X + (Point.X - Area.X / 2.0f) / Scale / Pixels.X, View.Center.Y + (Point.Y - Area.Y / 2.0f) / Scale / Pixels.Y);
}

void SLookBuilder::MoveUnder(const FVector2D& Area, const FVector2D& Point, const FVector2D& PictureShare)
{
	const FVector2D Now = GetShare(Area, Point);
	View.Center.X = std::clamp(View.Center.X + PictureShare.X - Now.X, 0.0f, 1.0f);
	View.Center.Y = std::clamp(View.Center.Y + PictureShare.Y - Now.Y, 0.0f, 1.0f);
}

FReply SLookBuilder::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	FVector2D Area;
	const FVector2D Point = ToArea(MyGeometry, MouseEvent, Area);
	if (Picture->IsEmpty() || Point.Y < 0.0f || Point.Y >= Area.Y)
	{
		return FReply::Handled();
	}
	if (MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton)
	{
		View.Split = std::clamp(Point.X / Area.X, 0.0f, 1.0f);
	}
	Grabbed = GetShare(Area, Point);
	return FReply::Handled().CaptureMouse(AsShared());
}

FReply SLookBuilder::OnMouseButtonUp(const FGeometry&, const FPointerEvent&)
{
	return HasMouseCapture() ? FReply::Handled().ReleaseMouseCapture() : FReply::Handled();
}

FReply SLookBuilder::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	FVector2D Area;
	const FVector2D Point = ToArea(MyGeometry, MouseEvent, Area);
	if (HasMouseCapture() && MouseEvent.IsMouseButtonDown(EKeys::LeftMouseButton))
	{
		View.Split = std::clamp(Point.X / Area.X, 0.0f, 1.0f);
	}
	else if (HasMouseCapture())
	{
		MoveUnder(Area, Point, Grabbed);
	}
	bHoversPixel = Point.Y >= 0.0f && Point.Y < Area.Y && Picture->FindPixel(Area, View, Point, Hovered);
	return FReply::Handled();
}

FReply SLookBuilder::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	FVector2D Area;
	const FVector2D Point = ToArea(MyGeometry, MouseEvent, Area);
	if (!Picture->IsEmpty() && Area.Y > 0.0f)
	{
		const FVector2D Share = GetShare(Area, Point);
		View.Zoom = std::clamp(View.Zoom * std::pow(ZoomStep, MouseEvent.GetWheelDelta()), 1.0f, MaxZoom);
		MoveUnder(Area, Point, Share);
		bHoversPixel = Picture->FindPixel(Area, View, Point, Hovered);
	}
	return FReply::Handled();
}

int32 SLookBuilder::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle&, bool) const
{
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const FVector2D Area = GetAreaSize(Size);
	const FSlateFontInfo Font = FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 9);
	const FSlateFontInfo BoldFont = FCoreStyle::GetDefaultFontStyle(TEXT("Bold"), 10);
	const auto Box = [&](int32 Layer, const FVector2D& Position, const FVector2D& BoxSize, const FLinearColor& Color) {
		FSlateDrawElement::MakeBox(
			OutDrawElements, Layer, AllottedGeometry.ToPaintGeometry(Position, BoxSize), White(), ESlateDrawEffect::None, Color);
	};
	const auto Text = [&](const FVector2D& Position, const FString& Words, const FSlateFontInfo& WithFont, const FLinearColor& Color) {
		FSlateDrawElement::MakeText(OutDrawElements, LayerId + 4,
			AllottedGeometry.ToPaintGeometry(Position, FVector2D(std::max(0.0f, Size.X - Position.X), 18.0f)), Words, WithFont,
			ESlateDrawEffect::None, Color);
	};

	Box(LayerId, FVector2D(0.0f, 0.0f), Size, PanelColor);
	const FString Name = Look.IsValid() ? Look->GetName() : FString();
	const float NameWidth = FSlateFontMeasure().Measure(Name, BoldFont).X;
	Text(FVector2D(Inset, 5.0f), Name, BoldFont, TextColor);
	Text(FVector2D(2.0f * Inset + NameWidth, 6.0f), GetTitle(), Font, DimTextColor);
	Text(FVector2D(Inset, HeaderHeight + Area.Y + 4.0f), GetValues(), Font, TextColor);
	if (Picture->IsEmpty())
	{
		Box(LayerId + 1, FVector2D(0.0f, HeaderHeight), Area, FLinearColor(FColor(0x1E, 0x1E, 0x1E, 0xFF)));
		Text(FVector2D(Area.X / 2.0f - 30.0f, HeaderHeight + Area.Y / 2.0f - 8.0f), TEXT("no picture"), Font, TextColor);
		return LayerId + 4;
	}
	FSlateDrawElement::MakeBox(
		OutDrawElements, LayerId + 1, AllottedGeometry.ToPaintGeometry(FVector2D(0.0f, HeaderHeight), Area), Brush.get());
	const float SplitX = std::round(View.Split * Area.X);
	Box(LayerId + 2, FVector2D(SplitX - 1.0f, HeaderHeight), FVector2D(2.0f, Area.Y), TextColor);
	const FVector2D Plate(46.0f, 18.0f);
	const float PlateY = HeaderHeight + 6.0f;
	Box(LayerId + 2, FVector2D(SplitX - Plate.X - 6.0f, PlateY), Plate, ShadeColor);
	Box(LayerId + 2, FVector2D(SplitX + 6.0f, PlateY), Plate, ShadeColor);
	Text(FVector2D(SplitX - Plate.X, PlateY + 1.0f), TEXT("before"), Font, TextColor);
	Text(FVector2D(SplitX + 14.0f, PlateY + 1.0f), TEXT("after"), Font, TextColor);
	return LayerId + 4;
}

FVector2D SLookBuilder::ComputeDesiredSize(float) const
{
	return FVector2D(960.0f, 590.0f);
}
}
