// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Misc/Attribute.h"
#include "SlotBase.h"
#include "Templates/UniquePtr.h"
#include "Types/SlateEnums.h"

class SWidget;

// Containers of child widgets, as panels hand them out. Left out: combined and weak children, moving and sorting.

/** The children of a widget. */
class SLATECORE_API FChildren
{
public:
	/** Makes the children of the given widget. */
	FChildren(SWidget* InOwner);

	/** Destroys the list. */
	virtual ~FChildren() {}

	/** Returns the number of children. */
	virtual int32 Num() const = 0;

	/** Returns the child at an index; an index out of range is a fatal error. */
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) = 0;

	/** Returns the child at an index; an index out of range is a fatal error. */
	virtual TSharedRef<const SWidget> GetChildAt(int32 Index) const = 0;

	/** Calls a function with every child. */
	template <typename PredicateType>
	void ForEachWidget(PredicateType Pred)
	{
		for (int32 Index = 0; Index < Num(); ++Index)
		{
			TSharedRef<SWidget> Child = GetChildAt(Index);
			Pred(*Child);
		}
	}

	/** Returns the widget whose children these are. */
	SWidget& GetOwner() const { return *Owner; }

protected:
	/** Makes the owner a child's parent. */
	void AssignParent(SWidget& Child) const;

	/** Takes the owner away as a child's parent. */
	void DetachParent(SWidget& Child) const;

	/** The widget whose children these are. */
	SWidget* Owner;
};

/** No children. */
class SLATECORE_API FNoChildren : public FChildren
{
public:
	/** The children of widgets that have none. */
	static FNoChildren NoChildrenInstance;

	/** Makes the children of no widget. */
	FNoChildren();

	/** Makes the absent children of a widget. */
	FNoChildren(SWidget* InOwner);

	int32 Num() const override { return 0; }
	TSharedRef<SWidget> GetChildAt(int32 Index) override;
	TSharedRef<const SWidget> GetChildAt(int32 Index) const override;
};

/** Gives a class exactly one child slot, which is its own list of children. */
template <typename MixedIntoType>
class TSupportsOneChildMixin : public FChildren, public TSlotBase<MixedIntoType>
{
public:
	/** Makes the one child of a widget. */
	TSupportsOneChildMixin(SWidget* InOwner)
		: FChildren(InOwner)
		, TSlotBase<MixedIntoType>()
	{
		this->AttachWidgetParent(InOwner);
	}

	int32 Num() const override { return 1; }

	TSharedRef<SWidget> GetChildAt(int32 ChildIndex) override
	{
		check(ChildIndex == 0);
		return FSlotBase::GetWidget();
	}

	TSharedRef<const SWidget> GetChildAt(int32 ChildIndex) const override
	{
		check(ChildIndex == 0);
		return FSlotBase::GetWidget();
	}
};

/** Gives a slot its two alignments. */
template <typename MixedIntoType>
class TSupportsContentAlignmentMixin
{
public:
	/** Sets both alignments. */
	TSupportsContentAlignmentMixin(const EHorizontalAlignment InHAlign, const EVerticalAlignment InVAlign)
		: HAlignment(InHAlign)
		, VAlignment(InVAlign)
	{}

	/** Sets the horizontal alignment. */
	MixedIntoType& HAlign(EHorizontalAlignment InHAlignment)
	{
		HAlignment = InHAlignment;
		return *static_cast<MixedIntoType*>(this);
	}

	/** Sets the vertical alignment. */
	MixedIntoType& VAlign(EVerticalAlignment InVAlignment)
	{
		VAlignment = InVAlignment;
		return *static_cast<MixedIntoType*>(this);
	}

	/** Where the content lies along the horizontal. */
	EHorizontalAlignment HAlignment;

	/** Where the content lies along the vertical. */
	EVerticalAlignment VAlignment;
};

/** Gives a slot its padding. */
template <typename MixedIntoType>
class TSupportsContentPaddingMixin
{
public:
	/** Sets the padding, polled at every layout. */
	MixedIntoType& Padding(const TAttribute<FMargin> InPadding)
	{
		SlotPadding = InPadding;
		return *static_cast<MixedIntoType*>(this);
	}

	/** Sets the same padding on all sides. */
	MixedIntoType& Padding(float Uniform)
	{
		SlotPadding = FMargin(Uniform);
		return *static_cast<MixedIntoType*>(this);
	}

	/** Sets the padding left and right, above and below. */
	MixedIntoType& Padding(float Horizontal, float Vertical)
	{
		SlotPadding = FMargin(Horizontal, Vertical);
		return *static_cast<MixedIntoType*>(this);
	}

	/** Sets the padding of each side. */
	MixedIntoType& Padding(float Left, float Top, float Right, float Bottom)
	{
		SlotPadding = FMargin(Left, Top, Right, Bottom);
		return *static_cast<MixedIntoType*>(this);
	}

	/** The space around the content. */
	TAttribute<FMargin> SlotPadding;
};

/** The slot of a widget with one child: padding and alignment, filling by default. */
class FSimpleSlot : public TSupportsOneChildMixin<FSimpleSlot>,
					public TSupportsContentAlignmentMixin<FSimpleSlot>,
					public TSupportsContentPaddingMixin<FSimpleSlot>
{
public:
	/** Makes the slot of a widget. */
	FSimpleSlot(SWidget* InParent)
		: TSupportsOneChildMixin<FSimpleSlot>(InParent)
		, TSupportsContentAlignmentMixin<FSimpleSlot>(HAlign_Fill, VAlign_Fill)
	{}
};

/** Children that lie in slots of one type, which the list owns. */
template <typename SlotType>
class TPanelChildren : public FChildren
{
public:
	/** Makes the children of a widget. */
	TPanelChildren(SWidget* InOwner)
		: FChildren(InOwner)
	{}

	/** Destroys the slots. */
	~TPanelChildren() override { Empty(); }

	int32 Num() const override { return Slots.Num(); }
	TSharedRef<SWidget> GetChildAt(int32 Index) override { return Slots[Index]->GetWidget(); }
	TSharedRef<const SWidget> GetChildAt(int32 Index) const override { return Slots[Index]->GetWidget(); }

	/** Adds a slot, of which the list becomes the owner, and returns its index. */
	int32 Add(SlotType* Slot)
	{
		const int32 Index = Slots.Add(Slot);
		Slot->AttachWidgetParent(Owner);
		return Index;
	}

	/** Inserts a slot before the one at an index. */
	void Insert(SlotType* Slot, int32 Index)
	{
		Slots.Insert(Slot, Index);
		Slot->AttachWidgetParent(Owner);
	}

	/** Destroys the slot at an index. */
	void RemoveAt(int32 Index)
	{
		SlotType* Slot = Slots[Index];
		Slots.RemoveAt(Index);
		delete Slot;
	}

	/** Destroys all slots. */
	void Empty()
	{
		// Taken out first, as a child's destructor may come back here.
		TArray<SlotType*> Dying;
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			Dying.Add(Slots[Index]);
		}
		Slots.Empty();
		for (int32 Index = 0; Index < Dying.Num(); ++Index)
		{
			delete Dying[Index];
		}
	}

	/** Returns the slot at an index; an index out of range is a fatal error. */
	SlotType& operator[](int32 Index) { return *Slots[Index]; }

	/** Returns the slot at an index; an index out of range is a fatal error. */
	const SlotType& operator[](int32 Index) const { return *Slots[Index]; }

private:
	TArray<SlotType*> Slots;
};

/** Children without slots. */
template <typename ChildType>
class TSlotlessChildren : public FChildren
{
public:
	/** Makes the children of a widget; with bInChangesParent the owner becomes their parent. */
	TSlotlessChildren(SWidget* InOwner, bool bInChangesParent = true)
		: FChildren(InOwner)
		, bChangesParent(bInChangesParent)
	{}

	int32 Num() const override { return Children.Num(); }
	TSharedRef<SWidget> GetChildAt(int32 Index) override { return Children[Index]; }
	TSharedRef<const SWidget> GetChildAt(int32 Index) const override { return Children[Index]; }

	/** Adds a child and returns its index. */
	int32 Add(const TSharedRef<ChildType>& Child)
	{
		if (bChangesParent)
		{
			AssignParent(*Child);
		}
		return Children.Add(Child);
	}

	/** Inserts a child before the one at an index. */
	void Insert(const TSharedRef<ChildType>& Child, int32 Index)
	{
		if (bChangesParent)
		{
			AssignParent(*Child);
		}
		Children.Insert(Child, Index);
	}

	/** Takes out the child at an index. */
	void RemoveAt(int32 Index)
	{
		TSharedRef<ChildType> Child = Children[Index];
		Children.RemoveAt(Index);
		if (bChangesParent)
		{
			DetachParent(*Child);
		}
	}

	/** Takes out a child and returns how many there were of it. */
	int32 Remove(const TSharedRef<ChildType>& Child)
	{
		const int32 Index = Children.Find(Child);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAt(Index);
		return 1;
	}

	/** Returns the index of a child or INDEX_NONE. */
	int32 Find(const TSharedRef<ChildType>& Child) const { return Children.Find(Child); }

	/** Takes out all children. */
	void Empty()
	{
		while (Children.Num() > 0)
		{
			RemoveAt(Children.Num() - 1);
		}
	}

	/** Returns the child at an index; an index out of range is a fatal error. */
	const TSharedRef<ChildType>& operator[](int32 Index) const { return Children[Index]; }

private:
	TArray<TSharedRef<ChildType>> Children;
	bool bChangesParent;
};
