// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/Map.h"
#include "Templates/UniquePtr.h"
#include "TintmillDisplayConfiguration.h"

// Which viewport client shows which look. Clients are told apart by address alone and never looked into. Game thread only.

class FViewportClient;

/** The display configurations of all viewport clients; a record stays where it is until it is removed. */
class TINTMILL_API FTintmillDisplayManager
{
public:
	FTintmillDisplayManager();
	~FTintmillDisplayManager();
	FTintmillDisplayManager(const FTintmillDisplayManager&) = delete;
	FTintmillDisplayManager& operator=(const FTintmillDisplayManager&) = delete;

	/** Returns the client's record, first adding a default one if there is none; valid until it is removed. */
	FTintmillDisplayConfiguration& FindOrAddDisplayConfiguration(FViewportClient* ViewportClient);

	/** Returns the client's record, or null; adds nothing. */
	const FTintmillDisplayConfiguration* GetDisplayConfiguration(const FViewportClient* ViewportClient) const;

	/** Removes the client's record; true if there was one. */
	bool RemoveDisplayConfiguration(const FViewportClient* ViewportClient);

private:
	TMap<const FViewportClient*, TUniquePtr<FTintmillDisplayConfiguration>> Configurations;
};
