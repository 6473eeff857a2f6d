// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/Layout/SBorder.h"

// A line between widgets.

/** A line between widgets. */
class SLATE_API SSeparator : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SSeparator)
		: _SeparatorImage(FCoreStyle::Get().GetBrush("Separator"))
		, _Orientation(Orient_Horizontal)
		, _Thickness(3.0f)
		, _ColorAndOpacity(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
	{}
	SLATE_ARGUMENT(const FSlateBrush*, SeparatorImage)
	SLATE_ARGUMENT(EOrientation, Orientation)
	SLATE_ARGUMENT(float, Thickness)
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SSeparator();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

protected:
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	EOrientation Orientation;
	float Thickness;
};
