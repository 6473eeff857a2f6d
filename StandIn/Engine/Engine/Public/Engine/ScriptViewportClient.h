// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UnrealClient.h"
#include "ScriptViewportClient.generated.h"

// An object that is a viewport client. Its two bases lie at different addresses: convert pointers, never reinterpret them.

/** An object that is a viewport client. */
UCLASS()
class ENGINE_API UScriptViewportClient : public UObject, public FCommonViewportClient
{
	GENERATED_BODY()

public:
	UScriptViewportClient(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};
