// Copyright The Tintmill authors. All rights reserved.

#include "Editor.h"
#include "Engine/World.h"
#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "UObject/Package.h"

void UEditorEngine::EditorDestroyWorld(FWorldContext& Context)
{
	UWorld* ContextWorld = Context.World();
	if (ContextWorld == nullptr)
	{
		return;
	}
	if (FLevelEditorModule* LevelEditorModule = FModuleManager::GetModulePtr<FLevelEditorModule>("LevelEditor"))
	{
		LevelEditorModule->BroadcastMapChanged(ContextWorld, EMapChangeType::TearDownWorld);
	}
	ContextWorld->DestroyWorld(true);
	Context.SetCurrentWorld(nullptr);
	GWorld = nullptr;
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}

UWorld* UEditorEngine::EditNewWorld(FWorldContext& Context, UPackage* Package, FName WorldName)
{
	if (Package == nullptr)
	{
		Package = CreatePackage(*FString::Printf(TEXT("/Temp/Untitled_%d"), NumUntitledMaps++));
		WorldName = FName(TEXT("Untitled"));
	}
	UWorld* NewWorld = UWorld::CreateWorld(EWorldType::Editor, true, WorldName, Package);
	Context.SetCurrentWorld(NewWorld);
	GWorld = NewWorld;
	return NewWorld;
}

UWorld* UEditorEngine::NewMap()
{
	EndPlayMap();
	FWorldContext& Context = GetEditorWorldContext();
	EditorDestroyWorld(Context);
	UWorld* NewWorld = EditNewWorld(Context, nullptr, NAME_None);
	FEditorDelegates::MapChange.Broadcast(MapChangeEventFlags::NewMap);
	if (FLevelEditorModule* LevelEditorModule = FModuleManager::GetModulePtr<FLevelEditorModule>("LevelEditor"))
	{
		LevelEditorModule->BroadcastMapChanged(NewWorld, EMapChangeType::NewMap);
	}
	RedrawLevelEditingViewports();
	return NewWorld;
}

UWorld* UEditorEngine::LoadMapPackage(const FString& LongPackageName)
{
	EndPlayMap();
	FWorldContext& Context = GetEditorWorldContext();
	EditorDestroyWorld(Context);
	int32 Slash = INDEX_NONE;
	LongPackageName.FindLastChar(TEXT('/'), Slash);
	UWorld* NewWorld = EditNewWorld(Context, CreatePackage(*LongPackageName), FName(*LongPackageName.Mid(Slash + 1)));
	FEditorDelegates::MapChange.Broadcast(MapChangeEventFlags::NewMap);
	if (FLevelEditorModule* LevelEditorModule = FModuleManager::GetModulePtr<FLevelEditorModule>("LevelEditor"))
	{
		LevelEditorModule->BroadcastMapChanged(NewWorld, EMapChangeType::LoadMap);
	}
	RedrawLevelEditingViewports();
	return NewWorld;
}
