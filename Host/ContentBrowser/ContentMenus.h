// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/ContentItem.h"
#include "Widgets/SWidget.h"

class UFactory;

// The menus of the content browser. Both are tool menus under the engine's names, so that whoever extends those is heard.

namespace TintmillHost
{
/** Called with the default object of the factory that was chosen. */
DECLARE_DELEGATE_OneParam(FOnFactoryChosen, UFactory* /*DefaultFactory*/);

/** The menu that offers new assets, made anew from the loaded classes. */
TSharedRef<SWidget> MakeNewAssetMenu(const FOnFactoryChosen& OnChosen);

/** The menu of selected tiles, at least one; OnOpen is what a double click does. */
TSharedRef<SWidget> MakeItemMenu(const TArray<FContentItemPtr>& Items, const FSimpleDelegate& OnOpen);

/** Puts the assets' references, "Class'Path'" in lines of their own, on the clipboard. */
void CopyReferences(const TArray<FContentItemPtr>& Items);
}
