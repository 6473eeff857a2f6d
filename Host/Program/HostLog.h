// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/OutputDevice.h"

#include <string>

// Keeps what was logged, for the page at the end and for the output log.

namespace TintmillHost
{
/** Collects all log lines in their printed form while it lives. */
class FHostLog : public FOutputDevice
{
public:
	FHostLog();
	virtual ~FHostLog();

	/** Everything logged so far, one line each, UTF-8. */
	const std::string& GetText() const { return Text; }

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

private:
	std::string Text;
};
}
