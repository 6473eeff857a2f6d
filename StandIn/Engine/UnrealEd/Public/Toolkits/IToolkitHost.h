// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/SWidget.h"

class UWorld;

// Hosts of toolkits inside the level editor. Nobody hosts toolkits here, so pointers to hosts are null.

/** Place inside the level editor in which assets are edited. */
class IToolkitHost
{
public:
	virtual ~IToolkitHost() {}

	/** Widget for windows to belong to. */
	virtual TSharedRef<SWidget> GetParentWidget() = 0;

	/** Shows the host. */
	virtual void BringToFront() = 0;

	/** World in which assets are edited. */
	virtual UWorld* GetWorld() const = 0;
};
