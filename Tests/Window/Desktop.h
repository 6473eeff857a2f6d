// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Picture/Picture.h"
#include "Support/ProgramRun.h"
#include "Support/TestFolder.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

// A display of the test's own, and hands that use what is on it.

/** An X server that draws into memory, as long as it lives. Its screen is 1280 x 800 pixels, and nobody manages its windows. */
class FDesktop
{
public:
	FDesktop();
	~FDesktop();

	/** Its name for DISPLAY. */
	const std::string& GetName() const { return Name; }

	/** What is on the screen, without the mouse. */
	TintmillHost::FPicture TakePicture() const;

	/** Does what words tell xdotool to do. */
	void Do(const std::string& Words) const;

	/** Asks the window of a title to close, as the close button of its frame does; says whether there is one. */
	bool CloseWindow(const std::string& Title) const;

	/** Ends the server at once. */
	void Kill();

private:
	FTestFolder Memory;
	std::unique_ptr<FRunningProgram> Server;
	std::string Name;
};

/** The program in a window. */
class FWindowedEditor
{
public:
	/** Starts it with arguments on a display of a name, or where no display is named at all. */
	FWindowedEditor(const std::string& DisplayName, const std::vector<std::string>& Arguments);
	~FWindowedEditor();

	/** Sends it a signal. */
	void Signal(int Number) const;

	/** Whether it still runs. */
	bool IsRunning() const;

	/** The processor time that it has used so far, in seconds. */
	double GetProcessorTime() const;

	/** Waits for its end, some ten seconds at most; after that it is killed. */
	FProgramResult Wait();

private:
	std::unique_ptr<FRunningProgram> Program;
};

/** Asks again and again until the answer is yes; false if it stays no for some ten seconds. */
bool WaitUntil(const std::function<bool()>& Question);
