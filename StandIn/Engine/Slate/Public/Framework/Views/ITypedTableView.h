// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Types/SlateEnums.h"

class ITableRow;
class SWidget;

// What a row of a list asks of its list.

namespace ESelectionMode
{
/** How many items can be selected. */
enum Type
{
	None,
	Single,
	SingleToggle,
	Multi
};
}

namespace ETableViewMode
{
/** What a table looks like. */
enum Type
{
	List,
	Tile,
	Tree
};
}

/** What a row of a list asks of its list. */
template <typename ItemType>
class ITypedTableView
{
public:
	/** Destroys the view. */
	virtual ~ITypedTableView() {}

	/** Selects an item or takes its selection away. */
	virtual void Private_SetItemSelection(ItemType TheItem, bool bShouldBeSelected, bool bWasUserDirected = false) = 0;

	/** Takes all selections away. */
	virtual void Private_ClearSelection() = 0;

	/** Selects all items from the last selected one to the given one. */
	virtual void Private_SelectRangeFromCurrentTo(ItemType InRangeSelectionEnd) = 0;

	/** Tells that the selection changed. */
	virtual void Private_SignalSelectionChanged(ESelectInfo::Type SelectInfo) = 0;

	/** Returns the item of a row, null if it has none. */
	virtual const ItemType* Private_ItemFromWidget(const ITableRow* TheWidget) const = 0;

	/** Says whether an item is selected. */
	virtual bool Private_IsItemSelected(const ItemType& TheItem) const = 0;

	/** Says whether an item is the one that the keyboard goes on from. */
	virtual bool Private_HasSelectorFocus(const ItemType& TheItem) const = 0;

	/** Returns how many items can be selected. */
	virtual ESelectionMode::Type Private_GetSelectionMode() const = 0;

	/** Tells that an item was clicked; says whether that was handled. */
	virtual bool Private_OnItemClicked(ItemType TheItem) = 0;

	/** Tells that an item was double-clicked; says whether that was handled. */
	virtual bool Private_OnItemDoubleClicked(ItemType TheItem) = 0;

	/** Tells that the right button was clicked on an item. */
	virtual void Private_OnItemRightClicked(ItemType TheItem, const FPointerEvent& MouseEvent) = 0;

	/** Returns the view as a widget. */
	virtual TSharedRef<SWidget> AsWidget() = 0;
};
