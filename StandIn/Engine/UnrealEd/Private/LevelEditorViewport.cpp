// Copyright The Tintmill authors. All rights reserved.

#include "LevelEditorViewport.h"

#include "Editor.h"
#include "EditorModeManager.h"
#include "Engine/World.h"
#include "SLevelViewport.h"

FLevelEditorViewportClient* GCurrentLevelEditingViewportClient = nullptr;
FLevelEditorViewportClient* GLastKeyLevelEditingViewportClient = nullptr;

FLevelEditorViewportClient::FLevelEditorViewportClient(const TSharedPtr<SLevelViewport>& InLevelViewport)
	: FEditorViewportClient(&GLevelEditorModeTools(), nullptr, StaticCastSharedPtr<SEditorViewport>(InLevelViewport))
	, World(nullptr)
{
	GEditor->GetEditorWorldContext().AddRef(World);
	GEditor->AddLevelViewportClients(this);
	FEditorDelegates::PreBeginPIE.AddRaw(this, &FLevelEditorViewportClient::OnPreBeginPIE);
	FEditorDelegates::MapChange.AddRaw(this, &FLevelEditorViewportClient::OnMapChanged);
}

FLevelEditorViewportClient::~FLevelEditorViewportClient()
{
	FEditorDelegates::PreBeginPIE.RemoveAll(this);
	FEditorDelegates::MapChange.RemoveAll(this);
	if (GEditor != nullptr)
	{
		for (const FWorldContext& Context : GEditor->GetWorldContexts())
		{
			const_cast<FWorldContext&>(Context).RemoveRef(World);
		}
		GEditor->RemoveLevelViewportClients(this);
	}
	if (GCurrentLevelEditingViewportClient == this)
	{
		GCurrentLevelEditingViewportClient = nullptr;
	}
	if (GLastKeyLevelEditingViewportClient == this)
	{
		GLastKeyLevelEditingViewportClient = nullptr;
	}
}

UWorld* FLevelEditorViewportClient::GetWorld() const
{
	return World != nullptr ? World : FEditorViewportClient::GetWorld();
}

bool FLevelEditorViewportClient::InputKey(
	FViewport* InViewport, int32 ControllerId, FKey Key, EInputEvent Event, float AmountDepressed, bool bGamepad)
{
	if (Event == IE_Pressed)
	{
		SetCurrentViewport();
	}
	return FEditorViewportClient::InputKey(InViewport, ControllerId, Key, Event, AmountDepressed, bGamepad);
}

void FLevelEditorViewportClient::ReceivedFocus(FViewport* InViewport)
{
	FEditorViewportClient::ReceivedFocus(InViewport);
	SetCurrentViewport();
}

void FLevelEditorViewportClient::SetCurrentViewport()
{
	if (GCurrentLevelEditingViewportClient != this)
	{
		FLevelEditorViewportClient* Previous = GCurrentLevelEditingViewportClient;
		GCurrentLevelEditingViewportClient = this;
		if (Previous != nullptr)
		{
			Previous->Invalidate();
		}
		Invalidate();
	}
	SetLastKeyViewport();
}

void FLevelEditorViewportClient::SetLastKeyViewport()
{
	GLastKeyLevelEditingViewportClient = this;
}

void FLevelEditorViewportClient::OnPreBeginPIE(const bool) {}

void FLevelEditorViewportClient::OnMapChanged(uint32)
{
	Invalidate();
}
