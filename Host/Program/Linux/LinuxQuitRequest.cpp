// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/QuitRequest.h"

#include <csignal>
#include <cstddef>

namespace TintmillHost
{
namespace
{
constexpr int Signals[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t RequestedBy = 0;

struct sigaction FormerActions[sizeof(Signals) / sizeof(Signals[0])];

void NoteRequest(int Signal)
{
	RequestedBy = Signal;
	// From now on all of them end the program at once. signal() is safe here.
	for (const int Each : Signals)
	{
		signal(Each, SIG_DFL);
	}
}
}

FQuitRequest::FQuitRequest()
{
	for (std::size_t Index = 0; Index < sizeof(Signals) / sizeof(Signals[0]); ++Index)
	{
		sigaction(Signals[Index], nullptr, &FormerActions[Index]);
		// Whoever starts the program under nohup wants it to live on.
		if (FormerActions[Index].sa_handler != SIG_IGN)
		{
			struct sigaction Action = {};
			Action.sa_handler = &NoteRequest;
			sigfillset(&Action.sa_mask);
			Action.sa_flags = SA_RESTART;
			sigaction(Signals[Index], &Action, nullptr);
		}
	}
}

FQuitRequest::~FQuitRequest()
{
	for (std::size_t Index = 0; Index < sizeof(Signals) / sizeof(Signals[0]); ++Index)
	{
		sigaction(Signals[Index], &FormerActions[Index], nullptr);
	}
}

bool FQuitRequest::IsRequested()
{
	return RequestedBy != 0;
}

int FQuitRequest::GetExitCode()
{
	return RequestedBy != 0 ? 128 + static_cast<int>(RequestedBy) : 0;
}
}
