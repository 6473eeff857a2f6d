// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Commands/InputChord.h"

namespace InputChordPrivate
{
/** What stands on a key: the digit keys are named in words. */
FString GetKeyText(const FKey& Key, const bool bLongDisplayName)
{
	const FKey Digits[] = {
		EKeys::Zero, EKeys::One, EKeys::Two, EKeys::Three, EKeys::Four, EKeys::Five, EKeys::Six, EKeys::Seven, EKeys::Eight, EKeys::Nine};
	for (int32 Digit = 0; Digit < 10; ++Digit)
	{
		if (Key == Digits[Digit])
		{
			return FString::FromInt(Digit);
		}
	}
	return Key.GetDisplayName(bLongDisplayName).ToString();
}
}

FInputChord::FInputChord()
	: FInputChord(FKey(), false, false, false, false)
{}

FInputChord::FInputChord(const FKey InKey)
	: FInputChord(InKey, false, false, false, false)
{}

FInputChord::FInputChord(const FKey InKey, const EModifierKey::Type InModifierFlags)
	: FInputChord(InKey, (InModifierFlags & EModifierKey::Shift) != 0, (InModifierFlags & EModifierKey::Control) != 0,
		(InModifierFlags & EModifierKey::Alt) != 0, (InModifierFlags & EModifierKey::Command) != 0)
{}

FInputChord::FInputChord(const EModifierKey::Type InModifierFlags, const FKey InKey)
	: FInputChord(InKey, InModifierFlags)
{}

FInputChord::FInputChord(const FKey InKey, const bool bInShift, const bool bInCtrl, const bool bInAlt, const bool bInCmd)
	: Key(InKey)
	, bShift(bInShift)
	, bCtrl(bInCtrl)
	, bAlt(bInAlt)
	, bCmd(bInCmd)
{}

bool FInputChord::operator==(const FInputChord& Other) const
{
	return Key == Other.Key && bShift == Other.bShift && bCtrl == Other.bCtrl && bAlt == Other.bAlt && bCmd == Other.bCmd;
}

bool FInputChord::IsValidChord() const
{
	return Key.IsValid() && !Key.IsModifierKey();
}

FText FInputChord::GetInputText(const bool bLongDisplayName) const
{
	if (!IsValidChord())
	{
		return FText::GetEmpty();
	}
	FString Text;
	Text += bCtrl ? TEXT("Ctrl+") : TEXT("");
	Text += bCmd ? TEXT("Cmd+") : TEXT("");
	Text += bAlt ? TEXT("Alt+") : TEXT("");
	Text += bShift ? TEXT("Shift+") : TEXT("");
	Text += InputChordPrivate::GetKeyText(Key, bLongDisplayName);
	return FText::FromString(Text);
}
