// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"

class SWidget;

// A widget and where it lies.

/** A widget with the geometry it was given. */
class SLATECORE_API FArrangedWidget
{
public:
	/** The geometry. */
	FGeometry Geometry;

	/** The widget. */
	TSharedRef<SWidget> Widget;

	/** Pairs a widget with its geometry. */
	FArrangedWidget(TSharedRef<SWidget> InWidget, const FGeometry& InGeometry)
		: Geometry(InGeometry)
		, Widget(InWidget)
	{}

	/** Returns the null widget with no geometry. */
	static const FArrangedWidget& GetNullWidget();

	/** Returns the widget's type and place as text. */
	FString ToString() const;

	/** Says whether both name the same widget. */
	bool operator==(const FArrangedWidget& Other) const { return Widget == Other.Widget; }

	/** Says whether they name different widgets. */
	bool operator!=(const FArrangedWidget& Other) const { return !(*this == Other); }
};
