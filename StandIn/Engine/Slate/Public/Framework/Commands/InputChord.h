// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "InputCoreTypes.h"

// Key with modifiers that sets off a command. A plain structure here: it is not reflected and not read from config files.

namespace EModifierKey
{
/** Bit mask of the keys that are held together with a chord's main key. */
typedef uint8 Type;

const Type None = 0;
const Type Control = 1 << 0;
const Type Alt = 1 << 1;
const Type Shift = 1 << 2;
const Type Command = 1 << 3;

/** Makes the bit mask from four flags. */
FORCEINLINE Type FromBools(const bool bControl, const bool bAlt, const bool bShift, const bool bCommand)
{
	return static_cast<Type>((bControl ? Control : None) | (bAlt ? Alt : None) | (bShift ? Shift : None) | (bCommand ? Command : None));
}
}

/** A key and the modifiers that must be held with it. */
struct SLATE_API FInputChord
{
	/** Main key; an invalid key means that the chord is not set. */
	FKey Key;

	uint8 bShift : 1;
	uint8 bCtrl : 1;
	uint8 bAlt : 1;
	uint8 bCmd : 1;

	/** Makes a chord that is not set. */
	FInputChord();

	/** Makes a chord of a key without modifiers. */
	FInputChord(const FKey InKey);

	/** Makes a chord of a key with a mask of modifiers. */
	FInputChord(const FKey InKey, const EModifierKey::Type InModifierFlags);

	/** Makes a chord of a mask of modifiers with a key. */
	FInputChord(const EModifierKey::Type InModifierFlags, const FKey InKey);

	/** Makes a chord of a key with four modifier flags. */
	FInputChord(const FKey InKey, const bool bInShift, const bool bInCtrl, const bool bInAlt, const bool bInCmd);

	/** True if both chords have the same key and the same modifiers. */
	bool operator==(const FInputChord& Other) const;

	/** True if the chords differ in key or modifiers. */
	bool operator!=(const FInputChord& Other) const { return !(*this == Other); }

	/** True if the chord has a usable main key. */
	bool IsValidChord() const;

	/** True if any modifier belongs to the chord. */
	bool HasAnyModifierKeys() const { return bCtrl || bAlt || bShift || bCmd; }

	/** The chord as shown in a menu, for example "Ctrl+Shift+S"; empty if it is not set. */
	FText GetInputText(const bool bLongDisplayName = true) const;
};
