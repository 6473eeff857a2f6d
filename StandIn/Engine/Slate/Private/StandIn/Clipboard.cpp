// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Clipboard.h"

namespace StandIn
{
namespace
{
struct FClipboard
{
	FString Text;
	TFunction<FString()> Get;
	TFunction<void(const FString&)> Set;
};

FClipboard& GetClipboard()
{
	static FClipboard Clipboard;
	return Clipboard;
}
}

FString GetClipboardText()
{
	return GetClipboard().Get ? GetClipboard().Get() : GetClipboard().Text;
}

void SetClipboardText(const FString& Text)
{
	GetClipboard().Text = Text;
	if (GetClipboard().Set)
	{
		GetClipboard().Set(Text);
	}
}

void SetClipboard(const TFunction<FString()>& Get, const TFunction<void(const FString&)>& Set)
{
	GetClipboard().Get = Get;
	GetClipboard().Set = Set;
}
}
