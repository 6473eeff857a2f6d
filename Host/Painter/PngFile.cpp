// Copyright The Tintmill authors. All rights reserved.

#include "Host/Picture/PngFile.h"

#include <cairo.h>

#include <cstring>
#include <memory>
#include <string_view>
#include <system_error>

namespace TintmillHost
{
namespace
{
using FSurface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

std::string CannotWrite(const std::filesystem::path& File, const std::string& Reason)
{
	return "Cannot write the picture " + File.string() + ": " + Reason + ". Choose another folder with --out.";
}

/** The picture's pixels as a surface; its alpha is ignored. */
FSurface MakeSurface(const FPicture& Picture)
{
	FSurface Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, Picture.Width, Picture.Height), &cairo_surface_destroy);
	unsigned char* const Rows = cairo_image_surface_get_data(Surface.get());
	const int Stride = cairo_image_surface_get_stride(Surface.get());
	cairo_surface_flush(Surface.get());
	for (int32 Row = 0; Row < Picture.Height; ++Row)
	{
		// FColor and the surface agree on the bytes' order: blue, green, red, one more.
		std::memcpy(Rows + static_cast<size_t>(Row) * Stride, Picture.Pixels.GetData() + static_cast<size_t>(Row) * Picture.Width,
			static_cast<size_t>(Picture.Width) * sizeof(FColor));
	}
	cairo_surface_mark_dirty(Surface.get());
	return Surface;
}

/** The surface's pixels as a picture. */
void TakePixels(cairo_surface_t* Surface, FPicture& OutPicture)
{
	OutPicture.Width = cairo_image_surface_get_width(Surface);
	OutPicture.Height = cairo_image_surface_get_height(Surface);
	OutPicture.Pixels.SetNumUninitialized(OutPicture.Width * OutPicture.Height);
	const unsigned char* const Rows = cairo_image_surface_get_data(Surface);
	const int Stride = cairo_image_surface_get_stride(Surface);
	for (int32 Row = 0; Row < OutPicture.Height; ++Row)
	{
		std::memcpy(OutPicture.Pixels.GetData() + static_cast<size_t>(Row) * OutPicture.Width, Rows + static_cast<size_t>(Row) * Stride,
			static_cast<size_t>(OutPicture.Width) * sizeof(FColor));
	}
}

bool HasPixels(const FPicture& Picture)
{
	return Picture.Width > 0 && Picture.Height > 0 && Picture.Pixels.Num() == Picture.Width * Picture.Height;
}
}

bool HasPngFiles()
{
	return true;
}

std::string WritePng(const FPicture& Picture, const std::filesystem::path& File)
{
	if (!HasPixels(Picture))
	{
		return CannotWrite(File, "there are no pixels");
	}

	std::error_code Error;
	if (File.has_parent_path())
	{
		std::filesystem::create_directories(File.parent_path(), Error);
	}
	if (Error)
	{
		return CannotWrite(File, Error.message());
	}

	const FSurface Surface = MakeSurface(Picture);
	const cairo_status_t Status = cairo_surface_write_to_png(Surface.get(), File.c_str());
	return Status == CAIRO_STATUS_SUCCESS ? std::string() : CannotWrite(File, cairo_status_to_string(Status));
}

std::string ReadPng(const std::filesystem::path& File, FPicture& OutPicture)
{
	const FSurface Surface(cairo_image_surface_create_from_png(File.c_str()), &cairo_surface_destroy);
	const cairo_status_t Status = cairo_surface_status(Surface.get());
	if (Status != CAIRO_STATUS_SUCCESS)
	{
		return "Cannot read the picture " + File.string() + ": " + cairo_status_to_string(Status) + ".";
	}

	TakePixels(Surface.get(), OutPicture);
	return {};
}

std::string EncodePng(const FPicture& Picture)
{
	std::string Bytes;
	if (!HasPixels(Picture))
	{
		return Bytes;
	}
	const auto Append = [](void* Target, const unsigned char* Data, unsigned int Length) {
		static_cast<std::string*>(Target)->append(reinterpret_cast<const char*>(Data), Length);
		return CAIRO_STATUS_SUCCESS;
	};
	cairo_surface_write_to_png_stream(MakeSurface(Picture).get(), Append, &Bytes);
	return Bytes;
}

FPicture DecodePng(const std::string& Bytes)
{
	std::string_view Rest = Bytes;
	const auto Take = [](void* Source, unsigned char* Data, unsigned int Length) {
		std::string_view& From = *static_cast<std::string_view*>(Source);
		if (From.size() < Length)
		{
			return CAIRO_STATUS_READ_ERROR;
		}
		std::memcpy(Data, From.data(), Length);
		From.remove_prefix(Length);
		return CAIRO_STATUS_SUCCESS;
	};
	FPicture Picture;
	const FSurface Surface(cairo_image_surface_create_from_png_stream(Take, &Rest), &cairo_surface_destroy);
	if (cairo_surface_status(Surface.get()) == CAIRO_STATUS_SUCCESS)
	{
		TakePixels(Surface.get(), Picture);
	}
	return Picture;
}
}
