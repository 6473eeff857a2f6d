// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

class SWidget;

// One row of a list, or one tile.

/** One row of a list, or one tile. */
class ITableRow
{
public:
	/** Destroys the row. */
	virtual ~ITableRow() {}

	/** Sets where in the list the row's item is. */
	virtual void SetIndexInList(int32 InIndexInList) = 0;

	/** Returns where in the list the row's item is. */
	virtual int32 GetIndexInList() = 0;

	/** Says whether the row's item is selected. */
	virtual bool IsItemSelected() const = 0;

	/** Returns the row as a widget. */
	virtual TSharedRef<SWidget> AsWidget() = 0;

	/** Returns what the row shows. */
	virtual TSharedPtr<SWidget> GetContent() = 0;
};
