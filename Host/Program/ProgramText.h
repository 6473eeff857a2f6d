// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>
#include <vector>

// Text that comes into the program from outside and goes out of it: UTF-8, whatever the system speaks.

namespace TintmillHost
{
/** The program's arguments without its own name; takes those of main. */
std::vector<std::string> GetProgramArguments(int ArgumentCount, char** Arguments);

/** Has the console that the program was started in show UTF-8 while it lives. */
class FUtf8Console
{
public:
	FUtf8Console();
	~FUtf8Console();

	FUtf8Console(const FUtf8Console&) = delete;
	FUtf8Console& operator=(const FUtf8Console&) = delete;

private:
	unsigned int Before = 0;
};
}
