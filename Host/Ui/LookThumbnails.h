// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Delegates/IDelegateInstance.h"
#include "Host/Picture/Picture.h"
#include "Styling/SlateBrush.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class UTintmillObject;

// Thumbnails of assets in lists and tiles. That of a look is a small picture of the scene with the look: the look is loaded between
// two frames after its row was painted, as long as it is in sight, a few milliseconds' worth at a time; until then, and for a look that cannot be used, the row shows the thumbnail
// of its class. A look that changes gets another thumbnail. That of a texture is the picture itself.

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

	/** The picture of a brush that is one of the thumbnails', for an area of DeviceSize pixels; no pixels for any other. */
	FPictureView Find(const FSlateBrush& Brush, const FIntPoint& DeviceSize);

private:
	using FSize = std::pair<int32, int32>;

	struct FThumbnail
	{
		FAssetData Asset;
		TWeakObjectPtr<UTintmillObject> Look;
		uint64 Revision = 0;
		uint64 LastAsked = 0;
		bool bMade = false;
		std::unique_ptr<FSlateBrush> Brush;
		std::map<FSize, FPicture> Pictures;
	};

	const FSlateBrush* Request(const FAssetData& Asset);
	const FSlateBrush* RequestTexture(const FAssetData& Asset);
	void Update();
	void Make(const std::string& Path);
	void Drop(FThumbnail& Thumbnail);
	void DropUnused();
	const FPicture& GetScene(const FSize& Size);

	/** By the object paths of their assets. */
	std::map<std::string, FThumbnail> Thumbnails;
	std::map<std::string, std::unique_ptr<FSlateBrush>> Textures;
	std::vector<std::string> Waiting;

	/** Brushes that may still be on the screen, with when they were dropped. */
	std::vector<std::pair<uint64, std::unique_ptr<FSlateBrush>>> Dropped;
	std::map<FSize, FPicture> Scenes;
	uint64 Frame = 0;
	FDelegateHandle Ticker;
};
}
