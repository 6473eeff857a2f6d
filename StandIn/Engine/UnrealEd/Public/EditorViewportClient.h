// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Editor/UnrealEdTypes.h"
#include "Internationalization/Text.h"
#include "Logging/LogMacros.h"
#include "Templates/SharedPointer.h"
#include "UObject/GCObject.h"
#include "UnrealClient.h"

// The client of an editor's viewport. The constructor puts it into GEditor's list and the destructor takes it out, each
// with the list's event; both happen while the object is of this base class only.
// Left out: cameras (StandIn/CameraMover.h passes on how the mouse would move them), view modes, show flags, widgets, modes, most
// input, the view element drawer among its bases; the real-time switch is not saved between sessions.
// Uncertain in the engine and settled here: destroying a client whose Viewport is set is always fatal, also without a widget.

class FEditorModeTools;
class FPreviewScene;
class SEditorViewport;

UNREALED_API DECLARE_LOG_CATEGORY_EXTERN(LogEditorViewport, Log, All);

DECLARE_DELEGATE_RetVal(bool, FViewportStateGetter);

/** The client of an editor's viewport. */
class UNREALED_API FEditorViewportClient : public FCommonViewportClient, public FGCObject
{
public:
	/** Joins GEditor's list; GEditor must be there. A client that is seen in a widget is given the widget. */
	FEditorViewportClient(FEditorModeTools* InModeTools, FPreviewScene* InPreviewScene = nullptr,
		const TWeakPtr<SEditorViewport>& InEditorViewportWidget = nullptr);
	virtual ~FEditorViewportClient();
	FEditorViewportClient(const FEditorViewportClient&) = delete;
	FEditorViewportClient& operator=(const FEditorViewportClient&) = delete;

	/** The viewport, not owned; null until the widget has made it and when the widget goes. Must be null at the end. */
	FViewport* Viewport;

	/** The place in GEditor's list of all clients. */
	int32 ViewIndex;

	/** Tells whether the client is seen; unbound means that it is not. */
	FViewportStateGetter VisibilityDelegate;

	/** Returns the widget, or null for a client without one and once the widget goes; do not keep the result. */
	TSharedPtr<SEditorViewport> GetEditorViewportWidget() const;

	/** Asks for a new picture on a later tick; safe without a viewport. */
	void Invalidate(bool bInvalidateChildViews = true, bool bInvalidateHitProxies = true);

	/** Sets whether the view is drawn on every tick. */
	void SetRealtime(bool bInRealtime);

	/** Lets a system, named in plain words, overrule SetRealtime until it removes its override; the last one counts. */
	void AddRealtimeOverride(bool bShouldBeRealtime, FText SystemDisplayName);

	/** Removes a system's override; a missing one is an ensure when asked to be checked, and gives false. */
	bool RemoveRealtimeOverride(FText SystemDisplayName, bool bCheckMissingOverride = true);

	/** Tells whether some system overrules SetRealtime. */
	bool IsRealtimeOverrideSet() const { return RealtimeOverrides.Num() > 0; }

	/** Tells whether the view is drawn on every tick, overrides counted. */
	bool IsRealtime() const;

	/** Tells whether the client is seen. */
	bool IsVisible() const;

	/** Tells whether the client is one of the level editor. */
	virtual bool IsLevelEditorClient() const { return false; }

	/** Tells whether the view is a perspective. */
	bool IsPerspective() const { return GetViewportType() == LVT_Perspective; }

	virtual bool IsOrtho() const override { return !IsPerspective(); }

	/** Returns from where the view looks. */
	ELevelViewportType GetViewportType() const { return ViewportType; }

	/** Changes from where the view looks. */
	virtual void SetViewportType(ELevelViewportType InViewportType);

	/** Returns the colour behind the scene. */
	virtual FLinearColor GetBackgroundColor() const;

	/** Advances the client by one frame. */
	virtual void Tick(float DeltaSeconds);

	virtual UWorld* GetWorld() const override;
	virtual void Draw(FViewport* InViewport, FCanvas* Canvas) override;
	virtual void RedrawRequested(FViewport* InViewport) override;
	virtual bool InputKey(FViewport* InViewport, int32 ControllerId, FKey Key, EInputEvent Event, float AmountDepressed = 1.f,
		bool bGamepad = false) override;
	virtual bool InputAxis(FViewport* InViewport, int32 ControllerId, FKey Key, float Delta, float DeltaTime, int32 NumSamples = 1,
		bool bGamepad = false) override;
	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;

	/** Returns the preview that is seen, or null. */
	FPreviewScene* GetPreviewScene() const { return PreviewScene; }

	/** Returns the modes. */
	FEditorModeTools* GetModeTools() const { return ModeTools; }

	/** A new picture was asked for and not yet drawn. */
	bool bNeedsRedraw;

protected:
	/** The widget the client is seen in. */
	TWeakPtr<SEditorViewport> EditorViewportWidget;

	/** From where the view looks. */
	ELevelViewportType ViewportType;

private:
	/** A system's say on whether the view is drawn on every tick. */
	struct FRealtimeOverride
	{
		FText SystemDisplayName;
		bool bIsRealtime;
	};

	FEditorModeTools* ModeTools;
	FPreviewScene* PreviewScene;
	TArray<FRealtimeOverride> RealtimeOverrides;
	bool bIsRealtime;
};
