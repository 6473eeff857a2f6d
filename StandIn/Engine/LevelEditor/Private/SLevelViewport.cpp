// Copyright The Tintmill authors. All rights reserved.

#include "SLevelViewport.h"

#include "Editor.h"
#include "Engine/GameViewportClient.h"
#include "LevelEditorViewport.h"
#include "LevelViewportLayout.h"
#include "SLevelEditor.h"
#include "SLevelViewportToolBar.h"
#include "Slate/SceneViewport.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SViewport.h"

SLevelViewport::SLevelViewport() {}

SLevelViewport::~SLevelViewport() {}

void SLevelViewport::Construct(const FArguments& InArgs)
{
	ParentLayout = InArgs._ParentLayout;
	ParentLevelEditor = InArgs._ParentLevelEditor;
	ConfigKey = InArgs._ConfigKey;

	ConstructLevelEditorViewportClient(InArgs);
	SEditorViewport::Construct(SEditorViewport::FArguments());
	ActiveViewport = SceneViewport;
}

void SLevelViewport::ConstructLevelEditorViewportClient(const FArguments& InArgs)
{
	if (InArgs._LevelEditorViewportClient.IsValid())
	{
		LevelViewportClient = InArgs._LevelEditorViewportClient;
		LevelViewportClient->SetEditorViewportWidget(StaticCastSharedRef<SEditorViewport>(AsShared()));
	}
	else
	{
		LevelViewportClient = MakeShareable(new FLevelEditorViewportClient(StaticCastSharedRef<SLevelViewport>(AsShared())));
	}
	LevelViewportClient->SetViewportType(InArgs._ViewportType);
	LevelViewportClient->SetRealtime(InArgs._Realtime);
}

TSharedRef<FEditorViewportClient> SLevelViewport::MakeEditorViewportClient()
{
	return LevelViewportClient.ToSharedRef();
}

TSharedPtr<SWidget> SLevelViewport::MakeViewportToolbar()
{
	return SNew(SLevelViewportToolBar).Viewport(StaticCastSharedRef<SLevelViewport>(AsShared()));
}

bool SLevelViewport::IsVisible() const
{
	TSharedPtr<FLevelViewportLayout> Layout = ParentLayout.Pin();
	return !Layout.IsValid() || Layout->IsLevelViewportVisible(ConfigKey);
}

bool SLevelViewport::IsMaximized() const
{
	TSharedPtr<FLevelViewportLayout> Layout = ParentLayout.Pin();
	return Layout.IsValid() && Layout->IsViewportMaximized(*this);
}

void SLevelViewport::OnToggleMaximize()
{
	if (TSharedPtr<FLevelViewportLayout> Layout = ParentLayout.Pin())
	{
		Layout->RequestMaximizeViewport(ConfigKey, !IsMaximized(), false);
	}
}

FEditorViewportClient& SLevelViewport::GetAssetViewportClient()
{
	return GetLevelViewportClient();
}

FViewport* SLevelViewport::GetActiveViewport()
{
	return ActiveViewport.Get();
}

bool SLevelViewport::IsPlayInEditorViewportActive() const
{
	return ActiveViewport.IsValid() && ActiveViewport->IsPlayInEditorViewport();
}

bool SLevelViewport::HasPlayInEditorViewport() const
{
	return IsPlayInEditorViewportActive() || (InactiveViewport.IsValid() && InactiveViewport->IsPlayInEditorViewport());
}

void SLevelViewport::StartPlayInEditorSession(UGameViewportClient* PlayClient, const bool)
{
	check(!HasPlayInEditorViewport());
	check(!InactiveViewport.IsValid());
	InactiveViewport = ActiveViewport;
	ActiveViewport = MakeShareable(new FSceneViewport(PlayClient, ViewportWidget));
	const FIntPoint Size = InactiveViewport->GetSizeXY();
	if (InactiveViewport->HasFixedSize())
	{
		ActiveViewport->SetFixedViewportSize(static_cast<uint32>(Size.X), static_cast<uint32>(Size.Y));
	}
	PlayClient->SetViewportFrame(ActiveViewport.Get());
	ViewportWidget->SetViewportInterface(ActiveViewport.ToSharedRef());
}

void SLevelViewport::EndPlayInEditorSession()
{
	check(InactiveViewport.IsValid());
	if (ActiveViewport != SceneViewport)
	{
		ActiveViewport->Destroy();
		ActiveViewport = InactiveViewport;
	}
	else
	{
		InactiveViewport->Destroy();
	}
	InactiveViewport.Reset();
	ViewportWidget->SetViewportInterface(ActiveViewport.ToSharedRef());
	LevelViewportClient->Invalidate();
}

void SLevelViewport::SwapViewportsForSimulateInEditor()
{
	check(InactiveViewport.IsValid() && ActiveViewport != SceneViewport);
	TSharedPtr<FSceneViewport> GameSceneViewport = ActiveViewport;
	ActiveViewport = InactiveViewport;
	InactiveViewport = GameSceneViewport;
	ViewportWidget->SetViewportInterface(ActiveViewport.ToSharedRef());
	LevelViewportClient->Invalidate();
}

void SLevelViewport::SwapViewportsForPlayInEditor()
{
	check(InactiveViewport.IsValid() && ActiveViewport == SceneViewport);
	ActiveViewport = InactiveViewport;
	InactiveViewport = SceneViewport;
	ViewportWidget->SetViewportInterface(ActiveViewport.ToSharedRef());
}

void SLevelViewport::AddOverlayWidget(TSharedRef<SWidget> OverlaidWidget)
{
	ViewportOverlay->AddSlot()[OverlaidWidget];
}

void SLevelViewport::RemoveOverlayWidget(TSharedRef<SWidget> OverlaidWidget)
{
	ViewportOverlay->RemoveSlot(OverlaidWidget);
}
