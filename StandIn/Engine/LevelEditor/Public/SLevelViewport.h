// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Editor/UnrealEdTypes.h"
#include "IAssetViewport.h"
#include "SEditorViewport.h"
#include "Templates/SharedPointer.h"
#include "Widgets/DeclarativeSyntaxSupport.h"

class FLevelEditorViewportClient;
class FLevelViewportLayout;
class SLevelEditor;

// A pane of the level editor. Construct takes the key first, then makes the client (both lists of GEditor fire), then its
// viewport (nothing fires). Play in the pane swaps its viewport and leaves client and key alone.
// Left out: camera and actor previews, drag and drop, immersive mode, configuration saved by SaveConfig.

/** A pane of the level editor. */
class LEVELEDITOR_API SLevelViewport : public SEditorViewport, public IAssetViewport
{
public:
	SLATE_BEGIN_ARGS(SLevelViewport)
		: _ViewportType(LVT_Perspective)
		, _Realtime(false)
	{}
	SLATE_ARGUMENT(TSharedPtr<FLevelViewportLayout>, ParentLayout)
	SLATE_ARGUMENT(TWeakPtr<SLevelEditor>, ParentLevelEditor)
	SLATE_ARGUMENT(TSharedPtr<FLevelEditorViewportClient>, LevelEditorViewportClient)
	SLATE_ARGUMENT(ELevelViewportType, ViewportType)
	SLATE_ARGUMENT(bool, Realtime)
	SLATE_ARGUMENT(FName, ConfigKey)
	SLATE_END_ARGS()

	SLevelViewport();
	virtual ~SLevelViewport();

	/** Makes the pane; a client given as an argument is used instead of a new one. */
	void Construct(const FArguments& InArgs);

	/** Returns the key that the layout gave the pane; None for a pane made without one. */
	FName GetConfigKey() const { return ConfigKey; }

	/** Returns the pane's client. */
	const FLevelEditorViewportClient& GetLevelViewportClient() const { return *LevelViewportClient; }

	/** Returns the pane's client. */
	FLevelEditorViewportClient& GetLevelViewportClient() { return *LevelViewportClient; }

	/** Tells whether the pane fills its tab. */
	bool IsMaximized() const;

	/** Lets the pane fill its tab, or shows all panes again. */
	void OnToggleMaximize();

	virtual bool IsVisible() const override;

	virtual void StartPlayInEditorSession(UGameViewportClient* PlayClient, const bool bInSimulateInEditor) override;
	virtual void EndPlayInEditorSession() override;
	virtual void SwapViewportsForSimulateInEditor() override;
	virtual void SwapViewportsForPlayInEditor() override;
	virtual FEditorViewportClient& GetAssetViewportClient() override;
	virtual FViewport* GetActiveViewport() override;
	virtual TSharedPtr<FSceneViewport> GetSharedActiveViewport() const override { return ActiveViewport; }
	virtual bool HasPlayInEditorViewport() const override;
	virtual bool IsPlayInEditorViewportActive() const override;
	virtual bool IsInGameView() const override { return false; }
	virtual void AddOverlayWidget(TSharedRef<SWidget> OverlaidWidget) override;
	virtual void RemoveOverlayWidget(TSharedRef<SWidget> OverlaidWidget) override;
	virtual TSharedRef<const SWidget> AsWidget() const override { return AsShared(); }
	virtual TSharedRef<SWidget> AsWidget() override { return AsShared(); }

protected:
	virtual TSharedRef<FEditorViewportClient> MakeEditorViewportClient() override;
	virtual TSharedPtr<SWidget> MakeViewportToolbar() override;

	/** The key that the layout gave the pane. */
	FName ConfigKey;

private:
	void ConstructLevelEditorViewportClient(const FArguments& InArgs);

	TSharedPtr<FLevelEditorViewportClient> LevelViewportClient;
	TSharedPtr<FSceneViewport> ActiveViewport;
	TSharedPtr<FSceneViewport> InactiveViewport;
	TWeakPtr<FLevelViewportLayout> ParentLayout;
	TWeakPtr<SLevelEditor> ParentLevelEditor;
};
