// Copyright The Tintmill authors. All rights reserved.

#include "SlateGlobals.h"

DEFINE_LOG_CATEGORY(LogSlate);
DEFINE_LOG_CATEGORY(LogSlateStyle);
