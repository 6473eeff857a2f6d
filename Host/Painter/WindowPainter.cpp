// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/WindowPainter.h"

#include "Host/Painter/Damage.h"
#include "Host/Painter/PaintList.h"

#include <cmath>

namespace TintmillHost
{
namespace
{
/** Paints what lies in an area, from nothing; around it may be anything then. */
void PaintArea(const FPaintList& List, const FIntRect& Area, FPicture& Picture)
{
	const FCairoSurface Surface(cairo_image_surface_create_for_data(
		reinterpret_cast<unsigned char*>(Picture.Pixels.GetData()), CAIRO_FORMAT_RGB24, Picture.Width, Picture.Height, Picture.Width * 4));
	const FCairoContext Context(cairo_create(Surface.get()));
	cairo_rectangle(Context.get(), Area.Min.X, Area.Min.Y, Area.Width(), Area.Height());
	cairo_set_source_rgb(Context.get(), 0.0, 0.0, 0.0);
	cairo_fill(Context.get());
	for (const FPaintItem& Item : List.GetItems())
	{
		if (Item.Bounds.Intersect(Area))
		{
			List.Paint(Context.get(), Item, Area);
		}
	}
	cairo_surface_flush(Surface.get());
}

/** Copies an area from one picture to another of the same size, opaque: the fourth byte is whatever Cairo left there. */
void CopyArea(const FPicture& From, const FIntRect& Area, FPicture& To)
{
	for (int32 Row = Area.Min.Y; Row < Area.Max.Y; ++Row)
	{
		const size_t Start = static_cast<size_t>(Row) * static_cast<size_t>(From.Width);
		const FColor* const Source = From.Pixels.GetData() + Start;
		FColor* const Target = To.Pixels.GetData() + Start;
		for (int32 Column = Area.Min.X; Column < Area.Max.X; ++Column)
		{
			Target[Column] = Source[Column];
			Target[Column].A = 255;
		}
	}
}

/** What changed between the items of two pictures. */
std::vector<FIntRect> FindChanges(FPaintList& List, const std::vector<FIntRect>& Before, const std::vector<std::ptrdiff_t>& Matches)
{
	std::vector<FPaintItem>& Items = List.GetItems();
	std::vector<FIntRect> Changes;
	std::vector<bool> Stays(Before.size(), false);
	for (size_t Item = 0; Item < Items.size(); ++Item)
	{
		if (Matches[Item] == NoItem)
		{
			List.FindBounds(Items[Item]);
			Changes.push_back(Items[Item].Bounds);
			continue;
		}
		Items[Item].Bounds = Before[static_cast<size_t>(Matches[Item])];
		Stays[static_cast<size_t>(Matches[Item])] = true;
	}
	for (size_t Place = 0; Place < Before.size(); ++Place)
	{
		if (!Stays[Place])
		{
			Changes.push_back(Before[Place]);
		}
	}
	return Changes;
}
}

FPicture PaintWindows(FElementPainter& Painter, const FWindowShot& Shot)
{
	FPicture Picture;
	FKeptPicture(Painter).Update(Shot, Picture);
	return Picture;
}

FKeptPicture::FKeptPicture(FElementPainter& InPainter)
	: Painter(InPainter)
{}

TArray<FIntRect> FKeptPicture::Update(const FWindowShot& Shot, FPicture& InOutPicture)
{
	const int32 Width = std::max(1, static_cast<int32>(std::lround(Shot.Size.X * Shot.Scale)));
	const int32 Height = std::max(1, static_cast<int32>(std::lround(Shot.Size.Y * Shot.Scale)));
	const FIntRect Whole(0, 0, Width, Height);
	const bool bOther = InOutPicture.Width != Width || InOutPicture.Height != Height || Scale != Shot.Scale || Origin != Shot.Origin;
	if (bOther)
	{
		InOutPicture.Width = Width;
		InOutPicture.Height = Height;
		InOutPicture.Pixels.SetNumUninitialized(Width * Height);
		Aside.Width = Width;
		Aside.Height = Height;
		Aside.Pixels.SetNumUninitialized(Width * Height);
		Scale = Shot.Scale;
		Origin = Shot.Origin;
		Fingerprints.clear();
		Bounds.clear();
	}

	FPaintList List(Painter, Shot);
	std::vector<FPaintItem>& Items = List.GetItems();
	std::vector<std::uint64_t> Current(Items.size());
	for (size_t Item = 0; Item < Items.size(); ++Item)
	{
		List.Fingerprint(Items[Item]);
		Current[Item] = Items[Item].Fingerprint;
	}
	std::vector<FIntRect> Changes = FindChanges(List, Bounds, MatchInOrder(Fingerprints, Current));
	if (bOther)
	{
		Changes = {Whole};
	}
	for (FIntRect& Change : Changes)
	{
		Change.Clip(Whole);
	}

	TArray<FIntRect> Painted;
	for (const FIntRect& Area : JoinAreas(Changes))
	{
		// Edges are smoothed a little differently where they are cut off, so nothing is: it is painted aside.
		PaintArea(List, Area, Aside);
		CopyArea(Aside, Area, InOutPicture);
		Painted.Add(Area);
	}
	Fingerprints = std::move(Current);
	Bounds.resize(Items.size());
	for (size_t Item = 0; Item < Items.size(); ++Item)
	{
		Bounds[Item] = Items[Item].Bounds;
	}
	return Painted;
}
}
