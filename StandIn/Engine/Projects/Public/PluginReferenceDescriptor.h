// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// A mention of another plug-in in a descriptor. Left out: target and platform lists.

/** A mention of another plug-in in a plug-in or project descriptor. */
struct PROJECTS_API FPluginReferenceDescriptor
{
	FPluginReferenceDescriptor(const FString& InName = FString(), bool bInEnabled = false)
		: Name(InName)
		, bEnabled(bInEnabled)
		, bOptional(false)
	{}

	FString Name;
	bool bEnabled;
	/** True when its absence is no error. */
	bool bOptional;
};
