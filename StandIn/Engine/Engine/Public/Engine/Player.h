// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Player.generated.h"

// The base of the players of a game. Controllers and console input are left out.

/** Somebody who plays. */
UCLASS()
class ENGINE_API UPlayer : public UObject
{
	GENERATED_BODY()

public:
	UPlayer(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};
