// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "LevelEditorPlaySettings.generated.h"

// How play in the editor starts. Of the engine's many settings only the number of players is here.

/** How play in the editor starts. */
UCLASS(config = EditorPerProjectUserSettings)
class UNREALED_API ULevelEditorPlaySettings : public UObject
{
	GENERATED_BODY()

public:
	ULevelEditorPlaySettings(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Sets how many game viewports a session opens, at least 1. */
	void SetPlayNumberOfClients(const int32 InPlayNumberOfClients) { PlayNumberOfClients = InPlayNumberOfClients; }

	/** Gives the number of game viewports a session opens; true when it is in effect. */
	bool GetPlayNumberOfClients(int32& OutPlayNumberOfClients) const
	{
		OutPlayNumberOfClients = PlayNumberOfClients;
		return true;
	}

private:
	UPROPERTY(config)
	int32 PlayNumberOfClients;
};
