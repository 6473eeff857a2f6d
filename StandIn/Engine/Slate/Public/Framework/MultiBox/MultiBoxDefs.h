// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Misc/Attribute.h"

// Kinds of boxes and blocks that menus are made of. The enumerations are not reflected here, and FMultiBoxSettings has no
// tool tip constructor.

/** Kind of a multi-box. */
enum class EMultiBoxType : uint8
{
	MenuBar,
	ToolBar,
	VerticalToolBar,
	UniformToolBar,
	Menu,
	ButtonRow
};

/** Kind of a block inside a multi-box. */
enum class EMultiBlockType : uint8
{
	None,
	ButtonRow,
	EditableText,
	Heading,
	MenuEntry,
	Separator,
	ToolBarButton,
	ToolBarComboButton,
	Widget
};

/** Fills a menu; runs each time the menu is opened. */
DECLARE_DELEGATE_OneParam(FNewMenuDelegate, class FMenuBuilder&);

/** Settings that all multi-boxes share. */
class SLATE_API FMultiBoxSettings
{
public:
	/** Whether tool bars use small icons. */
	static TAttribute<bool> UseSmallToolBarIcons;

	/** Whether extension hook names are shown in menus; has no effect here. */
	static TAttribute<bool> DisplayMultiboxHooks;
};
