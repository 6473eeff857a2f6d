// Copyright The Tintmill authors. All rights reserved.

#include "SEditorViewport.h"

#include "EditorViewportClient.h"
#include "Slate/SceneViewport.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SViewport.h"

SEditorViewport::SEditorViewport()
	: LastTickTime(0.0)
{}

SEditorViewport::~SEditorViewport()
{
	if (Client.IsValid())
	{
		Client->Viewport = nullptr;
	}
	Client.Reset();
	if (SceneViewport.IsValid())
	{
		// A list of draw elements may still hold the viewport.
		SceneViewport->Destroy();
	}
}

void SEditorViewport::Construct(const FArguments&)
{
	ChildSlot[SAssignNew(ViewportWidget, SViewport)[SAssignNew(ViewportOverlay, SOverlay)]];

	TSharedRef<FEditorViewportClient> ViewportClient = MakeEditorViewportClient();
	if (!ViewportClient->VisibilityDelegate.IsBound())
	{
		ViewportClient->VisibilityDelegate.BindSP(this, &SEditorViewport::IsVisible);
	}
	SceneViewport = MakeShareable(new FSceneViewport(&ViewportClient.Get(), ViewportWidget));
	ViewportClient->Viewport = SceneViewport.Get();
	ViewportWidget->SetViewportInterface(SceneViewport.ToSharedRef());
	Client = ViewportClient;

	CommandList = MakeShareable(new FUICommandList);
	BindCommands();

	TSharedPtr<SWidget> ViewportToolbar = MakeViewportToolbar();
	if (ViewportToolbar.IsValid())
	{
		ViewportOverlay->AddSlot().VAlign(VAlign_Top)[ViewportToolbar.ToSharedRef()];
	}
	PopulateViewportOverlays(ViewportOverlay.ToSharedRef());
}

void SEditorViewport::PopulateViewportOverlays(TSharedRef<SOverlay>) {}

void SEditorViewport::Invalidate()
{
	Client->Invalidate();
}

bool SEditorViewport::IsVisible() const
{
	return true;
}

void SEditorViewport::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	SCompoundWidget::Tick(AllottedGeometry, InCurrentTime, InDeltaTime);
	LastTickTime = InCurrentTime;
}

FReply SEditorViewport::OnFocusReceived(const FGeometry&, const FFocusEvent& InFocusEvent)
{
	return FReply::Handled().SetUserFocus(ViewportWidget.ToSharedRef(), InFocusEvent.GetCause());
}
