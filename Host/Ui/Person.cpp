// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/Person.h"

#include "Framework/Application/SlateApplication.h"

#include <utility>

namespace TintmillHost
{
namespace
{
/** Longer than a tool tip's delay and fading in, and than an open submenu gives way to another. */
constexpr double HoverSeconds = 0.6;

/** A drag is seen by what it passes. */
constexpr int DragSteps = 12;
}

FPerson::FPerson(std::function<void(double)> InWait)
	: Wait(std::move(InWait))
{}

FPointerEvent FPerson::MakeEvent(const FVector2D& Place, const FKey& Button, float Wheel) const
{
	return FPointerEvent(0, Place, FSlateApplication::Get().GetCursorPos(), PressedButtons, Button, Wheel, Modifiers);
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

void FPerson::PushButton(const FVector2D& Place, const FKey& Button, bool bDoubleClick)
{
	FSlateApplication& Application = FSlateApplication::Get();
	PressedButtons.Add(Button);
	if (bDoubleClick)
	{
		Application.ProcessMouseButtonDoubleClickEvent(nullptr, MakeEvent(Place, Button));
	}
	else
	{
		Application.ProcessMouseButtonDownEvent(nullptr, MakeEvent(Place, Button));
	}
}

void FPerson::ReleaseButton(const FVector2D& Place, const FKey& Button)
{
	PressedButtons.Remove(Button);
	FSlateApplication::Get().ProcessMouseButtonUpEvent(MakeEvent(Place, Button));
}

void FPerson::Click(const FVector2D& Place, const FKey& Button)
{
	MoveTo(Place);
	PushButton(Place, Button, false);
	ReleaseButton(Place, Button);
	Wait(0.0);
}

void FPerson::DoubleClick(const FVector2D& Place)
{
	MoveTo(Place);
	for (const bool bSecond : {false, true})
	{
		PushButton(Place, EKeys::LeftMouseButton, bSecond);
		ReleaseButton(Place, EKeys::LeftMouseButton);
	}
	Wait(0.0);
}

void FPerson::Drag(const FVector2D& From, const FVector2D& To, const FKey& Button)
{
	MoveTo(From);
	PushButton(From, Button, false);
	for (int Step = 1; Step <= DragSteps; ++Step)
	{
		MoveTo(From + (To - From) * (static_cast<float>(Step) / DragSteps));
	}
	ReleaseButton(To, Button);
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
	// The fingers go down one after the other, the key last, and come up in the reverse order.
	const FModifierKeysState Before = Modifiers;
	FSlateApplication& Application = FSlateApplication::Get();
	const FModifierKeysState Keys(Chord.bShift, false, Chord.bCtrl, false, Chord.bAlt, false, Chord.bCmd, false, false);
	HoldModifiers(Keys);
	const bool bDown = Application.ProcessKeyDownEvent(FKeyEvent(Chord.Key, Keys, 0, false, 0, 0));
	const bool bUp = Application.ProcessKeyUpEvent(FKeyEvent(Chord.Key, Keys, 0, false, 0, 0));
	HoldModifiers(Before);
	Wait(0.0);
	return bDown || bUp;
}

void FPerson::HoldModifiers(const FModifierKeysState& InModifiers)
{
	const std::pair<FKey, bool (FModifierKeysState::*)() const> Keys[] = {{EKeys::LeftControl, &FModifierKeysState::IsControlDown},
		{EKeys::LeftShift, &FModifierKeysState::IsShiftDown}, {EKeys::LeftAlt, &FModifierKeysState::IsAltDown},
		{EKeys::LeftCommand, &FModifierKeysState::IsCommandDown}};
	const FModifierKeysState Before = Modifiers;
	Modifiers = InModifiers;
	for (const auto& [Key, IsDown] : Keys)
	{
		const bool bWas = (Before.*IsDown)();
		const bool bIs = (InModifiers.*IsDown)();
		if (bIs && !bWas)
		{
			FSlateApplication::Get().ProcessKeyDownEvent(FKeyEvent(Key, InModifiers, 0, false, 0, 0));
		}
		else if (bWas && !bIs)
		{
			FSlateApplication::Get().ProcessKeyUpEvent(FKeyEvent(Key, InModifiers, 0, false, 0, 0));
		}
	}
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
