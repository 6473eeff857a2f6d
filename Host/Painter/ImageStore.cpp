// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/ImageStore.h"

#include "Host/Program/Strings.h"

#include "Logging/LogMacros.h"

#include <algorithm>
#include <cstdint>

DEFINE_LOG_CATEGORY_STATIC(LogHostPainter, Log, All);

namespace TintmillHost
{
namespace
{
/** Multiplies the pixels, which have their opacity multiplied in, by a linear color. */
void Multiply(cairo_surface_t* Surface, const FLinearColor& Tint)
{
	cairo_surface_flush(Surface);
	uint8* const Rows = cairo_image_surface_get_data(Surface);
	const int Stride = cairo_image_surface_get_stride(Surface);
	for (int Y = 0; Y < cairo_image_surface_get_height(Surface); ++Y)
	{
		uint32* const Row = reinterpret_cast<uint32*>(Rows + static_cast<ptrdiff_t>(Y) * Stride);
		for (int X = 0; X < cairo_image_surface_get_width(Surface); ++X)
		{
			const uint32 Alpha = Row[X] >> 24;
			if (Alpha == 0)
			{
				continue;
			}
			const auto Channel = [Pixel = Row[X], Alpha](int Shift) {
				return static_cast<uint8>(std::min<uint32>(255, (Pixel >> Shift & 0xFFu) * 255u / Alpha));
			};
			const FColor Color =
				(FLinearColor(FColor(Channel(16), Channel(8), Channel(0), 255)) * Tint.CopyWithNewOpacity(1.0f)).ToFColor(true);
			Row[X] = Alpha << 24 | Color.R * Alpha / 255u << 16 | Color.G * Alpha / 255u << 8 | Color.B * Alpha / 255u;
		}
	}
	cairo_surface_mark_dirty(Surface);
}

FCairoSurface Copy(cairo_surface_t* Source)
{
	FCairoSurface Result(
		cairo_image_surface_create(CAIRO_FORMAT_ARGB32, cairo_image_surface_get_width(Source), cairo_image_surface_get_height(Source)));
	const FCairoContext Context(cairo_create(Result.get()));
	cairo_set_source_surface(Context.get(), Source, 0.0, 0.0);
	cairo_paint(Context.get());
	return Result;
}
}

cairo_surface_t* FImageStore::Load(const std::string& File)
{
	const auto Found = Images.find(File);
	if (Found != Images.end())
	{
		return Found->second.get();
	}
	FCairoSurface Surface(cairo_image_surface_create_from_png(File.c_str()));
	const cairo_status_t Status = cairo_surface_status(Surface.get());
	if (Status != CAIRO_STATUS_SUCCESS)
	{
		UE_LOG(LogHostPainter, Warning, TEXT("Cannot read the image %s: %s"), *FromUtf8(File), *FromUtf8(cairo_status_to_string(Status)));
		Surface.reset();
	}
	return (Images[File] = std::move(Surface)).get();
}

cairo_surface_t* FImageStore::Find(const std::string& File, const FLinearColor& Tint)
{
	cairo_surface_t* const Image = Load(File);
	const FColor Color = Tint.CopyWithNewOpacity(1.0f).ToFColor(true);
	if (Image == nullptr || (Color.R == 255 && Color.G == 255 && Color.B == 255))
	{
		return Image;
	}
	FCairoSurface& Tinted =
		TintedImages[std::to_string(Color.R) + '|' + std::to_string(Color.G) + '|' + std::to_string(Color.B) + '|' + File];
	if (!Tinted)
	{
		Tinted = Copy(Image);
		Multiply(Tinted.get(), Tint);
	}
	return Tinted.get();
}
}
