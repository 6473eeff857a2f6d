// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Toolkits/IToolkit.h"
#include "Toolkits/IToolkitHost.h"

// The editor of assets that have none of their own: a panel of their properties. There is no such panel in the stand-in: whoever
// set StandIn::SetSimpleAssetEditor is told what was to be opened, and without that asking for it is refused.

/** Editor that shows the properties of any asset. */
class UNREALED_API FSimpleAssetEditor
{
public:
	/** Opens an object. */
	static TSharedRef<FSimpleAssetEditor> CreateEditor(
		const EToolkitMode::Type Mode, const TSharedPtr<IToolkitHost>& InitToolkitHost, UObject* ObjectToEdit);

	/** Opens several objects. */
	static TSharedRef<FSimpleAssetEditor> CreateEditor(
		const EToolkitMode::Type Mode, const TSharedPtr<IToolkitHost>& InitToolkitHost, const TArray<UObject*>& ObjectsToEdit);
};
