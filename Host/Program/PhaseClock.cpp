// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/PhaseClock.h"

#include <iomanip>

namespace TintmillHost
{
void FPhaseClock::EndPhase(const std::string& Name)
{
	const std::chrono::steady_clock::time_point Now = std::chrono::steady_clock::now();
	Phases.push_back({Name, std::chrono::duration<double, std::milli>(Now - Last).count()});
	Last = Now;
}

double FPhaseClock::GetSeconds() const
{
	double Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Last).count();
	for (const FPhase& Phase : Phases)
	{
		Seconds += Phase.Milliseconds / 1000.0;
	}
	return Seconds;
}

void FPhaseClock::Print(std::ostream& Output) const
{
	double Sum = 0.0;
	const auto PrintLine = [&Output](const std::string& Name, double Milliseconds) {
		Output << "  " << std::left << std::setw(40) << Name << std::right << std::setw(9) << std::fixed << std::setprecision(1)
			   << Milliseconds << " ms\n";
	};
	for (const FPhase& Phase : Phases)
	{
		PrintLine(Phase.Name, Phase.Milliseconds);
		Sum += Phase.Milliseconds;
	}
	PrintLine("all", Sum);
}
}
