// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <gtest/gtest.h>

// Pieces of the regular expressions of death tests that the two dialects of GoogleTest spell in different ways.

#ifdef GTEST_USES_SIMPLE_RE
/** One digit or more. */
#define DEATH_NUMBER "\\d+"
/** One hexadecimal digit or more. */
#define DEATH_HEX_NUMBER "\\w+"
#else
/** One digit or more. */
#define DEATH_NUMBER "[0-9]+"
/** One hexadecimal digit or more. */
#define DEATH_HEX_NUMBER "[0-9a-f]+"
#endif
