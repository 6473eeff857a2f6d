// Copyright The Tintmill authors. All rights reserved.

#include "Misc/CommandLine.h"

#include "Containers/UnrealString.h"
#include "Misc/AssertionMacros.h"

namespace
{
const int32 MaxCommandLineSize = 16384;

struct FCommandLineState
{
	FString Text;
	bool bIsInitialized = false;
};

FCommandLineState& CommandLineState()
{
	static FCommandLineState* const State = new FCommandLineState();
	return *State;
}
}

const TCHAR* FCommandLine::Get()
{
	checkf(CommandLineState().bIsInitialized, TEXT("Attempting to get the command line but it hasn't been initialized yet."));
	return *CommandLineState().Text;
}

bool FCommandLine::Set(const TCHAR* NewCommandLine)
{
	const FString Text(NewCommandLine);
	if (Text.Len() >= MaxCommandLineSize)
	{
		return false;
	}
	CommandLineState().Text = Text;
	CommandLineState().bIsInitialized = true;
	return true;
}

void FCommandLine::Append(const TCHAR* AppendString)
{
	CommandLineState().Text += AppendString;
	CommandLineState().bIsInitialized = true;
}

bool FCommandLine::IsInitialized()
{
	return CommandLineState().bIsInitialized;
}
