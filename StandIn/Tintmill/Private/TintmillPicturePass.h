// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "StandIn/PicturePass.h"

class FTintmillDisplayManager;
struct FTintmillDisplayConfiguration;
struct FTintmillLook;

/** Lays each client's look over its picture. Reads records and looks, never files. */
class FTintmillPicturePass : public StandIn::IPicturePass
{
public:
	/** Works on the records of a manager that outlives the pass. */
	explicit FTintmillPicturePass(const FTintmillDisplayManager& InDisplayManager);

	virtual FName GetName() const override;
	virtual void Apply(FViewportClient* Client, const FIntPoint& Size, FColor* Pixels) override;
	virtual uint64 GetStateKey(FViewportClient* Client) const override;

private:
	/** The client's record if it asks for a look that is really there and more than nothing of it, or null. */
	const FTintmillDisplayConfiguration* FindActive(const FViewportClient* Client) const;

	/** The look to be applied for a record of FindActive, or null when its file cannot be used. */
	const FTintmillLook* FindReadyLook(const FTintmillDisplayConfiguration& Configuration) const;

	const FTintmillDisplayManager& DisplayManager;
};
