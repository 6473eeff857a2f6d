// Copyright The Tintmill authors. All rights reserved.

#include "EditorViewportClient.h"

#include "Editor.h"
#include "Engine/World.h"
#include "PreviewScene.h"
#include "SEditorViewport.h"
#include "StandIn/CameraMover.h"

DEFINE_LOG_CATEGORY(LogEditorViewport);

FEditorViewportClient::FEditorViewportClient(
	FEditorModeTools* InModeTools, FPreviewScene* InPreviewScene, const TWeakPtr<SEditorViewport>& InEditorViewportWidget)
	: Viewport(nullptr)
	, ViewIndex(INDEX_NONE)
	, bNeedsRedraw(true)
	, EditorViewportWidget(InEditorViewportWidget)
	, ViewportType(LVT_Perspective)
	, ModeTools(InModeTools)
	, PreviewScene(InPreviewScene)
	, bIsRealtime(false)
{
	check(GEditor);
	ViewIndex = GEditor->AddViewportClients(this);
}

FEditorViewportClient::~FEditorViewportClient()
{
	if (Viewport != nullptr)
	{
		UE_LOG(LogEditorViewport, Fatal, TEXT("Viewport != NULL in FEditorViewportClient destructor."));
	}
	if (GEditor != nullptr)
	{
		GEditor->RemoveViewportClients(this);
	}
}

TSharedPtr<SEditorViewport> FEditorViewportClient::GetEditorViewportWidget() const
{
	return EditorViewportWidget.Pin();
}

void FEditorViewportClient::Invalidate(bool, bool bInvalidateHitProxies)
{
	if (Viewport == nullptr)
	{
		return;
	}
	if (bInvalidateHitProxies)
	{
		Viewport->Invalidate();
	}
	else
	{
		Viewport->InvalidateDisplay();
	}
}

void FEditorViewportClient::SetRealtime(bool bInRealtime)
{
	bIsRealtime = bInRealtime;
	bNeedsRedraw |= bInRealtime;
}

void FEditorViewportClient::AddRealtimeOverride(bool bShouldBeRealtime, FText SystemDisplayName)
{
	RealtimeOverrides.Add(FRealtimeOverride{SystemDisplayName, bShouldBeRealtime});
	bNeedsRedraw = true;
}

bool FEditorViewportClient::RemoveRealtimeOverride(FText SystemDisplayName, bool bCheckMissingOverride)
{
	for (int32 Index = RealtimeOverrides.Num() - 1; Index >= 0; --Index)
	{
		if (RealtimeOverrides[Index].SystemDisplayName.EqualTo(SystemDisplayName))
		{
			RealtimeOverrides.RemoveAt(Index);
			bNeedsRedraw = true;
			return true;
		}
	}
	ensureMsgf(!bCheckMissingOverride, TEXT("No realtime override was found with system name '%s'"), *SystemDisplayName.ToString());
	return false;
}

bool FEditorViewportClient::IsRealtime() const
{
	return RealtimeOverrides.Num() > 0 ? RealtimeOverrides.Last().bIsRealtime : bIsRealtime;
}

bool FEditorViewportClient::IsVisible() const
{
	return VisibilityDelegate.IsBound() && VisibilityDelegate.Execute();
}

void FEditorViewportClient::SetViewportType(ELevelViewportType InViewportType)
{
	ViewportType = InViewportType;
	Invalidate();
}

FLinearColor FEditorViewportClient::GetBackgroundColor() const
{
	return FLinearColor(0.0f, 0.0f, 0.0f, 0.0f);
}

void FEditorViewportClient::Tick(float) {}

UWorld* FEditorViewportClient::GetWorld() const
{
	return PreviewScene != nullptr ? PreviewScene->GetWorld() : GWorld.GetReference();
}

void FEditorViewportClient::Draw(FViewport*, FCanvas*)
{
	// The scene itself is painted by the viewport.
}

void FEditorViewportClient::RedrawRequested(FViewport*)
{
	bNeedsRedraw = true;
}

bool FEditorViewportClient::InputKey(FViewport* InViewport, int32, FKey Key, EInputEvent Event, float, bool)
{
	if (Event != IE_Pressed || InViewport == nullptr || !StandIn::MoveCamera(*this, *InViewport, Key, 1.0f))
	{
		return false;
	}
	Invalidate(true, false);
	return true;
}

bool FEditorViewportClient::InputAxis(FViewport* InViewport, int32, FKey Key, float Delta, float, int32, bool)
{
	if (!StandIn::MoveCamera(*this, *InViewport, Key, Delta))
	{
		return false;
	}
	Invalidate(true, false);
	return true;
}

void FEditorViewportClient::AddReferencedObjects(FReferenceCollector&) {}
