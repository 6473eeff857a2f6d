// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Layout/SScrollBox.h"
#include "Layout/ArrangedChildren.h"
#include "Widgets/Layout/SScrollPanel.h"
#include "Widgets/SBoxPanel.h"

namespace
{
/** How far one notch of the wheel scrolls, in Slate units. */
const float WheelScrollAmount = 32.0f;

/** Finds where a descendant lies in a widget that is arranged in a geometry; false if it is not below it or not shown. */
bool FindDescendant(const TSharedRef<SWidget>& Descendant, const FArrangedWidget& Root, FGeometry& OutGeometry)
{
	if (Root.Widget == Descendant)
	{
		OutGeometry = Root.Geometry;
		return true;
	}
	const TSharedPtr<SWidget> Parent = Descendant->GetParentWidget();
	FGeometry ParentGeometry;
	if (!Parent.IsValid() || !FindDescendant(Parent.ToSharedRef(), Root, ParentGeometry))
	{
		return false;
	}
	FArrangedChildren Children(EVisibility::Visible);
	Parent->ArrangeChildren(ParentGeometry, Children);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (Children[Index].Widget == Descendant)
		{
			OutGeometry = Children[Index].Geometry;
			return true;
		}
	}
	return false;
}

/** Where a descendant lies in a slot's widget of a size, in Slate units. */
FSlateRect GetPartOfSlot(const TSharedRef<SWidget>& Descendant, const TSharedRef<SWidget>& SlotWidget, const FVector2D& SlotSize)
{
	FGeometry Geometry;
	const FArrangedWidget Root(SlotWidget, FGeometry::MakeRoot(SlotSize, FSlateLayoutTransform()));
	return FindDescendant(Descendant, Root, Geometry) ? Geometry.GetLayoutBoundingRect()
													  : FSlateRect::FromPointAndExtent(FVector2D(0.0f, 0.0f), SlotSize);
}
}

SScrollBox::SScrollBox()
	: ConsumeMouseWheel(EConsumeMouseWheel::WhenScrollingPossible)
	, Orientation(Orient_Vertical)
	, ScrollOffset(0.0f)
	, MaxScrollOffset(0.0f)
	, bScrollToEnd(false)
{}

void SScrollBox::Construct(const FArguments& InArgs)
{
	Orientation = InArgs._Orientation;
	ConsumeMouseWheel = InArgs._ConsumeMouseWheel;
	OnUserScrolled = InArgs._OnUserScrolled;
	SAssignNew(ScrollPanel, SScrollPanel, InArgs._Orientation);
	for (int32 Index = 0; Index < InArgs.Slots.Num(); ++Index)
	{
		ScrollPanel->Children.Add(InArgs.Slots[Index]);
	}
	if (InArgs._ExternalScrollbar.IsValid())
	{
		// Shown by whoever made it.
		ScrollBar = InArgs._ExternalScrollbar;
		ScrollBar->SetOnUserScrolled(FOnUserScrolled::CreateSP(this, &SScrollBox::OnScrollBarScrolled));
		ChildSlot[ScrollPanel.ToSharedRef()];
		return;
	}
	SAssignNew(ScrollBar, SScrollBar)
		.Style(InArgs._ScrollBarStyle)
		.Orientation(Orientation)
		.AlwaysShowScrollbar(InArgs._ScrollBarAlwaysVisible)
		.OnUserScrolled(this, &SScrollBox::OnScrollBarScrolled);
	if (Orientation == Orient_Vertical)
	{
		ChildSlot[SNew(SHorizontalBox) + SHorizontalBox::Slot().FillWidth(1.0f)[ScrollPanel.ToSharedRef()]
			+ SHorizontalBox::Slot().AutoWidth()[ScrollBar.ToSharedRef()]];
	}
	else
	{
		ChildSlot[SNew(SVerticalBox) + SVerticalBox::Slot().FillHeight(1.0f)[ScrollPanel.ToSharedRef()]
			+ SVerticalBox::Slot().AutoHeight()[ScrollBar.ToSharedRef()]];
	}
}

SScrollBox::FSlot& SScrollBox::AddSlot()
{
	FSlot* NewSlot = new FSlot();
	ScrollPanel->Children.Add(NewSlot);
	return *NewSlot;
}

void SScrollBox::RemoveSlot(const TSharedRef<SWidget>& WidgetToRemove)
{
	for (int32 Index = 0; Index < ScrollPanel->Children.Num(); ++Index)
	{
		if (ScrollPanel->Children[Index].GetWidget() == WidgetToRemove)
		{
			ScrollPanel->Children.RemoveAt(Index);
			return;
		}
	}
}

void SScrollBox::ClearChildren()
{
	ScrollPanel->Children.Empty();
}

void SScrollBox::ScrollToEnd()
{
	bScrollToEnd = true;
}

void SScrollBox::ScrollDescendantIntoView(const TSharedPtr<SWidget>& WidgetToFind)
{
	WidgetToShow = WidgetToFind;
}

void SScrollBox::Clamp()
{
	ScrollOffset = FMath::Max(0.0f, FMath::Min(ScrollOffset, MaxScrollOffset));
}

void SScrollBox::Tick(const FGeometry& AllottedGeometry, const double /*InCurrentTime*/, const float /*InDeltaTime*/)
{
	const bool bVertical = Orientation == Orient_Vertical;
	const float ViewLength = bVertical ? AllottedGeometry.GetLocalSize().Y : AllottedGeometry.GetLocalSize().X;
	const float ContentLength = ScrollPanel->GetContentLength();
	MaxScrollOffset = FMath::Max(0.0f, ContentLength - ViewLength);
	if (bScrollToEnd)
	{
		ScrollOffset = MaxScrollOffset;
		bScrollToEnd = false;
	}
	if (const TSharedPtr<SWidget> Wanted = WidgetToShow.Pin())
	{
		float Position = 0.0f;
		for (int32 Index = 0; Index < ScrollPanel->Children.Num(); ++Index)
		{
			const FSlot& Slot = ScrollPanel->Children[Index];
			const FVector2D Size = Slot.GetWidget()->GetDesiredSize() + Slot.SlotPadding.Get().GetDesiredSize();
			const float Length = bVertical ? Size.Y : Size.X;
			TSharedPtr<SWidget> Ancestor = Wanted;
			while (Ancestor.IsValid() && Ancestor != Slot.GetWidget())
			{
				Ancestor = Ancestor->GetParentWidget();
			}
			if (Ancestor.IsValid())
			{
				const FSlateRect Part = GetPartOfSlot(Wanted.ToSharedRef(), Slot.GetWidget(), Size);
				const float Start = Position + (bVertical ? Part.Top : Part.Left);
				const float End = Position + (bVertical ? Part.Bottom : Part.Right);
				ScrollOffset = FMath::Min(Start, FMath::Max(ScrollOffset, End - ViewLength));
			}
			Position += Length;
		}
		WidgetToShow.Reset();
	}
	Clamp();
	ScrollPanel->Offset = ScrollOffset;
	ScrollBar->SetState(
		ContentLength > 0.0f ? ScrollOffset / ContentLength : 0.0f, ContentLength > 0.0f ? ViewLength / ContentLength : 1.0f);
}

FReply SScrollBox::OnMouseWheel(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (ConsumeMouseWheel == EConsumeMouseWheel::Never)
	{
		return FReply::Unhandled();
	}
	const float Before = ScrollOffset;
	ScrollOffset -= MouseEvent.GetWheelDelta() * WheelScrollAmount;
	Clamp();
	if (ScrollOffset != Before)
	{
		OnUserScrolled.ExecuteIfBound(ScrollOffset);
		return FReply::Handled();
	}
	return ConsumeMouseWheel == EConsumeMouseWheel::Always ? FReply::Handled() : FReply::Unhandled();
}

void SScrollBox::OnScrollBarScrolled(float InOffsetFraction)
{
	ScrollOffset = InOffsetFraction * ScrollPanel->GetContentLength();
	Clamp();
	OnUserScrolled.ExecuteIfBound(ScrollOffset);
}
