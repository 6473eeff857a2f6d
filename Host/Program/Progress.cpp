// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/Progress.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <utility>
#include <vector>

namespace TintmillHost
{
namespace
{
/** Work that takes no longer is not worth a word. */
constexpr double QuietSeconds = 0.5;

/** Between two reports: to an observer, and as lines. */
constexpr double ObserverSeconds = 0.05;
constexpr double LineSeconds = 2.0;

struct FProgressState
{
	std::vector<const FProgress*> Reported;
	FProgressObserver Observer;
	std::function<double()> Clock;
};

FProgressState& GetState()
{
	static FProgressState State;
	return State;
}

double GetProgressTime()
{
	const std::function<double()>& Clock = GetState().Clock;
	return Clock ? Clock() : std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::string InTenths(double Seconds)
{
	char Text[32];
	std::snprintf(Text, sizeof(Text), "%.1f", Seconds);
	return Text;
}
}

FProgress::FProgress(std::string InTitle, int64_t InTotal)
	: Title(std::move(InTitle))
	, Total(InTotal)
	, StartSeconds(GetProgressTime())
{}

FProgress::~FProgress()
{
	if (!bReported)
	{
		return;
	}
	FProgressState& State = GetState();
	State.Reported.erase(std::remove(State.Reported.begin(), State.Reported.end(), this), State.Reported.end());
	if (State.Observer)
	{
		State.Observer(GetCurrentProgress());
	}
	else
	{
		std::cerr << Title << ": done after " << InTenths(GetProgressTime() - StartSeconds) << " s.\n";
	}
}

void FProgress::SetDone(int64_t InDone)
{
	Done = InDone;
	const double Seconds = GetProgressTime();
	const double Pause = GetState().Observer ? ObserverSeconds : LineSeconds;
	if (bReported ? Seconds - LastReportSeconds >= Pause : Seconds - StartSeconds >= QuietSeconds)
	{
		LastReportSeconds = Seconds;
		Report();
	}
}

double FProgress::GetFraction() const
{
	return Total > 0 ? std::clamp(static_cast<double>(Done) / static_cast<double>(Total), 0.0, 1.0) : 0.0;
}

std::string FProgress::GetText() const
{
	std::string Text = Title;
	if (Done > 0 || Total > 0)
	{
		Text += ": " + std::to_string(Done) + (Total > 0 ? " of " + std::to_string(Total) : std::string());
	}
	return Text;
}

void FProgress::Report()
{
	FProgressState& State = GetState();
	if (!bReported)
	{
		bReported = true;
		State.Reported.push_back(this);
	}
	if (State.Observer)
	{
		State.Observer(GetCurrentProgress());
	}
	else
	{
		std::cerr << GetText() << " ...\n";
	}
}

const FProgress* GetCurrentProgress()
{
	const std::vector<const FProgress*>& Reported = GetState().Reported;
	return Reported.empty() ? nullptr : Reported.back();
}

FProgressObserver SetProgressObserver(FProgressObserver Observer)
{
	return std::exchange(GetState().Observer, std::move(Observer));
}

std::function<double()> SetProgressClock(std::function<double()> Clock)
{
	return std::exchange(GetState().Clock, std::move(Clock));
}
}
