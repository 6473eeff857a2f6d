// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "Widgets/SCompoundWidget.h"

class IAssetViewport;
class SLevelViewport;

// The level editor as others see it. It hosts no toolkits here.

/** The level editor as others see it. */
class ILevelEditor : public SCompoundWidget
{
public:
	/** Returns the pane that is worked in, else the first that is seen, else null. */
	virtual TSharedPtr<IAssetViewport> GetActiveViewportInterface() = 0;

	/** Returns all panes, tab by tab. */
	virtual TArray<TSharedPtr<SLevelViewport>> GetViewports() const = 0;
};
