// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "CoreMinimal.h"
#include "Kinds.h"
#include "UObject/Object.h"
#include "Settings.generated.h"

USTRUCT()
struct FSettingPair
{
	GENERATED_BODY()

	FSettingPair() = default;

	/*  Name of the thing, to find it again. */
	UPROPERTY(config)
	FName Identifier;

	/* What belongs to it */
	UPROPERTY(config)
	FPlain Value;
};

/**
* List of things with an identifier
*/
UCLASS(config=EditorPerProjectUserSettings)
class USampleSettings : public UObject
{
	GENERATED_BODY()

public:
	FPlain* Find(FName InIdentifier);
	void Set(const FName& InIdentifier, const FPlain& InValue);

protected:
	/** Everything that was set */
	UPROPERTY(config)
	TArray<FSettingPair> Pairs;
};
