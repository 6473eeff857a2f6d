// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/ListCommands.h"

#include "Host/Console/Console.h"
#include "Host/Program/Strings.h"

#include "CoreGlobals.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "StandIn/Notices.h"
#include "StandIn/Registrations.h"

namespace TintmillHost
{
namespace
{
/** Prints the registrations, or only those of a module's object. */
void PrintRegistrations(const FArguments& Words, std::ostream& Output)
{
	const void* Owner = nullptr;
	if (!Words.empty())
	{
		Owner = FModuleManager::Get().GetModule(FName(*FromUtf8(Words[0])));
		if (!Owner)
		{
			throw FCommandError("The module '" + Words[0] + "' is not loaded.");
		}
	}
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		if (!Owner || Registration.Owner == Owner)
		{
			Output << "  " << ToUtf8(Registration.Registry) << ": " << ToUtf8(Registration.Name) << '\n';
		}
	}
}
}

void AddListCommands(FConsole& Console)
{
	const FConsole::FGroup Group(Console, "What there is");
	Console.Add("registered [MODULE]", "list what is registered with the engine, or what a module's object has registered",
		{"registered", "registered TintmillEditor"}, &PrintRegistrations);
	Console.Add("notices", "show what could not be used, and why", {"notices"}, [](const FArguments&, std::ostream& Output) {
		for (const StandIn::FNotice& Notice : StandIn::GetNotices())
		{
			Output << "Notice: " << ToUtf8(Notice.Text) << '\n';
		}
	});
	Console.Add("settings", "show where the project's user settings are", {"settings"},
		[](const FArguments&, std::ostream& Output) { Output << ToUtf8(FPaths::ConvertRelativePathToFull(GEditorPerProjectIni)) << '\n'; });
}
}
