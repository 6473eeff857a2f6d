// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Editor/EditorEngine.h"
#include "UObject/ObjectMacros.h"
#include "UnrealEdEngine.generated.h"

// The concrete class of the editor engine. It adds nothing here.

/** The editor engine's concrete class. */
UCLASS(transient)
class UNREALED_API UUnrealEdEngine : public UEditorEngine
{
	GENERATED_BODY()

public:
	UUnrealEdEngine(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};
