// Copyright The Tintmill authors. All rights reserved.

#include "LevelEditor.h"

#include "IAssetViewport.h"
#include "Modules/ModuleManager.h"
#include "SLevelEditor.h"
#include "SLevelViewport.h"

IMPLEMENT_MODULE(FLevelEditorModule, LevelEditor)

FLevelEditorModule::FLevelEditorModule() {}

FLevelEditorModule::~FLevelEditorModule() {}

void FLevelEditorModule::StartupModule() {}

void FLevelEditorModule::ShutdownModule()
{
	SetLevelEditorInstance(TSharedPtr<SLevelEditor>());
}

void FLevelEditorModule::SetLevelEditorInstance(const TSharedPtr<SLevelEditor>& InLevelEditor)
{
	LevelEditorInstance = InLevelEditor;
}

TSharedPtr<IAssetViewport> FLevelEditorModule::GetFirstActiveViewport()
{
	return LevelEditorInstance.IsValid() ? LevelEditorInstance->GetActiveViewportInterface() : TSharedPtr<IAssetViewport>();
}

TSharedPtr<SLevelViewport> FLevelEditorModule::GetFirstActiveLevelViewport()
{
	return LevelEditorInstance.IsValid() ? LevelEditorInstance->GetActiveLevelViewport() : TSharedPtr<SLevelViewport>();
}

TSharedPtr<ILevelEditor> FLevelEditorModule::GetFirstLevelEditor()
{
	return LevelEditorInstance;
}

TWeakPtr<ILevelEditor> FLevelEditorModule::GetLevelEditorInstance() const
{
	return LevelEditorInstance;
}

void FLevelEditorModule::BroadcastMapChanged(UWorld* World, EMapChangeType MapChangeType)
{
	MapChangedEvent.Broadcast(World, MapChangeType);
}
