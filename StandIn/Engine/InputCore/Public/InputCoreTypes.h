// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Keys and mouse buttons by name. Left out: gamepads, touch, gestures, axes other than the mouse's, key details and their
// registration; a key of a name that is not in EKeys counts as valid, as one registered by a plug-in would. FKey is not reflected here.

/** A key, mouse button or wheel direction, identified by its name. */
struct INPUTCORE_API FKey
{
	/** Makes the invalid key. */
	FKey() {}

	/** Makes the key of the given name; NAME_None gives the invalid key. */
	FKey(const FName InName)
		: KeyName(InName)
	{}

	/** Makes the key of the given wide name. */
	FKey(const TCHAR* InName)
		: KeyName(InName)
	{}

	/** Makes the key of the given narrow name. */
	FKey(const ANSICHAR* InName)
		: KeyName(InName)
	{}

	/** Says whether the key has a name. */
	bool IsValid() const { return KeyName != NAME_None; }

	/** Says whether the key is one of Shift, Control, Alt and Command, left or right. */
	bool IsModifierKey() const;

	/** Says whether the key is a button of the mouse. */
	bool IsMouseButton() const;

	/** Returns the name shown to people; equal to the key's name here. */
	FText GetDisplayName(bool bLongDisplayName = true) const;

	/** Returns the key's name as a string. */
	FString ToString() const { return KeyName.ToString(); }

	/** Returns the key's name. */
	FName GetFName() const { return KeyName; }

	/** Compares by name. */
	friend bool operator==(const FKey& A, const FKey& B) { return A.KeyName == B.KeyName; }

	/** Compares by name. */
	friend bool operator!=(const FKey& A, const FKey& B) { return A.KeyName != B.KeyName; }

	/** Hashes by name. */
	friend uint32 GetTypeHash(const FKey& Key) { return GetTypeHash(Key.KeyName); }

private:
	FName KeyName;
};

/** The keys known by name. */
struct INPUTCORE_API EKeys
{
	static const FKey AnyKey;
	static const FKey MouseX;
	static const FKey MouseY;
	static const FKey MouseScrollUp;
	static const FKey MouseScrollDown;
	static const FKey MouseWheelAxis;
	static const FKey LeftMouseButton;
	static const FKey RightMouseButton;
	static const FKey MiddleMouseButton;
	static const FKey ThumbMouseButton;
	static const FKey ThumbMouseButton2;
	static const FKey BackSpace;
	static const FKey Tab;
	static const FKey Enter;
	static const FKey Pause;
	static const FKey CapsLock;
	static const FKey Escape;
	static const FKey SpaceBar;
	static const FKey PageUp;
	static const FKey PageDown;
	static const FKey End;
	static const FKey Home;
	static const FKey Left;
	static const FKey Up;
	static const FKey Right;
	static const FKey Down;
	static const FKey Insert;
	static const FKey Delete;
	static const FKey Zero;
	static const FKey One;
	static const FKey Two;
	static const FKey Three;
	static const FKey Four;
	static const FKey Five;
	static const FKey Six;
	static const FKey Seven;
	static const FKey Eight;
	static const FKey Nine;
	static const FKey A;
	static const FKey B;
	static const FKey C;
	static const FKey D;
	static const FKey E;
	static const FKey F;
	static const FKey G;
	static const FKey H;
	static const FKey I;
	static const FKey J;
	static const FKey K;
	static const FKey L;
	static const FKey M;
	static const FKey N;
	static const FKey O;
	static const FKey P;
	static const FKey Q;
	static const FKey R;
	static const FKey S;
	static const FKey T;
	static const FKey U;
	static const FKey V;
	static const FKey W;
	static const FKey X;
	static const FKey Y;
	static const FKey Z;
	static const FKey F1;
	static const FKey F2;
	static const FKey F3;
	static const FKey F4;
	static const FKey F5;
	static const FKey F6;
	static const FKey F7;
	static const FKey F8;
	static const FKey F9;
	static const FKey F10;
	static const FKey F11;
	static const FKey F12;
	static const FKey LeftShift;
	static const FKey RightShift;
	static const FKey LeftControl;
	static const FKey RightControl;
	static const FKey LeftAlt;
	static const FKey RightAlt;
	static const FKey LeftCommand;
	static const FKey RightCommand;
	static const FKey Tilde;
	static const FKey Invalid;
};
