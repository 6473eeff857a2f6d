// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"

// The engine's global variables and common log categories, as far as an editor plug-in meets them.
// The ini names are absolute paths here (relative to the program in the engine) and empty until the configuration system
// is initialised.

class FConfigCacheIni;
class FFeedbackContext;
class FOutputDeviceRedirector;

/** The log's distributor; never null. */
extern CORE_API FOutputDeviceRedirector* GLog;
/** The way of lines that a person should see; never null. */
extern CORE_API FFeedbackContext* GWarn;
/** The configuration; null until FConfigCacheIni::InitializeConfigSystem. */
extern CORE_API FConfigCacheIni* GConfig;

/** True in the editor, outside of play in the editor. */
extern CORE_API bool GIsEditor;
extern CORE_API bool GIsClient;
extern CORE_API bool GIsServer;
/** True while the engine loop runs. */
extern CORE_API bool GIsRunning;
/** True until start-up loading is over. */
extern CORE_API bool GIsInitialLoad;
extern CORE_API bool GIsCriticalError;
extern CORE_API bool GIsSlowTask;
/** True while the play world is the current world. */
extern CORE_API bool GIsPlayInEditorWorld;
extern CORE_API bool GIsAutomationTesting;
extern CORE_API bool PRIVATE_GIsRunningCommandlet;
/** Number of the frame, counted by the engine loop. */
extern CORE_API uint64 GFrameCounter;
extern CORE_API uint32 GFrameNumber;
/** FPlatformTime::Seconds() when the program started. */
extern CORE_API double GStartTime;
/** Which time stamp printed log lines start with. */
extern CORE_API ELogTimes::Type GPrintLogTimes;
/** The project's name as the program was given it. */
extern CORE_API TCHAR GInternalProjectName[64];

extern CORE_API FString GEngineIni;
extern CORE_API FString GEditorIni;
extern CORE_API FString GEditorKeyBindingsIni;
extern CORE_API FString GEditorLayoutIni;
extern CORE_API FString GEditorSettingsIni;
extern CORE_API FString GEditorPerProjectIni;
extern CORE_API FString GInputIni;
extern CORE_API FString GGameIni;
extern CORE_API FString GGameUserSettingsIni;

/** True once the program has been asked to end. */
CORE_API bool IsEngineExitRequested();
/** Asks the program to end at the next opportunity and logs the reason. */
CORE_API void RequestEngineExit(const TCHAR* ReasonString);
/** True on the thread that constructed the engine library's statics. */
CORE_API bool IsInGameThread();

/** True in a command-line tool run of the editor. */
FORCEINLINE bool IsRunningCommandlet()
{
	return PRIVATE_GIsRunningCommandlet;
}
/** True in a game without editor; never here. */
FORCEINLINE bool IsRunningGame()
{
	return false;
}
/** True in a server without editor; never here. */
FORCEINLINE bool IsRunningDedicatedServer()
{
	return false;
}

CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogHAL, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogCore, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogOutputDevice, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogInit, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogExit, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogExec, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogScript, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogLocalization, Error, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogLongPackageNames, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogProcess, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogLoad, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogSerialization, Log, All);
CORE_API DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);
