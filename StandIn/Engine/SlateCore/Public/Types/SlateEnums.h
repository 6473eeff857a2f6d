// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Small enumerations shared by widgets. The engine reflects them; here they are plain.

/** Where content lies in a slot along the horizontal. */
enum EHorizontalAlignment
{
	HAlign_Fill,
	HAlign_Left,
	HAlign_Center,
	HAlign_Right
};

/** Where content lies in a slot along the vertical. */
enum EVerticalAlignment
{
	VAlign_Fill,
	VAlign_Top,
	VAlign_Center,
	VAlign_Bottom
};

/** The axis along which a widget is laid out. */
enum EOrientation
{
	Orient_Horizontal,
	Orient_Vertical
};

/** Where a menu opens relative to its anchor. */
enum EMenuPlacement
{
	MenuPlacement_BelowAnchor,
	MenuPlacement_CenteredBelowAnchor,
	MenuPlacement_BelowRightAnchor,
	MenuPlacement_ComboBox,
	MenuPlacement_ComboBoxRight,
	MenuPlacement_MenuRight,
	MenuPlacement_AboveAnchor,
	MenuPlacement_CenteredAboveAnchor,
	MenuPlacement_AboveRightAnchor,
	MenuPlacement_MenuLeft,
	MenuPlacement_Center,
	MenuPlacement_RightLeftCenter,
	MenuPlacement_MatchBottomLeft
};

/** The direction in which a scrolling widget moves. */
enum EScrollDirection
{
	Scroll_Down,
	Scroll_Up
};

namespace ETextCommit
{
/** Why a text was committed. */
enum Type
{
	Default,
	OnEnter,
	OnUserMovedFocus,
	OnCleared
};
}

namespace ESelectInfo
{
/** What changed a selection. */
enum Type
{
	OnKeyPress,
	OnNavigation,
	OnMouseClick,
	Direct
};
}

/** A direction of moving the focus. */
enum class EUINavigation : uint8
{
	Left,
	Right,
	Up,
	Down,
	Next,
	Previous,
	Num,
	Invalid
};

namespace EButtonClickMethod
{
/** When a button counts as clicked by the mouse. */
enum Type
{
	DownAndUp,
	MouseDown,
	MouseUp,
	PreciseClick
};
}

namespace EButtonPressMethod
{
/** When a button counts as clicked by the keyboard. */
enum Type
{
	DownAndUp,
	ButtonPress,
	ButtonRelease
};
}

/** When a scrolling widget keeps wheel events for itself. */
enum class EConsumeMouseWheel : uint8
{
	WhenScrollingPossible,
	Always,
	Never
};
