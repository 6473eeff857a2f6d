// Copyright The Tintmill authors. All rights reserved.

#include "Desktop.h"

#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <sstream>
#include <thread>
#include <unistd.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

using namespace TintmillHost;

namespace
{
/** A number of the header of an X window dump. */
std::uint32_t ReadNumber(const std::string& Dump, size_t Index)
{
	const auto Byte = [&](size_t Place) { return static_cast<std::uint32_t>(static_cast<unsigned char>(Dump[Index * 4 + Place])); };
	return Byte(0) << 24 | Byte(1) << 16 | Byte(2) << 8 | Byte(3);
}

/** The words of /proc/PID/stat behind the program's name. */
std::vector<std::string> ReadProcess(std::intptr_t Process)
{
	std::ifstream File("/proc/" + std::to_string(Process) + "/stat");
	std::string Line;
	std::getline(File, Line);
	std::istringstream Words(Line.substr(std::min(Line.size(), Line.rfind(')') + 1)));
	std::vector<std::string> Result;
	for (std::string Word; Words >> Word;)
	{
		Result.push_back(Word);
	}
	return Result;
}
}

bool WaitUntil(const std::function<bool()>& Question)
{
	for (int Attempt = 0; Attempt < 500; ++Attempt)
	{
		if (Question())
		{
			return true;
		}
		std::this_thread::sleep_for(std::chrono::milliseconds(20));
	}
	return false;
}

FDesktop::FDesktop()
{
	Server = std::make_unique<FRunningProgram>("/usr/bin/env",
		std::vector<std::string>{"Xvfb", "-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp", "-nocursor", "-noreset",
			"-fbdir", Memory.NativePath("").string()});
	Name = ":" + Server->ReadLine();
}

FDesktop::~FDesktop()
{
	Kill();
}

void FDesktop::Kill()
{
	if (Server)
	{
		kill(static_cast<pid_t>(Server->GetProcess()), SIGKILL);
		Server->Wait();
		Server.reset();
	}
}

FPicture FDesktop::TakePicture() const
{
	// The server keeps the screen in a file, laid out as the program xwd writes it.
	const std::filesystem::path File = Memory.NativePath("Xvfb_screen0");
	std::string Dump(std::filesystem::file_size(File), '\0');
	std::ifstream(File, std::ios::binary).read(Dump.data(), static_cast<std::streamsize>(Dump.size()));
	FPicture Picture;
	Picture.Width = static_cast<int32>(ReadNumber(Dump, 4));
	Picture.Height = static_cast<int32>(ReadNumber(Dump, 5));
	Picture.Pixels.SetNumUninitialized(Picture.Width * Picture.Height);
	const size_t RowBytes = ReadNumber(Dump, 12);
	const size_t Start = ReadNumber(Dump, 0) + static_cast<size_t>(ReadNumber(Dump, 19)) * 12;
	for (int32 Row = 0; Row < Picture.Height; ++Row)
	{
		std::memcpy(Picture.Pixels.GetData() + Row * Picture.Width, Dump.data() + Start + static_cast<size_t>(Row) * RowBytes,
			static_cast<size_t>(Picture.Width) * 4);
	}
	return Picture;
}

void FDesktop::Do(const std::string& Words) const
{
	std::vector<std::string> Arguments = SplitCommandLine("DISPLAY=" + Name + " xdotool " + Words);
	RunProgram("/usr/bin/env", Arguments);
}

bool FDesktop::CloseWindow(const std::string& Title) const
{
	// Nobody manages windows here, so the test says what the manager of a frame would say.
	Display* const Connection = XOpenDisplay(Name.c_str());
	bool bFound = false;
	Window Root = 0;
	Window Parent = 0;
	Window* Children = nullptr;
	unsigned Count = 0;
	XQueryTree(Connection, DefaultRootWindow(Connection), &Root, &Parent, &Children, &Count);
	for (unsigned Index = 0; Index < Count; ++Index)
	{
		char* Found = nullptr;
		if (XFetchName(Connection, Children[Index], &Found) != 0 && Found != nullptr && Title == Found)
		{
			XEvent Event = {};
			Event.xclient.type = ClientMessage;
			Event.xclient.window = Children[Index];
			Event.xclient.message_type = XInternAtom(Connection, "WM_PROTOCOLS", False);
			Event.xclient.format = 32;
			Event.xclient.data.l[0] = static_cast<long>(XInternAtom(Connection, "WM_DELETE_WINDOW", False));
			XSendEvent(Connection, Children[Index], False, NoEventMask, &Event);
			bFound = true;
		}
		XFree(Found);
	}
	XFree(Children);
	XCloseDisplay(Connection);
	return bFound;
}

FWindowedEditor::FWindowedEditor(const std::string& DisplayName, const std::vector<std::string>& Arguments)
{
	std::vector<std::string> All = {"-u", "WAYLAND_DISPLAY", "-u", "XDG_RUNTIME_DIR"};
	if (DisplayName.empty())
	{
		All.insert(All.end(), {"-u", "DISPLAY", "-u", "SDL_VIDEODRIVER", TINTMILL_EDITOR});
	}
	else
	{
		All.insert(All.end(), {"DISPLAY=" + DisplayName, "SDL_VIDEODRIVER=x11", TINTMILL_EDITOR});
	}
	All.insert(All.end(), Arguments.begin(), Arguments.end());
	Program = std::make_unique<FRunningProgram>("/usr/bin/env", All);
}

FWindowedEditor::~FWindowedEditor()
{
	if (Program)
	{
		Signal(SIGKILL);
	}
}

void FWindowedEditor::Signal(int Number) const
{
	kill(static_cast<pid_t>(Program->GetProcess()), Number);
}

bool FWindowedEditor::IsRunning() const
{
	const std::vector<std::string> Process = ReadProcess(Program->GetProcess());
	return !Process.empty() && Process[0] != "Z";
}

double FWindowedEditor::GetProcessorTime() const
{
	const std::vector<std::string> Process = ReadProcess(Program->GetProcess());
	const double Ticks = Process.size() > 12 ? std::stod(Process[11]) + std::stod(Process[12]) : 0.0;
	return Ticks / static_cast<double>(sysconf(_SC_CLK_TCK));
}

FProgramResult FWindowedEditor::Wait()
{
	if (!WaitUntil([this] { return !IsRunning(); }))
	{
		Signal(SIGKILL);
	}
	const FProgramResult Result = Program->Wait();
	Program.reset();
	return Result;
}
