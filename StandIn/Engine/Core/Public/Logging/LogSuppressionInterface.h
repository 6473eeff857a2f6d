// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Logging/LogCategory.h"

// The list of log categories and the settings that raise or lower them: `[Core.Log]` in the engine ini, `-LogCmds=`.
// Left out: the `log` console command's listing and bookmarks.

/** Knows every living log category and applies configured verbosities to them. */
class CORE_API FLogSuppressionInterface
{
public:
	/** The one suppression interface; it lives until the process ends. */
	static FLogSuppressionInterface& Get();

	/** Called by a category's constructor. */
	virtual void AssociateSuppress(FLogCategoryBase* Destination) = 0;

	/** Called by a category's destructor. */
	virtual void DisassociateSuppress(FLogCategoryBase* Destination) = 0;

	/** Reads `[Core.Log]` and `-LogCmds="Category Verbosity, ..."` and applies them to present and later categories. */
	virtual void ProcessConfigAndCommandLine() = 0;

	/** Applies one command such as "LogTemp Verbose" or "LogTemp off"; returns false when it is not understood. */
	virtual bool ProcessLogCommand(const TCHAR* Command) = 0;

protected:
	virtual ~FLogSuppressionInterface() {}
};
