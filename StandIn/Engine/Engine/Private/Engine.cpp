// Copyright The Tintmill authors. All rights reserved.

#include "Engine/Engine.h"

#include "Engine/World.h"

DEFINE_LOG_CATEGORY(LogEngine);

UEngine* GEngine = nullptr;

FWorldContext::FWorldContext()
	: WorldType(EWorldType::None)
	, ContextHandle(NAME_None)
	, GameViewport(nullptr)
	, OwningGameInstance(nullptr)
	, PIEInstance(INDEX_NONE)
	, ThisCurrentWorld(nullptr)
{}

void FWorldContext::SetCurrentWorld(UWorld* InWorld)
{
	for (UWorld** WorldPtr : ExternalReferences)
	{
		*WorldPtr = InWorld;
	}
	ThisCurrentWorld = InWorld;
}

void FWorldContext::AddRef(UWorld*& WorldPtr)
{
	WorldPtr = ThisCurrentWorld;
	ExternalReferences.AddUnique(&WorldPtr);
}

void FWorldContext::RemoveRef(UWorld*& WorldPtr)
{
	ExternalReferences.Remove(&WorldPtr);
	WorldPtr = nullptr;
}

UEngine::UEngine(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, GameViewport(nullptr)
	, NextWorldContextHandle(0)
{}

void UEngine::Init(IEngineLoop*)
{
	UE_LOG(LogEngine, Log, TEXT("Initializing Engine..."));
}

void UEngine::Start() {}

void UEngine::PreExit() {}

void UEngine::Tick(float, bool) {}

FWorldContext& UEngine::CreateNewWorldContext(EWorldType::Type WorldType)
{
	FWorldContext* NewWorldContext = new FWorldContext;
	WorldList.Add(NewWorldContext);
	NewWorldContext->WorldType = WorldType;
	NewWorldContext->ContextHandle = FName(*FString::Printf(TEXT("Context_%i"), NextWorldContextHandle++));
	return *NewWorldContext;
}

void UEngine::DestroyWorldContext(UWorld* InWorld)
{
	for (int32 Index = 0; Index < WorldList.Num(); ++Index)
	{
		if (WorldList[Index].World() == InWorld)
		{
			WorldList[Index].SetCurrentWorld(nullptr);
			WorldList.RemoveAt(Index);
			return;
		}
	}
}

FWorldContext* UEngine::GetWorldContextFromWorld(const UWorld* InWorld)
{
	for (int32 Index = 0; Index < WorldList.Num(); ++Index)
	{
		if (WorldList[Index].World() == InWorld)
		{
			return &WorldList[Index];
		}
	}
	return nullptr;
}

FWorldContext& UEngine::GetWorldContextFromWorldChecked(const UWorld* InWorld)
{
	FWorldContext* WorldContext = GetWorldContextFromWorld(InWorld);
	check(WorldContext);
	return *WorldContext;
}

FWorldContext* UEngine::GetWorldContextFromHandle(const FName WorldContextHandle)
{
	for (int32 Index = 0; Index < WorldList.Num(); ++Index)
	{
		if (WorldList[Index].ContextHandle == WorldContextHandle)
		{
			return &WorldList[Index];
		}
	}
	return nullptr;
}

FWorldContext* UEngine::GetWorldContextFromPIEInstance(const int32 PIEInstance)
{
	for (int32 Index = 0; Index < WorldList.Num(); ++Index)
	{
		if (WorldList[Index].WorldType == EWorldType::PIE && WorldList[Index].PIEInstance == PIEInstance)
		{
			return &WorldList[Index];
		}
	}
	return nullptr;
}

void UEngine::WorldAdded(UWorld*) {}

void UEngine::WorldDestroyed(UWorld*) {}

FString UEngine::MakePIEWorldName(const FString& MapName, int32 PIEInstance)
{
	return FString::Printf(TEXT("UEDPIE_%d_%s"), PIEInstance, *MapName);
}
