// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "ILevelEditor.h"
#include "Modules/ModuleInterface.h"
#include "Templates/SharedPointer.h"

class IAssetViewport;
class SLevelEditor;
class SLevelViewport;
class UWorld;

// The level editor's module. Left out: menu extenders, tool bars, commands, tab spawners; StandIn/LevelEditorPanes.h opens
// the level editor instead.

/** What happened to the edited map. */
enum class EMapChangeType : uint8
{
	LoadMap,
	SaveMap,
	NewMap,
	TearDownWorld,
};

/** The level editor's module. */
class LEVELEDITOR_API FLevelEditorModule : public IModuleInterface
{
public:
	DECLARE_EVENT_TwoParams(FLevelEditorModule, FMapChangedEvent, UWorld*, EMapChangeType);

	FLevelEditorModule();
	virtual ~FLevelEditorModule();

	virtual void StartupModule() override;
	virtual void ShutdownModule() override;
	virtual bool SupportsDynamicReloading() override { return false; }

	/** Returns the pane that is worked in, else the first that is seen, else null. */
	TSharedPtr<IAssetViewport> GetFirstActiveViewport();

	/** Returns the same pane under its own class. */
	TSharedPtr<SLevelViewport> GetFirstActiveLevelViewport();

	/** Returns the level editor, or null while it is closed. */
	virtual TSharedPtr<ILevelEditor> GetFirstLevelEditor();

	/** Returns the level editor; empty while it is closed. */
	virtual TWeakPtr<ILevelEditor> GetLevelEditorInstance() const;

	/** Fires when the edited map is torn down, made or loaded. */
	virtual FMapChangedEvent& OnMapChanged() { return MapChangedEvent; }

	/** Fires OnMapChanged. */
	virtual void BroadcastMapChanged(UWorld* World, EMapChangeType MapChangeType);

	/** Makes the level editor's widget the one of this module, or none; for StandIn/LevelEditorPanes.h. */
	void SetLevelEditorInstance(const TSharedPtr<SLevelEditor>& InLevelEditor);

	/** Returns the level editor's widget, or null. */
	TSharedPtr<SLevelEditor> GetLevelEditorWidget() const { return LevelEditorInstance; }

private:
	TSharedPtr<SLevelEditor> LevelEditorInstance;
	FMapChangedEvent MapChangedEvent;
};
