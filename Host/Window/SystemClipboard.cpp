// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/SystemClipboard.h"

#include "Host/Program/Strings.h"

#include "StandIn/Clipboard.h"

#include <SDL.h>

namespace TintmillHost
{
FSystemClipboard::FSystemClipboard()
{
	StandIn::SetClipboard(
		[] {
			char* const Text = SDL_GetClipboardText();
			const FString Result = FromUtf8(Text != nullptr ? Text : "");
			SDL_free(Text);
			return Result;
		},
		[](const FString& Text) { SDL_SetClipboardText(ToUtf8(Text).c_str()); });
}

FSystemClipboard::~FSystemClipboard()
{
	StandIn::SetClipboard({}, {});
}
}
