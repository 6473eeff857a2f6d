// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "StandIn/LogRecord.h"

#include <string>
#include <vector>

/** Collects log lines while it lives, with the place in the source that wrote them. */
class FCapturedLog
{
public:
	/** One line. */
	struct FLine
	{
		std::string File;
		int32 Line = 0;
		FName Category;
		ELogVerbosity::Type Verbosity = ELogVerbosity::Log;
		FString Text;
	};

	FCapturedLog()
	{
		Handle = StandIn::OnLogRecord().AddLambda([this](const StandIn::FLogRecord& Record) {
			Lines.push_back({Record.File, Record.Line, Record.Category, Record.Verbosity, FString(Record.Text)});
		});
	}
	~FCapturedLog() { StandIn::OnLogRecord().Remove(Handle); }
	FCapturedLog(const FCapturedLog&) = delete;
	FCapturedLog& operator=(const FCapturedLog&) = delete;

	/** All lines, oldest first. */
	const std::vector<FLine>& GetLines() const { return Lines; }

	/** The lines of one category. */
	std::vector<FLine> InCategory(FName Category) const
	{
		std::vector<FLine> Result;
		for (const FLine& Line : Lines)
		{
			if (Line.Category == Category)
			{
				Result.push_back(Line);
			}
		}
		return Result;
	}

	/** How many lines have this text. */
	int32 Count(const TCHAR* Text) const
	{
		int32 Result = 0;
		for (const FLine& Line : Lines)
		{
			Result += Line.Text.Equals(Text) ? 1 : 0;
		}
		return Result;
	}

	/** Forgets the lines. */
	void Clear() { Lines.clear(); }

private:
	std::vector<FLine> Lines;
	FDelegateHandle Handle;
};
