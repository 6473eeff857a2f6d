// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/RunAgain.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <limits.h>
#include <unistd.h>

namespace TintmillHost
{
int RunAgain(const std::vector<std::string>& Arguments)
{
	char Program[PATH_MAX] = {};
	if (readlink("/proc/self/exe", Program, sizeof(Program) - 1) < 0)
	{
		std::cerr << "The program cannot be started anew: " << std::strerror(errno) << ".\n";
		return 2;
	}
	std::vector<char*> Words{Program};
	for (const std::string& Argument : Arguments)
	{
		Words.push_back(const_cast<char*>(Argument.c_str()));
	}
	Words.push_back(nullptr);
	std::cout.flush();
	std::fflush(nullptr);
	execv(Program, Words.data());
	std::cerr << "The program " << Program << " cannot be started anew: " << std::strerror(errno) << ".\n";
	return 2;
}
}
