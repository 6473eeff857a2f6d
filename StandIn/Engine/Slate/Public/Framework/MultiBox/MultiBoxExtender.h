// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxDefs.h"

// Extenders add to menus, menu bars and tool bars at named hooks while these are built.

/** Fills the place of an extension in a menu. */
DECLARE_DELEGATE_OneParam(FMenuExtensionDelegate, class FMenuBuilder&);

/** Fills the place of an extension in a menu bar. */
DECLARE_DELEGATE_OneParam(FMenuBarExtensionDelegate, class FMenuBarBuilder&);

/** Fills the place of an extension in a tool bar. */
DECLARE_DELEGATE_OneParam(FToolBarExtensionDelegate, class FToolBarBuilder&);

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
	FMenuBarExtensionDelegate MenuBarExtensionDelegate;
	FToolBarExtensionDelegate ToolBarExtensionDelegate;
};

/** Set of extensions that a menu builder applies. */
class SLATE_API FExtender
{
public:
	/** Adds an extension of menus; the commands it uses come from CommandList, which may be null. */
	TSharedRef<const FExtensionBase> AddMenuExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
		const TSharedPtr<FUICommandList>& CommandList, const FMenuExtensionDelegate& MenuExtensionDelegate);

	/** Adds an extension of menu bars. */
	TSharedRef<const FExtensionBase> AddMenuBarExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
		const TSharedPtr<FUICommandList>& CommandList, const FMenuBarExtensionDelegate& MenuBarExtensionDelegate);

	/** Adds an extension of tool bars. */
	TSharedRef<const FExtensionBase> AddToolBarExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
		const TSharedPtr<FUICommandList>& CommandList, const FToolBarExtensionDelegate& ToolBarExtensionDelegate);

	/** Removes an extension. */
	void RemoveExtension(const TSharedRef<const FExtensionBase>& Extension);

	/** Runs the extensions of a hook and position, in the order in which they were added. */
	void Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBuilder& MenuBuilder) const;

	/** Runs the menu bar's extensions of a hook and position, in the order in which they were added. */
	void Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBarBuilder& MenuBarBuilder) const;

	/** Runs the tool bar's extensions of a hook and position, in the order in which they were added. */
	void Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FToolBarBuilder& ToolBarBuilder) const;

	/** Makes one extender of several; null elements are skipped. */
	static TSharedPtr<FExtender> Combine(const TArray<TSharedPtr<FExtender>>& Extenders);

private:
	TSharedRef<FExtensionBase> AddExtension(
		FName ExtensionHook, EExtensionHook::Position HookPosition, const TSharedPtr<FUICommandList>& CommandList);

	template <typename BuilderType, typename DelegateType>
	void ApplyTo(
		FName ExtensionHook, EExtensionHook::Position HookPosition, BuilderType& Builder, DelegateType FExtensionBase::*Delegate) const;

	TArray<TSharedPtr<const FExtensionBase>> Extensions;
};
