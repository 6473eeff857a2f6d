// Copyright The Tintmill authors. All rights reserved.

#include "TintmillLog.h"

DEFINE_LOG_CATEGORY(LogTintmill);
