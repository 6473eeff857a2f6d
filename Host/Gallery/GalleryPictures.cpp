// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/GalleryPictures.h"

#include "Host/Gallery/HtmlText.h"
#include "Host/Picture/PngFile.h"

#include <algorithm>
#include <cstring>

namespace TintmillHost
{
namespace
{
/** Whole pictures that new ones are compared with; more would cost memory and time. */
constexpr size_t MaxComparedWholes = 8;

/** A part larger than this share of its picture is no gain over a whole picture, which others can be compared with. */
constexpr double MaxPartShare = 0.6;

/** Unchanged pixels around a part, so that its edge is not seen when a browser scales both pictures. */
constexpr int32 PartMargin = 8;

bool AreSameColors(const FColor& A, const FColor& B)
{
	return A.R == B.R && A.G == B.G && A.B == B.B;
}

/** The smallest area that holds all pixels that differ; empty if none does. Both pictures have one size. */
FIntRect FindDifference(const FPicture& A, const FPicture& B)
{
	FIntRect Area(A.Width, A.Height, 0, 0);
	for (int32 Row = 0; Row < A.Height; ++Row)
	{
		const FColor* const RowA = A.Pixels.GetData() + static_cast<size_t>(Row) * A.Width;
		const FColor* const RowB = B.Pixels.GetData() + static_cast<size_t>(Row) * A.Width;
		if (std::memcmp(RowA, RowB, static_cast<size_t>(A.Width) * sizeof(FColor)) == 0)
		{
			continue;
		}
		for (int32 Column = 0; Column < A.Width; ++Column)
		{
			if (!AreSameColors(RowA[Column], RowB[Column]))
			{
				Area.Min = FIntPoint(std::min(Area.Min.X, Column), std::min(Area.Min.Y, Row));
				Area.Max = FIntPoint(std::max(Area.Max.X, Column + 1), std::max(Area.Max.Y, Row + 1));
			}
		}
	}
	return Area.Max.X > Area.Min.X ? Area : FIntRect(0, 0, 0, 0);
}

FPicture CutOut(const FPicture& Picture, const FIntRect& Area)
{
	FPicture Result;
	Result.Width = Area.Width();
	Result.Height = Area.Height();
	Result.Pixels.SetNumUninitialized(Result.Width * Result.Height);
	for (int32 Row = 0; Row < Result.Height; ++Row)
	{
		std::copy_n(Picture.Pixels.GetData() + static_cast<size_t>(Area.Min.Y + Row) * Picture.Width + Area.Min.X, Result.Width,
			Result.Pixels.GetData() + static_cast<size_t>(Row) * Result.Width);
	}
	return Result;
}

FIntRect Widen(const FIntRect& Area, const FPicture& Picture)
{
	return FIntRect(std::max(Area.Min.X - PartMargin, 0), std::max(Area.Min.Y - PartMargin, 0),
		std::min(Area.Max.X + PartMargin, Picture.Width), std::min(Area.Max.Y + PartMargin, Picture.Height));
}

double MeasureArea(const FIntRect& Area)
{
	return static_cast<double>(Area.Width()) * Area.Height();
}
}

FGalleryPicture FGalleryPictures::Add(const std::string& Png)
{
	const std::shared_ptr<const FPicture> Picture = std::make_shared<FPicture>(DecodePng(Png));
	if (Picture->Width <= 0 || Picture->Height <= 0)
	{
		return {};
	}

	const FWhole* Nearest = nullptr;
	FIntRect Smallest;
	for (const FWhole& Whole : Wholes)
	{
		if (Whole.Picture->Width != Picture->Width || Whole.Picture->Height != Picture->Height)
		{
			continue;
		}
		const FIntRect Difference = FindDifference(*Whole.Picture, *Picture);
		if (!Nearest || MeasureArea(Difference) < MeasureArea(Smallest))
		{
			Nearest = &Whole;
			Smallest = Difference;
		}
	}

	FGalleryPicture Result;
	Result.Width = Picture->Width;
	Result.Height = Picture->Height;
	if (Nearest && MeasureArea(Smallest) == 0.0)
	{
		Result.Whole = Nearest->Number;
		return Result;
	}
	if (Nearest && MeasureArea(Smallest) <= MaxPartShare * Picture->Width * Picture->Height)
	{
		return AddPart(*Nearest, Widen(Smallest, *Picture), *Picture);
	}

	Result.Whole = Store(Png);
	Wholes.push_back({Result.Whole, Picture});
	if (Wholes.size() > MaxComparedWholes)
	{
		Wholes.erase(Wholes.begin());
	}
	return Result;
}

void FGalleryPictures::WriteStyle(std::ostream& Page) const
{
	for (size_t Number = 0; Number < Blobs.size(); ++Number)
	{
		Page << ".p" << Number << "{background-image:url(data:image/png;base64," << EncodeBase64(Blobs[Number]) << ")}\n";
	}
}

int FGalleryPictures::Store(std::string Png)
{
	Blobs.push_back(std::move(Png));
	return static_cast<int>(Blobs.size()) - 1;
}

FGalleryPicture FGalleryPictures::AddPart(const FWhole& Whole, const FIntRect& Area, const FPicture& Picture)
{
	FPart Part;
	Part.Pixels = CutOut(Picture, Area);
	for (const FPart& Known : Parts)
	{
		const bool bSamePlace = Known.Picture.Whole == Whole.Number && Known.Picture.PartArea == Area;
		if (bSamePlace && MeasureArea(FindDifference(Known.Pixels, Part.Pixels)) == 0.0)
		{
			return Known.Picture;
		}
	}
	Part.Picture.Width = Picture.Width;
	Part.Picture.Height = Picture.Height;
	Part.Picture.Whole = Whole.Number;
	Part.Picture.PartArea = Area;
	Part.Picture.Part = Store(EncodePng(Part.Pixels));
	Parts.push_back(Part);
	return Part.Picture;
}
}
