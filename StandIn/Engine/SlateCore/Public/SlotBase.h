// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class FChildren;
class SWidget;

// A place in a panel that holds one child widget.

/** A place in a panel that holds one child widget. */
class SLATECORE_API FSlotBase
{
public:
	/** Makes a slot that holds the null widget. */
	FSlotBase();

	/** Makes a slot that holds the given widget. */
	FSlotBase(const TSharedRef<SWidget>& InWidget);

	/** Destroys the slot; its child no longer has this parent. */
	virtual ~FSlotBase();

	FSlotBase(const FSlotBase&) = delete;
	FSlotBase& operator=(const FSlotBase&) = delete;

	/** Puts a widget into the slot in place of the one that was there. */
	void AttachWidget(const TSharedRef<SWidget>& InWidget)
	{
		DetatchParentFromContent();
		Widget = InWidget;
		AfterContentOrOwnerAssigned();
	}

	/** Returns the widget, the null widget in an empty slot. */
	const TSharedRef<SWidget>& GetWidget() const { return Widget; }

	/** Takes the widget out; null if there was none. */
	const TSharedPtr<SWidget> DetachWidget();

	/** Sets the panel that the slot belongs to and makes it the child's parent. */
	void AttachWidgetParent(SWidget* InParent);

private:
	void DetatchParentFromContent();
	void AfterContentOrOwnerAssigned();

	SWidget* RawParentPtr;
	TSharedRef<SWidget> Widget;
};

/** A slot that knows its own type, so that calls can be chained. */
template <typename SlotType>
class TSlotBase : public FSlotBase
{
public:
	/** Makes an empty slot. */
	TSlotBase()
		: FSlotBase()
	{}

	/** Makes a slot with a child. */
	TSlotBase(const TSharedRef<SWidget>& InWidget)
		: FSlotBase(InWidget)
	{}

	/** Puts a widget into the slot. */
	SlotType& operator[](const TSharedRef<SWidget>& InChildWidget)
	{
		this->AttachWidget(InChildWidget);
		return static_cast<SlotType&>(*this);
	}

	/** Writes the slot's address to a pointer of the caller. */
	SlotType& Expose(SlotType*& OutVarToInit)
	{
		OutVarToInit = static_cast<SlotType*>(this);
		return static_cast<SlotType&>(*this);
	}
};
