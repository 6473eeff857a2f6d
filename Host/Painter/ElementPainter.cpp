// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/ElementPainter.h"

#include "Host/Painter/ImagePainter.h"
#include "Host/Painter/ShapePainter.h"
#include "Host/Program/Strings.h"

#include <algorithm>
#include <cmath>

namespace TintmillHost
{
namespace
{
FIntPoint SizeOf(const FDeviceRect& Rect)
{
	return FIntPoint(static_cast<int32>(Rect.Width), static_cast<int32>(Rect.Height));
}

void PaintPicture(cairo_t* Context, const FPictureView& Picture, const FDeviceRect& Rect, double Opacity)
{
	// The pixels are opaque whatever their fourth byte says. Cairo only reads them.
	const FCairoSurface Surface(cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(const_cast<FColor*>(Picture.Pixels)),
		CAIRO_FORMAT_RGB24, Picture.Size.X, Picture.Size.Y, Picture.Size.X * 4));
	PaintImage(Context, Surface.get(), FSlateBrush(), Rect, 1.0, Opacity);
}

/** The pixels that a line of a width in pixels may touch, with the tips of its sharpest corners. */
FIntRect FindLineBounds(const TArray<FVector2D>& Points, double Scale, double Width)
{
	FVector2D Least = Points[0];
	FVector2D Most = Points[0];
	for (const FVector2D& Point : Points)
	{
		Least = FVector2D(std::min(Least.X, Point.X), std::min(Least.Y, Point.Y));
		Most = FVector2D(std::max(Most.X, Point.X), std::max(Most.Y, Point.Y));
	}
	const FDeviceRect Rect{Least.X * Scale, Least.Y * Scale, (Most.X - Least.X) * Scale, (Most.Y - Least.Y) * Scale};
	return ToPixels(Rect.Shrunk(-(5.0 * Width + 2.0)));
}

/** Whether every part of the line goes straight across or down. */
bool IsStraight(const TArray<FVector2D>& Points)
{
	for (int32 Index = 1; Index < Points.Num(); ++Index)
	{
		if (Points[Index].X != Points[Index - 1].X && Points[Index].Y != Points[Index - 1].Y)
		{
			return false;
		}
	}
	return true;
}
}

FElementPainter::FElementPainter(const std::shared_ptr<FTextLayouts>& InLayouts)
	: Layouts(InLayouts)
{}

void FElementPainter::Paint(cairo_t* Context, const FSlateWindowElementList& ElementList, double Scale)
{
	for (const int32 Index : ElementList.GetDrawOrder())
	{
		Paint(Context, ElementList.GetElements()[Index], Scale);
	}
}

void FElementPainter::Paint(cairo_t* Context, const FSlateDrawElement& Element, double Scale)
{
	cairo_save(Context);
	if (Element.GetClipRect().IsSet())
	{
		const FDeviceRect Clip = ToDeviceRect(Element.GetClipRect().GetValue(), Scale);
		cairo_rectangle(Context, Clip.X, Clip.Y, std::max(0.0, Clip.Width), std::max(0.0, Clip.Height));
		cairo_clip(Context);
	}
	PaintElement(Context, Element, Scale);
	cairo_restore(Context);
}

void FElementPainter::PaintElement(cairo_t* Context, const FSlateDrawElement& Element, double Scale)
{
	switch (Element.GetElementType())
	{
	case EElementType::ET_Box:
		PaintBox(Context, Element, Scale);
		break;
	case EElementType::ET_Text:
		PaintText(Context, Element, Scale);
		break;
	case EElementType::ET_Line:
		PaintLine(Context, Element, Scale);
		break;
	case EElementType::ET_Viewport:
		PaintViewport(Context, Element, Scale);
		break;
	}
}

void FElementPainter::PaintBox(cairo_t* Context, const FSlateDrawElement& Element, double Scale)
{
	const FSlateBrush& Brush = Element.GetBrush();
	const FPaintColor Color = ToPaintColor(Element.GetTint(), Element.IsDisabled());
	const FDeviceRect Rect = ToDeviceRect(Element.GetRect(), Scale);
	if (Color.Alpha <= 0.0 || Rect.IsEmpty())
	{
		return;
	}

	float CornerRadius = 0.0f;
	FShape Shape{StandIn::GetBrushShape(Brush, &CornerRadius), Rect, Color, CornerRadius, Scale * Element.GetPaintGeometry().DrawScale};
	if (Shape.Kind != StandIn::EBrushShape::None)
	{
		PaintShape(Context, Shape);
		return;
	}
	if (Brush.GetResourceName().IsNone() && Brush.GetResourceObject() == nullptr)
	{
		Shape.Kind = StandIn::EBrushShape::RoundedBox;
		PaintShape(Context, Shape);
		return;
	}
	if (const FPictureView Picture = FindPicture(Element, Scale); Picture.Pixels != nullptr)
	{
		PaintPicture(Context, Picture, Rect, Color.Alpha);
		return;
	}
	if (cairo_surface_t* const Image = Images.Find(ToUtf8(Brush.GetResourceName().ToString()), Element.GetTint()))
	{
		PaintImage(Context, Image, Brush, Rect, Shape.Scale, Color.Alpha);
		return;
	}
	Shape.Kind = StandIn::EBrushShape::Checkerboard;
	PaintShape(Context, Shape);
}

void FElementPainter::PaintText(cairo_t* Context, const FSlateDrawElement& Element, double Scale)
{
	const FPaintColor Color = ToPaintColor(Element.GetTint(), Element.IsDisabled());
	if (Color.Alpha <= 0.0)
	{
		return;
	}
	const FSlateFontInfo& Font = Element.GetFontInfo();
	const double FontScale = Scale * Element.GetPaintGeometry().DrawScale;
	const FVector2D Position = Element.GetPaintGeometry().DrawPosition;
	PangoLayout* const Layout = Layouts->Find(ToUtf8(Element.GetText()), Font, FontScale);

	// The line starts at a pixel's edge and stands on one; the letters inside keep their own distances, which glyph images,
	// always put to whole pixels, would not.
	cairo_move_to(Context, std::round(Position.X * Scale), std::round(Position.Y * Scale) + Layouts->GetAscent(Font, FontScale));
	pango_cairo_layout_line_path(Context, pango_layout_get_line_readonly(Layout, 0));
	Color.Use(Context);
	cairo_fill(Context);
}

void FElementPainter::PaintLine(cairo_t* Context, const FSlateDrawElement& Element, double Scale)
{
	const double Width = static_cast<double>(Element.GetThickness()) * Element.GetPaintGeometry().DrawScale * Scale;
	const bool bStraight = IsStraight(Element.GetPoints());
	const double Pixels = bStraight ? std::max(1.0, std::round(Width)) : Width;
	// A straight line of an odd number of pixels runs through the middle of pixels.
	const double Middle = std::fmod(Pixels, 2.0) == 1.0 ? 0.5 : 0.0;
	for (const FVector2D& Point : Element.GetPoints())
	{
		const double X = static_cast<double>(Point.X) * Scale;
		const double Y = static_cast<double>(Point.Y) * Scale;
		cairo_line_to(Context, bStraight ? std::floor(X) + Middle : X, bStraight ? std::floor(Y) + Middle : Y);
	}
	ToPaintColor(Element.GetTint(), Element.IsDisabled()).Use(Context);
	cairo_set_line_width(Context, Pixels);
	cairo_stroke(Context);
}

void FElementPainter::PaintViewport(cairo_t* Context, const FSlateDrawElement& Element, double Scale)
{
	const FDeviceRect Rect = ToDeviceRect(Element.GetRect(), Scale);
	if (Rect.IsEmpty())
	{
		return;
	}
	const FPaintColor Color = ToPaintColor(Element.GetTint(), Element.IsDisabled());
	const FPictureView Picture = FindPicture(Element, Scale);
	if (Picture.Pixels == nullptr || Picture.Size.X <= 0 || Picture.Size.Y <= 0)
	{
		FPaintColor{0.1, 0.1, 0.1, Color.Alpha}.Use(Context);
		cairo_rectangle(Context, Rect.X, Rect.Y, Rect.Width, Rect.Height);
		cairo_fill(Context);
		return;
	}
	PaintPicture(Context, Picture, Rect, Color.Alpha);
}

FPictureView FElementPainter::FindPicture(const FSlateDrawElement& Element, double Scale) const
{
	const FIntPoint Size = SizeOf(ToDeviceRect(Element.GetRect(), Scale));
	if (Element.GetElementType() == EElementType::ET_Viewport)
	{
		return ViewportPictures && Element.GetViewport().IsValid() ? ViewportPictures(*Element.GetViewport(), Size) : FPictureView();
	}
	const bool bNamed = Element.GetElementType() == EElementType::ET_Box
		&& !(Element.GetBrush().GetResourceName().IsNone() && Element.GetBrush().GetResourceObject() == nullptr);
	return bNamed && BrushPictures ? BrushPictures(Element.GetBrush(), Size) : FPictureView();
}

bool FElementPainter::CanBePaintedInParts(const FSlateDrawElement& Element, double Scale) const
{
	if (Element.GetElementType() == EElementType::ET_Viewport)
	{
		const FPictureView Picture = FindPicture(Element, Scale);
		return Picture.Pixels == nullptr || Picture.Size == SizeOf(ToDeviceRect(Element.GetRect(), Scale));
	}
	return Element.GetElementType() == EElementType::ET_Box && Element.GetBrush().GetResourceName().IsNone()
		&& Element.GetBrush().GetResourceObject() == nullptr;
}

void FElementPainter::AddPicture(FFingerprint& InOutFingerprint, const FSlateDrawElement& Element, double Scale)
{
	const bool bViewport = Element.GetElementType() == EElementType::ET_Viewport;
	if (bViewport && Element.GetViewport().IsValid())
	{
		FSeenViewport& Seen = SeenViewports[Element.GetViewport().Get()];
		if (!Seen.Viewport.IsValid())
		{
			Seen = {Element.GetViewport(), ++LastViewportNumber};
		}
		InOutFingerprint.Add(Seen.Number);
	}
	const FPictureView Picture = FindPicture(Element, Scale);
	if (Picture.Pixels == nullptr)
	{
		return;
	}
	InOutFingerprint.Add(Picture.Size.X).Add(Picture.Size.Y).Add(Picture.Revision);
	if (Picture.Revision == 0)
	{
		InOutFingerprint.AddBytes(
			Picture.Pixels, static_cast<size_t>(Picture.Size.X) * static_cast<size_t>(Picture.Size.Y) * sizeof(FColor));
	}
}

FIntRect FElementPainter::FindTextBounds(const FSlateDrawElement& Element, double Scale)
{
	const FSlateFontInfo& Font = Element.GetFontInfo();
	const double FontScale = Scale * Element.GetPaintGeometry().DrawScale;
	const FVector2D Position = Element.GetPaintGeometry().DrawPosition;
	PangoRectangle Ink;
	PangoLayout* const Layout = Layouts->Find(ToUtf8(Element.GetText()), Font, FontScale);
	pango_layout_line_get_extents(pango_layout_get_line_readonly(Layout, 0), &Ink, nullptr);
	const FDeviceRect Rect{std::round(Position.X * Scale) + pango_units_to_double(Ink.x),
		std::round(Position.Y * Scale) + Layouts->GetAscent(Font, FontScale) + pango_units_to_double(Ink.y),
		pango_units_to_double(Ink.width), pango_units_to_double(Ink.height)};
	// The ink of hinted letters may lie a little beside that of their outlines.
	return ToPixels(Rect.Shrunk(-2.0));
}

FIntRect FElementPainter::FindBounds(const FSlateDrawElement& Element, double Scale)
{
	const FDeviceRect Rect = ToDeviceRect(Element.GetRect(), Scale);
	const double UnitScale = Scale * Element.GetPaintGeometry().DrawScale;
	FIntRect Bounds = ToPixels(Rect);
	switch (Element.GetElementType())
	{
	case EElementType::ET_Box:
		if (const StandIn::EBrushShape Kind = StandIn::GetBrushShape(Element.GetBrush()); Kind != StandIn::EBrushShape::None)
		{
			Bounds = ToPixels(Rect.Shrunk(-ReachOfShape({Kind, Rect, {}, 0.0, UnitScale})));
		}
		break;
	case EElementType::ET_Text:
		Bounds = FindTextBounds(Element, Scale);
		break;
	case EElementType::ET_Line:
		Bounds =
			FindLineBounds(Element.GetPoints(), Scale, std::max(1.0, std::round(static_cast<double>(Element.GetThickness()) * UnitScale)));
		break;
	case EElementType::ET_Viewport:
		break;
	}
	if (Element.GetClipRect().IsSet())
	{
		Bounds.Clip(ToPixels(ToDeviceRect(Element.GetClipRect().GetValue(), Scale)));
	}
	return Bounds;
}
}
