// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/Set.h"
#include "Framework/Commands/InputChord.h"
#include "Input/Events.h"
#include "InputCoreTypes.h"

#include <functional>
#include <string>

// A person with a mouse and a keyboard in front of the window. Everything goes through the application's real events.

namespace TintmillHost
{
/** Moves the mouse, presses buttons and keys, and lets time pass. */
class FPerson
{
public:
	/** Makes a person; Wait runs the editor for a time in seconds, at least a frame. */
	explicit FPerson(std::function<void(double Seconds)> InWait);

	/** Moves the mouse to a place and rests there until tool tips and submenus have come. */
	void Hover(const FVector2D& Place);

	/** Presses and releases a button at a place, the left one if none is named. */
	void Click(const FVector2D& Place, const FKey& Button = EKeys::LeftMouseButton);

	/** Clicks with the left button twice, so fast that it counts as a double click. */
	void DoubleClick(const FVector2D& Place);

	/** Presses a button at a place, moves the mouse to another in small steps, and releases the button there. */
	void Drag(const FVector2D& From, const FVector2D& To, const FKey& Button = EKeys::LeftMouseButton);

	/** Presses and releases modifier keys so that these are held from now on, the left ones. */
	void HoldModifiers(const FModifierKeysState& InModifiers);

	/** Turns the wheel by notches, positive away from the person, where the mouse is. */
	void TurnWheel(float Notches);

	/** Presses and releases a key with its modifiers; false if nothing took it. */
	bool Press(const FInputChord& Chord);

	/** Types a text; false if nothing took a character of it. */
	bool Type(const FString& Text);

private:
	void MoveTo(const FVector2D& Place);
	void PushButton(const FVector2D& Place, const FKey& Button, bool bDoubleClick);
	void ReleaseButton(const FVector2D& Place, const FKey& Button);
	FPointerEvent MakeEvent(const FVector2D& Place, const FKey& Button, float Wheel = 0.0f) const;

	std::function<void(double)> Wait;
	TSet<FKey> PressedButtons;
	FModifierKeysState Modifiers;
};
}
