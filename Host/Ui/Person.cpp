// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/Person.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"

namespace TintmillHost
{
namespace
{
/** Longer than a tool tip's delay and fading in, and than an open submenu gives way to another. */
constexpr double HoverSeconds = 0.6;
}

FPerson::FPerson(std::function<void(double)> InWait)
	: Wait(std::move(InWait))
{}

FPointerEvent FPerson::MakeEvent(const FVector2D& Place, const FKey& Button, float Wheel) const
{
	return FPointerEvent(0, Place, FSlateApplication::Get().GetCursorPos(), PressedButtons, Button, Wheel, FModifierKeysState());
}

void FPerson::MoveTo(const FVector2D& Place)
{
	FSlateApplication::Get().ProcessMouseMoveEvent(MakeEvent(Place, FKey()));
	Wait(0.0);
}

void FPerson::Hover(const FVector2D& Place)
{
	MoveTo(Place);
	Wait(HoverSeconds);
}

void FPerson::Click(const FVector2D& Place)
{
	MoveTo(Place);
	FSlateApplication& Application = FSlateApplication::Get();
	PressedButtons.Add(EKeys::LeftMouseButton);
	Application.ProcessMouseButtonDownEvent(nullptr, MakeEvent(Place, EKeys::LeftMouseButton));
	PressedButtons.Remove(EKeys::LeftMouseButton);
	Application.ProcessMouseButtonUpEvent(MakeEvent(Place, EKeys::LeftMouseButton));
	Wait(0.0);
}

void FPerson::TurnWheel(float Notches)
{
	FSlateApplication& Application = FSlateApplication::Get();
	Application.ProcessMouseWheelOrGestureEvent(MakeEvent(Application.GetCursorPos(), FKey(), Notches), nullptr);
	Wait(0.0);
}

bool FPerson::Press(const FInputChord& Chord)
{
	const FModifierKeysState Modifiers(Chord.bShift, false, Chord.bCtrl, false, Chord.bAlt, false, Chord.bCmd, false, false);
	FSlateApplication& Application = FSlateApplication::Get();
	const bool bDown = Application.ProcessKeyDownEvent(FKeyEvent(Chord.Key, Modifiers, 0, false, 0, 0));
	const bool bUp = Application.ProcessKeyUpEvent(FKeyEvent(Chord.Key, Modifiers, 0, false, 0, 0));
	Wait(0.0);
	return bDown || bUp;
}

bool FPerson::Type(const FString& Text)
{
	bool bTaken = true;
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		bTaken = FSlateApplication::Get().ProcessKeyCharEvent(FCharacterEvent(Text[Index], FModifierKeysState(), 0, false)) && bTaken;
	}
	Wait(0.0);
	return bTaken;
}
}
