// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/Picture.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

// The pictures of a page, each of its pixels in it once: a picture that was there before is named again, and one that differs
// from another in a part of it, as a window with an open menu does, is the other with that part above it.

namespace TintmillHost
{
/** A picture on the page: stored whole, or as another one and a part that lies above it. */
struct FGalleryPicture
{
	int Width = 0;
	int Height = 0;

	/** The number of the stored picture. */
	int Whole = -1;

	/** The number of the stored part above it, -1 if there is none, and where it lies, in pixels. */
	int Part = -1;
	FIntRect PartArea;

	/** Whether there is a picture at all. */
	bool IsValid() const { return Whole >= 0; }

	/** Whether both show the same pixels. */
	bool operator==(const FGalleryPicture& Other) const { return Whole == Other.Whole && Part == Other.Part; }
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

	struct FPart
	{
		FGalleryPicture Picture;
		FPicture Pixels;
	};

	int Store(std::string Png);
	FGalleryPicture AddPart(const FWhole& Whole, const FIntRect& Area, const FPicture& Picture);

	/** The PNGs' bytes. */
	std::vector<std::string> Blobs;

	/** Whole pictures with their pixels, the newest last; old ones are forgotten. */
	std::vector<FWhole> Wholes;

	std::vector<FPart> Parts;
};
}
