// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/Set.h"
#include "GenericPlatform/GenericApplication.h"
#include "InputCoreTypes.h"
#include "Types/SlateEnums.h"

class SWindow;

// What the mouse and the keyboard tell widgets. Left out: touch, gestures, motion and analogue input, drag and drop.

/** Why the focus changed. */
enum class EFocusCause : uint8
{
	Mouse,
	Navigation,
	SetDirectly,
	Cleared,
	OtherWidgetLostFocus,
	WindowActivate
};

/** Tells a widget that it received or lost the focus. */
struct FFocusEvent
{
	/** Makes the event of a direct change. */
	FFocusEvent()
		: Cause(EFocusCause::SetDirectly)
		, UserIndex(0)
	{}

	/** Makes an event of a cause and a user. */
	FFocusEvent(const EFocusCause InCause, uint32 InUserIndex)
		: Cause(InCause)
		, UserIndex(InUserIndex)
	{}

	/** Returns why the focus changed. */
	EFocusCause GetCause() const { return Cause; }

	/** Returns whose focus changed. */
	uint32 GetUser() const { return UserIndex; }

private:
	EFocusCause Cause;
	uint32 UserIndex;
};

/** Tells a widget that it no longer has the mouse. */
struct FCaptureLostEvent
{
	/** Makes an event of a user and a pointer. */
	FCaptureLostEvent(int32 InUserIndex, int32 InPointerIndex)
		: UserIndex(InUserIndex)
		, PointerIndex(InPointerIndex)
	{}

	/** The user. */
	int32 UserIndex;

	/** The pointer. */
	int32 PointerIndex;
};

/** What all input events share. */
struct FInputEvent
{
	/** Makes an event of no keys. */
	FInputEvent()
		: UserIndex(0)
		, bIsRepeat(false)
	{}

	/** Makes an event of the state of the modifier keys. */
	FInputEvent(const FModifierKeysState& InModifierKeys, const int32 InUserIndex, const bool bInIsRepeat)
		: ModifierKeys(InModifierKeys)
		, UserIndex(static_cast<uint32>(InUserIndex))
		, bIsRepeat(bInIsRepeat)
	{}

	/** Destroys the event. */
	virtual ~FInputEvent() {}

	/** Says whether a held key made the event. */
	bool IsRepeat() const { return bIsRepeat; }

	/** Says whether Shift is held. */
	bool IsShiftDown() const { return ModifierKeys.IsShiftDown(); }

	/** Says whether Control is held. */
	bool IsControlDown() const { return ModifierKeys.IsControlDown(); }

	/** Says whether Alt is held. */
	bool IsAltDown() const { return ModifierKeys.IsAltDown(); }

	/** Says whether Command is held. */
	bool IsCommandDown() const { return ModifierKeys.IsCommandDown(); }

	/** Returns the state of the modifier keys. */
	const FModifierKeysState& GetModifierKeys() const { return ModifierKeys; }

	/** Returns the user the event comes from. */
	uint32 GetUserIndex() const { return UserIndex; }

protected:
	FModifierKeysState ModifierKeys;
	uint32 UserIndex;
	bool bIsRepeat;
};

/** A key went down or up. */
struct FKeyEvent : public FInputEvent
{
	/** Makes the event of no key. */
	FKeyEvent()
		: CharacterCode(0)
		, KeyCode(0)
	{}

	/** Makes an event of a key. */
	FKeyEvent(const FKey InKey, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex, const bool bInIsRepeat,
		const uint32 InCharacterCode, const uint32 InKeyCode)
		: FInputEvent(InModifierKeys, static_cast<int32>(InUserIndex), bInIsRepeat)
		, Key(InKey)
		, CharacterCode(InCharacterCode)
		, KeyCode(InKeyCode)
	{}

	/** Returns the key. */
	FKey GetKey() const { return Key; }

	/** Returns the character that the key stands for, or 0. */
	uint32 GetCharacter() const { return CharacterCode; }

	/** Returns the platform's code of the key. */
	uint32 GetKeyCode() const { return KeyCode; }

private:
	FKey Key;
	uint32 CharacterCode;
	uint32 KeyCode;
};

/** A character was typed. */
struct FCharacterEvent : public FInputEvent
{
	/** Makes an event of a character; one outside the basic plane comes as two events where TCHAR has 16 bits. */
	FCharacterEvent(const TCHAR InCharacter, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex, const bool bInIsRepeat)
		: FInputEvent(InModifierKeys, static_cast<int32>(InUserIndex), bInIsRepeat)
		, Character(InCharacter)
	{}

	/** Returns the character. */
	TCHAR GetCharacter() const { return Character; }

private:
	TCHAR Character;
};

/** The mouse moved, a button changed or the wheel turned; positions are on the desktop. */
struct FPointerEvent : public FInputEvent
{
	/** Makes an event of no pointer. */
	FPointerEvent()
		: PointerIndex(0)
		, WheelDelta(0.0f)
	{}

	/** Makes an event of the mouse. */
	FPointerEvent(uint32 InPointerIndex, const FVector2D& InScreenSpacePosition, const FVector2D& InLastScreenSpacePosition,
		const TSet<FKey>& InPressedButtons, FKey InEffectingButton, float InWheelDelta, const FModifierKeysState& InModifierKeys)
		: FInputEvent(InModifierKeys, 0, false)
		, ScreenSpacePosition(InScreenSpacePosition)
		, LastScreenSpacePosition(InLastScreenSpacePosition)
		, PressedButtons(InPressedButtons)
		, EffectingButton(InEffectingButton)
		, PointerIndex(InPointerIndex)
		, WheelDelta(InWheelDelta)
	{}

	/** Returns where the mouse is. */
	const FVector2D& GetScreenSpacePosition() const { return ScreenSpacePosition; }

	/** Returns where the mouse was before. */
	const FVector2D& GetLastScreenSpacePosition() const { return LastScreenSpacePosition; }

	/** Returns how far the mouse moved. */
	FVector2D GetCursorDelta() const { return ScreenSpacePosition - LastScreenSpacePosition; }

	/** Says whether a button is held. */
	bool IsMouseButtonDown(FKey MouseButton) const { return PressedButtons.Contains(MouseButton); }

	/** Returns the button that changed. */
	FKey GetEffectingButton() const { return EffectingButton; }

	/** Returns how far the wheel turned, positive away from the user. */
	float GetWheelDelta() const { return WheelDelta; }

	/** Returns the pointer's index. */
	uint32 GetPointerIndex() const { return PointerIndex; }

	/** Returns the buttons held. */
	const TSet<FKey>& GetPressedButtons() const { return PressedButtons; }

	/** Says whether a finger made the event; never here. */
	bool IsTouchEvent() const { return false; }

private:
	FVector2D ScreenSpacePosition = FVector2D(0.0f, 0.0f);
	FVector2D LastScreenSpacePosition = FVector2D(0.0f, 0.0f);
	TSet<FKey> PressedButtons;
	FKey EffectingButton;
	uint32 PointerIndex;
	float WheelDelta;
};

/** A window was activated or deactivated. */
struct FWindowActivateEvent
{
	/** What happened. */
	enum EActivationType
	{
		EA_Activate,
		EA_ActivateByMouse,
		EA_Deactivate
	};

	/** Makes an event of a window. */
	FWindowActivateEvent(EActivationType InActivationType, TSharedRef<SWindow> InAffectedWindow)
		: ActivationType(InActivationType)
		, AffectedWindow(InAffectedWindow)
	{}

	/** Returns what happened. */
	EActivationType GetActivationType() const { return ActivationType; }

	/** Returns the window. */
	TSharedRef<SWindow> GetAffectedWindow() const { return AffectedWindow; }

private:
	EActivationType ActivationType;
	TSharedRef<SWindow> AffectedWindow;
};
