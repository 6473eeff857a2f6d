// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Visibility.h"
#include "Styling/SlateStyle.h"
#include "Textures/SlateIcon.h"

#include <memory>

struct FSlateBrush;

// Colors, brushes and icons of the window around the level editor.

namespace TintmillHost
{
/** What is shown takes part in everything; what is not takes no room. */
EVisibility ShownIf(bool bShown);

/** The frame's icons as a style set; it is registered as long as the object lives, one object at a time. */
class FFrameStyle
{
public:
	FFrameStyle();
	~FFrameStyle();
	FFrameStyle(const FFrameStyle&) = delete;
	FFrameStyle& operator=(const FFrameStyle&) = delete;

	/** An icon of 40 and 16 units: Play, Stop, PlayInWindow, Simulate, Map. */
	static FSlateIcon GetIcon(const FName& Name);

	/** An icon's brush of 16 units. */
	const FSlateBrush* GetSmallIcon(const FName& Name) const;

	/** What tabs lie in; the darkest of the grays. */
	static const FSlateBrush* GetTabWell();

	/** A panel, and the tab in front that belongs to it. */
	static const FSlateBrush* GetPanel();

	/** A tab that is not in front, and one with the mouse on it. */
	static const FSlateBrush* GetTab();
	static const FSlateBrush* GetHoveredTab();

	/** The line at the upper edge of the tab in front. */
	static const FSlateBrush* GetTabLine();

	/** The box around the project's name. */
	static const FSlateBrush* GetNameBox();

private:
	std::unique_ptr<FSlateStyleSet> Style;
};
}
