// Copyright The Tintmill authors. All rights reserved.

#include "Engine/World.h"

#include "CoreGlobals.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "RHI.h"
#include "StandIn/Registrations.h"
#include "UObject/Package.h"
#include "UObject/UObjectBase.h"
#include "UObject/UObjectIterator.h"

DEFINE_LOG_CATEGORY(LogWorld);

UWorldProxy GWorld;

namespace StandIn
{
/** Lists who is bound to the feature level of a world. */
struct FWorldAccess
{
	static void List(const UWorld& World, TArray<FRegistration>& OutRegistrations)
	{
		for (const void* UserObject : World.OnFeatureLevelChanged.ListUserObjects())
		{
			OutRegistrations.Add(FRegistration{FString(TEXT("Delegates")), FString(TEXT("UWorld::OnFeatureLevelChanged")), UserObject});
		}
	}
};
}

namespace
{
const bool bWorldsListed = []() {
	StandIn::AddRegistry(TEXT("UWorld::OnFeatureLevelChanged"), [](TArray<StandIn::FRegistration>& OutRegistrations) {
		if (UObjectInitialized())
		{
			for (TObjectIterator<UWorld> It; It; ++It)
			{
				StandIn::FWorldAccess::List(**It, OutRegistrations);
			}
		}
	});
	return true;
}();
}

UWorld::UWorld(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WorldType(EWorldType::None)
	, FeatureLevel(GMaxRHIFeatureLevel)
	, bIsWorldInitialized(false)
	, bIsTearingDown(false)
	, bBegunPlay(false)
	, OwningGameInstance(nullptr)
{}

UWorld* UWorld::CreateWorld(const EWorldType::Type InWorldType, bool bInformEngineOfWorld, FName WorldName, UPackage* InWorldPackage,
	bool bAddToRoot, ERHIFeatureLevel::Type InFeatureLevel)
{
	UPackage* WorldPackage = InWorldPackage != nullptr ? InWorldPackage : GetTransientPackage();
	UWorld* NewWorld = NewObject<UWorld>(WorldPackage, WorldName, RF_Transactional);
	NewWorld->WorldType = InWorldType;
	if (InFeatureLevel != ERHIFeatureLevel::Num)
	{
		NewWorld->FeatureLevel = InFeatureLevel;
	}
	if (bAddToRoot)
	{
		NewWorld->AddToRoot();
	}
	NewWorld->InitWorld(InitializationValues().ShouldSimulatePhysics(false).SetTransactional(
		InWorldType != EWorldType::PIE && InWorldType != EWorldType::Game));
	if (GEngine != nullptr && bInformEngineOfWorld)
	{
		GEngine->WorldAdded(NewWorld);
	}
	return NewWorld;
}

void UWorld::InitWorld(const InitializationValues IVS)
{
	if (!ensure(!bIsWorldInitialized))
	{
		return;
	}
	FWorldDelegates::OnPreWorldInitialization.Broadcast(this, IVS);
	bIsWorldInitialized = true;
	FWorldDelegates::OnPostWorldInitialization.Broadcast(this, IVS);
}

void UWorld::BeginTearingDown()
{
	bIsTearingDown = true;
	UE_LOG(LogWorld, Log, TEXT("BeginTearingDown for %s"), *GetOutermost()->GetName());
	FWorldDelegates::OnWorldBeginTearDown.Broadcast(this);
}

void UWorld::CleanupWorld(bool bSessionEnded, bool bCleanupResources, UWorld*)
{
	UE_LOG(LogWorld, Log, TEXT("UWorld::CleanupWorld for %s, bSessionEnded=%s, bCleanupResources=%s"), *GetName(),
		bSessionEnded ? TEXT("true") : TEXT("false"), bCleanupResources ? TEXT("true") : TEXT("false"));
	FWorldDelegates::OnWorldCleanup.Broadcast(this, bSessionEnded, bCleanupResources);
	bIsWorldInitialized = false;
	FWorldDelegates::OnPostWorldCleanup.Broadcast(this, bSessionEnded, bCleanupResources);
}

void UWorld::DestroyWorld(bool bInformEngineOfWorld, UWorld* NewWorld)
{
	CleanupWorld(true, true, NewWorld);
	if (GEngine != nullptr && bInformEngineOfWorld)
	{
		GEngine->WorldDestroyed(this);
	}
	RemoveFromRoot();
	ClearFlags(RF_Standalone);
}

void UWorld::BeginPlay()
{
	bBegunPlay = true;
}

bool UWorld::IsGameWorld() const
{
	return WorldType == EWorldType::Game || WorldType == EWorldType::PIE || WorldType == EWorldType::GamePreview
		|| WorldType == EWorldType::GameRPC;
}

bool UWorld::IsEditorWorld() const
{
	return WorldType == EWorldType::Editor || WorldType == EWorldType::EditorPreview || WorldType == EWorldType::PIE;
}

bool UWorld::IsPreviewWorld() const
{
	return WorldType == EWorldType::EditorPreview || WorldType == EWorldType::GamePreview;
}

bool UWorld::IsPlayInEditor() const
{
	return WorldType == EWorldType::PIE;
}

const FString UWorld::GetMapName() const
{
	FString MapName = GetOutermost()->GetName();
	int32 Slash = INDEX_NONE;
	if (MapName.FindLastChar(TEXT('/'), Slash))
	{
		MapName = MapName.Mid(Slash + 1);
	}
	return MapName;
}

FDelegateHandle UWorld::AddOnFeatureLevelChangedHandler(const FOnFeatureLevelChanged::FDelegate& InOnFeatureLevelChangedDelegate)
{
	return OnFeatureLevelChanged.Add(InOnFeatureLevelChangedDelegate);
}

void UWorld::RemoveOnFeatureLevelChangedHandler(FDelegateHandle InHandle)
{
	OnFeatureLevelChanged.Remove(InHandle);
}

void UWorld::ChangeFeatureLevel(ERHIFeatureLevel::Type InFeatureLevel, bool)
{
	if (InFeatureLevel != FeatureLevel)
	{
		FeatureLevel = InFeatureLevel;
		OnFeatureLevelChanged.Broadcast(FeatureLevel);
	}
}

UGameViewportClient* UWorld::GetGameViewport() const
{
	FWorldContext* WorldContext = GEngine != nullptr ? GEngine->GetWorldContextFromWorld(this) : nullptr;
	return WorldContext != nullptr ? WorldContext->GameViewport : nullptr;
}

UWorld* UWorld::GetWorld() const
{
	return const_cast<UWorld*>(this);
}

void UWorld::BeginDestroy()
{
	OnFeatureLevelChanged.Clear();
	Super::BeginDestroy();
}
