// Copyright The Tintmill authors. All rights reserved.

#pragma once

// Commands about the log and the notices: log, expect-log, expect-notice.

namespace TintmillHost
{
class FConsole;
class FHostLog;

/** Adds the commands; the log must outlive the console. */
void AddLogCommands(FConsole& Console, const FHostLog& Log);
}
