// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SPanel.h"

// Children side by side with handles between them to share the space anew.

/** How dragging a handle changes the places beside it. */
namespace ESplitterResizeMode
{
/** Which places change. */
enum Type
{
	FixedPosition,
	FixedSize,
	Fill
};
}

/** Children side by side with handles between them; a drag changes the two places beside a handle. */
class SLATE_API SSplitter : public SPanel
{
public:
	/** How a place gets its length. */
	enum ESizeRule
	{
		SizeToContent,
		FractionOfParent
	};

	DECLARE_DELEGATE_OneParam(FOnSlotResized, float)

		/** A place in the splitter: a share of weight one. */
		class FSlot : public TSlotBase<FSlot>
	{
	public:
		/** Makes a slot. */
		FSlot()
			: TSlotBase<FSlot>()
			, SizingRule(FractionOfParent)
			, SizeValue(1.0f)
		{}

		/** Sets the weight of the share. */
		FSlot& Value(const TAttribute<float>& InValue)
		{
			SizeValue = InValue;
			return *this;
		}

		/** Sets how the place gets its length. */
		FSlot& SizeRule(ESizeRule InSizeRule)
		{
			SizingRule = InSizeRule;
			return *this;
		}

		/** Sets what is told the new weight; without it the place keeps the weight itself. */
		FSlot& OnSlotResized(const FOnSlotResized& InHandler)
		{
			OnResized = InHandler;
			return *this;
		}

		/** How the place gets its length. */
		ESizeRule SizingRule;

		/** The weight of the share. */
		TAttribute<float> SizeValue;

		/** What is told the new weight. */
		FOnSlotResized OnResized;
	};

	SLATE_BEGIN_ARGS(SSplitter)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FSplitterStyle>("Splitter"))
		, _Orientation(Orient_Horizontal)
		, _ResizeMode(ESplitterResizeMode::FixedPosition)
		, _PhysicalSplitterHandleSize(5.0f)
		, _MinimumSlotHeight(20.0f)
	{}
	SLATE_SUPPORTS_SLOT(FSlot)
	SLATE_STYLE_ARGUMENT(FSplitterStyle, Style)
	SLATE_ARGUMENT(EOrientation, Orientation)
	SLATE_ARGUMENT(ESplitterResizeMode::Type, ResizeMode)
	SLATE_ARGUMENT(float, PhysicalSplitterHandleSize)
	SLATE_ARGUMENT(float, MinimumSlotHeight)
	SLATE_EVENT(FSimpleDelegate, OnSplitterFinishedResizing)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SSplitter();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Makes a slot for SNew(SSplitter) + Slot(). */
	static FSlot& Slot() { return *(new FSlot()); }

	/** Adds a slot before the one at an index, INDEX_NONE for the end. */
	FSlot& AddSlot(int32 AtIndex = INDEX_NONE);

	/** Returns the slot at an index; an index out of range is a fatal error. */
	FSlot& SlotAt(int32 SlotIndex) { return Children[SlotIndex]; }

	/** Removes the slot at an index. */
	void RemoveAt(int32 IndexOfChildToRemove) { Children.RemoveAt(IndexOfChildToRemove); }

	FChildren* GetChildren() override { return &Children; }
	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const override;
	void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	int32 FindHandle(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const;
	float GetAlong(const FVector2D& Vector) const { return Orientation == Orient_Horizontal ? Vector.X : Vector.Y; }

	TPanelChildren<FSlot> Children;
	const FSplitterStyle* Style;
	FSimpleDelegate OnFinishedResizing;
	EOrientation Orientation;
	float HandleSize;
	float MinSlotLength;
	int32 DraggedHandle;
	int32 HoveredHandle;
};
