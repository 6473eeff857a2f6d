// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/KeyNames.h"

#include "Host/Console/Console.h"
#include "Host/Program/Strings.h"

#include "InputCoreTypes.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace TintmillHost
{
namespace
{
/** Keys by their names in lower case. */
const std::map<std::string, FKey>& KnownKeys()
{
	static const std::map<std::string, FKey> Keys = [] {
		std::map<std::string, FKey> Result = {{"escape", EKeys::Escape}, {"esc", EKeys::Escape}, {"enter", EKeys::Enter},
			{"return", EKeys::Enter}, {"tab", EKeys::Tab}, {"space", EKeys::SpaceBar}, {"backspace", EKeys::BackSpace},
			{"delete", EKeys::Delete}, {"insert", EKeys::Insert}, {"home", EKeys::Home}, {"end", EKeys::End}, {"pageup", EKeys::PageUp},
			{"pagedown", EKeys::PageDown}, {"up", EKeys::Up}, {"down", EKeys::Down}, {"left", EKeys::Left}, {"right", EKeys::Right},
			{"0", EKeys::Zero}, {"1", EKeys::One}, {"2", EKeys::Two}, {"3", EKeys::Three}, {"4", EKeys::Four}, {"5", EKeys::Five},
			{"6", EKeys::Six}, {"7", EKeys::Seven}, {"8", EKeys::Eight}, {"9", EKeys::Nine}};
		for (char Letter = 'A'; Letter <= 'Z'; ++Letter)
		{
			const std::string Name(1, Letter);
			Result[ToLowerCase(Name)] = FKey(Name.c_str());
		}
		for (int Number = 1; Number <= 12; ++Number)
		{
			const std::string Name = "F" + std::to_string(Number);
			Result[ToLowerCase(Name)] = FKey(Name.c_str());
		}
		return Result;
	}();
	return Keys;
}
}

FInputChord ParseKeys(const std::string& Text)
{
	FInputChord Chord;
	std::string Rest = ToLowerCase(Text);
	for (size_t Plus = Rest.find('+'); Plus != std::string::npos; Plus = Rest.find('+'))
	{
		const std::string Modifier = Rest.substr(0, Plus);
		if (Modifier == "ctrl" || Modifier == "control")
		{
			Chord.bCtrl = true;
		}
		else if (Modifier == "shift")
		{
			Chord.bShift = true;
		}
		else if (Modifier == "alt")
		{
			Chord.bAlt = true;
		}
		else if (Modifier == "cmd")
		{
			Chord.bCmd = true;
		}
		else
		{
			throw FCommandError("'" + Modifier + "' in '" + Text + "' is no key that is held: there are Ctrl, Shift, Alt and Cmd.");
		}
		Rest.erase(0, Plus + 1);
	}
	const auto Found = KnownKeys().find(Rest);
	if (Found == KnownKeys().end())
	{
		throw FCommandError("There is no key '" + Text
			+ "': there are letters, digits, F1 to F12, Escape, Enter, Tab, Space, Backspace, Delete, Insert, Home, End, PageUp, PageDown, "
			  "Up, Down, Left and Right, with Ctrl+, Shift+, Alt+ or Cmd+ before them.");
	}
	Chord.Key = Found->second;
	return Chord;
}
}
