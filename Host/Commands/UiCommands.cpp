// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/UiCommands.h"

#include "Host/Commands/UiExpectations.h"
#include "Host/Commands/Words.h"
#include "Host/Console/Console.h"
#include "Host/Editor/Panes.h"
#include "Host/Picture/PngFile.h"
#include "Host/Program/HostProgram.h"
#include "Host/Program/Strings.h"
#include "Host/Ui/KeyNames.h"
#include "Host/Ui/Sight.h"

#include "Framework/Application/SlateApplication.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "TintmillDisplayConfiguration.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
/** More Escapes than menus can be open, each after one that clears a text. */
constexpr int MaxEscapes = 32;

constexpr double MaxShotScale = 4.0;

constexpr double MinWindowLength = 160.0;
constexpr double MaxWindowLength = 8192.0;

/** Time for the panes to take their new size and to be drawn in it. */
constexpr double SettleSeconds = 3.0 / 60.0;

/** The labels of a path "View > Tintmill". */
std::vector<std::string> SplitPath(const std::string& Path)
{
	std::vector<std::string> Labels;
	size_t Start = 0;
	for (size_t Mark = Path.find(" > "); Mark != std::string::npos; Mark = Path.find(" > ", Start))
	{
		Labels.push_back(Path.substr(Start, Mark - Start));
		Start = Mark + 3;
	}
	Labels.push_back(Path.substr(Start));
	return Labels;
}

/** What a label names; an asset that its list has to be scrolled for is brought into sight. */
FSeen Find(FPerson& Person, const std::string& Label)
{
	FSeen Thing = FindOrComplain(LookAround(), Label);
	if (Thing.ScrollRows != 0)
	{
		Person.Hover(Thing.ListCenter);
		Person.TurnWheel(static_cast<float>(-Thing.ScrollRows));
		Thing = FindOrComplain(LookAround(), Label);
	}
	return Thing;
}

/** Rests on all labels of a path but the last, so that their submenus open, and returns what the last one names. */
FSeen FollowPath(FPerson& Person, const std::string& Path)
{
	const std::vector<std::string> Labels = SplitPath(Path);
	for (size_t Index = 0; Index + 1 < Labels.size(); ++Index)
	{
		Person.Hover(Find(Person, Labels[Index]).Center);
	}
	return Find(Person, Labels.back());
}

void CheckEnabled(const FSeen& Thing)
{
	if (!Thing.bEnabled)
	{
		throw FCommandError("'" + Thing.Label + "' cannot be clicked now: it is grayed out.");
	}
}

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

void ClickPane(FPerson& Person, const std::string& Word)
{
	const TSharedRef<SLevelViewport> Pane = FindPane(Word);
	if (!Pane->IsVisible())
	{
		throw FCommandError("Pane " + Word + " cannot be clicked: it is not in sight.");
	}
	Person.Click(Pane->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f)));
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

/** FILE [SCALE] [CAPTION...] */
void TakeShot(FHostProgram& Program, FArguments Words, std::ostream& Output)
{
	const std::filesystem::path File = Program.GetOutDir() / Words[0];
	Words.erase(Words.begin());
	double Scale = 1.0;
	if (!Words.empty() && Words[0].find_first_not_of("0123456789.") == std::string::npos)
	{
		Scale = ParseNumber(Words[0], 0.5, MaxShotScale, "a scale");
		Words.erase(Words.begin());
	}
	Program.TickEditor(0.0);
	if (const std::string Problem = WritePng(Program.GetWindow().TakePicture(Scale), File); !Problem.empty())
	{
		throw FCommandError(Problem);
	}
	Output << "  " << File.string() << '\n';
	Program.GetGallery().AddPicture(Words.empty() ? File.stem().string() : JoinWords(Words), File);
}
}

void AddUiCommands(FConsole& Console, FHostProgram& Program)
{
	const auto Add = [&Console, &Program](const std::string& Usage, const std::string& Summary, auto Body) {
		Console.Add(Usage, Summary, [&Program, Body](const FArguments& Words, std::ostream& Output) {
			Program.GetWindow();
			Body(Words, Output);
		});
	};
	FPerson& Person = Program.GetPerson();

	Add("open PANE MENU...", "click a button of a pane's tool bar (View is the one that reads Lit)",
		[&Person](
			const FArguments& Words, std::ostream&) { OpenMenu(Person, Words[0], JoinWords(FArguments(Words.begin() + 1, Words.end()))); });
	Add("hover LABEL...", "rest the mouse on something; 'A > B' rests on A first",
		[&Person](const FArguments& Words, std::ostream&) { Person.Hover(FollowPath(Person, JoinWords(Words)).Center); });
	Add("click LABEL...", "click something; 'A > B' rests on A first", [&Person](const FArguments& Words, std::ostream&) {
		const FSeen Thing = FollowPath(Person, JoinWords(Words));
		CheckEnabled(Thing);
		Person.Click(Thing.Center);
	});
	Add("click-box LABEL...", "click the check box of a menu's row, which leaves the menu open",
		[&Person](const FArguments& Words, std::ostream&) {
			const FSeen Thing = FollowPath(Person, JoinWords(Words));
			CheckEnabled(Thing);
			if (!Thing.bHasCheck)
			{
				throw FCommandError("'" + Thing.Label + "' has no check box.");
			}
			Person.Click(Thing.CheckCenter);
		});
	Add("click-pane PANE", "click a pane's picture, which makes it the one that is worked in",
		[&Person](const FArguments& Words, std::ostream&) { ClickPane(Person, Words[0]); });
	Add("type TEXT...", "type a text where the keyboard's input goes", [&Person](const FArguments& Words, std::ostream&) {
		if (!Person.Type(FromUtf8(JoinWords(Words))))
		{
			throw FCommandError("Nothing takes the text '" + JoinWords(Words) + "': click a text box first.");
		}
	});
	Add("press KEY...", "press keys one after the other, such as Escape, Down or Ctrl+A",
		[&Person](const FArguments& Words, std::ostream&) {
			for (const std::string& Word : Words)
			{
				Person.Press(ParseKeys(Word));
			}
		});
	Add("close-menus", "press Escape until no menu is open", [&Person](const FArguments&, std::ostream&) { CloseMenus(Person); });
	Add("window WIDTH HEIGHT", "give the window another size in pixels", [&Program](const FArguments& Words, std::ostream&) {
		const double Width = ParseNumber(Words[0], MinWindowLength, MaxWindowLength, "a width in pixels");
		const double Height = ParseNumber(Words[1], MinWindowLength, MaxWindowLength, "a height in pixels");
		Program.GetWindow().Resize(FIntPoint(static_cast<int32>(Width), static_cast<int32>(Height)));
		Program.TickEditor(SettleSeconds);
	});
	Add("shot FILE [SCALE] [CAPTION...]", "save a picture of the window as a PNG in the folder of --out, at 1 to 4 pixels a pixel",
		[&Program](const FArguments& Words, std::ostream& Output) { TakeShot(Program, Words, Output); });
	Add("expect WHAT VALUE...",
		"end the run unless: visible|absent|checked|unchecked|enabled|disabled|focused|tooltip LABEL, active PANE, menus NUMBER, PANE.FIELD VALUE",
		[](const FArguments& Words, std::ostream&) { CheckExpectation(Words[0], JoinWords(FArguments(Words.begin() + 1, Words.end()))); });
}
}
