// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/WindowPainter.h"

#include "Host/Painter/ShapePainter.h"

#include "Styling/CoreStyle.h"

#include <array>
#include <cmath>
#include <cstring>

namespace TintmillHost
{
namespace
{
/** How far a pop-up's shadow reaches, in units. */
constexpr double ShadowReach = 8.0;

void PaintPopupShadow(cairo_t* Context, const SWindow& Window, double Scale)
{
	const FSlateBrush* const Brush = FCoreStyle::Get().GetBrush("Menu.Shadow");
	FLinearColor Color = Brush->TintColor.GetSpecifiedColor();
	Color.A *= Window.GetRenderOpacity();
	FShape Shadow;
	Shadow.Rect = ToDeviceRect(Window.GetRectInScreen(), Scale);
	Shadow.Color = ToPaintColor(Color);
	Shadow.Scale = Scale * Window.GetDPIScaleFactor();
	PaintShadow(Context, Shadow, ShadowReach);
}

/** The usual arrow, its tip at the mouse's position. */
void PaintPointer(cairo_t* Context, const FVector2D& Position, double Scale)
{
	constexpr std::array<std::array<double, 2>, 7> Outline = {
		{{0.0, 0.0}, {0.0, 16.0}, {3.7, 12.6}, {6.2, 18.2}, {8.6, 17.1}, {6.2, 11.7}, {11.2, 11.3}}};
	cairo_save(Context);
	cairo_translate(Context, std::round(Position.X * Scale), std::round(Position.Y * Scale));
	cairo_scale(Context, Scale, Scale);
	for (const std::array<double, 2>& Point : Outline)
	{
		cairo_line_to(Context, Point[0], Point[1]);
	}
	cairo_close_path(Context);
	FPaintColor{1.0, 1.0, 1.0, 1.0}.Use(Context);
	cairo_fill_preserve(Context);
	FPaintColor{0.0, 0.0, 0.0, 1.0}.Use(Context);
	cairo_set_line_width(Context, 1.0);
	cairo_stroke(Context);
	cairo_restore(Context);
}

FPicture CopyPixels(cairo_surface_t* Surface)
{
	cairo_surface_flush(Surface);
	FPicture Picture;
	Picture.Width = cairo_image_surface_get_width(Surface);
	Picture.Height = cairo_image_surface_get_height(Surface);
	Picture.Pixels.SetNumUninitialized(Picture.Width * Picture.Height);
	const unsigned char* const Rows = cairo_image_surface_get_data(Surface);
	const ptrdiff_t Stride = cairo_image_surface_get_stride(Surface);
	for (int32 Row = 0; Row < Picture.Height; ++Row)
	{
		std::memcpy(Picture.Pixels.GetData() + static_cast<size_t>(Row) * Picture.Width, Rows + Row * Stride,
			static_cast<size_t>(Picture.Width) * 4);
	}
	for (FColor& Pixel : Picture.Pixels)
	{
		Pixel.A = 255;
	}
	return Picture;
}
}

FPicture PaintWindows(FElementPainter& Painter, const FWindowShot& Shot)
{
	const FCairoSurface Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(std::lround(Shot.Size.X * Shot.Scale)),
		static_cast<int>(std::lround(Shot.Size.Y * Shot.Scale))));
	const FCairoContext Context(cairo_create(Surface.get()));
	cairo_translate(Context.get(), -std::round(Shot.Origin.X * Shot.Scale), -std::round(Shot.Origin.Y * Shot.Scale));
	for (const TSharedRef<SWindow>& Window : Shot.Windows)
	{
		if (!Window->IsRegularWindow())
		{
			PaintPopupShadow(Context.get(), *Window, Shot.Scale);
		}
		Painter.Paint(Context.get(), Window->GetElementList(), Shot.Scale);
	}
	if (Shot.Pointer.IsSet())
	{
		PaintPointer(Context.get(), Shot.Pointer.GetValue(), Shot.Scale);
	}
	return CopyPixels(Surface.get());
}
}
