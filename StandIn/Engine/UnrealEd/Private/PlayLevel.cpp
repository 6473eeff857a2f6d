// Copyright The Tintmill authors. All rights reserved.

#include "CoreGlobals.h"
#include "Editor.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "IAssetViewport.h"
#include "PlaySessionChecks.h"
#include "Settings/LevelEditorPlaySettings.h"
#include "Slate/SceneViewport.h"
#include "StandIn/FatalHandler.h"
#include "Templates/UnrealTemplate.h"
#include "UObject/Class.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "Widgets/SViewport.h"
#include "Widgets/SWindow.h"

DEFINE_LOG_CATEGORY_STATIC(LogPlayLevel, Log, All);

void UEditorEngine::RequestPlaySession(const FRequestPlaySessionParams& InParams)
{
	PlaySessionRequest = InParams;
	RequestedPlaySettings = InParams.EditorPlaySettings;
}

void UEditorEngine::CancelRequestPlaySession()
{
	PlaySessionRequest.Reset();
	RequestedPlaySettings = nullptr;
	FEditorDelegates::CancelPIE.Broadcast();
}

void UEditorEngine::RequestEndPlayMap()
{
	if (PlayWorld != nullptr)
	{
		bRequestEndPlayMapQueued = true;
	}
}

void UEditorEngine::OnViewportCloseRequested(FViewport*)
{
	RequestEndPlayMap();
}

void UEditorEngine::StartQueuedPlaySessionRequest()
{
	// Ending the running session forgets the request.
	FRequestPlaySessionParams Request = PlaySessionRequest.GetValue();
	if (PlayWorld != nullptr)
	{
		EndPlayMap();
	}
	PlaySessionRequest.Reset();
	if (Request.SessionDestination != EPlaySessionDestinationType::InProcess)
	{
		STANDIN_MISSING(TEXT("play in another process"));
	}
	StartPlayInEditorSession(Request);
	RequestedPlaySettings = nullptr;
}

void UEditorEngine::StartPlayInEditorSession(FRequestPlaySessionParams& InRequestParams)
{
	check(InRequestParams.SessionDestination == EPlaySessionDestinationType::InProcess);
	const bool bInSimulateInEditor = InRequestParams.WorldType == EPlaySessionWorldType::SimulateInEditor;

	FEditorDelegates::PreBeginPIE.Broadcast(bInSimulateInEditor);
	if (!StandIn::MayPlayStart())
	{
		UE_LOG(LogPlayLevel, Warning, TEXT("Play did not start: a check before play said no."));
		return;
	}

	EditorWorld = GetEditorWorldContext().World();
	PlayInEditorSessionInfo = FPlayInEditorSessionInfo();
	PlayInEditorSessionInfo->OriginalRequestParams = InRequestParams;
	FEditorDelegates::BeginPIE.Broadcast(bInSimulateInEditor);

	const ULevelEditorPlaySettings* PlaySettings =
		InRequestParams.EditorPlaySettings != nullptr ? InRequestParams.EditorPlaySettings : GetDefault<ULevelEditorPlaySettings>();
	int32 NumClients = 1;
	PlaySettings->GetPlayNumberOfClients(NumClients);
	for (int32 InstanceIndex = 0; InstanceIndex < FMath::Max(1, NumClients); ++InstanceIndex)
	{
		if (CreateInnerProcessPIEGameInstance(InRequestParams, InstanceIndex) != nullptr)
		{
			++PlayInEditorSessionInfo->PIEInstanceCount;
		}
	}
	if (PlayInEditorSessionInfo->PIEInstanceCount == 0)
	{
		PlayInEditorSessionInfo.Reset();
		EditorWorld = nullptr;
		return;
	}
	if (bInSimulateInEditor)
	{
		ToggleBetweenPIEandSIE(true);
	}
	FEditorDelegates::PostPIEStarted.Broadcast(bInSimulateInEditor);
}

UGameInstance* UEditorEngine::CreateInnerProcessPIEGameInstance(const FRequestPlaySessionParams& InParams, int32 InstanceIndex)
{
	const bool bInSimulateInEditor = InParams.WorldType == EPlaySessionWorldType::SimulateInEditor;
	FGameInstancePIEParameters GameInstanceParams;
	GameInstanceParams.bSimulateInEditor = bInSimulateInEditor;

	UGameInstance* GameInstance = NewObject<UGameInstance>(this);
	GameInstance->AddToRoot();
	const FGameInstancePIEResult Result = StandIn::DoesGameInstanceComeUp(InstanceIndex)
		? GameInstance->InitializeForPlayInEditor(InstanceIndex, GameInstanceParams)
		: FGameInstancePIEResult::Failure(FText::FromString(TEXT("The game instance could not be initialised.")));
	if (!Result.IsSuccess())
	{
		UE_LOG(LogPlayLevel, Error, TEXT("%s"), *Result.FailureReason.ToString());
		FEditorDelegates::EndPIE.Broadcast(bInSimulateInEditor);
		GameInstance->RemoveFromRoot();
		return nullptr;
	}
	FWorldContext& PieWorldContext = *GameInstance->GetWorldContext();
	PlayWorld = PieWorldContext.World();
	GWorld = PlayWorld;
	GIsPlayInEditorWorld = true;

	UGameViewportClient* ViewportClient = NewObject<UGameViewportClient>(this);
	ViewportClient->Init(PieWorldContext, GameInstance);
	GameViewport = ViewportClient;
	PieWorldContext.GameViewport = ViewportClient;
	ViewportClient->OnCloseRequested().AddUObject(this, &UEditorEngine::OnViewportCloseRequested);
	FString Error;
	ViewportClient->SetupInitialLocalPlayer(Error);

	FSlatePlayInEditorInfo& Info = SlatePlayInEditorMap.Add(PieWorldContext.ContextHandle, FSlatePlayInEditorInfo());
	if (InstanceIndex == 0 && InParams.DestinationSlateViewport.IsSet())
	{
		Info.DestinationSlateViewport = InParams.DestinationSlateViewport.GetValue();
	}
	CreatePIEViewport(ViewportClient, InParams, Info);
	UGameViewportClient::OnViewportCreated().Broadcast();
	if (ViewportClient->Viewport != nullptr)
	{
		ViewportClient->Viewport->SetPlayInEditorViewport(true);
	}

	GameInstance->StartPlayInEditorGameInstance(GameInstance->GetFirstGamePlayer(), GameInstanceParams);
	return GameInstance;
}

void UEditorEngine::CreatePIEViewport(
	UGameViewportClient* ViewportClient, const FRequestPlaySessionParams& InParams, FSlatePlayInEditorInfo& Info)
{
	if (TSharedPtr<IAssetViewport> Pane = Info.DestinationSlateViewport.Pin())
	{
		Pane->StartPlayInEditorSession(ViewportClient, InParams.WorldType == EPlaySessionWorldType::SimulateInEditor);
		return;
	}
	const FVector2D WindowSize(1280.0f, 720.0f);
	TSharedRef<SViewport> ViewportWidget = SNew(SViewport);
	Info.SlatePlayInEditorWindowViewport = MakeShareable(new FSceneViewport(ViewportClient, ViewportWidget));
	ViewportWidget->SetViewportInterface(Info.SlatePlayInEditorWindowViewport.ToSharedRef());
	// The window, where there are windows, gives the viewport its size when it is painted.
	Info.SlatePlayInEditorWindowViewport->SetFixedViewportSize(static_cast<uint32>(WindowSize.X), static_cast<uint32>(WindowSize.Y));
	if (FSlateApplication::IsInitialized())
	{
		TSharedRef<SWindow> Window =
			SNew(SWindow).Title(NSLOCTEXT("UnrealEd", "PlayInEditorWindow", "Game Preview")).ClientSize(WindowSize);
		Window->SetContent(ViewportWidget);
		Window->SetOnWindowClosed(FOnWindowClosed::CreateWeakLambda(this, [this](const TSharedRef<SWindow>&) { RequestEndPlayMap(); }));
		FSlateApplication::Get().AddWindow(Window);
		const FSlateRect Area = FSlateApplication::Get().GetWorkArea(Window->GetRectInScreen());
		const FVector2D Corner = Area.GetCenter() - Window->GetSizeInScreen() / 2.0f;
		Window->MoveWindowTo(FVector2D(FMath::Max(Corner.X, Area.Left), FMath::Max(Corner.Y, Area.Top)));
		Info.SlatePlayInEditorWindow = Window;
		Info.SlatePlayInEditorWindowViewport->SetFixedViewportSize(0, 0);
	}
	ViewportClient->SetViewportFrame(Info.SlatePlayInEditorWindowViewport.Get());
}

void UEditorEngine::ToggleBetweenPIEandSIE(bool bNewSession)
{
	if (!IsPlayingSessionInEditor())
	{
		return;
	}
	if (!bNewSession)
	{
		FEditorDelegates::OnPreSwitchBeginPIEAndSIE.Broadcast(bIsSimulatingInEditor);
	}
	for (const TPair<FName, FSlatePlayInEditorInfo>& Pair : SlatePlayInEditorMap)
	{
		if (TSharedPtr<IAssetViewport> Pane = Pair.Value.DestinationSlateViewport.Pin())
		{
			if (bIsSimulatingInEditor)
			{
				Pane->SwapViewportsForPlayInEditor();
			}
			else
			{
				Pane->SwapViewportsForSimulateInEditor();
			}
		}
	}
	bIsSimulatingInEditor = !bIsSimulatingInEditor;
	if (!bNewSession)
	{
		FEditorDelegates::OnSwitchBeginPIEAndSIE.Broadcast(bIsSimulatingInEditor);
	}
}

void UEditorEngine::PlaySessionPaused()
{
	FEditorDelegates::PausePIE.Broadcast(bIsSimulatingInEditor);
}

void UEditorEngine::PlaySessionResumed()
{
	FEditorDelegates::ResumePIE.Broadcast(bIsSimulatingInEditor);
}

void UEditorEngine::PlaySessionSingleStepped()
{
	FEditorDelegates::SingleStepPIE.Broadcast(bIsSimulatingInEditor);
}
