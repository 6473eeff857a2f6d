// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

// The name below a tile's picture: two centered lines at most, the second one cut with an ellipsis.

namespace TintmillHost
{
/** The name on a tile. */
class STileName : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STileName) { _Visibility = EVisibility::HitTestInvisible; }
	SLATE_ARGUMENT(FString, Name)
	SLATE_ATTRIBUTE(FLinearColor, Color)
	SLATE_END_ARGS()

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** The lines that a name takes in a width. */
	static TArray<FString> BreakName(const FString& Name, float Width);

protected:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	FString Name;
	TAttribute<FLinearColor> Color;
};
}
