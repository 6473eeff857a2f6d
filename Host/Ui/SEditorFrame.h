// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SLeafWidget.h"

// What the editor's window is made of.

namespace TintmillHost
{
/** A line around the pane that is worked in, and thin ones around the others; takes no input. */
class SPaneLines : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SPaneLines) { _Visibility = EVisibility::HitTestInvisible; }
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
};

/** The window's content: a tab with the project's name, and the level editor below it. */
class SEditorFrame : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SEditorFrame) {}
	SLATE_ARGUMENT(FText, ProjectName)
	SLATE_ARGUMENT(TSharedPtr<SWidget>, LevelEditor)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);
};
}
