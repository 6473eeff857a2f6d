// Copyright The Tintmill authors. All rights reserved.

#include "Engine/GameInstance.h"

#include "CoreGlobals.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Engine/LocalPlayer.h"
#include "Engine/World.h"
#include "UObject/Package.h"

FGameInstancePIEParameters::FGameInstancePIEParameters()
	: bSimulateInEditor(false)
{}

UGameInstance::UGameInstance(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WorldContext(nullptr)
{}

FGameInstancePIEResult UGameInstance::InitializeForPlayInEditor(int32 PIEInstanceIndex, const FGameInstancePIEParameters&)
{
	check(GEngine);
	// The name of the play map comes from the map that is being edited.
	const UWorld* EditorWorld = nullptr;
	for (const FWorldContext& Context : GEngine->GetWorldContexts())
	{
		if (Context.WorldType == EWorldType::Editor)
		{
			EditorWorld = Context.World();
		}
	}
	check(EditorWorld);

	FWorldContext& NewContext = GEngine->CreateNewWorldContext(EWorldType::PIE);
	NewContext.PIEInstance = PIEInstanceIndex;
	NewContext.OwningGameInstance = this;
	WorldContext = &NewContext;

	const FString PackageName = FString::Printf(TEXT("/Temp/%s"), *UEngine::MakePIEWorldName(EditorWorld->GetMapName(), PIEInstanceIndex));
	UPackage* PlayPackage = CreatePackage(*PackageName);
	PlayPackage->SetFlags(RF_Transient);
	UWorld* NewWorld = NewObject<UWorld>(PlayPackage, EditorWorld->GetFName());
	NewWorld->WorldType = EWorldType::PIE;
	NewWorld->FeatureLevel = EditorWorld->FeatureLevel;
	NewWorld->AddToRoot();
	NewWorld->SetGameInstance(this);
	NewContext.SetCurrentWorld(NewWorld);
	NewWorld->InitWorld(UWorld::InitializationValues().SetTransactional(false));
	return FGameInstancePIEResult::Success();
}

FGameInstancePIEResult UGameInstance::StartPlayInEditorGameInstance(ULocalPlayer*, const FGameInstancePIEParameters&)
{
	check(GetWorld());
	GetWorld()->BeginPlay();
	return FGameInstancePIEResult::Success();
}

void UGameInstance::Shutdown()
{
	LocalPlayers.Empty();
	WorldContext = nullptr;
}

UEngine* UGameInstance::GetEngine() const
{
	return GEngine;
}

UWorld* UGameInstance::GetWorld() const
{
	return WorldContext != nullptr ? WorldContext->World() : nullptr;
}

UGameViewportClient* UGameInstance::GetGameViewportClient() const
{
	return WorldContext != nullptr ? WorldContext->GameViewport : nullptr;
}

ULocalPlayer* UGameInstance::CreateInitialPlayer(FString& OutError)
{
	OutError.Empty();
	ULocalPlayer* NewPlayer = NewObject<ULocalPlayer>(this);
	NewPlayer->PlayerAdded(GetGameViewportClient(), LocalPlayers.Num());
	LocalPlayers.Add(NewPlayer);
	return NewPlayer;
}

ULocalPlayer* UGameInstance::GetFirstGamePlayer() const
{
	return LocalPlayers.Num() > 0 ? LocalPlayers[0] : nullptr;
}
