// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxDefs.h"

// Extenders add to menus at named hooks while the menu is built. Menu extensions only: there are no menu bar and tool bar ones.

/** Fills the place of an extension in a menu. */
DECLARE_DELEGATE_OneParam(FMenuExtensionDelegate, class FMenuBuilder&);

namespace EExtensionHook
{
/** Place of an extension relative to the section or entry that it names. */
enum Position
{
	Before,
	After,
	First
};
}

/** One registered extension; a handle for its removal. */
class FExtensionBase
{
public:
	FName Hook;
	EExtensionHook::Position HookPosition;
	TSharedPtr<FUICommandList> CommandList;
	FMenuExtensionDelegate MenuExtensionDelegate;
};

/** Set of extensions that a menu builder applies. */
class SLATE_API FExtender
{
public:
	/** Adds an extension of menus; the commands it uses come from CommandList, which may be null. */
	TSharedRef<const FExtensionBase> AddMenuExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
		const TSharedPtr<FUICommandList>& CommandList, const FMenuExtensionDelegate& MenuExtensionDelegate);

	/** Removes an extension. */
	void RemoveExtension(const TSharedRef<const FExtensionBase>& Extension);

	/** Runs the extensions of a hook and position, in the order in which they were added. */
	void Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBuilder& MenuBuilder) const;

	/** Makes one extender of several; null elements are skipped. */
	static TSharedPtr<FExtender> Combine(const TArray<TSharedPtr<FExtender>>& Extenders);

private:
	TArray<TSharedPtr<const FExtensionBase>> Extensions;
};
