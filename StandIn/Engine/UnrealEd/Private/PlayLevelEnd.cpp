// Copyright The Tintmill authors. All rights reserved.

#include "CoreGlobals.h"
#include "Editor.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "IAssetViewport.h"
#include "Slate/SceneViewport.h"
#include "Templates/UnrealTemplate.h"
#include "Widgets/SWindow.h"

void UEditorEngine::EndPlayMap()
{
	if (PlayWorld == nullptr || bIsEndingPlay)
	{
		return;
	}
	TGuardValue<bool> EndingPlay(bIsEndingPlay, true);
	bRequestEndPlayMapQueued = false;

	FEditorDelegates::PrePIEEnded.Broadcast(bIsSimulatingInEditor);
	FEditorDelegates::EndPIE.Broadcast(bIsSimulatingInEditor);

	CloseGameViewports();
	TeardownPlaySessions();

	PlayWorld = nullptr;
	GWorld = EditorWorld;
	EditorWorld = nullptr;
	GIsPlayInEditorWorld = false;
	bIsSimulatingInEditor = false;
	bIsToggleBetweenPIEandSIEQueued = false;
	PlayInEditorSessionInfo.Reset();
	PlaySessionRequest.Reset();

	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}

void UEditorEngine::CloseGameViewports()
{
	for (FWorldContext& Context : WorldList)
	{
		UGameViewportClient* ViewportClient = Context.GameViewport;
		if (Context.WorldType != EWorldType::PIE || ViewportClient == nullptr)
		{
			continue;
		}
		ViewportClient->OnCloseRequested().RemoveAll(this);
		if (ViewportClient->Viewport != nullptr)
		{
			ViewportClient->CloseRequested(ViewportClient->Viewport);
		}
		FSlatePlayInEditorInfo Info;
		SlatePlayInEditorMap.RemoveAndCopyValue(Context.ContextHandle, Info);
		if (TSharedPtr<IAssetViewport> Pane = Info.DestinationSlateViewport.Pin())
		{
			Pane->EndPlayInEditorSession();
		}
		if (TSharedPtr<SWindow> Window = Info.SlatePlayInEditorWindow.Pin())
		{
			Window->SetOnWindowClosed(FOnWindowClosed());
			Window->RequestDestroyWindow();
		}
		if (Info.SlatePlayInEditorWindowViewport.IsValid())
		{
			Info.SlatePlayInEditorWindowViewport->Destroy();
		}
		ViewportClient->DetachViewportClient();
		Context.GameViewport = nullptr;
	}
	GameViewport = nullptr;
}

void UEditorEngine::TeardownPlaySessions()
{
	TArray<UWorld*> PlayWorlds;
	for (const FWorldContext& Context : WorldList)
	{
		if (Context.WorldType == EWorldType::PIE && Context.World() != nullptr)
		{
			PlayWorlds.Add(Context.World());
		}
	}
	for (UWorld* World : PlayWorlds)
	{
		World->BeginTearingDown();
		World->CleanupWorld();
		UGameInstance* GameInstance = World->GetGameInstance();
		GameInstance->Shutdown();
		GameInstance->RemoveFromRoot();
		World->RemoveFromRoot();
		DestroyWorldContext(World);
	}
}
