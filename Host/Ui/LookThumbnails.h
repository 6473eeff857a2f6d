// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Delegates/IDelegateInstance.h"
#include "Host/Picture/Picture.h"
#include "Styling/SlateBrush.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

// Thumbnails of looks in asset lists: a small picture of the scene with the look. A look is loaded between two frames, one at a
// time, after its row was painted; until then, and for a look that cannot be used, the row shows the thumbnail of its class.

namespace TintmillHost
{
/** Makes thumbnails while it lives. */
class FLookThumbnails
{
public:
	FLookThumbnails();
	~FLookThumbnails();
	FLookThumbnails(const FLookThumbnails&) = delete;
	FLookThumbnails& operator=(const FLookThumbnails&) = delete;

	/** The picture of a brush that is one of the thumbnails'; no pixels for any other. */
	FPictureView Find(const FSlateBrush& Brush) const;

private:
	struct FThumbnail
	{
		FAssetData Asset;
		std::unique_ptr<FSlateBrush> Brush;
		FPicture Picture;
	};

	const FSlateBrush* Request(const FAssetData& Asset);
	void MakeNext();
	void Make(FThumbnail& Thumbnail);

	std::map<std::string, FThumbnail> Thumbnails;
	std::vector<std::string> Waiting;
	FPicture Scene;
	FDelegateHandle Ticker;
};
}
