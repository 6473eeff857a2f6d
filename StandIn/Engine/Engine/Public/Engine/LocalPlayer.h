// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/Player.h"
#include "UObject/ObjectMacros.h"
#include "LocalPlayer.generated.h"

// A player at this machine. Views, split screen and subsystems are left out.

class UGameViewportClient;

/** A player at this machine, who looks at a game viewport. */
UCLASS()
class ENGINE_API ULocalPlayer : public UPlayer
{
	GENERATED_BODY()

public:
	ULocalPlayer(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Where the player looks at the game. */
	UPROPERTY()
	UGameViewportClient* ViewportClient;

	/** Returns the number of the player's input device. */
	int32 GetControllerId() const { return ControllerId; }

	/** Tells the player that it was added to a game viewport. */
	virtual void PlayerAdded(UGameViewportClient* InViewportClient, int32 InControllerID);

private:
	int32 ControllerId;
};
