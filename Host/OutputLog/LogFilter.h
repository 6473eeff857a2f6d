// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Program/HostLog.h"

#include <set>
#include <string>
#include <vector>

// Which lines of the log are wanted.

namespace TintmillHost
{
/** What a person wants to see of the log; at first everything. A plain value. */
struct FLogFilter
{
	/** All that is neither a warning nor an error. */
	bool bMessages = true;
	bool bWarnings = true;
	bool bErrors = true;

	/** Names of categories that are not wanted. */
	std::set<std::string> HiddenCategories;

	/** Words that a line must contain, in any case; a word with a minus in front is one that it must not contain, and a phrase stands in quotation marks. */
	std::string Search;
};

/** Decides about lines by a filter. */
class FLogTest
{
public:
	explicit FLogTest(const FLogFilter& InFilter);

	/** Whether the line is wanted. */
	bool Passes(const FLogLine& Line) const;

private:
	struct FWord
	{
		std::string Lowered;
		bool bWanted;
	};

	bool PassesSearch(const FLogLine& Line) const;

	FLogFilter Filter;
	std::vector<FWord> Words;
	std::set<FName, FNameFastLess> HiddenNames;
};
}
