// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"

// What a request to play says and what a running session remembers. Left out: networking, VR and mobile previews, game mode
// and start position overrides, other processes.

class IAssetViewport;
class SWindow;
class ULevelEditorPlaySettings;

/** Where a session runs. */
enum class EPlaySessionDestinationType : uint8
{
	/** In the editor. */
	InProcess,
	/** In another process; refused here. */
	NewProcess,
	/** Through the launcher; refused here. */
	Launcher
};

/** Whether a session plays or simulates. */
enum class EPlaySessionWorldType : uint8
{
	PlayInEditor,
	SimulateInEditor,
};

/** What a request to play says. */
struct UNREALED_API FRequestPlaySessionParams
{
	/** Asks for play in the editor, in a window of its own. */
	FRequestPlaySessionParams()
		: SessionDestination(EPlaySessionDestinationType::InProcess)
		, WorldType(EPlaySessionWorldType::PlayInEditor)
		, EditorPlaySettings(nullptr)
	{}

	/** Where the session runs. */
	EPlaySessionDestinationType SessionDestination;

	/** Whether the session plays or simulates. */
	EPlaySessionWorldType WorldType;

	/** The pane to play in; a window of its own is opened when this is not set or the pane is gone. */
	TOptional<TWeakPtr<IAssetViewport>> DestinationSlateViewport;

	/** The settings to use in place of the defaults, or null. */
	ULevelEditorPlaySettings* EditorPlaySettings;
};

/** What a running session remembers. */
struct UNREALED_API FPlayInEditorSessionInfo
{
	FPlayInEditorSessionInfo()
		: PIEInstanceCount(0)
	{}

	/** The request that started the session. */
	FRequestPlaySessionParams OriginalRequestParams;

	/** How many instances were made. */
	int32 PIEInstanceCount;
};
