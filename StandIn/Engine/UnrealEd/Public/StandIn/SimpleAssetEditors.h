// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

// Not in the engine: what is done in place of the panel of properties, in which the engine opens assets that have no editor.

class UObject;

namespace StandIn
{
/** Told of assets that have no editor and were to be opened. */
typedef TFunction<void(const TArray<UObject*>& Assets)> FSimpleAssetEditorCall;

/** Sets who is told; an unset one lets such assets be refused again. */
UNREALED_API void SetSimpleAssetEditor(const FSimpleAssetEditorCall& Call);
}
