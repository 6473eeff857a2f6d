// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

// The clipboard of text widgets: the program's own until the host connects the system's.

namespace StandIn
{
/** Returns the text on the clipboard. */
SLATE_API FString GetClipboardText();

/** Puts a text on the clipboard. */
SLATE_API void SetClipboardText(const FString& Text);

/** Connects the system's clipboard; unset functions restore the program's own. */
SLATE_API void SetClipboard(const TFunction<FString()>& Get, const TFunction<void(const FString&)>& Set);
}
