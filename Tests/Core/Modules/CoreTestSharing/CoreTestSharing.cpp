// Copyright The Tintmill authors. All rights reserved.

#include "CoreGlobals.h"
#include "Delegates/IDelegateInstance.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Modules/ModuleManager.h"
#include "UObject/NameTypes.h"

// A module that tells what it sees of the engine's state, for the test that there is one of each in the process.

extern "C" DLLEXPORT const void* CoreTestModuleManager()
{
	return &FModuleManager::Get();
}

extern "C" DLLEXPORT const void* CoreTestLog()
{
	return GLog;
}

extern "C" DLLEXPORT const void* CoreTestConfigVariable()
{
	return &GConfig;
}

extern "C" DLLEXPORT const void* CoreTestHeapBlock()
{
	return new FString(TEXT("made by the module"));
}

extern "C" DLLEXPORT bool CoreTestIsName(const FName* Name, const TCHAR* Text)
{
	return *Name == FName(Text);
}

extern "C" DLLEXPORT void CoreTestNewHandle(FDelegateHandle* OutHandle)
{
	*OutHandle = FDelegateHandle(FDelegateHandle::GenerateNewHandle);
}

IMPLEMENT_MODULE(FDefaultModuleImpl, CoreTestSharing)
