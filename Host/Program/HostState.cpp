// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostState.h"

#include "Host/Program/Strings.h"

#include "CoreGlobals.h"
#include "Misc/ConfigCacheIni.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace TintmillHost
{
namespace
{
const TCHAR* const Section = TEXT("TintmillHost");

constexpr size_t LongestText = 1000;

constexpr double SecondsBetweenSaves = 1.0;

struct FSaving
{
	int NumDrags = 0;
	bool bWaiting = false;
	double LastSave = 0.0;
	std::function<double()> Clock;
};

FSaving& GetSaving()
{
	static FSaving Saving;
	return Saving;
}

double GetSavingTime()
{
	const std::function<double()>& Clock = GetSaving().Clock;
	return Clock ? Clock() : std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/** The saved text of a key; false when there is none. */
bool Read(const std::string& Key, std::string& OutText)
{
	FString Text;
	if (GConfig == nullptr || !GConfig->GetString(Section, *FromUtf8(Key), Text, GEditorPerProjectIni))
	{
		return false;
	}
	OutText = ToUtf8(Text);
	return true;
}

/** The text as a number; false when it is anything else. */
bool ReadNumber(const std::string& Text, double& OutNumber)
{
	char* End = nullptr;
	OutNumber = std::strtod(Text.c_str(), &End);
	return !Text.empty() && End == Text.c_str() + Text.size() && std::isfinite(OutNumber);
}

std::string WriteNumber(double Value)
{
	char Text[64];
	std::snprintf(Text, sizeof(Text), "%.6f", Value);
	std::string Result = Text;
	Result.erase(Result.find_last_not_of('0') + 1);
	if (Result.back() == '.')
	{
		Result.pop_back();
	}
	return Result == "-0" ? "0" : Result;
}

void Save()
{
	FSaving& Saving = GetSaving();
	Saving.bWaiting = false;
	Saving.LastSave = GetSavingTime();
	if (GConfig != nullptr)
	{
		GConfig->Flush(false, GEditorPerProjectIni);
	}
}

/** Puts a text into the settings, or takes its key out of them, and sees to it that it is saved. */
void Write(const std::string& Key, const std::string& Text, bool bIsDefault)
{
	if (GConfig == nullptr)
	{
		return;
	}
	const FString Name = FromUtf8(Key);
	if (bIsDefault)
	{
		GConfig->RemoveKey(Section, *Name, GEditorPerProjectIni);
	}
	else
	{
		GConfig->SetString(Section, *Name, *FromUtf8(Text), GEditorPerProjectIni);
	}
	FSaving& Saving = GetSaving();
	Saving.bWaiting = true;
	if (Saving.NumDrags == 0)
	{
		Save();
	}
}
}

double GetStateNumber(const FStateNumber& Number)
{
	std::string Text;
	double Value = 0.0;
	const bool bUsable = Read(Number.Key, Text) && ReadNumber(Text, Value) && Value >= Number.Min && Value <= Number.Max;
	return bUsable ? Value : Number.Default;
}

void SetStateNumber(const FStateNumber& Number, double Value)
{
	// A comparison with a number that is none is false.
	const bool bUsable = Value >= Number.Min && Value <= Number.Max;
	if (bUsable && WriteNumber(Value) != WriteNumber(GetStateNumber(Number)))
	{
		Write(Number.Key, WriteNumber(Value), WriteNumber(Value) == WriteNumber(Number.Default));
	}
}

bool GetStateFlag(const std::string& Key, bool bDefault)
{
	return GetStateWord(Key, {"True", "False"}, bDefault ? "True" : "False") == "True";
}

void SetStateFlag(const std::string& Key, bool bValue, bool bDefault)
{
	if (GetStateFlag(Key, bDefault) != bValue)
	{
		Write(Key, bValue ? "True" : "False", bValue == bDefault);
	}
}

std::string GetStateText(const std::string& Key, const std::string& Default)
{
	std::string Text;
	return Read(Key, Text) && Text.size() <= LongestText ? Text : Default;
}

void SetStateText(const std::string& Key, const std::string& Value, const std::string& Default)
{
	if (GetStateText(Key, Default) != Value && Value.size() <= LongestText)
	{
		Write(Key, Value, Value == Default);
	}
}

std::string GetStateWord(const std::string& Key, const std::vector<std::string>& Words, const std::string& Default)
{
	std::string Text;
	Read(Key, Text);
	for (const std::string& Word : Words)
	{
		if (FromUtf8(Word) == FromUtf8(Text))
		{
			return Word;
		}
	}
	return Default;
}

FStateDrag::FStateDrag()
{
	FSaving& Saving = GetSaving();
	if (Saving.NumDrags++ == 0)
	{
		// The first change is saved at once.
		Saving.LastSave = GetSavingTime() - SecondsBetweenSaves;
	}
}

FStateDrag::~FStateDrag()
{
	--GetSaving().NumDrags;
	FlushState();
}

void TickState()
{
	const FSaving& Saving = GetSaving();
	if (Saving.bWaiting && GetSavingTime() - Saving.LastSave >= SecondsBetweenSaves)
	{
		Save();
	}
}

void FlushState()
{
	if (GetSaving().bWaiting)
	{
		Save();
	}
}

std::function<double()> SetStateClock(std::function<double()> Clock)
{
	return std::exchange(GetSaving().Clock, std::move(Clock));
}
}
