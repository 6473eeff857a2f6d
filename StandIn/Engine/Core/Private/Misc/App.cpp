// Copyright The Tintmill authors. All rights reserved.

#include "Misc/App.h"

#include "CoreGlobals.h"
#include "Misc/CommandLine.h"
#include "Misc/Parse.h"

namespace
{
bool bUnattended = false;
double CurrentTime = 0.0;
double DeltaTime = 1.0 / 30.0;
}

const TCHAR* FApp::GetProjectName()
{
	return GInternalProjectName;
}

void FApp::SetProjectName(const TCHAR* InProjectName)
{
	int32 Index = 0;
	for (; InProjectName[Index] && Index < 63; ++Index)
	{
		GInternalProjectName[Index] = InProjectName[Index];
	}
	GInternalProjectName[Index] = 0;
}

bool FApp::HasProjectName()
{
	return GInternalProjectName[0] != 0;
}

FString FApp::GetName()
{
	return HasProjectName() ? FString(GetProjectName()) : FString(TEXT("UE4"));
}

bool FApp::IsUnattended()
{
	return bUnattended || (FCommandLine::IsInitialized() && FParse::Param(FCommandLine::Get(), TEXT("unattended")));
}

void FApp::SetUnattended(bool bInUnattended)
{
	bUnattended = bInUnattended;
}

double FApp::GetCurrentTime()
{
	return CurrentTime;
}

void FApp::SetCurrentTime(double Seconds)
{
	CurrentTime = Seconds;
}

double FApp::GetDeltaTime()
{
	return DeltaTime;
}

void FApp::SetDeltaTime(double Seconds)
{
	DeltaTime = Seconds;
}
