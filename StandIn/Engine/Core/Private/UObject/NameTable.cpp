// Copyright The Tintmill authors. All rights reserved.

#include "UObject/NameTable.h"

#include <mutex>

namespace StandInPrivate
{
FNameTable& FNameTable::Get()
{
	static FNameTable* const Table = new FNameTable();
	return *Table;
}

FNameTable::FNameTable()
{
#define STANDIN_NAME_ENTRY(Number, Name) StoreLocked(TEXT(#Name));
	STANDIN_HARDCODED_NAMES(STANDIN_NAME_ENTRY)
#undef STANDIN_NAME_ENTRY
}

FNameTable::FKey FNameTable::Fold(FView Text)
{
	FKey Folded(Text);
	for (TCHAR& Char : Folded)
	{
		Char = FChar::ToLower(Char);
	}
	return Folded;
}

uint32 FNameTable::StoreLocked(FView Text)
{
	const auto Existing = IndexBySpelling.find(Text);
	if (Existing != IndexBySpelling.end())
	{
		return Existing->second;
	}
	const uint32 Index = (uint32)Entries.size();
	const uint32 ComparisonIndex = IndexByFoldedText.emplace(Fold(Text), Index).first->second;
	Entries.push_back(FEntry{FKey(Text), ComparisonIndex});
	IndexBySpelling.emplace(FView(Entries.back().Text), Index);
	return Index;
}

uint32 FNameTable::Store(FView Text)
{
	{
		const std::shared_lock<std::shared_mutex> Lock(Mutex);
		const auto Existing = IndexBySpelling.find(Text);
		if (Existing != IndexBySpelling.end())
		{
			return Existing->second;
		}
	}
	const std::unique_lock<std::shared_mutex> Lock(Mutex);
	return StoreLocked(Text);
}

int64 FNameTable::Find(FView Text) const
{
	const std::shared_lock<std::shared_mutex> Lock(Mutex);
	const auto BySpelling = IndexBySpelling.find(Text);
	if (BySpelling != IndexBySpelling.end())
	{
		return BySpelling->second;
	}
	const auto ByText = IndexByFoldedText.find(Fold(Text));
	return ByText != IndexByFoldedText.end() ? (int64)ByText->second : -1;
}

uint32 FNameTable::GetComparisonIndex(uint32 Index) const
{
	const std::shared_lock<std::shared_mutex> Lock(Mutex);
	return Entries[Index].ComparisonIndex;
}

const FNameTable::FKey& FNameTable::GetText(uint32 Index) const
{
	const std::shared_lock<std::shared_mutex> Lock(Mutex);
	checkf(Index < Entries.size(), TEXT("There is no name at the place %u."), Index);
	return Entries[Index].Text;
}

uint32 FNameTable::Num() const
{
	const std::shared_lock<std::shared_mutex> Lock(Mutex);
	return (uint32)Entries.size();
}
}
