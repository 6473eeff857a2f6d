// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/KeyMap.h"

#include "Support/Printers.h"

#include <gtest/gtest.h>

#include <set>

using namespace TintmillHost;

namespace
{
/** The name of the key that SDL describes so; empty for none. */
std::string NameKey(SDL_Keycode Code, SDL_Scancode Place = SDL_SCANCODE_UNKNOWN, Uint16 Modifiers = 0)
{
	SDL_Keysym Pressed = {};
	Pressed.sym = Code;
	Pressed.scancode = Place;
	Pressed.mod = Modifiers;
	const FKey Key = FindKey(Pressed);
	return Key.IsValid() ? TCHAR_TO_UTF8(*Key.ToString()) : "";
}
}

TEST(KeyMap, NamesLettersDigitsAndFunctionKeys)
{
	EXPECT_EQ(
		NameKey(SDLK_a) + NameKey(SDLK_z) + NameKey(SDLK_0) + NameKey(SDLK_9) + NameKey(SDLK_F1) + NameKey(SDLK_F12), "AZZeroNineF1F12");
}

TEST(KeyMap, NamesKeysThatEditTexts)
{
	EXPECT_EQ(NameKey(SDLK_BACKSPACE) + NameKey(SDLK_DELETE) + NameKey(SDLK_HOME) + NameKey(SDLK_RETURN) + NameKey(SDLK_ESCAPE),
		"BackSpaceDeleteHomeEnterEscape");
}

TEST(KeyMap, TellsLeftModifiersFromRightOnes)
{
	EXPECT_EQ(
		NameKey(SDLK_LSHIFT) + NameKey(SDLK_RSHIFT) + NameKey(SDLK_LCTRL) + NameKey(SDLK_RALT), "LeftShiftRightShiftLeftControlRightAlt");
}

TEST(KeyMap, NamesAKeyOfAnotherAlphabetByItsPlace)
{
	constexpr SDL_Keycode CyrillicEf = 0x444;
	EXPECT_EQ(NameKey(CyrillicEf, SDL_SCANCODE_A), "A");
}

TEST(KeyMap, NamesALatinKeyByWhatItWritesWhateverItsPlace)
{
	EXPECT_EQ(NameKey(SDLK_q, SDL_SCANCODE_A), "Q");
}

TEST(KeyMap, TakesTheNumberPadForDigitsWithNumLockAlone)
{
	EXPECT_EQ(NameKey(SDLK_KP_8, SDL_SCANCODE_KP_8, KMOD_NUM), "NumPadEight");
	EXPECT_EQ(NameKey(SDLK_KP_8, SDL_SCANCODE_KP_8), "Up");
}

TEST(KeyMap, KnowsNothingOfKeysThatTheEngineHasNoNameFor)
{
	EXPECT_EQ(NameKey(SDLK_AUDIOPLAY, SDL_SCANCODE_AUDIOPLAY), "");
}

TEST(KeyMap, GivesEveryButtonItsOwnKey)
{
	std::set<std::string> Names;
	for (int Button = 1; Button <= 5; ++Button)
	{
		Names.insert(TCHAR_TO_UTF8(*FindMouseButton(Button).ToString()));
	}
	EXPECT_EQ(Names,
		(std::set<std::string>{"LeftMouseButton", "MiddleMouseButton", "RightMouseButton", "ThumbMouseButton", "ThumbMouseButton2"}));
}

TEST(KeyMap, KnowsNothingOfASixthButton)
{
	EXPECT_FALSE(FindMouseButton(6).IsValid());
}

TEST(KeyMap, ReadsTheModifiers)
{
	const FModifierKeysState State = FindModifiers(KMOD_RSHIFT | KMOD_LALT | KMOD_CAPS);
	EXPECT_TRUE(State.IsShiftDown() && State.IsAltDown() && State.AreCapsLocked() && !State.IsControlDown() && !State.IsCommandDown());
}
