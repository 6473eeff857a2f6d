// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/GalleryPictures.h"

#include "Host/Gallery/HtmlText.h"
#include "Host/Gallery/PictureDifference.h"
#include "Host/Picture/PngFile.h"

#include <algorithm>

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

double MeasureAreas(const std::vector<FIntRect>& Areas)
{
	double Sum = 0.0;
	for (const FIntRect& Area : Areas)
	{
		Sum += static_cast<double>(Area.Width()) * Area.Height();
	}
	return Sum;
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
	std::vector<FIntRect> Smallest;
	for (const FWhole& Whole : Wholes)
	{
		if (Whole.Picture->Width != Picture->Width || Whole.Picture->Height != Picture->Height)
		{
			continue;
		}
		std::vector<FIntRect> Difference = FindDifferences(*Whole.Picture, *Picture);
		if (!Nearest || MeasureAreas(Difference) < MeasureAreas(Smallest))
		{
			Nearest = &Whole;
			Smallest = std::move(Difference);
		}
	}

	FGalleryPicture Result;
	Result.Width = Picture->Width;
	Result.Height = Picture->Height;
	if (Nearest && MeasureAreas(Smallest) <= MaxPartShare * Picture->Width * Picture->Height)
	{
		Result.Whole = Nearest->Number;
		for (const FIntRect& Area : Smallest)
		{
			Result.Parts.push_back(AddPart(Widen(Area, *Picture), *Picture));
		}
		return Result;
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

FGalleryPart FGalleryPictures::AddPart(const FIntRect& Area, const FPicture& Picture)
{
	FStoredPart Part{-1, CutOut(Picture, Area)};
	for (const FStoredPart& Known : StoredParts)
	{
		const bool bSameSize = Known.Pixels.Width == Part.Pixels.Width && Known.Pixels.Height == Part.Pixels.Height;
		if (bSameSize && FindDifferences(Known.Pixels, Part.Pixels).empty())
		{
			return {Known.Number, Area};
		}
	}
	Part.Number = Store(EncodePng(Part.Pixels));
	StoredParts.push_back(Part);
	return {Part.Number, Area};
}
}
