// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/LogFilter.h"

#include "Host/Program/Strings.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
struct FFoundWord
{
	std::string Text;
	bool bWanted;
};

/** Splits a search at blanks outside quotation marks; one that is not closed reaches to the end. */
std::vector<FFoundWord> SplitSearch(const std::string& Search)
{
	std::vector<FFoundWord> Words;
	FFoundWord Word = {"", true};
	bool bQuoted = false;
	const auto Finish = [&] {
		if (!Word.Text.empty())
		{
			Words.push_back(Word);
		}
		Word = {"", true};
	};
	for (const char Character : Search)
	{
		if (Character == '"')
		{
			bQuoted = !bQuoted;
		}
		else if (Character == ' ' && !bQuoted)
		{
			Finish();
		}
		else if (Character == '-' && !bQuoted && Word.Text.empty() && Word.bWanted)
		{
			Word.bWanted = false;
		}
		else
		{
			Word.Text += Character;
		}
	}
	Finish();
	return Words;
}
}

FLogTest::FLogTest(const FLogFilter& InFilter)
	: Filter(InFilter)
{
	for (const FFoundWord& Word : SplitSearch(Filter.Search))
	{
		Words.push_back({ToLowerCase(Word.Text), Word.bWanted});
	}
	for (const std::string& Category : Filter.HiddenCategories)
	{
		HiddenNames.insert(FName(*FromUtf8(Category)));
	}
}

bool FLogTest::Passes(const FLogLine& Line) const
{
	const bool bError = Line.Verbosity <= ELogVerbosity::Error;
	const bool bWarning = Line.Verbosity == ELogVerbosity::Warning;
	if (!(bError ? Filter.bErrors : bWarning ? Filter.bWarnings : Filter.bMessages))
	{
		return false;
	}
	return (HiddenNames.empty() || HiddenNames.count(Line.Category) == 0) && PassesSearch(Line);
}

bool FLogTest::PassesSearch(const FLogLine& Line) const
{
	return std::all_of(Words.begin(), Words.end(),
		[&Line](const FWord& Word) { return (Line.Lowered.find(Word.Lowered) != std::string::npos) == Word.bWanted; });
}
}
