// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "SEditorViewportViewMenuContext.generated.h"

class SEditorViewportViewMenu;

// What the View menu of a viewport is opened on: its button. The way from the button to the viewport is not public.

/** Context object of a viewport's View menu. */
UCLASS()
class UNREALED_API UEditorViewportViewMenuContext : public UObject
{
	GENERATED_BODY()

public:
	/** The button that the menu was opened from. */
	TWeakPtr<const SEditorViewportViewMenu> EditorViewportViewMenu;
};
