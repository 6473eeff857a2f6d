// Copyright The Tintmill authors. All rights reserved.

#include "Properties/ImportProblems.h"
#include "CoreGlobals.h"
#include "Misc/OutputDevice.h"

namespace StandInPrivate
{
namespace
{
FImportProblems*& CurrentProblems()
{
	static FImportProblems* Current = nullptr;
	return Current;
}

FMissingObjects*& CurrentMissingObjects()
{
	static FMissingObjects* Current = nullptr;
	return Current;
}
}

FImportProblems::FImportProblems()
	: Previous(CurrentProblems())
{
	CurrentProblems() = this;
}

FImportProblems::~FImportProblems()
{
	CurrentProblems() = Previous;
}

FMissingObjects::FMissingObjects()
	: Previous(CurrentMissingObjects())
{
	CurrentMissingObjects() = this;
}

FMissingObjects::~FMissingObjects()
{
	CurrentMissingObjects() = Previous;
}

bool IsKnownMissing(const FString& Path)
{
	return CurrentMissingObjects() != nullptr && CurrentMissingObjects()->Paths.Contains(Path);
}

void NoteMissing(const FString& Path)
{
	if (CurrentMissingObjects() != nullptr)
	{
		CurrentMissingObjects()->Paths.Add(Path);
	}
}

void ReportImportProblem(FOutputDevice* ErrorText, ELogVerbosity::Type Verbosity, const FString& Line, const FString& Phrase)
{
	if (CurrentProblems() != nullptr)
	{
		CurrentProblems()->Phrases.Add(Phrase);
	}
	if (ErrorText != nullptr && (Verbosity < ELogVerbosity::Verbose || UE_LOG_ACTIVE(LogExec, Verbose)))
	{
		ErrorText->Logf(Verbosity, TEXT("%s"), *Line);
	}
}

void ReportImportProblem(FOutputDevice* ErrorText, const FString& Phrase)
{
	ReportImportProblem(ErrorText, ELogVerbosity::Warning, Phrase, Phrase);
}
}
