// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Editor/EditorEngine.h"

// The editor engine object and the editor's global events. Left out: the events of tools, actors, landscapes, materials and
// light building.

class UFactory;

namespace MapChangeEventFlags
{
/** What MapChange reports. */
enum Type
{
	Default = 0,
	NewMap = 1 << 0,
	MapRebuild = 1 << 1,
	WorldTornDown = 1 << 2
};
}

/** The editor's global events. */
struct UNREALED_API FEditorDelegates
{
	/** The parameter says whether the session simulates. */
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnPIEEvent, const bool);
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnMapChanged, uint32);
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnNewAssetCreation, UFactory*);
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnMapOpened, const FString&, bool);

	/** After the edited map has changed; the parameter holds MapChangeEventFlags. */
	static FOnMapChanged MapChange;

	/** After a map was opened: its file name and whether it served as a template. */
	static FOnMapOpened OnMapOpened;

	/** Before the editor decides whether play may start; nothing else need follow. */
	static FOnPIEEvent PreBeginPIE;

	/** When play starts, before there is a play world or a game viewport. */
	static FOnPIEEvent BeginPIE;

	/** After play has begun in all instances. */
	static FOnPIEEvent PostPIEStarted;

	/** First thing when play ends. */
	static FOnPIEEvent PrePIEEnded;

	/** When play ends, with world and game viewport still there; also when a game instance failed to start. */
	static FOnPIEEvent EndPIE;

	/** When play is paused. */
	static FOnPIEEvent PausePIE;

	/** When paused play goes on. */
	static FOnPIEEvent ResumePIE;

	/** When paused play advances by one frame. */
	static FOnPIEEvent SingleStepPIE;

	/** Before a running session is toggled between playing and simulating. */
	static FOnPIEEvent OnPreSwitchBeginPIEAndSIE;

	/** After a running session was toggled between playing and simulating. */
	static FOnPIEEvent OnSwitchBeginPIEAndSIE;

	/** When a queued request to play is cancelled. */
	static FSimpleMulticastDelegate CancelPIE;

	/** Just before the factory of a new asset is configured. */
	static FOnNewAssetCreation OnConfigureNewAssetProperties;
};

/** The editor engine; null until the engine loop initialises the engine, and after the object system is torn down. */
extern UNREALED_API class UEditorEngine* GEditor;
