// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "ToolMenuContext.h"
#include "ToolMenuDelegates.h"

namespace ToolMenuActions
{
/** The action of an entry; delegates that take a context are given this one. */
FUIAction Bind(const FToolUIActionChoice& Choice, const FToolMenuContext& Context);
}
