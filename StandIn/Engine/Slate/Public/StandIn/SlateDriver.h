// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "InputCoreTypes.h"

class SWidget;
class SWindow;

// Uses Slate as a person would: points, clicks, types, waits. Points are on the desktop, times in seconds. Slate must be running.

namespace StandIn
{
/** Goes on in time in steps of a 60th of a second, the last one shorter; a tick of no time if Seconds is zero. */
SLATE_API void AdvanceTime(float Seconds);

/** Moves the mouse. */
SLATE_API bool MoveMouse(const FVector2D& Position);

/** Presses a button where the mouse is. */
SLATE_API bool PressMouse(const FKey& Button = EKeys::LeftMouseButton);

/** Releases a button where the mouse is. */
SLATE_API bool ReleaseMouse(const FKey& Button = EKeys::LeftMouseButton);

/** Moves the mouse, presses and releases a button, with a tick of no time after each. */
SLATE_API void ClickAt(const FVector2D& Position, const FKey& Button = EKeys::LeftMouseButton);

/** Double-clicks: a click, then a double click. */
SLATE_API void DoubleClickAt(const FVector2D& Position);

/** Turns the wheel by notches, positive away from the person. */
SLATE_API bool TurnWheel(float Notches);

/** Presses and releases a key. */
SLATE_API bool PressKey(const FKey& Key, bool bShift = false, bool bControl = false, bool bAlt = false);

/** Types a text character by character. */
SLATE_API void TypeText(const FString& Text);

/** Returns the centre of a widget as painted last. */
SLATE_API FVector2D GetCenter(const TSharedRef<SWidget>& Widget);

/** Moves the mouse to a widget and clicks it. */
SLATE_API void Click(const TSharedRef<SWidget>& Widget);

/** Returns the text that a widget shows by itself: of a text block, an editable text; empty for others. */
SLATE_API FString GetShownText(const TSharedRef<SWidget>& Widget);

/** Finds the first shown widget of a type below a root, in the order of the tree; null if there is none. */
SLATE_API TSharedPtr<SWidget> FindWidgetOfType(const TSharedRef<SWidget>& Root, const FName& Type);

/** Finds the first shown text block of exactly this text below a root; null if there is none. */
SLATE_API TSharedPtr<SWidget> FindText(const TSharedRef<SWidget>& Root, const FString& Text);

/** Finds a text in all windows, the topmost first. */
SLATE_API TSharedPtr<SWidget> FindTextOnDesktop(const FString& Text);

/** Finds the widget with a tag in all windows, the topmost first. */
SLATE_API TSharedPtr<SWidget> FindTag(const FName& Tag);

/** Collects all texts shown below a root, in the order of the tree. */
SLATE_API TArray<FString> CollectTexts(const TSharedRef<SWidget>& Root);
}
