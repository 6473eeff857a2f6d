// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>

// The state of the editor in words. Asking changes nothing and never fails.

namespace TintmillHost
{
/** The pane that is worked in and what it displays: "Viewport 1 (Perspective): WarmPrint at 1"; empty without a level editor. */
std::string DescribeActivePane();

/** "Editing", "Playing" or "Simulating". */
std::string DescribePlayState();

/** "1 notice", "12 notices"; empty when there is none. */
std::string DescribeNotices();
}
