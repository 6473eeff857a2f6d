// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/Picture.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

// The pictures of a page, each of its pixels in it once: a picture that was there before is named again, and one that differs
// from another in parts of it, as a window with an open menu does, is the other with those parts above it.

namespace TintmillHost
{
/** A part of a picture that lies above another picture. */
struct FGalleryPart
{
	/** The number of the stored part. */
	int Number = -1;

	/** Where it lies, in pixels. */
	FIntRect Area;

	bool operator==(const FGalleryPart& Other) const { return Number == Other.Number && Area == Other.Area; }
};

/** A picture on the page: stored whole, or as another one and parts that lie above it. */
struct FGalleryPicture
{
	int Width = 0;
	int Height = 0;

	/** The number of the stored picture. */
	int Whole = -1;

	/** What lies above it. */
	std::vector<FGalleryPart> Parts;

	/** Whether there is a picture at all. */
	bool IsValid() const { return Whole >= 0; }

	/** Whether both show the same pixels. */
	bool operator==(const FGalleryPicture& Other) const { return Whole == Other.Whole && Parts == Other.Parts; }
};

/** Stores pictures for a page and writes them as its style sheet. */
class FGalleryPictures
{
public:
	/** Stores a PNG's bytes; an invalid picture if they hold none. */
	FGalleryPicture Add(const std::string& Png);

	/** Writes a rule for every stored picture, a class ".p0", ".p1" … with the picture as the background. */
	void WriteStyle(std::ostream& Page) const;

	/** How many pictures and parts are stored, for tests. */
	int CountStored() const { return static_cast<int>(Blobs.size()); }

private:
	struct FWhole
	{
		int Number;
		std::shared_ptr<const FPicture> Picture;
	};

	struct FStoredPart
	{
		int Number;
		FPicture Pixels;
	};

	int Store(std::string Png);
	FGalleryPart AddPart(const FIntRect& Area, const FPicture& Picture);

	/** The PNGs' bytes. */
	std::vector<std::string> Blobs;

	/** Whole pictures with their pixels, the newest last; old ones are forgotten. */
	std::vector<FWhole> Wholes;

	std::vector<FStoredPart> StoredParts;
};
}
