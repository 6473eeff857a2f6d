// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SCompoundWidget.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

SCompoundWidget::SCompoundWidget()
	: ChildSlot(this)
	, ContentScale(FVector2D(1.0f, 1.0f))
	, ColorAndOpacity(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))
	, ForegroundColor(FSlateColor::UseForeground())
{}

FChildren* SCompoundWidget::GetChildren()
{
	return &ChildSlot;
}

FSlateColor SCompoundWidget::GetForegroundColor() const
{
	return ForegroundColor.Get();
}

int32 SCompoundWidget::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FWidgetStyle CompoundedWidgetStyle(InWidgetStyle);
	CompoundedWidgetStyle.BlendColorAndOpacityTint(ColorAndOpacity.Get()).SetForegroundColor(GetForegroundColor());

	FArrangedChildren ArrangedChildren(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, ArrangedChildren);
	int32 MaxLayerId = LayerId;
	for (int32 Index = 0; Index < ArrangedChildren.Num(); ++Index)
	{
		// One child at most, but derived widgets may arrange more.
		const FArrangedWidget& TheChild = ArrangedChildren[Index];
		if (!IsChildWidgetCulled(MyCullingRect, TheChild))
		{
			MaxLayerId = FMath::Max(MaxLayerId,
				TheChild.Widget->Paint(Args, TheChild.Geometry, MyCullingRect, OutDrawElements, LayerId + 1, CompoundedWidgetStyle,
					ShouldBeEnabled(bParentEnabled)));
		}
	}
	return MaxLayerId;
}

void SCompoundWidget::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const TSharedRef<SWidget> Child = ChildSlot.GetWidget();
	const EVisibility ChildVisibility = Child->GetVisibility();
	if (!ArrangedChildren.Accepts(ChildVisibility))
	{
		return;
	}
	const FMargin Padding = ChildSlot.SlotPadding.Get();
	const FVector2D Scale = ContentScale.Get();
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(Size.X, ChildSlot, Padding, Scale.X);
	const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(Size.Y, ChildSlot, Padding, Scale.Y);
	// A geometry has one scale: the horizontal one.
	const float ChildScale = Scale.X > 0.0f ? Scale.X : 1.0f;
	ArrangedChildren.AddWidget(ChildVisibility,
		AllottedGeometry.MakeChild(Child, FVector2D(X.Offset, Y.Offset), FVector2D(X.Size, Y.Size) / ChildScale, ChildScale));
}

FVector2D SCompoundWidget::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	const TSharedRef<SWidget> Child = ChildSlot.GetWidget();
	if (Child->GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D(0.0f, 0.0f);
	}
	return Child->GetDesiredSize() * ContentScale.Get() + ChildSlot.SlotPadding.Get().GetDesiredSize();
}
