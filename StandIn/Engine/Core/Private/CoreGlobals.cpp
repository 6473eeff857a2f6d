// Copyright The Tintmill authors. All rights reserved.

#include "CoreGlobals.h"

#include "HAL/PlatformTime.h"
#include "Misc/FeedbackContext.h"
#include "Misc/OutputDeviceRedirector.h"

#include <atomic>
#include <thread>

FOutputDeviceRedirector* GLog = FOutputDeviceRedirector::Get();
FFeedbackContext* GWarn = new FFeedbackContext();
FConfigCacheIni* GConfig = nullptr;

bool GIsEditor = false;
bool GIsClient = true;
bool GIsServer = true;
bool GIsRunning = false;
bool GIsInitialLoad = true;
bool GIsCriticalError = false;
bool GIsSlowTask = false;
bool GIsPlayInEditorWorld = false;
bool GIsAutomationTesting = false;
bool PRIVATE_GIsRunningCommandlet = false;
uint64 GFrameCounter = 0;
uint32 GFrameNumber = 1;
double GStartTime = FPlatformTime::Seconds();
ELogTimes::Type GPrintLogTimes = ELogTimes::UTC;
TCHAR GInternalProjectName[64] = {};

FString GEngineIni;
FString GEditorIni;
FString GEditorKeyBindingsIni;
FString GEditorLayoutIni;
FString GEditorSettingsIni;
FString GEditorPerProjectIni;
FString GInputIni;
FString GGameIni;
FString GGameUserSettingsIni;

DEFINE_LOG_CATEGORY(LogHAL);
DEFINE_LOG_CATEGORY(LogCore);
DEFINE_LOG_CATEGORY(LogOutputDevice);
DEFINE_LOG_CATEGORY(LogInit);
DEFINE_LOG_CATEGORY(LogExit);
DEFINE_LOG_CATEGORY(LogExec);
DEFINE_LOG_CATEGORY(LogScript);
DEFINE_LOG_CATEGORY(LogLocalization);
DEFINE_LOG_CATEGORY(LogLongPackageNames);
DEFINE_LOG_CATEGORY(LogProcess);
DEFINE_LOG_CATEGORY(LogLoad);
DEFINE_LOG_CATEGORY(LogSerialization);
DEFINE_LOG_CATEGORY(LogTemp);

namespace
{
std::atomic<bool> bEngineExitRequested{false};
const std::thread::id GameThreadId = std::this_thread::get_id();
}

bool IsEngineExitRequested()
{
	return bEngineExitRequested;
}

void RequestEngineExit(const TCHAR* ReasonString)
{
	bEngineExitRequested = true;
	UE_LOG(LogCore, Log, TEXT("Engine exit requested (reason: %s)"), ReasonString);
}

bool IsInGameThread()
{
	return std::this_thread::get_id() == GameThreadId;
}
