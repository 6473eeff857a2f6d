// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/InputChord.h"
#include "Textures/SlateIcon.h"

// Commands of the user interface: name, texts, icon, kind and default key. There is no key binding editor and no
// FInputBindingManager: a command's active chord is its default chord, and there is one chord a command.

/** Kind of a menu entry; it decides which check mark is shown. */
enum class EUserInterfaceActionType : uint8
{
	/** No control of its own. */
	None,
	/** Pressed, never checked. */
	Button,
	/** Box with a tick. */
	ToggleButton,
	/** Ring with a dot. */
	RadioButton,
	/** Bare tick that can only be looked at. */
	Check,
	/** Pressed, without the check column. */
	CollapsedButton
};

class FUICommandInfo;

/** Named group of commands that may be active together. */
class SLATE_API FBindingContext : public TSharedFromThis<FBindingContext>
{
public:
	/** Makes a context; InStyleSetName names the style set that holds the commands' icons. */
	FBindingContext(const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName);

	/** Name of the context. */
	FName GetContextName() const { return ContextName; }

	/** Name of the context whose chords are active too, or NAME_None. */
	FName GetContextParent() const { return ContextParent; }

	/** Name of the style set that holds the commands' icons. */
	FName GetStyleSetName() const { return StyleSetName; }

	/** Description for people. */
	const FText& GetContextDesc() const { return ContextDesc; }

private:
	FName ContextName;
	FName ContextParent;
	FText ContextDesc;
	FName StyleSetName;
};

/** One command: what it is called, shown as and bound to. */
class SLATE_API FUICommandInfo
{
public:
	/** Makes a command without name in a context; use MakeCommandInfo. */
	FUICommandInfo(const FName InBindingContext);

	/** Makes a command with all its properties. */
	static void MakeCommandInfo(const TSharedRef<FBindingContext>& InContext, TSharedPtr<FUICommandInfo>& OutCommand,
		const FName InCommandName, const FText& InCommandLabel, const FText& InCommandDesc, const FSlateIcon& InIcon,
		const EUserInterfaceActionType InUserInterfaceType, const FInputChord& InDefaultChord);

	/** The chord as shown in menus, for example "Ctrl+S". */
	FText GetInputText() const;

	/** The chord in force. */
	const FInputChord& GetDefaultChord() const { return DefaultChord; }

	/** True if the command has a chord. */
	bool HasActiveChord() const { return DefaultChord.IsValidChord(); }

	/** True if the chord in force is this one. */
	bool HasActiveChord(const FInputChord& InChord) const { return HasActiveChord() && DefaultChord == InChord; }

	/** Text on the entry. */
	const FText& GetLabel() const { return Label; }

	/** Text of the tool tip. */
	const FText& GetDescription() const { return Description; }

	/** Icon of the entry; may be unset. */
	const FSlateIcon& GetIcon() const { return Icon; }

	/** Name of the command. */
	FName GetCommandName() const { return CommandName; }

	/** Name of the context that the command belongs to. */
	FName GetBindingContext() const { return BindingContext; }

	/** Kind of the entry. */
	EUserInterfaceActionType GetUserInterfaceType() const { return UserInterfaceType; }

private:
	FInputChord DefaultChord;
	FText Label;
	FText Description;
	FSlateIcon Icon;
	EUserInterfaceActionType UserInterfaceType;
	FName BindingContext;
	FName CommandName;
};
