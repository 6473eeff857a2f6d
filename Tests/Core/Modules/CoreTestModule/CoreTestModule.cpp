// Copyright The Tintmill authors. All rights reserved.

#include "Logging/LogMacros.h"
#include "Modules/ModuleManager.h"

// A module in a library of its own, for the tests of loading and unloading. It counts its starts in a static variable:
// only a library that was really unmapped starts from one again.

DEFINE_LOG_CATEGORY_STATIC(LogCoreTestModule, Log, All);

namespace
{
int32 NumStarts = 0;
}

class FCoreTestModule : public IModuleInterface
{
public:
	virtual ~FCoreTestModule() override { UE_LOG(LogCoreTestModule, Log, TEXT("destroyed")); }
	virtual void StartupModule() override { UE_LOG(LogCoreTestModule, Log, TEXT("start %d"), ++NumStarts); }
	virtual void ShutdownModule() override { UE_LOG(LogCoreTestModule, Log, TEXT("shut down")); }
};

IMPLEMENT_MODULE(FCoreTestModule, CoreTestModule)
