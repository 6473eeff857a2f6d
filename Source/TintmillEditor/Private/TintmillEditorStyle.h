// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/UniquePtr.h"

class FSlateStyleSet;

/** The icons under which the content browser shows look assets. */
class FTintmillEditorStyle
{
public:
	/** Creates the style set in StyleSet, in place of any previous one, and registers it. */
	static void Initialize(TUniquePtr<FSlateStyleSet>& StyleSet);

	/** Unregisters and destroys the style set; does nothing if there is none. */
	static void Shutdown(TUniquePtr<FSlateStyleSet>& StyleSet);
};
