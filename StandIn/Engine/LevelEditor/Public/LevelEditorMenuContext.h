// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "LevelEditorMenuContext.generated.h"

class FLevelEditorViewportClient;
class SLevelViewportToolBar;

// What the menus of a level viewport's toolbar other than View are opened on. The contexts of the level editor's own menus are left
// out.

/** Context object of the menus of a level viewport's toolbar. */
UCLASS()
class LEVELEDITOR_API ULevelViewportToolBarContext : public UObject
{
	GENERATED_BODY()

public:
	/** The client of the toolbar's viewport, or null once it is gone. */
	FLevelEditorViewportClient* GetLevelViewportClient();

	/** The toolbar that the menu was opened from. */
	TWeakPtr<SLevelViewportToolBar> LevelViewportToolBarWidget;
};
