// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "ToolMenuTestContext.generated.h"

/** Context object of tests. */
UCLASS()
class UToolMenuTestContext : public UObject
{
	GENERATED_BODY()

public:
	/** Something to tell contexts apart. */
	int32 Number = 0;
};
