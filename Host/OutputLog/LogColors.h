// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Logging/LogVerbosity.h"

// The colors of the output log, those of the 4.27 editor.

namespace TintmillHost
{
/** The color of a line's text, linear. Console input, which has a category of its own, is green. */
FLinearColor GetLogTextColor(ELogVerbosity::Type Verbosity, const FName& Category);

/** The color of a category's name in front of ordinary lines: a pale one that is always the same for a name. */
FLinearColor GetLogCategoryColor(const FName& Category);

/** What lies below the lines. */
FLinearColor GetLogBackgroundColor();

/** What lies below selected text. */
FLinearColor GetLogSelectionColor();
}
