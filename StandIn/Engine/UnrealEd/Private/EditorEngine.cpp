// Copyright The Tintmill authors. All rights reserved.

#include "Editor/EditorEngine.h"

#include "Editor.h"
#include "Editor/UnrealEdEngine.h"
#include "EditorViewportClient.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "IAssetViewport.h"
#include "LevelEditor.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "Settings/LevelEditorPlaySettings.h"
#include "Slate/SceneViewport.h"
#include "StandIn/Registrations.h"
#include "UnrealEdGlobals.h"
#include "Widgets/SWindow.h"

UEditorEngine* GEditor = nullptr;
UUnrealEdEngine* GUnrealEd = nullptr;

namespace
{
/** Lists who is bound to one of the editor engine's events. */
void ListEvent(const TCHAR* Name, const TMulticastDelegate<void()>& Event, TArray<StandIn::FRegistration>& OutRegistrations)
{
	for (const void* UserObject : Event.ListUserObjects())
	{
		OutRegistrations.Add(StandIn::FRegistration{FString(TEXT("Delegates")), FString(Name), UserObject});
	}
}

const bool bEditorEngineListed = []() {
	StandIn::AddRegistry(TEXT("UEditorEngine"), [](TArray<StandIn::FRegistration>& OutRegistrations) {
		if (GEditor != nullptr)
		{
			ListEvent(TEXT("UEditorEngine::OnViewportClientListChanged"), GEditor->OnViewportClientListChanged(), OutRegistrations);
			ListEvent(
				TEXT("UEditorEngine::OnLevelViewportClientListChanged"), GEditor->OnLevelViewportClientListChanged(), OutRegistrations);
		}
	});
	return true;
}();
}

UEditorEngine::UEditorEngine(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, PlayWorld(nullptr)
	, EditorWorld(nullptr)
	, bIsSimulatingInEditor(false)
	, RequestedPlaySettings(nullptr)
	, NumUntitledMaps(0)
	, bIsToggleBetweenPIEandSIEQueued(false)
	, bRequestEndPlayMapQueued(false)
	, bIsEndingPlay(false)
{}

UUnrealEdEngine::UUnrealEdEngine(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{}

UEditorSubsystem::UEditorSubsystem() {}

void UEditorEngine::Init(IEngineLoop* InEngineLoop)
{
	Super::Init(InEngineLoop);
	FWorldContext& Context = CreateNewWorldContext(EWorldType::Editor);
	EditNewWorld(Context, nullptr, NAME_None);
	EditorSubsystemCollection.Initialize(this);
}

void UEditorEngine::PreExit()
{
	EndPlayMap();
	EditorSubsystemCollection.Deinitialize();
	while (WorldList.Num() > 0)
	{
		UWorld* World = WorldList[0].World();
		if (World != nullptr && World->bIsWorldInitialized)
		{
			World->CleanupWorld();
			World->RemoveFromRoot();
		}
		WorldList[0].SetCurrentWorld(nullptr);
		WorldList.RemoveAt(0);
	}
	GWorld = nullptr;
	Super::PreExit();
}

void UEditorEngine::FinishDestroy()
{
	if (GEditor == this)
	{
		GEditor = nullptr;
		GUnrealEd = nullptr;
		GEngine = nullptr;
	}
	Super::FinishDestroy();
}

void UEditorEngine::Tick(float DeltaSeconds, bool bIdleMode)
{
	Super::Tick(DeltaSeconds, bIdleMode);
	if (bIsToggleBetweenPIEandSIEQueued)
	{
		bIsToggleBetweenPIEandSIEQueued = false;
		ToggleBetweenPIEandSIE();
	}
	if (PlaySessionRequest.IsSet())
	{
		StartQueuedPlaySessionRequest();
	}
	if (bRequestEndPlayMapQueued)
	{
		EndPlayMap();
	}
	const TArray<FEditorViewportClient*> Clients = AllViewportClients;
	for (FEditorViewportClient* Client : Clients)
	{
		if (AllViewportClients.Contains(Client))
		{
			Client->Tick(DeltaSeconds);
		}
	}
	DrawViewports();
}

void UEditorEngine::DrawViewports()
{
	const TArray<FEditorViewportClient*> Clients = AllViewportClients;
	for (FEditorViewportClient* Client : Clients)
	{
		if (!AllViewportClients.Contains(Client) || Client->Viewport == nullptr || !Client->IsVisible())
		{
			continue;
		}
		if (Client->bNeedsRedraw || (Client->IsRealtime() && Client->Viewport->WouldDrawSomethingElse()))
		{
			Client->bNeedsRedraw = false;
			Client->Viewport->Draw();
		}
	}
	for (const FWorldContext& Context : WorldList)
	{
		FViewport* Viewport = Context.GameViewport != nullptr ? Context.GameViewport->Viewport : nullptr;
		if (Viewport != nullptr && Viewport->WouldDrawSomethingElse())
		{
			Viewport->Draw();
		}
	}
}

int32 UEditorEngine::AddViewportClients(FEditorViewportClient* ViewportClient)
{
	const int32 Result = AllViewportClients.Add(ViewportClient);
	ViewportClientListChangedEvent.Broadcast();
	return Result;
}

void UEditorEngine::RemoveViewportClients(FEditorViewportClient* ViewportClient)
{
	AllViewportClients.Remove(ViewportClient);
	for (int32 Index = 0; Index < AllViewportClients.Num(); ++Index)
	{
		AllViewportClients[Index]->ViewIndex = Index;
	}
	ViewportClientListChangedEvent.Broadcast();
}

int32 UEditorEngine::AddLevelViewportClients(FLevelEditorViewportClient* ViewportClient)
{
	const int32 Result = LevelViewportClients.Add(ViewportClient);
	LevelViewportClientListChangedEvent.Broadcast();
	return Result;
}

void UEditorEngine::RemoveLevelViewportClients(FLevelEditorViewportClient* ViewportClient)
{
	LevelViewportClients.Remove(ViewportClient);
	LevelViewportClientListChangedEvent.Broadcast();
}

FViewport* UEditorEngine::GetActiveViewport()
{
	FLevelEditorModule& LevelEditorModule = FModuleManager::GetModuleChecked<FLevelEditorModule>("LevelEditor");
	TSharedPtr<IAssetViewport> ActiveViewport = LevelEditorModule.GetFirstActiveViewport();
	return ActiveViewport.IsValid() ? ActiveViewport->GetActiveViewport() : nullptr;
}

FViewport* UEditorEngine::GetPIEViewport()
{
	if (GameViewport != nullptr)
	{
		return GameViewport->Viewport;
	}
	for (const FWorldContext& Context : WorldList)
	{
		const FSlatePlayInEditorInfo* Info =
			Context.WorldType == EWorldType::PIE ? SlatePlayInEditorMap.Find(Context.ContextHandle) : nullptr;
		if (Info != nullptr && Info->SlatePlayInEditorWindowViewport.IsValid())
		{
			return Info->SlatePlayInEditorWindowViewport.Get();
		}
	}
	return nullptr;
}

void UEditorEngine::RedrawAllViewports(bool bInvalidateHitProxies)
{
	const TArray<FEditorViewportClient*> Clients = AllViewportClients;
	for (FEditorViewportClient* Client : Clients)
	{
		Client->Invalidate(false, bInvalidateHitProxies);
	}
}

void UEditorEngine::RedrawLevelEditingViewports(bool bInvalidateHitProxies)
{
	const TArray<FLevelEditorViewportClient*> Clients = LevelViewportClients;
	for (FLevelEditorViewportClient* Client : Clients)
	{
		Client->Invalidate(false, bInvalidateHitProxies);
	}
}

FWorldContext& UEditorEngine::GetEditorWorldContext(bool bEnsureIsGWorld)
{
	for (FWorldContext& Context : WorldList)
	{
		if (Context.WorldType == EWorldType::Editor)
		{
			ensure(!bEnsureIsGWorld || Context.World() == GWorld.GetReference());
			return Context;
		}
	}
	check(false);
	return CreateNewWorldContext(EWorldType::Editor);
}
