// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SNullWidget.h"
#include "Widgets/SLeafWidget.h"

namespace
{
/** What stands where there is no widget. */
class SNullWidgetContent : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SNullWidgetContent) {}
	SLATE_END_ARGS()

	SNullWidgetContent()
	{
		SetCanTick(false);
		SetDebugInfo("SNullWidgetContent", __FILE__, __LINE__);
	}

	void Construct(const FArguments& /*InArgs*/) {}

protected:
	int32 OnPaint(const FPaintArgs& /*Args*/, const FGeometry& /*AllottedGeometry*/, const FSlateRect& /*MyCullingRect*/,
		FSlateWindowElementList& /*OutDrawElements*/, int32 LayerId, const FWidgetStyle& /*InWidgetStyle*/,
		bool /*bParentEnabled*/) const override
	{
		return LayerId;
	}

	FVector2D ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const override { return FVector2D(0.0f, 0.0f); }
};
}

TSharedRef<SWidget> SNullWidget::NullWidget = TWidgetAllocator<SNullWidgetContent>::PrivateAllocateWidget();
