// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/OutputLog/LogFilter.h"
#include "Host/Program/HostLog.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The lines of the log that are to be seen: those that pass the filter, from the last clearing on.

namespace TintmillHost
{
/** A view of a log, which must outlive it. New lines and other filters come into it with Update and SetFilter. */
class FShownLines
{
public:
	explicit FShownLines(const FHostLog& InLog);

	/** Takes in what was logged since the last time; only these lines are looked at. */
	void Update();

	/** Filters all lines anew. */
	void SetFilter(const FLogFilter& InFilter);

	const FLogFilter& GetFilter() const { return Filter; }

	/** Takes all lines out of sight; the log itself keeps them. */
	void Clear();

	/** How many lines there are to see. */
	int32 Num() const { return static_cast<int32>(Shown.size()); }

	/** How many lines there would be to see without a filter. */
	int32 NumUnfiltered() const { return static_cast<int32>(NumTaken - FirstLine); }

	/** A line by its place among the shown ones. */
	const FLogLine& Get(int32 Index) const { return Log.GetLines()[Shown[static_cast<size_t>(Index)]]; }

	/** A line's text as it is shown, with its time in front if times are wanted. */
	FString GetText(int32 Index) const;

	/** The number of characters in front of the line's own text. */
	int32 GetTimeLength(int32 Index) const;

	/** Whether lines begin with their time. */
	bool bTimes = false;

	/** Changes whenever lines that were shown are shown no longer, or at other places. */
	int32 GetGeneration() const { return Generation; }

	/** The categories that lines were logged in, in alphabetical order. */
	std::vector<std::string> ListCategories() const;

private:
	const FHostLog& Log;
	FLogFilter Filter;
	std::optional<FLogTest> Test;
	std::vector<uint32_t> Shown;
	size_t FirstLine = 0;
	size_t NumTaken = 0;
	int32 Generation = 0;
};
}
