// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "ToolMenuBase.generated.h"

// Base of tool menus as the widgets see it. Menus cannot be edited by the user here, so it has nothing to say.

/** Base class of tool menus. */
UCLASS(Abstract)
class SLATE_API UToolMenuBase : public UObject
{
	GENERATED_BODY()

public:
	/** True if the user is editing the menu; never the case here. */
	virtual bool IsEditing() const { return false; }
};
