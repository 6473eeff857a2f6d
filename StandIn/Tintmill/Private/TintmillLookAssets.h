// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/Array.h"

class UTintmillObject;

// Records hold plain pointers to look assets and keep none alive. This list tells which pointers may be followed.

namespace TintmillLookAssets
{
/** Enters a look asset; called when one is made. */
void Add(UTintmillObject* Asset);

/** Takes a look asset out; called when one is destroyed. */
void Remove(UTintmillObject* Asset);

/** All living look assets, oldest first; among them the class default object. */
const TArray<UTintmillObject*>& GetAll();

/** True while the pointer is that of a living look asset. */
bool IsLiving(const UTintmillObject* Asset);
}
