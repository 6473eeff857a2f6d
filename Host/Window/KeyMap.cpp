// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/KeyMap.h"

#include <unordered_map>

namespace TintmillHost
{
namespace
{
using FKeyTable = std::unordered_map<int, FKey>;

void AddLettersAndDigits(FKeyTable& Table)
{
	for (char Letter = 'A'; Letter <= 'Z'; ++Letter)
	{
		const char Name[] = {Letter, '\0'};
		Table[SDLK_a + (Letter - 'A')] = FKey(Name);
	}
	const FKey Digits[] = {
		EKeys::Zero, EKeys::One, EKeys::Two, EKeys::Three, EKeys::Four, EKeys::Five, EKeys::Six, EKeys::Seven, EKeys::Eight, EKeys::Nine};
	for (int Digit = 0; Digit <= 9; ++Digit)
	{
		Table[SDLK_0 + Digit] = Digits[Digit];
	}
	for (int Number = 1; Number <= 12; ++Number)
	{
		Table[SDLK_F1 + (Number - 1)] = FKey(*FString::Printf(TEXT("F%d"), Number));
	}
}

void AddNumberPad(FKeyTable& Table)
{
	// Without Num Lock the window system still names the pad's keys; they then act as the keys that are printed on them do.
	const TCHAR* const Digits[] = {TEXT("NumPadOne"), TEXT("NumPadTwo"), TEXT("NumPadThree"), TEXT("NumPadFour"), TEXT("NumPadFive"),
		TEXT("NumPadSix"), TEXT("NumPadSeven"), TEXT("NumPadEight"), TEXT("NumPadNine"), TEXT("NumPadZero")};
	for (int Index = 0; Index < 10; ++Index)
	{
		Table[SDLK_KP_1 + Index] = FKey(Digits[Index]);
	}
	Table[SDLK_KP_ENTER] = EKeys::Enter;
	Table[SDLK_KP_MULTIPLY] = FKey(TEXT("Multiply"));
	Table[SDLK_KP_PLUS] = FKey(TEXT("Add"));
	Table[SDLK_KP_MINUS] = FKey(TEXT("Subtract"));
	Table[SDLK_KP_PERIOD] = FKey(TEXT("Decimal"));
	Table[SDLK_KP_DIVIDE] = FKey(TEXT("Divide"));
	Table[SDLK_NUMLOCKCLEAR] = FKey(TEXT("NumLock"));
	Table[SDLK_SCROLLLOCK] = FKey(TEXT("ScrollLock"));
}

void AddSigns(FKeyTable& Table)
{
	Table[SDLK_SEMICOLON] = FKey(TEXT("Semicolon"));
	Table[SDLK_EQUALS] = FKey(TEXT("Equals"));
	Table[SDLK_COMMA] = FKey(TEXT("Comma"));
	Table[SDLK_MINUS] = FKey(TEXT("Hyphen"));
	Table[SDLK_UNDERSCORE] = FKey(TEXT("Underscore"));
	Table[SDLK_PERIOD] = FKey(TEXT("Period"));
	Table[SDLK_SLASH] = FKey(TEXT("Slash"));
	Table[SDLK_BACKQUOTE] = EKeys::Tilde;
	Table[SDLK_LEFTBRACKET] = FKey(TEXT("LeftBracket"));
	Table[SDLK_BACKSLASH] = FKey(TEXT("Backslash"));
	Table[SDLK_RIGHTBRACKET] = FKey(TEXT("RightBracket"));
	Table[SDLK_QUOTE] = FKey(TEXT("Apostrophe"));
	Table[SDLK_QUOTEDBL] = FKey(TEXT("Quote"));
	Table[SDLK_LEFTPAREN] = FKey(TEXT("LeftParantheses"));
	Table[SDLK_RIGHTPAREN] = FKey(TEXT("RightParantheses"));
	Table[SDLK_AMPERSAND] = FKey(TEXT("Ampersand"));
	Table[SDLK_ASTERISK] = FKey(TEXT("Asterix"));
	Table[SDLK_CARET] = FKey(TEXT("Caret"));
	Table[SDLK_DOLLAR] = FKey(TEXT("Dollar"));
	Table[SDLK_EXCLAIM] = FKey(TEXT("Exclamation"));
	Table[SDLK_COLON] = FKey(TEXT("Colon"));
}

FKeyTable MakeKeyTable()
{
	FKeyTable Table = {{SDLK_BACKSPACE, EKeys::BackSpace}, {SDLK_TAB, EKeys::Tab}, {SDLK_RETURN, EKeys::Enter}, {SDLK_PAUSE, EKeys::Pause},
		{SDLK_CAPSLOCK, EKeys::CapsLock}, {SDLK_ESCAPE, EKeys::Escape}, {SDLK_SPACE, EKeys::SpaceBar}, {SDLK_PAGEUP, EKeys::PageUp},
		{SDLK_PAGEDOWN, EKeys::PageDown}, {SDLK_END, EKeys::End}, {SDLK_HOME, EKeys::Home}, {SDLK_LEFT, EKeys::Left}, {SDLK_UP, EKeys::Up},
		{SDLK_RIGHT, EKeys::Right}, {SDLK_DOWN, EKeys::Down}, {SDLK_INSERT, EKeys::Insert}, {SDLK_DELETE, EKeys::Delete},
		{SDLK_LSHIFT, EKeys::LeftShift}, {SDLK_RSHIFT, EKeys::RightShift}, {SDLK_LCTRL, EKeys::LeftControl},
		{SDLK_RCTRL, EKeys::RightControl}, {SDLK_LALT, EKeys::LeftAlt}, {SDLK_RALT, EKeys::RightAlt}, {SDLK_LGUI, EKeys::LeftCommand},
		{SDLK_RGUI, EKeys::RightCommand}};
	AddLettersAndDigits(Table);
	AddNumberPad(Table);
	AddSigns(Table);
	return Table;
}

/** What a key of the number pad does without Num Lock. */
SDL_Keycode FindPadDirection(SDL_Keycode Code)
{
	switch (Code)
	{
	case SDLK_KP_0:
		return SDLK_INSERT;
	case SDLK_KP_1:
		return SDLK_END;
	case SDLK_KP_2:
		return SDLK_DOWN;
	case SDLK_KP_3:
		return SDLK_PAGEDOWN;
	case SDLK_KP_4:
		return SDLK_LEFT;
	case SDLK_KP_6:
		return SDLK_RIGHT;
	case SDLK_KP_7:
		return SDLK_HOME;
	case SDLK_KP_8:
		return SDLK_UP;
	case SDLK_KP_9:
		return SDLK_PAGEUP;
	case SDLK_KP_PERIOD:
		return SDLK_DELETE;
	default:
		return Code;
	}
}

/** The code that a key would have on a keyboard of the United States. */
SDL_Keycode FindCodeByPlace(SDL_Scancode Place)
{
	if (Place >= SDL_SCANCODE_A && Place <= SDL_SCANCODE_Z)
	{
		return SDLK_a + (Place - SDL_SCANCODE_A);
	}
	if (Place >= SDL_SCANCODE_1 && Place <= SDL_SCANCODE_9)
	{
		return SDLK_1 + (Place - SDL_SCANCODE_1);
	}
	return Place == SDL_SCANCODE_0 ? SDLK_0 : SDLK_UNKNOWN;
}
}

FKey FindKey(const SDL_Keysym& Pressed)
{
	static const FKeyTable Table = MakeKeyTable();
	const SDL_Keycode Code = (Pressed.mod & KMOD_NUM) != 0 ? Pressed.sym : FindPadDirection(Pressed.sym);
	auto Found = Table.find(Code);
	if (Found == Table.end())
	{
		Found = Table.find(FindCodeByPlace(Pressed.scancode));
	}
	return Found != Table.end() ? Found->second : FKey();
}

FKey FindMouseButton(int Button)
{
	switch (Button)
	{
	case SDL_BUTTON_LEFT:
		return EKeys::LeftMouseButton;
	case SDL_BUTTON_MIDDLE:
		return EKeys::MiddleMouseButton;
	case SDL_BUTTON_RIGHT:
		return EKeys::RightMouseButton;
	case SDL_BUTTON_X1:
		return EKeys::ThumbMouseButton;
	case SDL_BUTTON_X2:
		return EKeys::ThumbMouseButton2;
	default:
		return FKey();
	}
}

FModifierKeysState FindModifiers(int State)
{
	const auto Has = [State](int Modifier) { return (State & Modifier) != 0; };
	return FModifierKeysState(Has(KMOD_LSHIFT), Has(KMOD_RSHIFT), Has(KMOD_LCTRL), Has(KMOD_RCTRL), Has(KMOD_LALT), Has(KMOD_RALT),
		Has(KMOD_LGUI), Has(KMOD_RGUI), Has(KMOD_CAPS));
}
}
