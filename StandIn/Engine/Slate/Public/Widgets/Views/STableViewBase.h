// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Views/ITypedTableView.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/Views/ITableRow.h"

class SListPanel;

// What lists and tile views share: rows are made only while they are in sight. Left out: headers, pinned and animated scrolling,
// horizontal lists, pools of rows.

DECLARE_DELEGATE_RetVal(TSharedPtr<SWidget>, FOnContextMenuOpening) DECLARE_DELEGATE_OneParam(FOnTableViewScrolled, double)

	/** What lists and tile views share: rows are made only while they are in sight. */
	class SLATE_API STableViewBase : public SCompoundWidget
{
public:
	/** Says that the items changed; rows follow at the next tick. */
	virtual void RequestListRefresh();

	/** Throws all rows away and makes new ones at the next tick. */
	virtual void RebuildList() = 0;

	/** Returns the number of items. */
	virtual int32 GetNumItemsBeingObserved() const = 0;

	/** Returns the number of rows that exist. */
	virtual int32 GetNumGeneratedChildren() const = 0;

	/** Says whether a refresh waits for the next tick. */
	bool IsPendingRefresh() const { return bItemsNeedRefresh; }

	/** Returns how far the list is scrolled, in items. */
	double GetScrollOffset() const { return ScrollOffset; }

	/** Scrolls to an offset in items; what is too far is cut at the next tick. */
	void SetScrollOffset(const double InScrollOffset);

	/** Scrolls to the first item. */
	void ScrollToTop() { SetScrollOffset(0.0); }

	/** Scrolls to the last item. */
	void ScrollToBottom() { SetScrollOffset(static_cast<double>(GetNumItemsBeingObserved())); }

	/** Scrolls by a distance in Slate units; returns how many items that were. */
	float ScrollBy(float ScrollByAmount);

	bool SupportsKeyboardFocus() const override { return true; }
	void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

protected:
	/** Makes a view of a mode. */
	STableViewBase(ETableViewMode::Type InTableViewMode);

	/** Makes the panel and the scroll bar. Tiles are of the given size, rows as high as they wish. */
	void ConstructChildren(const TAttribute<float>& InItemWidth, const TAttribute<float>& InItemHeight,
		const TSharedPtr<SScrollBar>& InScrollBar, const FOnContextMenuOpening& InOnContextMenuOpening,
		const FOnTableViewScrolled& InOnScrolled, EConsumeMouseWheel InConsumeMouseWheel);

	/** Returns the row of an item by its index, made if need be; for a pass between the next two. */
	virtual TSharedRef<ITableRow> GenerateRowAt(int32 ItemIndex) = 0;

	/** Is called before a pass over the items in sight. */
	virtual void OnBeginGenerationPass() = 0;

	/** Is called after a pass; rows not asked for in it are let go. */
	virtual void OnEndGenerationPass() = 0;

	/** Is called when the items may have changed, before rows are made. */
	virtual void OnItemsRefreshed() = 0;

	/** Scrolls at the next tick so that an item by its index is in sight. */
	void RequestScrollIndexIntoView(int32 ItemIndex) { IndexToShow = ItemIndex; }

	/** Takes all rows out of the panel. */
	void ClearPanel();

	/** Opens the context menu at the mouse. */
	void OnRightMouseButtonUp(const FPointerEvent& MouseEvent);

	/** Returns how many items lie in one line. */
	int32 GetNumItemsPerLine() const;

	/** Returns how many whole lines are in sight, at least one. */
	int32 GetNumLinesInSight() const;

private:
	void OnScrollBarScrolled(float InOffsetFraction);
	void RegenerateItems(const FGeometry& AllottedGeometry);
	float GenerateLines(int32 FirstItem, float FirstLineOffset, float ViewHeight);
	float AddLine(int32 FirstItem, int32 AtPanelIndex);
	float GetLineHeight() const;

	TSharedPtr<SListPanel> ItemsPanel;
	TSharedPtr<SScrollBar> ScrollBar;
	FOnContextMenuOpening OnContextMenuOpening;
	FOnTableViewScrolled OnScrolled;
	TAttribute<float> ItemWidth;
	TAttribute<float> ItemHeight;
	ETableViewMode::Type TableViewMode;
	EConsumeMouseWheel ConsumeMouseWheel;
	double ScrollOffset;
	int32 IndexToShow;
	float ViewWidth;
	float LastViewHeight;
	float AverageLineHeight;
	bool bItemsNeedRefresh;
};
