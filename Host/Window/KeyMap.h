// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericApplication.h"
#include "InputCoreTypes.h"

#include <SDL.h>

// Keys, buttons and modifiers of the window system as the engine names them.

namespace TintmillHost
{
/** The key that was pressed: by what it writes, and where that is no Latin character, by its place. An unknown one is invalid. */
FKey FindKey(const SDL_Keysym& Pressed);

/** The button of a number that SDL gives to it; an unknown one is invalid. */
FKey FindMouseButton(int Button);

/** The modifier keys of a state that SDL gives. */
FModifierKeysState FindModifiers(int State);
}
