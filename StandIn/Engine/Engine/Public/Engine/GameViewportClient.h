// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Engine/ScriptViewportClient.h"
#include "UObject/ObjectMacros.h"
#include "GameViewportClient.generated.h"

// The client of a game's viewport, as a play-in-editor session makes it. Left out: input, sound, statistics, console,
// split screen, and the console command interface among its bases.

class UGameInstance;
class ULocalPlayer;
class UWorld;
struct FWorldContext;

DECLARE_MULTICAST_DELEGATE_OneParam(FOnCloseRequested, FViewport*);

/** The client of a game's viewport. */
UCLASS(transient)
class ENGINE_API UGameViewportClient : public UScriptViewportClient
{
	GENERATED_BODY()

public:
	UGameViewportClient(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The viewport the game is seen in; null before it is made and after it is closed. */
	FViewport* Viewport;

	/** The frame that holds the viewport, or null. */
	FViewportFrame* ViewportFrame;

	/** Connects the client with its game. */
	virtual void Init(FWorldContext& WorldContext, UGameInstance* OwningGameInstance, bool bCreateNewAudioDevice = true);

	/** Takes over a frame and its viewport, or lets go of both when null. */
	virtual void SetViewportFrame(FViewportFrame* InViewportFrame);

	/** Takes over a viewport, or lets go of it when null. */
	virtual void SetViewport(FViewport* InViewportFrame);

	/** Adds the game's first player; null with an error text when the game has no instance. */
	virtual ULocalPlayer* SetupInitialLocalPlayer(FString& OutError);

	/** Lets go of the viewport. */
	virtual void DetachViewportClient();

	virtual UWorld* GetWorld() const override;
	virtual void RedrawRequested(FViewport* InViewport) override;
	virtual void CloseRequested(FViewport* InViewport) override;

	/** Returns the game, or null before Init. */
	UGameInstance* GetGameInstance() const { return GameInstance; }

	/** Fires when the viewport is asked to close. */
	FOnCloseRequested& OnCloseRequested() { return CloseRequestedDelegate; }

	/** Fires for each game viewport made, before it is marked as a play-in-editor viewport; does not say which one. */
	static FSimpleMulticastDelegate& OnViewportCreated();

protected:
	UPROPERTY(transient)
	UWorld* World;

	UPROPERTY()
	UGameInstance* GameInstance;

private:
	FOnCloseRequested CloseRequestedDelegate;
};
