// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "CoreTestObjects.h"
#include "CoreTestValues.h"
#include "UObject/Object.h"
#include "CoreTestSettings.generated.h"

USTRUCT()
struct FCoreTestLook
{
	GENERATED_BODY()

	UPROPERTY()
	bool bEnable = false;

	UPROPERTY()
	float Intensity = 1.0f;

	UPROPERTY()
	UCoreTestAsset* Asset = nullptr;
};

USTRUCT()
struct FCoreTestPair
{
	GENERATED_BODY()

	/*  Name of the pane. */
	UPROPERTY(config)
	FName Identifier;

	UPROPERTY(config)
	FCoreTestLook Look;
};

/**
* Settings that tests save
*/
UCLASS(config = EditorPerProjectUserSettings)
class UCoreTestSettings : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(config)
	bool bSwitch = false;

	UPROPERTY(config)
	int32 Count = 4;

	UPROPERTY(config)
	float Share = 0.25f;

	UPROPERTY(config)
	FString Title;

	UPROPERTY(config)
	FName Tag;

	UPROPERTY(config)
	ECoreTestKind Kind = ECoreTestKind::One;

	UPROPERTY(config)
	int32 Slots[2];

	UPROPERTY()
	int32 NotKept = 1;

	UCoreTestSettings();

	TArray<FCoreTestPair>& GetPairs() { return Pairs; }

protected:
	/** All pairs */
	UPROPERTY(config)
	TArray<FCoreTestPair> Pairs;
};

UCLASS()
class UCoreTestChildSettings : public UCoreTestSettings
{
	GENERATED_BODY()

public:
	UPROPERTY(config)
	int32 Own = 0;
};
