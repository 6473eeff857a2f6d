// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Painter/ElementPainter.h"
#include "Host/Picture/PngFile.h"
#include "Styling/CoreStyle.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <ostream>

/** Shows a color in a failure's message. */
inline void PrintTo(const FColor& Color, std::ostream* Output)
{
	*Output << '(' << int(Color.R) << ", " << int(Color.G) << ", " << int(Color.B) << ')';
}

/** A list of elements and the picture that the painter makes of it, on black. */
class FCanvasTest : public testing::Test
{
protected:
	/** The elements to be painted. */
	FSlateWindowElementList List{nullptr};

	/** Measures and paints texts. */
	std::shared_ptr<TintmillHost::FTextLayouts> Layouts = std::make_shared<TintmillHost::FTextLayouts>();

	TintmillHost::FElementPainter Painter{Layouts};

	/** Paints the list into a picture of Width x Height units. */
	TintmillHost::FPicture Paint(int Width, int Height, double Scale = 1.0)
	{
		TintmillHost::FPicture Picture;
		Picture.Width = static_cast<int>(Width * Scale);
		Picture.Height = static_cast<int>(Height * Scale);
		const TintmillHost::FCairoSurface Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, Picture.Width, Picture.Height));
		const TintmillHost::FCairoContext Context(cairo_create(Surface.get()));
		Painter.Paint(Context.get(), List, Scale);
		cairo_surface_flush(Surface.get());
		Picture.Pixels.SetNumZeroed(Picture.Width * Picture.Height);
		for (int Row = 0; Row < Picture.Height; ++Row)
		{
			std::memcpy(Picture.Pixels.GetData() + Row * Picture.Width,
				cairo_image_surface_get_data(Surface.get()) + Row * cairo_image_surface_get_stride(Surface.get()),
				static_cast<size_t>(Picture.Width) * 4);
		}
		for (FColor& Pixel : Picture.Pixels)
		{
			Pixel.A = 255;
		}
		return Picture;
	}

	/** A pixel of a picture. */
	static FColor At(const TintmillHost::FPicture& Picture, int X, int Y) { return Picture.Pixels[Y * Picture.Width + X]; }

	/** A place and a size in units. */
	static FPaintGeometry Place(float X, float Y, float Width, float Height)
	{
		return FPaintGeometry(FVector2D(X, Y), FVector2D(Width, Height), 1.0f);
	}

	/** Adds a box of a brush. */
	void AddBox(const FPaintGeometry& Geometry, const FSlateBrush& Brush, const FLinearColor& Tint = FLinearColor::White, uint32 Layer = 0,
		ESlateDrawEffect Effect = ESlateDrawEffect::None)
	{
		FSlateDrawElement::MakeBox(List, Layer, Geometry, &Brush, Effect, Tint);
	}

	/** Adds a white line of text in 9 points. */
	void AddText(const TCHAR* Text, float X, float Y)
	{
		FSlateDrawElement::MakeText(List, 0, Place(X, Y, 100.0f, 16.0f), FString(Text), Font());
	}

	/** Roboto, 9 points. */
	static FSlateFontInfo Font() { return FCoreStyle::GetDefaultFontStyle("Regular", 9); }
};
