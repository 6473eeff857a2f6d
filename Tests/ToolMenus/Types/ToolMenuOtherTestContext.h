// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "ToolMenuOtherTestContext.generated.h"

/** Context object of another class. */
UCLASS()
class UToolMenuOtherTestContext : public UObject
{
	GENERATED_BODY()
};
