// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/HostLog.h"

#include "Host/Program/Strings.h"

#include "Misc/OutputDeviceHelper.h"
#include "Misc/OutputDeviceRedirector.h"

namespace TintmillHost
{
FHostLog::FHostLog()
{
	GLog->AddOutputDevice(this);
}

FHostLog::~FHostLog()
{
	GLog->RemoveOutputDevice(this);
}

void FHostLog::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	Text += ToUtf8(FOutputDeviceHelper::FormatLogLine(Verbosity, Category, V)) + "\n";
}
}
