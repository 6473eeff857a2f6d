// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/OutputLog/ConsoleLink.h"

#include <functional>
#include <string>

// What the window shows of the program that it belongs to.

namespace TintmillHost
{
class FHostLog;

/** The project, the log and the console; all but the names may be empty. */
struct FFrameContent
{
	std::string ProjectName;

	/** The project's folder, as UTF-8. */
	std::string ProjectFolder;

	/** The log, which must outlive the window; without one there is no output log. */
	const FHostLog* Log = nullptr;

	/** The commands of the output log's console. */
	FConsoleLink Console;

	/** Whether settings cannot be saved in the project. */
	std::function<bool()> IsReadOnly;
};
}
