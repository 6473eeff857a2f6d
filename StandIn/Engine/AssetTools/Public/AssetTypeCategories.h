// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Categories of asset types in the editor's menus: a bit mask in uint32.

namespace EAssetTypeCategories
{
/** Bits of the categories; a type may be in several. */
enum Type : uint32
{
	None = 0,
	Basic = 1u << 0,
	Animation = 1u << 1,
	MaterialsAndTextures = 1u << 2,
	Sounds = 1u << 3,
	Physics = 1u << 4,
	UI = 1u << 5,
	Misc = 1u << 6,
	Gameplay = 1u << 7,
	Blueprint = 1u << 8,
	Media = 1u << 9,
	FirstUser = 1u << 10,
	LastUser = 1u << 31
};
}
