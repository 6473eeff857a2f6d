// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class SWidget;

// The widget that stands where there is none.

/** The widget that stands where there is none. */
class SLATECORE_API SNullWidget
{
public:
	/** The one instance: no size, nothing drawn, never anyone's child by name. */
	static TSharedRef<class SWidget> NullWidget;
};
