// Copyright The Tintmill authors. All rights reserved.

#include "TintmillLookAssets.h"

namespace TintmillLookAssetsPrivate
{
static TArray<UTintmillObject*>& All()
{
	static TArray<UTintmillObject*> Assets;
	return Assets;
}
}

namespace TintmillLookAssets
{
void Add(UTintmillObject* Asset)
{
	TintmillLookAssetsPrivate::All().Add(Asset);
}

void Remove(UTintmillObject* Asset)
{
	TintmillLookAssetsPrivate::All().Remove(Asset);
}

const TArray<UTintmillObject*>& GetAll()
{
	return TintmillLookAssetsPrivate::All();
}

bool IsLiving(const UTintmillObject* Asset)
{
	for (const UTintmillObject* Living : TintmillLookAssetsPrivate::All())
	{
		if (Living == Asset)
		{
			return true;
		}
	}
	return false;
}
}
