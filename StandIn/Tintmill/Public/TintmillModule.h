// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "Templates/UniquePtr.h"

// The runtime module: it owns the display manager and, from start to stop, has its look pass among the passes over the
// viewports' pictures. Other modules call GetDisplayManager through its place in the table of virtual functions, so it stays
// the first one that this class adds.

class FTintmillDisplayManager;
class FTintmillPicturePass;

/** The module object of "Tintmill". */
class FTintmillModule : public IModuleInterface
{
public:
	TINTMILL_API FTintmillModule();
	TINTMILL_API virtual ~FTintmillModule();

	/** Returns the registry of display configurations; never null, the same for the life of the module. */
	virtual FTintmillDisplayManager* GetDisplayManager();

	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

private:
	TUniquePtr<FTintmillDisplayManager> DisplayManager;
	TUniquePtr<FTintmillPicturePass> PicturePass;
};
