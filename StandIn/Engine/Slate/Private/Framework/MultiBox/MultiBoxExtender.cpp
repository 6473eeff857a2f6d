// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MultiBoxExtender.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"

TSharedRef<const FExtensionBase> FExtender::AddMenuExtension(FName ExtensionHook, EExtensionHook::Position HookPosition,
	const TSharedPtr<FUICommandList>& CommandList, const FMenuExtensionDelegate& MenuExtensionDelegate)
{
	const TSharedRef<FExtensionBase> Extension = MakeShared<FExtensionBase>();
	Extension->Hook = ExtensionHook;
	Extension->HookPosition = HookPosition;
	Extension->CommandList = CommandList;
	Extension->MenuExtensionDelegate = MenuExtensionDelegate;
	Extensions.Add(Extension);
	return Extension;
}

void FExtender::RemoveExtension(const TSharedRef<const FExtensionBase>& Extension)
{
	Extensions.RemoveAll([&Extension](const TSharedPtr<const FExtensionBase>& Element) { return Element == Extension; });
}

void FExtender::Apply(FName ExtensionHook, EExtensionHook::Position HookPosition, FMenuBuilder& MenuBuilder) const
{
	for (const TSharedPtr<const FExtensionBase>& Extension : Extensions)
	{
		if (Extension->Hook != ExtensionHook || Extension->HookPosition != HookPosition)
		{
			continue;
		}
		if (Extension->CommandList.IsValid())
		{
			MenuBuilder.PushCommandList(Extension->CommandList.ToSharedRef());
		}
		Extension->MenuExtensionDelegate.ExecuteIfBound(MenuBuilder);
		if (Extension->CommandList.IsValid())
		{
			MenuBuilder.PopCommandList();
		}
	}
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
