// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/WindowInput.h"

#include "Host/Program/Strings.h"
#include "Host/Window/KeyMap.h"

#include "Framework/Application/SlateApplication.h"

#include <utility>

namespace TintmillHost
{
FWindowInput::FWindowInput(Uint32 InWindowId, const TSharedRef<SWindow>& InMainWindow)
	: WindowId(InWindowId)
	, MainWindow(InMainWindow)
{}

bool FWindowInput::Handle(const SDL_Event& Event)
{
	switch (Event.type)
	{
	case SDL_MOUSEMOTION:
		HandleMotion(Event.motion);
		return true;
	case SDL_MOUSEBUTTONDOWN:
	case SDL_MOUSEBUTTONUP:
		HandleButton(Event.button);
		return true;
	case SDL_MOUSEWHEEL:
		HandleWheel(Event.wheel);
		return true;
	case SDL_KEYDOWN:
	case SDL_KEYUP:
		HandleKey(Event.key);
		return true;
	case SDL_TEXTINPUT:
		HandleText(Event.text);
		return true;
	case SDL_WINDOWEVENT:
		return HandleWindow(Event.window);
	case SDL_DROPBEGIN:
	case SDL_DROPFILE:
	case SDL_DROPCOMPLETE:
		return HandleDrop(Event.drop);
	default:
		return false;
	}
}

std::vector<std::string> FWindowInput::TakeDroppedFiles()
{
	return std::exchange(Dropped, {});
}

FVector2D FWindowInput::ToDesktop(int X, int Y) const
{
	return FVector2D(static_cast<float>(X * PixelsPerPoint), static_cast<float>(Y * PixelsPerPoint));
}

FPointerEvent FWindowInput::MakePointerEvent(const FVector2D& Place, const FKey& Button, float Wheel)
{
	const FVector2D Before = LastPlace;
	LastPlace = Place;
	return FPointerEvent(0, Place, Before, PressedButtons, Button, Wheel, FindModifiers(SDL_GetModState()));
}

void FWindowInput::HandleMotion(const SDL_MouseMotionEvent& Event)
{
	FSlateApplication::Get().ProcessMouseMoveEvent(MakePointerEvent(ToDesktop(Event.x, Event.y), FKey(), 0.0f));
}

void FWindowInput::HandleButton(const SDL_MouseButtonEvent& Event)
{
	const FKey Button = FindMouseButton(Event.button);
	if (!Button.IsValid())
	{
		return;
	}
	FSlateApplication& Application = FSlateApplication::Get();
	const FVector2D Place = ToDesktop(Event.x, Event.y);
	if (Place != LastPlace)
	{
		// A press follows a move, so that what is under it knows of the mouse.
		Application.ProcessMouseMoveEvent(MakePointerEvent(Place, FKey(), 0.0f));
	}
	if (Event.state == SDL_RELEASED)
	{
		PressedButtons.Remove(Button);
		Application.ProcessMouseButtonUpEvent(MakePointerEvent(Place, Button, 0.0f));
		return;
	}
	PressedButtons.Add(Button);
	const FPointerEvent Pressed = MakePointerEvent(Place, Button, 0.0f);
	if (Event.clicks > 0 && Event.clicks % 2 == 0)
	{
		Application.ProcessMouseButtonDoubleClickEvent(nullptr, Pressed);
	}
	else
	{
		Application.ProcessMouseButtonDownEvent(nullptr, Pressed);
	}
}

void FWindowInput::HandleWheel(const SDL_MouseWheelEvent& Event)
{
	const float Notches = Event.preciseY * (Event.direction == SDL_MOUSEWHEEL_FLIPPED ? -1.0f : 1.0f);
	if (Notches != 0.0f)
	{
		FSlateApplication::Get().ProcessMouseWheelOrGestureEvent(MakePointerEvent(LastPlace, EKeys::MouseWheelAxis, Notches), nullptr);
	}
}

void FWindowInput::HandleKey(const SDL_KeyboardEvent& Event)
{
	const FKey Key = FindKey(Event.keysym);
	if (!Key.IsValid())
	{
		return;
	}
	const SDL_Keycode Code = Event.keysym.sym;
	const uint32 Character = Code > 0 && Code < 128 ? static_cast<uint32>(Code) : 0;
	const FKeyEvent KeyEvent(
		Key, FindModifiers(Event.keysym.mod), 0, Event.repeat != 0, Character, static_cast<uint32>(Event.keysym.scancode));
	if (Event.state == SDL_PRESSED)
	{
		FSlateApplication::Get().ProcessKeyDownEvent(KeyEvent);
	}
	else
	{
		FSlateApplication::Get().ProcessKeyUpEvent(KeyEvent);
	}
}

void FWindowInput::HandleText(const SDL_TextInputEvent& Event)
{
	// A key that is held with Control or the left Alt is a command; the right Alt writes characters of its own.
	const int Modifiers = SDL_GetModState();
	const bool bWrites = (Modifiers & (KMOD_RALT | KMOD_MODE)) != 0;
	if (!bWrites && (Modifiers & (KMOD_CTRL | KMOD_LALT | KMOD_GUI)) != 0)
	{
		return;
	}
	const FString Text = FromUtf8(Event.text);
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		FSlateApplication::Get().ProcessKeyCharEvent(FCharacterEvent(Text[Index], FindModifiers(Modifiers), 0, false));
	}
}

bool FWindowInput::HandleWindow(const SDL_WindowEvent& Event)
{
	switch (Event.event)
	{
	case SDL_WINDOWEVENT_LEAVE:
		if (!FSlateApplication::Get().HasAnyMouseCaptor())
		{
			FSlateApplication::Get().ProcessMouseLeft();
		}
		return true;
	case SDL_WINDOWEVENT_FOCUS_GAINED:
		SetActive(true);
		return true;
	case SDL_WINDOWEVENT_FOCUS_LOST:
		SetActive(false);
		return true;
	default:
		return false;
	}
}

void FWindowInput::SetActive(bool bActive)
{
	FSlateApplication& Application = FSlateApplication::Get();
	const TSharedPtr<SWindow> Active = Application.GetActiveTopLevelWindow();
	if (!bActive)
	{
		PressedButtons.Empty();
		LastActiveWindow = Active;
		if (const TSharedPtr<SWindow> Main = Active.IsValid() ? Active : MainWindow.Pin())
		{
			Application.ProcessWindowActivatedEvent(FWindowActivateEvent(FWindowActivateEvent::EA_Deactivate, Main.ToSharedRef()));
		}
		return;
	}
	TSharedPtr<SWindow> Next = LastActiveWindow.Pin();
	if (!Next.IsValid() || Next->IsDestroyed())
	{
		Next = MainWindow.Pin();
	}
	if (!Active.IsValid() && Next.IsValid())
	{
		Application.ProcessWindowActivatedEvent(FWindowActivateEvent(FWindowActivateEvent::EA_Activate, Next.ToSharedRef()));
	}
}

bool FWindowInput::HandleDrop(const SDL_DropEvent& Event)
{
	if (Event.windowID != WindowId && Event.windowID != 0)
	{
		return false;
	}
	if (Event.type == SDL_DROPFILE && Event.file != nullptr)
	{
		Dropping.emplace_back(Event.file);
		SDL_free(Event.file);
	}
	else if (Event.type == SDL_DROPCOMPLETE)
	{
		Dropped.insert(Dropped.end(), Dropping.begin(), Dropping.end());
		Dropping.clear();
	}
	return true;
}
}
