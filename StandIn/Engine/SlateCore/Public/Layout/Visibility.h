// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Whether a widget is drawn, takes space and receives the mouse.

/** Whether a widget is drawn, takes space and receives the mouse. */
struct SLATECORE_API EVisibility
{
	/** Drawn, takes space, hit by the mouse. */
	static const EVisibility Visible;

	/** Neither drawn nor given space. */
	static const EVisibility Collapsed;

	/** Not drawn but given space. */
	static const EVisibility Hidden;

	/** Drawn; the mouse passes through it and its children. */
	static const EVisibility HitTestInvisible;

	/** Drawn; the mouse passes through it but not through its children. */
	static const EVisibility SelfHitTestInvisible;

	/** Filter that lets every visibility through. */
	static const EVisibility All;

	/** Makes Visible. */
	constexpr EVisibility()
		: Value(VIS_Visible)
	{}

	/** Compares two values. */
	bool operator==(const EVisibility& Other) const { return Value == Other.Value; }

	/** Compares two values. */
	bool operator!=(const EVisibility& Other) const { return Value != Other.Value; }

	/** Says whether children can be hit by the mouse. */
	bool AreChildrenHitTestVisible() const { return 0 != (Value & VISPRIVATE_ChildrenHitTestVisible); }

	/** Says whether the widget itself can be hit by the mouse. */
	bool IsHitTestVisible() const { return 0 != (Value & VISPRIVATE_SelfHitTestVisible); }

	/** Says whether the widget is drawn. */
	bool IsVisible() const { return 0 != (Value & VISPRIVATE_Visible); }

	/** Says whether a visibility is let through by a filter. */
	static bool DoesVisibilityPassFilter(const EVisibility InVisibility, const EVisibility InVisibilityFilter)
	{
		return 0 != (InVisibility.Value & InVisibilityFilter.Value);
	}

	/** Returns the name of the value. */
	FString ToString() const;

private:
	enum Private
	{
		VISPRIVATE_Visible = 0x1,
		VISPRIVATE_Collapsed = 0x2,
		VISPRIVATE_Hidden = 0x4,
		VISPRIVATE_SelfHitTestVisible = 0x8,
		VISPRIVATE_ChildrenHitTestVisible = 0x10,
		VIS_Visible = VISPRIVATE_Visible | VISPRIVATE_SelfHitTestVisible | VISPRIVATE_ChildrenHitTestVisible,
		VIS_Collapsed = VISPRIVATE_Collapsed,
		VIS_Hidden = VISPRIVATE_Hidden,
		VIS_HitTestInvisible = VISPRIVATE_Visible,
		VIS_SelfHitTestInvisible = VISPRIVATE_Visible | VISPRIVATE_ChildrenHitTestVisible,
		VIS_All = VISPRIVATE_Visible | VISPRIVATE_Hidden | VISPRIVATE_Collapsed | VISPRIVATE_SelfHitTestVisible
			| VISPRIVATE_ChildrenHitTestVisible
	};

	constexpr EVisibility(Private InValue)
		: Value(InValue)
	{}

	Private Value;
};
