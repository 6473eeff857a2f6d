// Copyright The Tintmill authors. All rights reserved.

#include "PreviewScene.h"

#include "Engine/Engine.h"
#include "Engine/World.h"
#include "UObject/Package.h"
#include "UObject/UObjectBase.h"

FPreviewScene::FPreviewScene(ConstructionValues CVS)
	: PreviewWorld(nullptr)
{
	PreviewWorld = NewObject<UWorld>(GetTransientPackage(), NAME_None, RF_Transient);
	PreviewWorld->WorldType = CVS.bEditor ? EWorldType::EditorPreview : EWorldType::GamePreview;
	if (GEngine != nullptr)
	{
		GEngine->CreateNewWorldContext(PreviewWorld->WorldType).SetCurrentWorld(PreviewWorld);
	}
	PreviewWorld->InitWorld(
		UWorld::InitializationValues().AllowAudioPlayback(false).CreatePhysicsScene(false).ShouldSimulatePhysics(false).SetTransactional(
			false));
}

FPreviewScene::~FPreviewScene()
{
	if (UObjectInitialized() && PreviewWorld != nullptr)
	{
		PreviewWorld->CleanupWorld();
		if (GEngine != nullptr)
		{
			GEngine->DestroyWorldContext(PreviewWorld);
		}
	}
}

void FPreviewScene::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(PreviewWorld);
}
