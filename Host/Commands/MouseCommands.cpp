// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/MouseCommands.h"

#include "Host/Commands/Labels.h"
#include "Host/Commands/WindowCommands.h"
#include "Host/Commands/Words.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/HostProgram.h"

#include <cctype>

namespace TintmillHost
{
namespace
{
/** Further than any desktop reaches, in pixels. */
constexpr double MaxDistance = 20000.0;

constexpr double MaxNotches = 100.0;

FKey ParseButton(const std::string& Word)
{
	if (Word == "left")
	{
		return EKeys::LeftMouseButton;
	}
	if (Word == "right")
	{
		return EKeys::RightMouseButton;
	}
	if (Word == "middle")
	{
		return EKeys::MiddleMouseButton;
	}
	throw FCommandError("There is no mouse button '" + Word + "'; there are left, right, middle.");
}

/** "Ctrl", "Shift+Alt" … */
FModifierKeysState ParseModifiers(const std::string& Text)
{
	bool bCtrl = false;
	bool bShift = false;
	bool bAlt = false;
	for (size_t Start = 0; Start <= Text.size();)
	{
		const size_t End = std::min(Text.find('+', Start), Text.size());
		std::string Word = Text.substr(Start, End - Start);
		for (char& Letter : Word)
		{
			Letter = static_cast<char>(std::tolower(static_cast<unsigned char>(Letter)));
		}
		bool& bHeld = Word == "ctrl" ? bCtrl : Word == "shift" ? bShift : bAlt;
		if (Word != "ctrl" && Word != "shift" && Word != "alt")
		{
			throw FCommandError("There is no modifier key '" + Word + "'; there are Ctrl, Shift, Alt, and several as in Ctrl+Shift.");
		}
		bHeld = true;
		Start = End + 1;
	}
	return FModifierKeysState(bShift, false, bCtrl, false, bAlt, false, false, false, false);
}

/** Holds modifier keys while it lives. */
class FHeldKeys
{
public:
	FHeldKeys(FPerson& InPerson, const std::string& Keys)
		: Person(InPerson)
	{
		Person.HoldModifiers(ParseModifiers(Keys));
	}

	~FHeldKeys() { Person.HoldModifiers(FModifierKeysState()); }

	FHeldKeys(const FHeldKeys&) = delete;
	FHeldKeys& operator=(const FHeldKeys&) = delete;

private:
	FPerson& Person;
};

/** The place or distance of two words, in pixels of the window. */
FVector2D ParsePixels(const std::string& X, const std::string& Y, double Min)
{
	return FVector2D(static_cast<float>(ParseNumber(X, Min, MaxDistance, "a number of pixels")),
		static_cast<float>(ParseNumber(Y, Min, MaxDistance, "a number of pixels")));
}

/** [left|right|middle] [KEYS] from an index of the words on. */
void DragWith(FPerson& Person, const FVector2D& From, const FVector2D& To, const FArguments& Words, size_t Index)
{
	const FKey Button = Words.size() > Index ? ParseButton(Words[Index]) : EKeys::LeftMouseButton;
	if (Words.size() > Index + 1)
	{
		const FHeldKeys Keys(Person, Words[Index + 1]);
		Person.Drag(From, To, Button);
	}
	else
	{
		Person.Drag(From, To, Button);
	}
}

void AddClicks(const FWindowCommands& Commands, FPerson& Person)
{
	Commands.Add("right-click LABEL...", "click something with the right button, for its menu", {"right-click WarmPrint"},
		[&Person](const FArguments& Words, std::ostream&) {
			Person.Click(FollowPath(Person, JoinWords(Words)).Center, EKeys::RightMouseButton);
		});
	Commands.Add("double-click LABEL...", "click something twice", {"double-click WarmPrint"},
		[&Person](const FArguments& Words, std::ostream&) { Person.DoubleClick(FollowPath(Person, JoinWords(Words)).Center); });
	Commands.Add("click-with KEYS LABEL...", "click something while Ctrl, Shift or Alt is held", {"click-with Ctrl CoolNight"},
		[&Person](const FArguments& Words, std::ostream&) {
			const FVector2D Place = FollowPath(Person, JoinWordsFrom(Words, 1)).Center;
			const FHeldKeys Keys(Person, Words[0]);
			Person.Click(Place);
		});
	Commands.Add("hover-at X Y", "rest the mouse at a place of the window, in pixels", {"hover-at 840 500"},
		[&Person](const FArguments& Words, std::ostream&) { Person.Hover(ParsePixels(Words[0], Words[1], 0.0)); });
	Commands.Add("click-at X Y [left|right|middle]", "click at a place of the window, in pixels",
		{"click-at 840 500", "click-at 840 500 right"}, [&Person](const FArguments& Words, std::ostream&) {
			Person.Click(ParsePixels(Words[0], Words[1], 0.0), Words.size() > 2 ? ParseButton(Words[2]) : EKeys::LeftMouseButton);
		});
}

void AddDrags(const FWindowCommands& Commands, FPerson& Person)
{
	Commands.Add("drag LABEL DX DY [left|right|middle] [KEYS]",
		"drag something by pixels to the right and down; splitters are named 'splitter 1' and so on", {"drag 'splitter 1' 0 -120"},
		[&Person](const FArguments& Words, std::ostream&) {
			const FVector2D From = FollowPath(Person, Words[0]).Center;
			DragWith(Person, From, From + ParsePixels(Words[1], Words[2], -MaxDistance), Words, 3);
		});
	Commands.Add("drag-to LABEL LABEL", "drag something onto something else", {"drag-to WarmPrint Looks"},
		[&Person](const FArguments& Words, std::ostream&) {
			const FVector2D From = FollowPath(Person, Words[0]).Center;
			Person.Drag(From, FollowPath(Person, Words[1]).Center);
		});
	Commands.Add("drag-pane PANE DX DY [left|right|middle] [KEYS]",
		"drag in a pane from its middle by pixels to the right and down, which moves its camera", {"drag-pane 1 120 -40 left Alt"},
		[&Person](const FArguments& Words, std::ostream&) {
			const FVector2D From = FindPaneCenter(Words[0]);
			DragWith(Person, From, From + ParsePixels(Words[1], Words[2], -MaxDistance), Words, 3);
		});
	Commands.Add("scroll NOTCHES LABEL...", "turn the wheel over something, up for positive numbers", {"scroll -3 WarmPrint"},
		[&Person](const FArguments& Words, std::ostream&) {
			Person.Hover(FollowPath(Person, JoinWordsFrom(Words, 1)).Center);
			Person.TurnWheel(static_cast<float>(ParseNumber(Words[0], -MaxNotches, MaxNotches, "a number of notches")));
		});
	Commands.Add("scroll-pane PANE NOTCHES", "turn the wheel over the middle of a pane", {"scroll-pane 1 4"},
		[&Person](const FArguments& Words, std::ostream&) {
			Person.Hover(FindPaneCenter(Words[0]));
			Person.TurnWheel(static_cast<float>(ParseNumber(Words[1], -MaxNotches, MaxNotches, "a number of notches")));
		});
}
}

void AddMouseCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "The window, as a person uses it");
	const FWindowCommands Commands(Console, Program);
	AddClicks(Commands, Program.GetPerson());
	AddDrags(Commands, Program.GetPerson());
}
}
