// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "EditorViewportClient.h"

// The client of a level editor's viewport. It joins both lists of GEditor, the level list from its own constructor.
// Left out: selection, dragging, piloting, previews, camera cuts.
// Uncertain in the engine and settled here: losing the keyboard changes neither of the two current clients.

class SLevelViewport;
class UWorld;

/** The client of a level editor's viewport. */
class UNREALED_API FLevelEditorViewportClient : public FEditorViewportClient
{
public:
	/** Joins GEditor's lists; a client without a pane is given null. */
	FLevelEditorViewportClient(const TSharedPtr<SLevelViewport>& InLevelViewport);
	virtual ~FLevelEditorViewportClient();

	virtual bool IsLevelEditorClient() const override { return true; }
	virtual UWorld* GetWorld() const override;
	virtual bool InputKey(FViewport* InViewport, int32 ControllerId, FKey Key, EInputEvent Event, float AmountDepressed = 1.f,
		bool bGamepad = false) override;
	virtual void ReceivedFocus(FViewport* InViewport) override;

	/** Makes this the client that is worked in. */
	void SetCurrentViewport();

	/** Makes this the client that last got a key. */
	void SetLastKeyViewport();

	/** Is told that play may be about to start. */
	void OnPreBeginPIE(const bool bIsSimulating);

	/** Is told that the edited map has changed. */
	void OnMapChanged(uint32 MapChangeFlags);

	/** Gives a client that was made without a pane to a pane; for panes only. */
	void SetEditorViewportWidget(const TWeakPtr<SEditorViewport>& InWidget) { EditorViewportWidget = InWidget; }

private:
	UWorld* World;
};

/** The client that is worked in, or null. */
extern UNREALED_API FLevelEditorViewportClient* GCurrentLevelEditingViewportClient;

/** The client that last got a key, or null. */
extern UNREALED_API FLevelEditorViewportClient* GLastKeyLevelEditingViewportClient;
