// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SNullWidget.h"

/** A place whose content can be exchanged: a tab, or the panes of a layout. */
class SLevelViewportPanes : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SLevelViewportPanes) {}
	SLATE_END_ARGS()

	/** Makes an empty place. */
	void Construct(const FArguments&) {}

	/** Shows a widget. */
	void SetContent(const TSharedRef<SWidget>& InContent) { ChildSlot[InContent]; }

	/** Shows nothing. */
	void ClearContent() { ChildSlot[SNullWidget::NullWidget]; }
};
