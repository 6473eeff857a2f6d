// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/NameTypes.h"
#include <deque>
#include <shared_mutex>
#include <string>
#include <string_view>
#include <unordered_map>

namespace StandInPrivate
{
/** The texts of all names of the process; safe for several threads; never shrinks. */
class FNameTable
{
public:
	typedef std::basic_string<TCHAR> FKey;
	typedef std::basic_string_view<TCHAR> FView;

	/** The one table; lives until the process ends. */
	static FNameTable& Get();

	/** Place of a text in this spelling, added if it is missing. */
	uint32 Store(FView Text);

	/** Place of a text in this spelling, else of its first spelling, else -1. */
	int64 Find(FView Text) const;

	/** Place of the first spelling of the text at a place. */
	uint32 GetComparisonIndex(uint32 Index) const;

	/** The text at a place; stays where it is. */
	const FKey& GetText(uint32 Index) const;

	/** How many texts there are. */
	uint32 Num() const;

private:
	struct FEntry
	{
		FKey Text;
		uint32 ComparisonIndex;
	};

	FNameTable();
	static FKey Fold(FView Text);
	uint32 StoreLocked(FView Text);

	mutable std::shared_mutex Mutex;
	std::deque<FEntry> Entries;
	std::unordered_map<FView, uint32> IndexBySpelling;
	std::unordered_map<FKey, uint32> IndexByFoldedText;
};
}
