// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/OutputDevice.h"

#include <string>
#include <vector>

// Keeps what was logged, for the page at the end and for the output log.

namespace TintmillHost
{
/** A line of the log as it is shown. A logged text of several lines, or a very long one, makes several. */
struct FLogLine
{
	/** "LogNotice: Warning: …" as UTF-8, without a time. */
	std::string Text;

	/** Text in lower case, for searching. */
	std::string Lowered;

	/** Bytes of Text up to the end of the category's colon; 0 for lines without a category in front. */
	size_t CategoryLength = 0;

	FName Category;

	/** Without modifiers. */
	ELogVerbosity::Type Verbosity = ELogVerbosity::Log;

	/** When it was logged, in seconds since the log began. */
	double Seconds = 0.0;
};

/** Collects all log lines while it lives. */
class FHostLog : public FOutputDevice
{
public:
	FHostLog();
	virtual ~FHostLog();

	/** Everything logged so far in its printed form, one line each, UTF-8. */
	const std::string& GetText() const { return Text; }

	/** Everything logged so far, oldest first; lines are never taken away. */
	const std::vector<FLogLine>& GetLines() const { return Lines; }

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

private:
	void AddLine(const FString& Line, FLogLine Record);

	std::string Text;
	std::vector<FLogLine> Lines;
	double StartSeconds;
};
}
