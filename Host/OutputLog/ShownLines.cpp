// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/ShownLines.h"

#include "Host/Program/Strings.h"

namespace TintmillHost
{
FShownLines::FShownLines(const FHostLog& InLog)
	: Log(InLog)
	, Test(std::in_place, Filter)
{
	Update();
}

void FShownLines::Update()
{
	const std::vector<FLogLine>& Lines = Log.GetLines();
	for (; NumTaken < Lines.size(); ++NumTaken)
	{
		if (Test->Passes(Lines[NumTaken]))
		{
			Shown.push_back(static_cast<uint32_t>(NumTaken));
		}
	}
}

void FShownLines::SetFilter(const FLogFilter& InFilter)
{
	Filter = InFilter;
	Test.emplace(Filter);
	Shown.clear();
	NumTaken = FirstLine;
	++Generation;
	Update();
}

void FShownLines::Clear()
{
	Update();
	Shown.clear();
	FirstLine = NumTaken;
	++Generation;
}

FString FShownLines::GetText(int32 Index) const
{
	const FLogLine& Line = Get(Index);
	return bTimes ? FString::Printf(TEXT("[%07.2f]"), Line.Seconds) + FromUtf8(Line.Text) : FromUtf8(Line.Text);
}

int32 FShownLines::GetTimeLength(int32 Index) const
{
	return bTimes ? FString::Printf(TEXT("[%07.2f]"), Get(Index).Seconds).Len() : 0;
}

std::vector<std::string> FShownLines::ListCategories() const
{
	std::set<FName, FNameFastLess> Names;
	for (const FLogLine& Line : Log.GetLines())
	{
		Names.insert(Line.Category);
	}
	std::set<std::string> Sorted;
	for (const FName& Name : Names)
	{
		if (Name != NAME_None)
		{
			Sorted.insert(ToUtf8(Name.ToString()));
		}
	}
	return std::vector<std::string>(Sorted.begin(), Sorted.end());
}
}
