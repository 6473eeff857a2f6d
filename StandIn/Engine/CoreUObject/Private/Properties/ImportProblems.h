// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Set.h"
#include "Containers/UnrealString.h"
#include "Logging/LogVerbosity.h"

// What went wrong while value text was read.

class FOutputDevice;

namespace StandInPrivate
{
/** Collects, while it lives, each reason why a text was not read whole. */
class FImportProblems
{
public:
	FImportProblems();
	~FImportProblems();
	FImportProblems(const FImportProblems&) = delete;
	FImportProblems& operator=(const FImportProblems&) = delete;

	/** Phrases without a full stop, in the order of the text. */
	TArray<FString> Phrases;

private:
	FImportProblems* Previous;
};

/** Remembers, while it lives, which objects could not be loaded, so that each is looked for once. */
class FMissingObjects
{
public:
	FMissingObjects();
	~FMissingObjects();
	FMissingObjects(const FMissingObjects&) = delete;
	FMissingObjects& operator=(const FMissingObjects&) = delete;

private:
	friend bool IsKnownMissing(const FString& Path);
	friend void NoteMissing(const FString& Path);

	TSet<FString> Paths;
	FMissingObjects* Previous;
};

/** Says whether an object was looked for in vain. */
bool IsKnownMissing(const FString& Path);
/** Notes that an object was looked for in vain. */
void NoteMissing(const FString& Path);

/** Reports a problem: a line for the log, and a phrase for a person that says what is wrong and what was done. */
void ReportImportProblem(FOutputDevice* ErrorText, ELogVerbosity::Type Verbosity, const FString& Line, const FString& Phrase);
/** Reports a problem as a warning by its phrase. */
void ReportImportProblem(FOutputDevice* ErrorText, const FString& Phrase);
}
