// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/PlaySession.h"

#include "Editor.h"
#include "PlaySessionChecks.h"

namespace
{
/** The checks that a test or a program has set. */
struct FPlayChecks
{
	TFunction<bool()> MayStart;
	TFunction<bool(int32)> DoesInstanceComeUp;
};

FPlayChecks& GetPlayChecks()
{
	static FPlayChecks Checks;
	return Checks;
}
}

namespace StandIn
{
/** Has the one right of others to fire the list events. */
struct FEditorEngineAccess
{
	static void BroadcastAll(UEditorEngine& Engine);
	static void BroadcastLevel(UEditorEngine& Engine);
};
}

void StandIn::SetPlayCheck(TFunction<bool()> InCheck)
{
	GetPlayChecks().MayStart = MoveTemp(InCheck);
}

void StandIn::SetGameInstanceCheck(TFunction<bool(int32 InstanceIndex)> InCheck)
{
	GetPlayChecks().DoesInstanceComeUp = MoveTemp(InCheck);
}

bool StandIn::MayPlayStart()
{
	return !GetPlayChecks().MayStart || GetPlayChecks().MayStart();
}

bool StandIn::DoesGameInstanceComeUp(int32 InstanceIndex)
{
	return !GetPlayChecks().DoesInstanceComeUp || GetPlayChecks().DoesInstanceComeUp(InstanceIndex);
}

void StandIn::FEditorEngineAccess::BroadcastAll(UEditorEngine& Engine)
{
	static_cast<TMulticastDelegate<void()>&>(Engine.ViewportClientListChangedEvent).Broadcast();
}

void StandIn::FEditorEngineAccess::BroadcastLevel(UEditorEngine& Engine)
{
	static_cast<TMulticastDelegate<void()>&>(Engine.LevelViewportClientListChangedEvent).Broadcast();
}

void StandIn::BroadcastViewportClientListChanged()
{
	check(GEditor);
	FEditorEngineAccess::BroadcastAll(*GEditor);
}

void StandIn::BroadcastLevelViewportClientListChanged()
{
	check(GEditor);
	FEditorEngineAccess::BroadcastLevel(*GEditor);
}
