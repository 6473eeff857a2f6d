// Copyright The Tintmill authors. All rights reserved.

#include "UnrealClient.h"

#include "CanvasTypes.h"
#include "CoreGlobals.h"
#include "StandIn/FatalHandler.h"
#include "StandIn/PicturePass.h"
#include "StandIn/ScenePainter.h"

FViewport::FOnViewportResized FViewport::ViewportResizedEvent;

FViewport::FViewport(FViewportClient* InViewportClient)
	: ViewportClient(InViewportClient)
	, SizeX(0)
	, SizeY(0)
	, bIsPlayInEditorViewport(false)
	, PresentedPassKey(0)
	, ScenePainterGeneration(0)
	, bSceneValid(false)
	, bScenePresented(false)
{}

FViewport::~FViewport() {}

void FViewport::SetViewportClient(FViewportClient* InViewportClient)
{
	if (ViewportClient != InViewportClient)
	{
		ViewportClient = InViewportClient;
		InvalidateScene();
	}
}

bool FViewport::IsSceneCurrent() const
{
	return bSceneValid && ScenePainterGeneration == StandIn::GetScenePainterGeneration();
}

bool FViewport::WouldDrawSomethingElse() const
{
	if (SizeX == 0 || SizeY == 0 || ViewportClient == nullptr)
	{
		return false;
	}
	const uint64 PassKey = StandIn::GetPicturePassKey(ViewportClient);
	return !IsSceneCurrent() || !bScenePresented || PassKey == 0 || PassKey != PresentedPassKey;
}

void FViewport::PaintSceneIfNeeded()
{
	if (IsSceneCurrent())
	{
		return;
	}
	Scene.Reset(GetSizeXY());
	// The painter may invalidate this viewport again; that then counts for the next draw.
	bSceneValid = true;
	bScenePresented = false;
	ScenePainterGeneration = StandIn::GetScenePainterGeneration();
	StandIn::PaintScene(*ViewportClient, Scene.Size, Scene.Pixels.GetData());
}

void FViewport::Draw(bool bShouldPresent)
{
	check(IsInGameThread());
	if (SizeX == 0 || SizeY == 0)
	{
		return;
	}
	check(ViewportClient);

	PaintSceneIfNeeded();
	const uint64 PassKey = StandIn::GetPicturePassKey(ViewportClient);
	Surface.Size = Scene.Size;
	Surface.Pixels = Scene.Pixels;
	StandIn::ApplyPicturePasses(ViewportClient, Surface.Size, Surface.Pixels.GetData());

	FCanvas Canvas(this, nullptr, ViewportClient->GetWorld(), GMaxRHIFeatureLevel);
	ViewportClient->Draw(this, &Canvas);
	++Surface.Revision;

	if (bShouldPresent)
	{
		PresentedSurface.Size = Surface.Size;
		PresentedSurface.Pixels = Surface.Pixels;
		++PresentedSurface.Revision;
		PresentedPassKey = PassKey;
		bScenePresented = true;
	}
}

void FViewport::UpdateSize(uint32 NewSizeX, uint32 NewSizeY)
{
	if (NewSizeX == SizeX && NewSizeY == SizeY)
	{
		return;
	}
	SizeX = NewSizeX;
	SizeY = NewSizeY;
	Surface.Reset(GetSizeXY());
	InvalidateScene();
	ViewportResizedEvent.Broadcast(this, 0);
}

void FViewport::ReleaseSurfaces()
{
	SizeX = 0;
	SizeY = 0;
	Scene.Reset(FIntPoint(0, 0));
	Surface.Reset(FIntPoint(0, 0));
	PresentedSurface.Reset(FIntPoint(0, 0));
	InvalidateScene();
}

void FViewportClient::RedrawRequested(FViewport* Viewport)
{
	Viewport->Draw();
}

void FViewportClient::Draw(FViewport*, FCanvas*) {}

bool FViewportClient::InputKey(FViewport*, int32, FKey, EInputEvent, float, bool)
{
	return false;
}

bool FViewportClient::InputAxis(FViewport*, int32, FKey, float, float, int32, bool)
{
	return false;
}

void FViewportClient::LostFocus(FViewport*) {}

void FViewportClient::ReceivedFocus(FViewport*) {}

void FViewportClient::CloseRequested(FViewport*) {}
