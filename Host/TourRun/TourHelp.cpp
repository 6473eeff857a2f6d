// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/TourHelp.h"

#include "Host/Console/Console.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace TintmillHost
{
namespace
{
constexpr const char* Syntax = R"(A tour is a text file of console commands, one a line, that use the editor as a person would:

  # Comments begin with a number sign.
  title "A look in three steps"     names the page that the run leaves behind
  open 1 View                       click the button of pane 1's tool bar
  hover Tintmill                    things are named by what is written on them
  click Tintmill > Enable Display   'A > B' rests the mouse on A first
  shot done.png The look is on      a picture for the page, with its caption

Play one with:  tintmill-editor --headless --tour FILE --out FOLDER
After --exec the same commands are parted by semicolons. Words with blanks stand in quotation marks where a command takes more
words after them; at a command's end they need none. PANE is a pane's number, 0 to 3, or its name. Where nothing bears a label,
the run ends, says so with file, line and the labels that are in sight, leaves the page of what went before, and returns 2.
The page, FOLDER/index.html, shows every picture with its caption, its commands and their times, and the log.

Commands:
)";

/** The titles of the groups in alphabetical order, the empty one of commands without a group last. */
std::vector<std::string> ListGroups(const FConsole& Console)
{
	std::set<std::string> Titles;
	for (const auto& [Name, Command] : Console.GetCommands())
	{
		Titles.insert(Command.Group);
	}
	std::vector<std::string> Groups(Titles.begin(), Titles.end());
	if (!Groups.empty() && Groups.front().empty())
	{
		std::rotate(Groups.begin(), Groups.begin() + 1, Groups.end());
	}
	return Groups;
}
}

void PrintTourHelp(const FConsole& Console, std::ostream& Output)
{
	Output << Syntax;
	for (const std::string& Group : ListGroups(Console))
	{
		Output << '\n' << (Group.empty() ? "More" : Group) << '\n';
		for (const auto& [Name, Command] : Console.GetCommands())
		{
			if (Command.Group == Group)
			{
				Console.PrintHelpFor(Name, Output);
			}
		}
	}
}
}
