// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/Clipboard.h"
#include "Widgets/Input/SEditableText.h"

bool SEditableText::CopySelection() const
{
	if (AnyTextSelected())
	{
		StandIn::SetClipboardText(GetSelectedText().ToString());
	}
	return AnyTextSelected();
}

void SEditableText::PasteText()
{
	if (IsReadOnly.Get())
	{
		return;
	}
	// One line only: a break ends what is pasted.
	const FString Pasted = StandIn::GetClipboardText();
	int32 Length = 0;
	while (Length < Pasted.Len() && Pasted[Length] != TEXT('\n') && Pasted[Length] != TEXT('\r'))
	{
		++Length;
	}
	ReplaceSelection(Pasted.Left(Length));
}
