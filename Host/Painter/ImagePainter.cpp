// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/ImagePainter.h"

#include "Host/Painter/CairoHandles.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace TintmillHost
{
namespace
{
/** How a part of the image fills a part of the area. */
struct FPart
{
	FDeviceRect Source;
	FDeviceRect Target;

	/** Pixels of the area for one of the image in the directions in which it repeats; 0 stretches it to fit. */
	double RepeatX = 0.0;
	double RepeatY = 0.0;
};

void PaintPart(cairo_t* Context, cairo_surface_t* Image, const FPart& Part, double Opacity)
{
	if (Part.Source.IsEmpty() || Part.Target.IsEmpty())
	{
		return;
	}
	const FCairoSurface Sub(cairo_surface_create_for_rectangle(Image, Part.Source.X, Part.Source.Y, Part.Source.Width, Part.Source.Height));
	cairo_save(Context);
	cairo_rectangle(Context, Part.Target.X, Part.Target.Y, Part.Target.Width, Part.Target.Height);
	cairo_clip(Context);
	cairo_translate(Context, Part.Target.X, Part.Target.Y);
	cairo_scale(Context, Part.RepeatX > 0.0 ? Part.RepeatX : Part.Target.Width / Part.Source.Width,
		Part.RepeatY > 0.0 ? Part.RepeatY : Part.Target.Height / Part.Source.Height);
	cairo_set_source_surface(Context, Sub.get(), 0.0, 0.0);
	const bool bRepeats = Part.RepeatX > 0.0 || Part.RepeatY > 0.0;
	// Outside of the image counts its nearest pixel, so that edges stay as opaque as they are.
	cairo_pattern_set_extend(cairo_get_source(Context), bRepeats ? CAIRO_EXTEND_REPEAT : CAIRO_EXTEND_PAD);
	cairo_pattern_set_filter(cairo_get_source(Context), CAIRO_FILTER_BEST);
	cairo_paint_with_alpha(Context, Opacity);
	cairo_restore(Context);
}

/** The edges of three columns or rows: margins keep their size as long as there is room. */
std::array<double, 4> Split(double Start, double Length, double First, double Last)
{
	const double Shrink = First + Last > Length ? Length / (First + Last) : 1.0;
	return {Start, Start + std::round(First * Shrink), Start + Length - std::round(Last * Shrink), Start + Length};
}

void PaintNineParts(
	cairo_t* Context, cairo_surface_t* Image, const FSlateBrush& Brush, const FDeviceRect& Rect, double Scale, double Opacity)
{
	const double Width = cairo_image_surface_get_width(Image);
	const double Height = cairo_image_surface_get_height(Image);
	const FMargin& Margin = Brush.GetMargin();
	const std::array<double, 4> SourceX = Split(0.0, Width, Margin.Left * Width, Margin.Right * Width);
	const std::array<double, 4> SourceY = Split(0.0, Height, Margin.Top * Height, Margin.Bottom * Height);
	const std::array<double, 4> TargetX = Split(Rect.X, Rect.Width, Margin.Left * Width * Scale, Margin.Right * Width * Scale);
	const std::array<double, 4> TargetY = Split(Rect.Y, Rect.Height, Margin.Top * Height * Scale, Margin.Bottom * Height * Scale);
	const bool bBorder = Brush.GetDrawType() == ESlateBrushDrawType::Border;
	for (size_t Row = 0; Row < 3; ++Row)
	{
		for (size_t Column = 0; Column < 3; ++Column)
		{
			if (bBorder && Row == 1 && Column == 1)
			{
				continue;
			}
			FPart Part;
			Part.Source = {SourceX[Column], SourceY[Row], SourceX[Column + 1] - SourceX[Column], SourceY[Row + 1] - SourceY[Row]};
			Part.Target = {TargetX[Column], TargetY[Row], TargetX[Column + 1] - TargetX[Column], TargetY[Row + 1] - TargetY[Row]};
			Part.RepeatX = bBorder && Column == 1 ? Scale : 0.0;
			Part.RepeatY = bBorder && Row == 1 ? Scale : 0.0;
			PaintPart(Context, Image, Part, Opacity);
		}
	}
}

void MirrorAround(cairo_t* Context, const FDeviceRect& Rect, ESlateBrushMirrorType::Type Mirroring)
{
	const bool bX = Mirroring == ESlateBrushMirrorType::Horizontal || Mirroring == ESlateBrushMirrorType::Both;
	const bool bY = Mirroring == ESlateBrushMirrorType::Vertical || Mirroring == ESlateBrushMirrorType::Both;
	cairo_translate(Context, bX ? 2.0 * Rect.X + Rect.Width : 0.0, bY ? 2.0 * Rect.Y + Rect.Height : 0.0);
	cairo_scale(Context, bX ? -1.0 : 1.0, bY ? -1.0 : 1.0);
}
}

void PaintImage(cairo_t* Context, cairo_surface_t* Image, const FSlateBrush& Brush, const FDeviceRect& Rect, double Scale, double Opacity)
{
	if (Rect.IsEmpty())
	{
		return;
	}
	cairo_save(Context);
	MirrorAround(Context, Rect, Brush.Mirroring);
	if (Brush.GetDrawType() == ESlateBrushDrawType::Image)
	{
		const ESlateBrushTileType::Type Tiling = Brush.GetTiling();
		FPart Part;
		Part.Source = {0.0, 0.0, static_cast<double>(cairo_image_surface_get_width(Image)),
			static_cast<double>(cairo_image_surface_get_height(Image))};
		Part.Target = Rect;
		Part.RepeatX = Tiling == ESlateBrushTileType::Horizontal || Tiling == ESlateBrushTileType::Both ? Scale : 0.0;
		Part.RepeatY = Tiling == ESlateBrushTileType::Vertical || Tiling == ESlateBrushTileType::Both ? Scale : 0.0;
		PaintPart(Context, Image, Part, Opacity);
	}
	else
	{
		PaintNineParts(Context, Image, Brush, Rect, Scale, Opacity);
	}
	cairo_restore(Context);
}
}
