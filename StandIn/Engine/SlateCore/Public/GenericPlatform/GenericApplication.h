// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// The state of the modifier keys. The engine has this header in its ApplicationCore module.

/** Which modifier keys are held. */
class FModifierKeysState
{
public:
	/** Makes a state with the given keys held. */
	FModifierKeysState(const bool bInIsLeftShiftDown, const bool bInIsRightShiftDown, const bool bInIsLeftControlDown,
		const bool bInIsRightControlDown, const bool bInIsLeftAltDown, const bool bInIsRightAltDown, const bool bInIsLeftCommandDown,
		const bool bInIsRightCommandDown, const bool bInAreCapsLocked)
		: bIsLeftShiftDown(bInIsLeftShiftDown)
		, bIsRightShiftDown(bInIsRightShiftDown)
		, bIsLeftControlDown(bInIsLeftControlDown)
		, bIsRightControlDown(bInIsRightControlDown)
		, bIsLeftAltDown(bInIsLeftAltDown)
		, bIsRightAltDown(bInIsRightAltDown)
		, bIsLeftCommandDown(bInIsLeftCommandDown)
		, bIsRightCommandDown(bInIsRightCommandDown)
		, bAreCapsLocked(bInAreCapsLocked)
	{}

	/** Makes the state of no key held. */
	FModifierKeysState()
		: FModifierKeysState(false, false, false, false, false, false, false, false, false)
	{}

	/** Says whether either Shift key is held. */
	bool IsShiftDown() const { return bIsLeftShiftDown || bIsRightShiftDown; }

	/** Says whether either Control key is held. */
	bool IsControlDown() const { return bIsLeftControlDown || bIsRightControlDown; }

	/** Says whether either Alt key is held. */
	bool IsAltDown() const { return bIsLeftAltDown || bIsRightAltDown; }

	/** Says whether either Command key is held. */
	bool IsCommandDown() const { return bIsLeftCommandDown || bIsRightCommandDown; }

	/** Says whether Caps Lock is on. */
	bool AreCapsLocked() const { return bAreCapsLocked; }

private:
	bool bIsLeftShiftDown;
	bool bIsRightShiftDown;
	bool bIsLeftControlDown;
	bool bIsRightControlDown;
	bool bIsLeftAltDown;
	bool bIsRightAltDown;
	bool bIsLeftCommandDown;
	bool bIsRightCommandDown;
	bool bAreCapsLocked;
};
