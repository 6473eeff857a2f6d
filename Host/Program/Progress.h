// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <cstdint>
#include <functional>
#include <string>

// Progress of work that may take long. Nobody hears of work that is over within half a second. Without an observer, as in a
// run without a window, progress is lines on the standard error stream. Game thread only.

namespace TintmillHost
{
/** Says while it lives that something is being worked on; the innermost one is what a person is told of. */
class FProgress
{
public:
	/** Starts work of Total steps; 0 when nobody knows how many. Title is what is being done: "Scanning the content folder". */
	explicit FProgress(std::string InTitle, int64_t InTotal = 0);
	~FProgress();

	FProgress(const FProgress&) = delete;
	FProgress& operator=(const FProgress&) = delete;

	/** Counts steps that have been taken. */
	void Step(int64_t Count = 1) { SetDone(Done + Count); }

	/** Sets how many steps have been taken so far. */
	void SetDone(int64_t InDone);

	/** Sets how many steps there will be; 0 when nobody knows. */
	void SetTotal(int64_t InTotal) { Total = InTotal; }

	/** From 0 to 1; 0 as long as the number of steps is not known. */
	double GetFraction() const;

	/** "Scanning the content folder: 1200 of 20000", as far as the numbers are known. */
	std::string GetText() const;

private:
	void Report();

	std::string Title;
	int64_t Total;
	int64_t Done = 0;
	double StartSeconds;
	double LastReportSeconds = 0.0;
	bool bReported = false;
};

/** The innermost work that has been reported, or null. */
const FProgress* GetCurrentProgress();

/** Hears of progress, at most 20 times a second, and of its end (null, or the work around it). */
using FProgressObserver = std::function<void(const FProgress*)>;

/** Sets who hears of progress and returns who did; an empty one stands for lines on the standard error stream. */
FProgressObserver SetProgressObserver(FProgressObserver Observer);

/** Sets what tells the time in seconds, and returns what did; an empty one stands for the computer's clock. For tests. */
std::function<double()> SetProgressClock(std::function<double()> Clock);
}
