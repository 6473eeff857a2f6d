// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"

TSharedRef<FExtensionBase> FExtender::AddExtension(
	FName ExtensionHook, EExtensionHook::Position HookPosition, const TSharedPtr<FUICommandList>& CommandList)
{
	const TSharedRef<FExtensionBase> Extension = MakeShared<FExtensionBase>();
	Extension->Hook = ExtensionHook;
	Extension->HookPosition = HookPosition;
	Extension->CommandList = CommandList;
	Extensions.Add(Extension);
	return Extension;
}

TSharedRef<const FExtensionBase> FExtender::AddMenuExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
	const TSharedPtr<FUICommandList>& CommandList, const FMenuExtensionDelegate& MenuExtensionDelegate)
{
	const TSharedRef<FExtensionBase> Extension = AddExtension(ExtensionHook, HookPosition, CommandList);
	Extension->MenuExtensionDelegate = MenuExtensionDelegate;
	return Extension;
}

TSharedRef<const FExtensionBase> FExtender::AddMenuBarExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
	const TSharedPtr<FUICommandList>& CommandList, const FMenuBarExtensionDelegate& MenuBarExtensionDelegate)
{
	const TSharedRef<FExtensionBase> Extension = AddExtension(ExtensionHook, HookPosition, CommandList);
	Extension->MenuBarExtensionDelegate = MenuBarExtensionDelegate;
	return Extension;
}

TSharedRef<const FExtensionBase> FExtender::AddToolBarExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
	const TSharedPtr<FUICommandList>& CommandList, const FToolBarExtensionDelegate& ToolBarExtensionDelegate)
{
	const TSharedRef<FExtensionBase> Extension = AddExtension(ExtensionHook, HookPosition, CommandList);
	Extension->ToolBarExtensionDelegate = ToolBarExtensionDelegate;
	return Extension;
}

void FExtender::RemoveExtension(const TSharedRef<const FExtensionBase>& Extension)
{
	Extensions.RemoveAll([&Extension](const TSharedPtr<const FExtensionBase>& Element) { return Element == Extension; });
}

template <typename BuilderType, typename DelegateType>
void FExtender::ApplyTo(
	FName ExtensionHook, EExtensionHook::Position HookPosition, BuilderType& Builder, DelegateType FExtensionBase::*Delegate) const
{
	for (const TSharedPtr<const FExtensionBase>& Extension : Extensions)
	{
		if (Extension->Hook != ExtensionHook || Extension->HookPosition != HookPosition)
		{
			continue;
		}
		if (Extension->CommandList.IsValid())
		{
			Builder.PushCommandList(Extension->CommandList.ToSharedRef());
		}
		((*Extension).*Delegate).ExecuteIfBound(Builder);
		if (Extension->CommandList.IsValid())
		{
			Builder.PopCommandList();
		}
	}
}

void FExtender::Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBuilder& MenuBuilder) const
{
	ApplyTo(ExtensionHook, HookPosition, MenuBuilder, &FExtensionBase::MenuExtensionDelegate);
}

void FExtender::Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBarBuilder& MenuBarBuilder) const
{
	ApplyTo(ExtensionHook, HookPosition, MenuBarBuilder, &FExtensionBase::MenuBarExtensionDelegate);
}

void FExtender::Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FToolBarBuilder& ToolBarBuilder) const
{
	ApplyTo(ExtensionHook, HookPosition, ToolBarBuilder, &FExtensionBase::ToolBarExtensionDelegate);
}

TSharedPtr<FExtender> FExtender::Combine(const TArray<TSharedPtr<FExtender>>& Extenders)
{
	TSharedPtr<FExtender> Combined;
	for (const TSharedPtr<FExtender>& Extender : Extenders)
	{
		if (!Extender.IsValid())
		{
			continue;
		}
		if (!Combined.IsValid())
		{
			Combined = MakeShared<FExtender>();
		}
		Combined->Extensions.Append(Extender->Extensions);
	}
	return Combined;
}
