// Copyright The Tintmill authors. All rights reserved.

#include "TintmillDisplayManager.h"

FTintmillDisplayManager::FTintmillDisplayManager() {}

FTintmillDisplayManager::~FTintmillDisplayManager() {}

FTintmillDisplayConfiguration& FTintmillDisplayManager::FindOrAddDisplayConfiguration(FViewportClient* ViewportClient)
{
	TUniquePtr<FTintmillDisplayConfiguration>& Configuration = Configurations.FindOrAdd(ViewportClient);
	if (!Configuration.IsValid())
	{
		Configuration = MakeUnique<FTintmillDisplayConfiguration>();
	}
	return *Configuration;
}

const FTintmillDisplayConfiguration* FTintmillDisplayManager::GetDisplayConfiguration(const FViewportClient* ViewportClient) const
{
	const TUniquePtr<FTintmillDisplayConfiguration>* const Configuration = Configurations.Find(ViewportClient);
	return Configuration != nullptr ? Configuration->Get() : nullptr;
}

bool FTintmillDisplayManager::RemoveDisplayConfiguration(const FViewportClient* ViewportClient)
{
	return Configurations.Remove(ViewportClient) > 0;
}
