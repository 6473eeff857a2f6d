// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Internationalization/Text.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "GameInstance.generated.h"

// A running game: its world context and its local players. Online sessions, replays and subsystems are left out.

class UEngine;
class UGameViewportClient;
class ULocalPlayer;
class UWorld;
struct FWorldContext;

/** What a game instance needs to know to play in the editor. */
struct ENGINE_API FGameInstancePIEParameters
{
	/** Describes a session that plays, not simulates. */
	FGameInstancePIEParameters();

	/** The session simulates. */
	bool bSimulateInEditor;
};

/** Whether something in the start of a play-in-editor session worked, and why not. */
struct ENGINE_API FGameInstancePIEResult
{
	/** Describes a success. */
	static FGameInstancePIEResult Success() { return FGameInstancePIEResult(FText::GetEmpty(), true); }

	/** Describes a failure for a stated reason. */
	static FGameInstancePIEResult Failure(const FText& InReason) { return FGameInstancePIEResult(InReason, false); }

	/** Tells whether it worked. */
	bool IsSuccess() const { return bSuccess; }

	/** Why it failed; empty after a success. */
	FText FailureReason;

private:
	FGameInstancePIEResult(const FText& InReason, bool bInSuccess)
		: FailureReason(InReason)
		, bSuccess(bInSuccess)
	{}

	bool bSuccess;
};

/** A running game. */
UCLASS()
class ENGINE_API UGameInstance : public UObject
{
	GENERATED_BODY()

public:
	UGameInstance(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Makes the play world and its context for instance number PIEInstanceIndex; fires the world initialisation events. */
	virtual FGameInstancePIEResult InitializeForPlayInEditor(int32 PIEInstanceIndex, const FGameInstancePIEParameters& Params);

	/** Starts play in the instance's world. */
	virtual FGameInstancePIEResult StartPlayInEditorGameInstance(ULocalPlayer* LocalPlayer, const FGameInstancePIEParameters& Params);

	/** Lets go of players and of the context. */
	virtual void Shutdown();

	/** Returns the context the game runs in, or null. */
	FWorldContext* GetWorldContext() const { return WorldContext; }

	/** Returns the engine. */
	UEngine* GetEngine() const;

	/** Returns the world of the game, or null. */
	virtual UWorld* GetWorld() const override;

	/** Returns the game viewport of the game, or null. */
	UGameViewportClient* GetGameViewportClient() const;

	/** Adds a player with an input device number. */
	ULocalPlayer* CreateInitialPlayer(FString& OutError);

	/** Returns how many players sit at this machine. */
	int32 GetNumLocalPlayers() const { return LocalPlayers.Num(); }

	/** Returns the first player, or null. */
	ULocalPlayer* GetFirstGamePlayer() const;

	/** Returns the players at this machine. */
	const TArray<ULocalPlayer*>& GetLocalPlayers() const { return LocalPlayers; }

private:
	FWorldContext* WorldContext;

	UPROPERTY()
	TArray<ULocalPlayer*> LocalPlayers;
};
