// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AssetThumbnails.h"

namespace AssetThumbnailsPrivate
{
StandIn::FAssetThumbnails& Source()
{
	static StandIn::FAssetThumbnails Thumbnails;
	return Thumbnails;
}
}

void StandIn::SetAssetThumbnails(const FAssetThumbnails& InThumbnails)
{
	AssetThumbnailsPrivate::Source() = InThumbnails;
}

const FSlateBrush* StandIn::FindAssetThumbnail(const FAssetData& Asset)
{
	const FAssetThumbnails& Thumbnails = AssetThumbnailsPrivate::Source();
	return Thumbnails ? Thumbnails(Asset) : nullptr;
}
