// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Subsystems/Subsystem.h"
#include "UObject/ObjectMacros.h"
#include "EditorSubsystem.generated.h"

// The base of subsystems that live as long as the editor engine. Subsystems of modules loaded later are not made.

/** The base of subsystems that live as long as the editor engine. */
UCLASS(Abstract)
class UNREALED_API UEditorSubsystem : public USubsystem
{
	GENERATED_BODY()

public:
	UEditorSubsystem();
};
