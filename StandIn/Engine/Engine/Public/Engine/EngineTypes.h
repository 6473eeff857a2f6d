// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// The enumerations of the engine's types that worlds need. Collision, physics, tick and lighting types are left out.

namespace EWorldType
{
/** What a world is for. */
enum Type
{
	/** An untyped world, in most cases a part of another one. */
	None,
	/** The world of a game. */
	Game,
	/** The world that is edited. */
	Editor,
	/** The world of a play-in-editor session. */
	PIE,
	/** A preview in an editor tool. */
	EditorPreview,
	/** A preview of a game. */
	GamePreview,
	/** A minimal game world for remote calls. */
	GameRPC,
	/** A loaded world that nobody edits. */
	Inactive
};
}

/** Returns the name of a world type as it appears in logs. */
ENGINE_API const TCHAR* LexToString(const EWorldType::Type Value);

namespace EEndPlayReason
{
/** Why play ends. */
enum Type
{
	Destroyed,
	LevelTransition,
	EndPlayInEditor,
	RemovedFromWorld,
	Quit,
};
}
