// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenus.h"
#include "Framework/Application/SlateApplication.h"
#include "Misc/CoreDelegates.h"

namespace ToolMenusStartupPrivate
{
FSimpleMulticastDelegate& StartupCallbacks()
{
	static FSimpleMulticastDelegate Callbacks;
	return Callbacks;
}

FDelegateHandle& PostEngineInitHandle()
{
	static FDelegateHandle Handle;
	return Handle;
}
}

bool UToolMenus::IsToolMenuUIEnabled()
{
	return FSlateApplication::IsInitialized() && GIsEditor && !IsRunningCommandlet();
}

FDelegateHandle UToolMenus::RegisterStartupCallback(const FSimpleMulticastDelegate::FDelegate& InDelegate)
{
	if (IsToolMenuUIEnabled() && TryGet())
	{
		InDelegate.Execute();
		return FDelegateHandle();
	}
	FDelegateHandle& Handle = ToolMenusStartupPrivate::PostEngineInitHandle();
	if (!Handle.IsValid())
	{
		Handle = FCoreDelegates::OnPostEngineInit.AddStatic(&UToolMenus::RunStartupCallbacks);
	}
	return ToolMenusStartupPrivate::StartupCallbacks().Add(InDelegate);
}

void UToolMenus::RunStartupCallbacks()
{
	FDelegateHandle& Handle = ToolMenusStartupPrivate::PostEngineInitHandle();
	FCoreDelegates::OnPostEngineInit.Remove(Handle);
	Handle.Reset();
	if (IsToolMenuUIEnabled())
	{
		Get();
		ToolMenusStartupPrivate::StartupCallbacks().Broadcast();
		ToolMenusStartupPrivate::StartupCallbacks().Clear();
	}
}

void UToolMenus::UnRegisterStartupCallback(const void* UserPointer)
{
	ToolMenusStartupPrivate::StartupCallbacks().RemoveAll(UserPointer);
}

void UToolMenus::UnRegisterStartupCallback(FDelegateHandle InHandle)
{
	ToolMenusStartupPrivate::StartupCallbacks().Remove(InHandle);
}
