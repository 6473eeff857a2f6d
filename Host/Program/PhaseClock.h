// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <chrono>
#include <ostream>
#include <string>
#include <vector>

// How long the phases of the program's start took.

namespace TintmillHost
{
/** Measures phases that follow each other, from its making on. */
class FPhaseClock
{
public:
	FPhaseClock()
		: Last(std::chrono::steady_clock::now())
	{}

	/** Ends the phase that runs, under this name; the next one begins. */
	void EndPhase(const std::string& Name);

	/** The time since its making, in seconds. */
	double GetSeconds() const;

	/** Prints every phase in milliseconds, one a line, and their sum. */
	void Print(std::ostream& Output) const;

private:
	struct FPhase
	{
		std::string Name;
		double Milliseconds;
	};

	std::chrono::steady_clock::time_point Last;
	std::vector<FPhase> Phases;
};
}
