// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/IDelegateInstance.h"
#include "Host/Program/Progress.h"

#include <optional>

// Progress of the asset registry's scans.

namespace TintmillHost
{
/** Shows while it lives how far the asset registry has come, from the moment that it is loaded. */
class FScanProgress
{
public:
	FScanProgress();
	~FScanProgress();
	FScanProgress(const FScanProgress&) = delete;
	FScanProgress& operator=(const FScanProgress&) = delete;

private:
	void Watch();

	FDelegateHandle Modules;
	FDelegateHandle Reports;
	std::optional<FProgress> Progress;
};
}
