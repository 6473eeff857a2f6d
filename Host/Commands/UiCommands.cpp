// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/UiCommands.h"

#include "Host/Commands/Labels.h"
#include "Host/Commands/UiExpectations.h"
#include "Host/Commands/WindowCommands.h"
#include "Host/Commands/Words.h"
#include "Host/Console/Console.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/Strings.h"
#include "Host/Ui/KeyNames.h"

#include "Framework/Application/SlateApplication.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "TintmillDisplayConfiguration.h"
#include "TintmillObject.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
/** More Escapes than menus can be open, each after one that clears a text. */
constexpr int MaxEscapes = 32;

constexpr double MinWindowLength = 100.0;
constexpr double MaxWindowLength = 8192.0;

/** Time for the panes to take their new size and to be drawn in it. */
constexpr double SettleSeconds = 3.0 / 60.0;

/** How long something is waited for: so many times so long. */
constexpr int MaxWaits = 50;
constexpr double WaitSeconds = 0.1;

void OpenMenu(FPerson& Person, const std::string& Pane, const std::string& Menu)
{
	std::vector<FSeen> Buttons = LookAt(FindPane(Pane));
	Buttons.erase(
		std::remove_if(Buttons.begin(), Buttons.end(), [](const FSeen& Thing) { return Thing.Kind != ESeenKind::Button; }), Buttons.end());
	// The button of the View menu bears the name of the view mode, and there is one mode.
	const FSeen Button = FindOrComplain(Buttons, Menu == "View" ? "Lit" : Menu);
	Person.Click(Button.Center);
	if (!FSlateApplication::Get().AnyMenusVisible())
	{
		throw FCommandError("The button '" + Button.Label + "' of pane " + Pane + " opens no menu here, or closed the one that was open.");
	}
}

void CloseMenus(FPerson& Person)
{
	for (int Escapes = 0; FSlateApplication::Get().AnyMenusVisible() && Escapes < MaxEscapes; ++Escapes)
	{
		Person.Press(FInputChord(EKeys::Escape));
	}
	if (FSlateApplication::Get().AnyMenusVisible())
	{
		throw FCommandError("The menus do not close on Escape.");
	}
}

/** Chooses a look for a pane in its View menu and switches its display on, as a person does. */
void ChooseLook(FPerson& Person, const std::string& Word, const std::string& Look)
{
	const FTintmillDisplayConfiguration& Record = GetPaneRecord(*FindPane(Word));
	const std::string Row = Record.LookAsset ? ToUtf8(Record.LookAsset->GetName()) : "Select a TML Asset";
	Person.Click(FindPaneCenter(Word));
	OpenMenu(Person, Word, "View");
	Person.Hover(FindOrComplain(LookAround(), "Tintmill").Center);
	const FSeen Switch = FindOrComplain(LookAround(), "Enable Display");
	if (!Switch.bChecked)
	{
		Person.Click(Switch.CheckCenter);
	}
	if (Row != Look)
	{
		const FSeen Choice = FollowPath(Person, Row + " > " + (Look == "none" ? "Clear" : Look));
		Person.Click(Choice.Center);
	}
	CloseMenus(Person);
}

void WaitFor(FHostProgram& Program, const std::string& What, const std::string& Value)
{
	for (int Wait = 0; Wait < MaxWaits; ++Wait)
	{
		try
		{
			CheckExpectation(What, Value);
			return;
		}
		catch (const FCommandError&)
		{
			Program.TickEditor(WaitSeconds);
		}
	}
	CheckExpectation(What, Value);
}

void AddPointingCommands(const FWindowCommands& Commands, FPerson& Person)
{
	Commands.Add("open PANE MENU...", "click a button of a pane's tool bar (View is the one that reads Lit)",
		{"open 1 View", "open 0 Perspective"},
		[&Person](const FArguments& Words, std::ostream&) { OpenMenu(Person, Words[0], JoinWordsFrom(Words, 1)); });
	Commands.Add("hover LABEL...", "rest the mouse on something; 'A > B' rests on A first",
		{"hover Tintmill", "hover Tintmill > Select a TML Asset"},
		[&Person](const FArguments& Words, std::ostream&) { Person.Hover(FollowPath(Person, JoinWords(Words)).Center); });
	Commands.Add("click LABEL...", "click something; 'A > B' rests on A first", {"click TealOrange", "click Tintmill > Enable Display"},
		[&Person](const FArguments& Words, std::ostream&) {
			const FSeen Thing = FollowPath(Person, JoinWords(Words));
			CheckEnabled(Thing);
			Person.Click(Thing.Center);
		});
	Commands.Add("click-box LABEL...", "click the check box of a menu's row, which leaves the menu open", {"click-box Enable Display"},
		[&Person](const FArguments& Words, std::ostream&) {
			const FSeen Thing = FollowPath(Person, JoinWords(Words));
			CheckEnabled(Thing);
			if (!Thing.bHasCheck)
			{
				throw FCommandError("'" + Thing.Label + "' has no check box.");
			}
			Person.Click(Thing.CheckCenter);
		});
	Commands.Add("choose-look PANE LOOK",
		"choose a look in a pane's View menu, or none, and switch the pane's display on: some clicks in one command",
		{"choose-look 1 TealOrange", "choose-look 1 none"},
		[&Person](const FArguments& Words, std::ostream&) { ChooseLook(Person, Words[0], Words[1]); });
	Commands.Add("click-pane PANE", "click a pane's picture, which makes it the one that is worked in", {"click-pane 1"},
		[&Person](const FArguments& Words, std::ostream&) { Person.Click(FindPaneCenter(Words[0])); });
}

void AddKeyCommands(const FWindowCommands& Commands, FPerson& Person)
{
	Commands.Add(
		"type TEXT...", "type a text where the keyboard's input goes", {"type warm"}, [&Person](const FArguments& Words, std::ostream&) {
			if (!Person.Type(FromUtf8(JoinWords(Words))))
			{
				throw FCommandError("Nothing takes the text '" + JoinWords(Words) + "': click a text box first.");
			}
		});
	Commands.Add("press KEY...", "press keys one after the other", {"press Escape", "press Down Down Enter", "press Ctrl+A"},
		[&Person](const FArguments& Words, std::ostream&) {
			for (const std::string& Word : Words)
			{
				Person.Press(ParseKeys(Word));
			}
		});
	Commands.Add("close-menus", "press Escape until no menu is open", {"close-menus"},
		[&Person](const FArguments&, std::ostream&) { CloseMenus(Person); });
}

void AddWindowCommands(const FWindowCommands& Commands, FHostProgram& Program)
{
	Commands.Add("window WIDTH HEIGHT", "give the window another size in pixels", {"window 1680 945"},
		[&Program](const FArguments& Words, std::ostream&) {
			const double Width = ParseNumber(Words[0], MinWindowLength, MaxWindowLength, "a width in pixels");
			const double Height = ParseNumber(Words[1], MinWindowLength, MaxWindowLength, "a height in pixels");
			Program.GetWindow().Resize(FIntPoint(static_cast<int32>(Width), static_cast<int32>(Height)));
			Program.TickEditor(SettleSeconds);
		});
	Commands.Add("expect WHAT VALUE...",
		"end the run unless: visible|absent|checked|unchecked|enabled|disabled|focused|tooltip LABEL, active PANE, menus NUMBER, PANE.FIELD VALUE",
		{"expect visible Enable Display", "expect menus 0", "expect 1.look TealOrange", "expect 1.enable on"},
		[](const FArguments& Words, std::ostream&) { CheckExpectation(Words[0], JoinWordsFrom(Words, 1)); });
	Commands.Add("wait-for WHAT VALUE...", "wait until what expect would say holds, five seconds of the editor's time at most",
		{"wait-for visible WarmPrint"},
		[&Program](const FArguments& Words, std::ostream&) { WaitFor(Program, Words[0], JoinWordsFrom(Words, 1)); });
}
}

void AddUiCommands(FConsole& Console, FHostProgram& Program)
{
	const FConsole::FGroup Group(Console, "The window, as a person uses it");
	const FWindowCommands Commands(Console, Program);
	AddPointingCommands(Commands, Program.GetPerson());
	AddKeyCommands(Commands, Program.GetPerson());
	AddWindowCommands(Commands, Program);
}
}
