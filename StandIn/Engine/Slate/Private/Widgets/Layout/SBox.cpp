// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Layout/SBox.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

namespace
{
/** Applies an override or else least and greatest size. */
float Limit(float Wanted, const FOptionalSize& Override, const FOptionalSize& Least, const FOptionalSize& Greatest)
{
	if (Override.IsSet())
	{
		return Override.Get();
	}
	float Size = Wanted;
	if (Least.IsSet())
	{
		Size = FMath::Max(Size, Least.Get());
	}
	if (Greatest.IsSet())
	{
		Size = FMath::Min(Size, Greatest.Get());
	}
	return Size;
}
}

SBox::SBox()
	: ChildSlot(this)
{
	SetCanTick(false);
}

void SBox::Construct(const FArguments& InArgs)
{
	WidthOverride = InArgs._WidthOverride;
	HeightOverride = InArgs._HeightOverride;
	MinDesiredWidth = InArgs._MinDesiredWidth;
	MinDesiredHeight = InArgs._MinDesiredHeight;
	MaxDesiredWidth = InArgs._MaxDesiredWidth;
	MaxDesiredHeight = InArgs._MaxDesiredHeight;
	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding)[InArgs._Content.Widget];
}

void SBox::SetContent(const TSharedRef<SWidget>& InContent)
{
	ChildSlot[InContent];
}

void SBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const EVisibility ChildVisibility = ChildSlot.GetWidget()->GetVisibility();
	if (ArrangedChildren.Accepts(ChildVisibility))
	{
		const FMargin Padding = ChildSlot.SlotPadding.Get();
		const FVector2D Size = AllottedGeometry.GetLocalSize();
		const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(Size.X, ChildSlot, Padding);
		const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(Size.Y, ChildSlot, Padding);
		ArrangedChildren.AddWidget(
			ChildVisibility, AllottedGeometry.MakeChild(ChildSlot.GetWidget(), FVector2D(X.Offset, Y.Offset), FVector2D(X.Size, Y.Size)));
	}
}

FVector2D SBox::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	// A box whose child is collapsed keeps no space for itself.
	if (ChildSlot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D(0.0f, 0.0f);
	}
	const FVector2D Content = ChildSlot.GetWidget()->GetDesiredSize() + ChildSlot.SlotPadding.Get().GetDesiredSize();
	return FVector2D(Limit(Content.X, WidthOverride.Get(), MinDesiredWidth.Get(), MaxDesiredWidth.Get()),
		Limit(Content.Y, HeightOverride.Get(), MinDesiredHeight.Get(), MaxDesiredHeight.Get()));
}
