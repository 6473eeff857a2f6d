// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedWidget.h"
#include "Layout/Visibility.h"

// What a panel makes of its children when it arranges them. Left out: three-dimensional children.

/** The arranged children of one widget, in drawing order, those of unwanted visibility left out. */
class SLATECORE_API FArrangedChildren
{
public:
	/** The type of the array behind the list. */
	typedef TArray<FArrangedWidget> FArrangedWidgetArray;

	/** Makes an empty list that takes children passing the filter. */
	FArrangedChildren(EVisibility InVisibilityFilter, bool bInAllow3DWidgets = false);

	/** Adds a child if its own visibility passes the filter. */
	void AddWidget(const FArrangedWidget& InWidgetGeometry);

	/** Adds a child if the given visibility passes the filter. */
	void AddWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry);

	/** Inserts a child before the one at an index if the given visibility passes the filter. */
	void InsertWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry, int32 Index);

	/** Returns the filter. */
	EVisibility GetFilter() const { return VisibilityFilter; }

	/** Says whether a visibility passes the filter. */
	bool Accepts(EVisibility InVisibility) const { return EVisibility::DoesVisibilityPassFilter(InVisibility, VisibilityFilter); }

	/** Returns the number of children. */
	int32 Num() const { return Array.Num(); }

	/** Returns the child at an index; an index out of range is a fatal error. */
	const FArrangedWidget& operator[](int32 Index) const { return Array[Index]; }

	/** Returns the child at an index; an index out of range is a fatal error. */
	FArrangedWidget& operator[](int32 Index) { return Array[Index]; }

	/** Returns the last child but the given number; the list must not be empty. */
	const FArrangedWidget& Last(int32 IndexFromEnd = 0) const { return Array[Array.Num() - 1 - IndexFromEnd]; }

	/** Removes a child by its index. */
	void Remove(int32 Index) { Array.RemoveAt(Index); }

	/** Empties the list. */
	void Empty() { Array.Empty(); }

	/** Returns the array behind the list. */
	FArrangedWidgetArray& GetInternalArray() { return Array; }

	/** Returns the array behind the list. */
	const FArrangedWidgetArray& GetInternalArray() const { return Array; }

private:
	EVisibility VisibilityFilter;
	FArrangedWidgetArray Array;
};
