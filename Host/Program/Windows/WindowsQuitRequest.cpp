// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/QuitRequest.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <atomic>

namespace TintmillHost
{
namespace
{
/** The numbers that other systems give these requests. */
constexpr int Interrupted = 2;
constexpr int Terminated = 15;

/** Windows ends a process whose console goes as soon as the handler returns, and after five seconds in any case. */
constexpr DWORD LongestGoodbye = 5000;

std::atomic<int> RequestedBy{0};
HANDLE Left = nullptr;

BOOL WINAPI NoteRequest(DWORD Event)
{
	const bool bTyped = Event == CTRL_C_EVENT || Event == CTRL_BREAK_EVENT;
	if (RequestedBy.exchange(bTyped ? Interrupted : Terminated) != 0)
	{
		return FALSE;
	}
	if (!bTyped && Left != nullptr)
	{
		WaitForSingleObject(Left, LongestGoodbye);
	}
	return TRUE;
}
}

FQuitRequest::FQuitRequest()
{
	Left = CreateEventW(nullptr, TRUE, FALSE, nullptr);
	SetConsoleCtrlHandler(&NoteRequest, TRUE);
}

FQuitRequest::~FQuitRequest()
{
	// The event stays: the handler's thread may still wait for it.
	if (Left != nullptr)
	{
		SetEvent(Left);
	}
	SetConsoleCtrlHandler(&NoteRequest, FALSE);
}

bool FQuitRequest::IsRequested()
{
	return RequestedBy != 0;
}

int FQuitRequest::GetExitCode()
{
	return RequestedBy != 0 ? 128 + RequestedBy : 0;
}
}
