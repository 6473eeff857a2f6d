// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Toolkits are windows that edit assets. There are none here but the ways to ask for one.

namespace EToolkitMode
{
/** Where an asset is edited. */
enum Type
{
	Standalone,
	WorldCentric
};
}
