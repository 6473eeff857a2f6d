// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Engine/Engine.h"
#include "Misc/Optional.h"
#include "PlayInEditorDataTypes.h"
#include "Subsystems/SubsystemCollection.h"
#include "EditorSubsystem.h"
#include "UObject/ObjectMacros.h"
#include "EditorEngine.generated.h"

// The editor engine: the lists of viewport clients with their events, the edited world, play sessions, redrawing.
// Left out: selection, transactions, builds, import and export, sound, play in other processes, networked play.
// Both list events have one type, as in the engine; that only the editor engine may broadcast them is enforced here.
// Uncertain in the engine and settled here: asking for the active viewport with the LevelEditor module unloaded is fatal; a
// game instance that fails to start leaves no session behind; changing the map ends play on the spot; GEditor is null again
// once the object is destroyed.

class FEditorViewportClient;
class FLevelEditorViewportClient;
class FSceneViewport;
class FViewport;
class IAssetViewport;
class SWindow;
class UGameInstance;
class UGameViewportClient;
namespace StandIn
{
struct FEditorEngineAccess;
}

/** Where a play-in-editor instance is seen. */
struct UNREALED_API FSlatePlayInEditorInfo
{
	/** The pane, if the instance is seen in one. */
	TWeakPtr<IAssetViewport> DestinationSlateViewport;

	/** The window, if the instance has one of its own. */
	TWeakPtr<SWindow> SlatePlayInEditorWindow;

	/** The viewport in the instance's own window. */
	TSharedPtr<FSceneViewport> SlatePlayInEditorWindowViewport;
};

/** The engine object of the editor. */
UCLASS(transient)
class UNREALED_API UEditorEngine : public UEngine
{
	GENERATED_BODY()

public:
	UEditorEngine(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The world of the running play session, null outside of one. */
	UPROPERTY()
	UWorld* PlayWorld;

	/** The edited world while a play session runs, else null. */
	UWorld* EditorWorld;

	/** The running session simulates. */
	uint32 bIsSimulatingInEditor : 1;

	/** Where each play-in-editor instance is seen, by the handle of its world context. */
	TMap<FName, FSlatePlayInEditorInfo> SlatePlayInEditorMap;

	virtual void Init(IEngineLoop* InEngineLoop) override;
	virtual void PreExit() override;
	virtual void Tick(float DeltaSeconds, bool bIdleMode) override;
	virtual void FinishDestroy() override;

	/** Returns the clients of all viewports; the list changes while clients come and go. */
	const TArray<class FEditorViewportClient*>& GetAllViewportClients() { return AllViewportClients; }

	/** Returns the clients of all viewports; the list changes while clients come and go. */
	const TArray<class FEditorViewportClient*>& GetAllViewportClients() const { return AllViewportClients; }

	/** The event of both lists; only the editor engine can broadcast it. */
	class FViewportClientListChangedEvent : public TMulticastDelegate<void()>
	{
	private:
		friend class UEditorEngine;
		using TMulticastDelegate<void()>::Broadcast;
	};

	/** Fires after the list of all clients has changed. */
	FViewportClientListChangedEvent& OnViewportClientListChanged() { return ViewportClientListChangedEvent; }

	/** Adds a client to the list of all clients, fires its event and returns the client's index. */
	int32 AddViewportClients(FEditorViewportClient* ViewportClient);

	/** Removes a client from the list of all clients, numbers the others anew and fires the list's event. */
	void RemoveViewportClients(FEditorViewportClient* ViewportClient);

	/** Returns the clients of level viewports; the list changes while clients come and go. */
	const TArray<class FLevelEditorViewportClient*>& GetLevelViewportClients() { return LevelViewportClients; }

	/** Returns the clients of level viewports; the list changes while clients come and go. */
	const TArray<class FLevelEditorViewportClient*>& GetLevelViewportClients() const { return LevelViewportClients; }

	/** Adds a client to the list of level clients, fires its event and returns the client's index. */
	int32 AddLevelViewportClients(FLevelEditorViewportClient* ViewportClient);

	/** Removes a client from the list of level clients and fires the list's event. */
	void RemoveLevelViewportClients(FLevelEditorViewportClient* ViewportClient);

	/** Fires after the list of level clients has changed. */
	FViewportClientListChangedEvent& OnLevelViewportClientListChanged() { return LevelViewportClientListChangedEvent; }

	/** Returns the viewport shown in the level editor's active pane, the game's while play happens there; or null. */
	FViewport* GetActiveViewport();

	/** Returns the viewport of the latest game viewport, or null. */
	FViewport* GetPIEViewport();

	/** Has all viewports drawn anew on a later tick. */
	void RedrawAllViewports(bool bInvalidateHitProxies = true);

	/** Has the level viewports drawn anew on a later tick. */
	void RedrawLevelEditingViewports(bool bInvalidateHitProxies = true);

	/** Returns the context of the edited world; fatal before Init. */
	FWorldContext& GetEditorWorldContext(bool bEnsureIsGWorld = false);

	/** Makes a new empty map and edits it; a running session ends first. */
	UWorld* NewMap();

	/** Edits an empty world under the name of a map's package, such as /Game/Maps/Demo; a running session ends first. */
	UWorld* LoadMapPackage(const FString& LongPackageName);

	/** Asks for play; it starts on a later tick, after a running session has ended. */
	void RequestPlaySession(const FRequestPlaySessionParams& InParams);

	/** Takes a request back that has not been picked up, and fires CancelPIE. */
	void CancelRequestPlaySession();

	/** Asks for the end of play; it ends on a later tick. */
	void RequestEndPlayMap();

	/** Ends play now; nothing happens outside of play. */
	void EndPlayMap();

	/** Tells whether a request to play waits to be picked up. */
	bool IsPlaySessionRequestQueued() const { return PlaySessionRequest.IsSet(); }

	/** Tells whether play happens in the editor. */
	bool IsPlayingSessionInEditor() const { return PlayInEditorSessionInfo.IsSet(); }

	/** Tells whether play happens or is asked for. */
	bool IsPlaySessionInProgress() const { return IsPlaySessionRequestQueued() || IsPlayingSessionInEditor(); }

	/** Tells whether a session simulates. */
	bool IsSimulateInEditorInProgress() const { return bIsSimulatingInEditor && IsPlayingSessionInEditor(); }

	/** Returns what a running session remembers; unset outside of play. */
	TOptional<FPlayInEditorSessionInfo> GetPlayInEditorSessionInfo() const { return PlayInEditorSessionInfo; }

	/** Starts a session now; called when a request is picked up. */
	virtual void StartPlayInEditorSession(FRequestPlaySessionParams& InRequestParams);

	/** Toggles a running session between playing and simulating, with events unless the session is just starting. */
	void ToggleBetweenPIEandSIE(bool bNewSession = false);

	/** Asks for a toggle between playing and simulating on a later tick. */
	void RequestToggleBetweenPIEandSIE() { bIsToggleBetweenPIEandSIEQueued = true; }

	/** Fires PausePIE. */
	void PlaySessionPaused();

	/** Fires ResumePIE. */
	void PlaySessionResumed();

	/** Fires SingleStepPIE. */
	void PlaySessionSingleStepped();

	/** Returns the editor's one object of a subsystem class, or null. */
	template <typename TSubsystemClass>
	TSubsystemClass* GetEditorSubsystem() const
	{
		return EditorSubsystemCollection.GetSubsystem<TSubsystemClass>(TSubsystemClass::StaticClass());
	}

private:
	friend struct StandIn::FEditorEngineAccess;

	void StartQueuedPlaySessionRequest();
	UGameInstance* CreateInnerProcessPIEGameInstance(const FRequestPlaySessionParams& InParams, int32 InstanceIndex);
	void CreatePIEViewport(UGameViewportClient* ViewportClient, const FRequestPlaySessionParams& InParams, FSlatePlayInEditorInfo& Info);
	void CloseGameViewports();
	void TeardownPlaySessions();
	void OnViewportCloseRequested(FViewport* InViewport);
	void EditorDestroyWorld(FWorldContext& Context);
	UWorld* EditNewWorld(FWorldContext& Context, UPackage* Package, FName WorldName);
	void DrawViewports();

	TArray<class FEditorViewportClient*> AllViewportClients;
	TArray<class FLevelEditorViewportClient*> LevelViewportClients;
	FViewportClientListChangedEvent ViewportClientListChangedEvent;
	FViewportClientListChangedEvent LevelViewportClientListChangedEvent;

	TOptional<FRequestPlaySessionParams> PlaySessionRequest;
	TOptional<FPlayInEditorSessionInfo> PlayInEditorSessionInfo;

	UPROPERTY(transient)
	ULevelEditorPlaySettings* RequestedPlaySettings;

	FSubsystemCollection<UEditorSubsystem> EditorSubsystemCollection;
	int32 NumUntitledMaps;
	bool bIsToggleBetweenPIEandSIEQueued;
	bool bRequestEndPlayMapQueued;
	bool bIsEndingPlay;
};
