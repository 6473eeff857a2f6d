// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <functional>
#include <string>
#include <vector>

// What the program itself remembers from one session to the next: a section of its own, [TintmillHost], in the project's
// EditorPerProjectUserSettings.ini. A value that is not there, or that nobody can have meant, counts as its default. A value
// that is set to its default is taken out of the file, and one that is set to what it is already changes nothing, so that a
// session without changes leaves the file byte for byte. Every change is saved at once, while something is dragged once a
// second. Game thread only; GConfig must be there.

namespace TintmillHost
{
/** A number that is remembered: what it may be, and what it is as long as nobody changed it. */
struct FStateNumber
{
	std::string Key;
	double Min = 0.0;
	double Max = 1.0;
	double Default = 0.0;
};

/** The number; its default if the saved one is no number or lies outside its limits. */
double GetStateNumber(const FStateNumber& Number);

/** Keeps a number, to a millionth; one outside its limits is not kept. */
void SetStateNumber(const FStateNumber& Number, double Value);

/** A flag. */
bool GetStateFlag(const std::string& Key, bool bDefault);

/** Keeps a flag. */
void SetStateFlag(const std::string& Key, bool bValue, bool bDefault);

/** A line of text; the default if the saved one is longer than 1000 bytes of UTF-8. */
std::string GetStateText(const std::string& Key, const std::string& Default);

/** Keeps a line of text; one that is longer is not kept. */
void SetStateText(const std::string& Key, const std::string& Value, const std::string& Default);

/** One of some words, in their spelling; the default if the saved one is none of them. */
std::string GetStateWord(const std::string& Key, const std::vector<std::string>& Words, const std::string& Default);

/** While it lives something is dragged: changes are saved by TickState, the first at once, and all of them at its end. */
class FStateDrag
{
public:
	FStateDrag();
	~FStateDrag();
	FStateDrag(const FStateDrag&) = delete;
	FStateDrag& operator=(const FStateDrag&) = delete;
};

/** Saves what waits, if the last save was a second ago or more; to be called every frame. */
void TickState();

/** Saves what waits. */
void FlushState();

/** Sets what tells the time in seconds, and returns what did; an empty one stands for the computer's clock. For tests. */
std::function<double()> SetStateClock(std::function<double()> Clock);
}
