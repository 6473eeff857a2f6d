// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/EnumAsByte.h"
#include "Containers/IndirectArray.h"
#include "Engine/EngineTypes.h"
#include "Logging/LogMacros.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Engine.generated.h"

// The engine object and the contexts of its worlds. Left out: everything that runs a game (levels, rendering, audio, console
// commands, subsystems); Init makes nothing beyond what a derived engine makes.

class IEngineLoop;
class UGameInstance;
class UGameViewportClient;
class UWorld;

ENGINE_API DECLARE_LOG_CATEGORY_EXTERN(LogEngine, Log, All);

/** Where the engine keeps track of one world: the edited one, a play session's or a preview. */
struct ENGINE_API FWorldContext
{
	FWorldContext();

	/** What the context's world is for. */
	TEnumAsByte<EWorldType::Type> WorldType;

	/** The name by which others remember the context. */
	FName ContextHandle;

	/** The game viewport of a play world, or null. */
	UGameViewportClient* GameViewport;

	/** The game of a play world, or null. */
	UGameInstance* OwningGameInstance;

	/** The number of the play-in-editor instance, -1 for other contexts. */
	int32 PIEInstance;

	/** Returns the world, or null. */
	UWorld* World() const { return ThisCurrentWorld; }

	/** Changes the world, in this context and in every pointer given to AddRef. */
	void SetCurrentWorld(UWorld* InWorld);

	/** Keeps a pointer at the context's world from now on; RemoveRef must follow before the pointer dies. */
	void AddRef(UWorld*& WorldPtr);

	/** Stops keeping a pointer at the context's world. */
	void RemoveRef(UWorld*& WorldPtr);

private:
	TArray<UWorld**> ExternalReferences;
	UWorld* ThisCurrentWorld;
};

/** The engine object, one in a process. */
UCLASS()
class ENGINE_API UEngine : public UObject
{
	GENERATED_BODY()

public:
	UEngine(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The latest game viewport, null outside of play. */
	UPROPERTY()
	UGameViewportClient* GameViewport;

	/** Sets the engine up. */
	virtual void Init(IEngineLoop* InEngineLoop);

	/** Starts the engine once everything is set up. */
	virtual void Start();

	/** Lets go of everything before the program ends. */
	virtual void PreExit();

	/** Runs a frame. */
	virtual void Tick(float DeltaSeconds, bool bIdleMode);

	/** Adds a context for a world of a type. */
	FWorldContext& CreateNewWorldContext(EWorldType::Type WorldType);

	/** Removes the context of a world; nothing happens without one. */
	void DestroyWorldContext(UWorld* InWorld);

	/** Returns all contexts. */
	const TIndirectArray<FWorldContext>& GetWorldContexts() const { return WorldList; }

	/** Returns the context of a world, or null. */
	FWorldContext* GetWorldContextFromWorld(const UWorld* InWorld);

	/** Returns the context of a world; fatal without one. */
	FWorldContext& GetWorldContextFromWorldChecked(const UWorld* InWorld);

	/** Returns the context of a name, or null. */
	FWorldContext* GetWorldContextFromHandle(const FName WorldContextHandle);

	/** Returns the context of a play-in-editor instance, or null. */
	FWorldContext* GetWorldContextFromPIEInstance(const int32 PIEInstance);

	/** Is told that a world was made. */
	virtual void WorldAdded(UWorld* World);

	/** Is told that a world was destroyed. */
	virtual void WorldDestroyed(UWorld* InWorld);

	/** Returns the name of a play-in-editor map: UEDPIE_ and the instance before the map's own. */
	static FString MakePIEWorldName(const FString& MapName, int32 PIEInstance);

protected:
	/** The contexts; they stay where they are while others come and go. */
	TIndirectArray<FWorldContext> WorldList;

private:
	int32 NextWorldContextHandle;
};

/** The engine object; null before the engine is initialised. */
extern ENGINE_API UEngine* GEngine;
