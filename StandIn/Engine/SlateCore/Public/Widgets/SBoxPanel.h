// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Types/SlateStructs.h"
#include "Widgets/SPanel.h"

// Children in a row or a column.

/** Children one after another along an axis. */
class SLATECORE_API SBoxPanel : public SPanel
{
public:
	/** A place in the box; stretches with weight one, fills, no padding. */
	class FSlot : public TSlotBase<FSlot>, public TSupportsContentAlignmentMixin<FSlot>, public TSupportsContentPaddingMixin<FSlot>
	{
	public:
		/** How the slot gets its length. */
		FSizeParam SizeParam;

		/** The longest the child may be, 0 for no limit. */
		TAttribute<float> MaxSize;

	protected:
		/** Makes a slot. */
		FSlot()
			: TSlotBase<FSlot>()
			, TSupportsContentAlignmentMixin<FSlot>(HAlign_Fill, VAlign_Fill)
			, SizeParam(FStretch(1.0f))
			, MaxSize(0.0f)
		{}
	};

	/** Removes the slot of a widget and returns its index, INDEX_NONE if there was none. */
	int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget);

	/** Removes all slots. */
	void ClearChildren();

	/** Returns the number of slots. */
	int32 NumSlots() const { return Children.Num(); }

	/** Returns the slot at an index; an index out of range is a fatal error. */
	const FSlot& GetSlot(int32 SlotIndex) const { return Children[SlotIndex]; }

	/** Returns the slot at an index; an index out of range is a fatal error. */
	FSlot& GetSlot(int32 SlotIndex) { return Children[SlotIndex]; }

	/** Says whether a slot index exists. */
	bool IsValidSlotIndex(int32 Index) const { return Index >= 0 && Index < Children.Num(); }

	FChildren* GetChildren() override { return &Children; }

protected:
	/** Makes a box along an axis. */
	SBoxPanel(EOrientation InOrientation);

	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

	/** The slots. */
	TPanelChildren<FSlot> Children;

private:
	const EOrientation Orientation;
};

// Declares the calls that both kinds of slots share, returning the kind's own type.
#define STANDIN_BOX_SLOT_CALLS() \
	FSlot& Padding(float Uniform) \
	{ \
		SlotPadding = FMargin(Uniform); \
		return *this; \
	} \
	FSlot& Padding(float Horizontal, float Vertical) \
	{ \
		SlotPadding = FMargin(Horizontal, Vertical); \
		return *this; \
	} \
	FSlot& Padding(float Left, float Top, float Right, float Bottom) \
	{ \
		SlotPadding = FMargin(Left, Top, Right, Bottom); \
		return *this; \
	} \
	FSlot& Padding(const TAttribute<FMargin>& InPadding) \
	{ \
		SlotPadding = InPadding; \
		return *this; \
	} \
	FSlot& HAlign(EHorizontalAlignment InHAlignment) \
	{ \
		HAlignment = InHAlignment; \
		return *this; \
	} \
	FSlot& VAlign(EVerticalAlignment InVAlignment) \
	{ \
		VAlignment = InVAlignment; \
		return *this; \
	} \
	FSlot& operator[](const TSharedRef<SWidget>& InWidget) \
	{ \
		SBoxPanel::FSlot::operator[](InWidget); \
		return *this; \
	} \
	FSlot& Expose(FSlot*& OutVarToInit) \
	{ \
		OutVarToInit = this; \
		return *this; \
	}

/** Children side by side. */
class SLATECORE_API SHorizontalBox : public SBoxPanel
{
public:
	/** A place in the row. */
	class FSlot : public SBoxPanel::FSlot
	{
	public:
		/** Makes a slot. */
		FSlot()
			: SBoxPanel::FSlot()
		{}

		/** Makes the slot as wide as its content wishes. */
		FSlot& AutoWidth()
		{
			SizeParam = FAuto();
			return *this;
		}

		/** Gives the slot a share of the width left, by weight. */
		FSlot& FillWidth(const TAttribute<float>& StretchCoefficient)
		{
			SizeParam = FStretch(StretchCoefficient);
			return *this;
		}

		/** Limits the child's width, 0 for no limit. */
		FSlot& MaxWidth(const TAttribute<float>& InMaxWidth)
		{
			MaxSize = InMaxWidth;
			return *this;
		}

		STANDIN_BOX_SLOT_CALLS()
	};

	SLATE_BEGIN_ARGS(SHorizontalBox) { _Visibility = EVisibility::SelfHitTestInvisible; }
	SLATE_SUPPORTS_SLOT(SHorizontalBox::FSlot)
	SLATE_END_ARGS()

	/** Makes the row. */
	SHorizontalBox()
		: SBoxPanel(Orient_Horizontal)
	{
		SetCanTick(false);
	}

	/** Makes a slot for SNew(SHorizontalBox) + Slot(). */
	static FSlot& Slot() { return *(new FSlot()); }

	/** Adds a slot at the end. */
	FSlot& AddSlot() { return InsertSlot(INDEX_NONE); }

	/** Inserts a slot before the one at an index, INDEX_NONE for the end. */
	FSlot& InsertSlot(int32 Index = INDEX_NONE);

	/** Takes the slots of the arguments. */
	void Construct(const FArguments& InArgs);
};

/** Children one below the other. */
class SLATECORE_API SVerticalBox : public SBoxPanel
{
public:
	/** A place in the column. */
	class FSlot : public SBoxPanel::FSlot
	{
	public:
		/** Makes a slot. */
		FSlot()
			: SBoxPanel::FSlot()
		{}

		/** Makes the slot as high as its content wishes. */
		FSlot& AutoHeight()
		{
			SizeParam = FAuto();
			return *this;
		}

		/** Gives the slot a share of the height left, by weight. */
		FSlot& FillHeight(const TAttribute<float>& StretchCoefficient)
		{
			SizeParam = FStretch(StretchCoefficient);
			return *this;
		}

		/** Limits the child's height, 0 for no limit. */
		FSlot& MaxHeight(const TAttribute<float>& InMaxHeight)
		{
			MaxSize = InMaxHeight;
			return *this;
		}

		STANDIN_BOX_SLOT_CALLS()
	};

	SLATE_BEGIN_ARGS(SVerticalBox) { _Visibility = EVisibility::SelfHitTestInvisible; }
	SLATE_SUPPORTS_SLOT(SVerticalBox::FSlot)
	SLATE_END_ARGS()

	/** Makes the column. */
	SVerticalBox()
		: SBoxPanel(Orient_Vertical)
	{
		SetCanTick(false);
	}

	/** Makes a slot for SNew(SVerticalBox) + Slot(). */
	static FSlot& Slot() { return *(new FSlot()); }

	/** Adds a slot at the end. */
	FSlot& AddSlot() { return InsertSlot(INDEX_NONE); }

	/** Inserts a slot before the one at an index, INDEX_NONE for the end. */
	FSlot& InsertSlot(int32 Index = INDEX_NONE);

	/** Takes the slots of the arguments. */
	void Construct(const FArguments& InArgs);
};
