// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class IAssetTypeActions;

// Assets that are no looks: pictures in the project are textures, so that a person sees them among the looks, and opening one says
// that there is no editor for them here.

namespace TintmillHost
{
/** Makes PNG files assets while it lives; from before the project is scanned until the engine exits. */
class FTextureFiles
{
public:
	FTextureFiles();
	~FTextureFiles();
	FTextureFiles(const FTextureFiles&) = delete;
	FTextureFiles& operator=(const FTextureFiles&) = delete;
};

/** Lets textures be named, colored and opened as the editor does, and whatever has no editor be opened without harm, while it lives; from
 * the editor's start to its exit. */
class FOtherAssets
{
public:
	FOtherAssets();
	~FOtherAssets();
	FOtherAssets(const FOtherAssets&) = delete;
	FOtherAssets& operator=(const FOtherAssets&) = delete;

private:
	TSharedPtr<IAssetTypeActions> TextureActions;
};
}
