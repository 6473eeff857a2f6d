// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Framework/Views/ITypedTableView.h"
#include "Framework/Views/TableViewTypeTraits.h"
#include "Widgets/Views/STableViewBase.h"

// A list of items, of which each in sight has a row. Left out: headers, highlighted items, navigation by gamepad.

/** A list of items, of which each in sight has a row. The items belong to someone else. */
template <typename ItemType>
class SListView : public STableViewBase, public ITypedTableView<ItemType>
{
public:
	typedef typename TListTypeTraits<ItemType>::NullableType NullableItemType;
	typedef typename TSlateDelegates<ItemType>::FOnGenerateRow FOnGenerateRow;
	typedef typename TSlateDelegates<ItemType>::FOnSelectionChanged FOnSelectionChanged;
	typedef typename TSlateDelegates<ItemType>::FOnMouseButtonClick FOnMouseButtonClick;
	typedef typename TSlateDelegates<ItemType>::FOnMouseButtonDoubleClick FOnMouseButtonDoubleClick;
	typedef typename TSlateDelegates<ItemType>::FOnRowReleased FOnRowReleased;

	SLATE_BEGIN_ARGS(SListView<ItemType>)
		: _ListItemsSource(nullptr)
		, _ItemHeight(16.0f)
		, _SelectionMode(ESelectionMode::Multi)
		, _ClearSelectionOnClick(true)
		, _ConsumeMouseWheel(EConsumeMouseWheel::WhenScrollingPossible)
	{
		this->_Clipping = EWidgetClipping::ClipToBounds;
	}
	SLATE_EVENT(FOnGenerateRow, OnGenerateRow)
	SLATE_EVENT(FOnRowReleased, OnRowReleased)
	SLATE_EVENT(FOnTableViewScrolled, OnListViewScrolled)
	SLATE_ARGUMENT(const TArray<ItemType>*, ListItemsSource)
	SLATE_ATTRIBUTE(float, ItemHeight)
	SLATE_EVENT(FOnContextMenuOpening, OnContextMenuOpening)
	SLATE_EVENT(FOnMouseButtonClick, OnMouseButtonClick)
	SLATE_EVENT(FOnMouseButtonDoubleClick, OnMouseButtonDoubleClick)
	SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
	SLATE_ATTRIBUTE(ESelectionMode::Type, SelectionMode)
	SLATE_ARGUMENT(bool, ClearSelectionOnClick)
	SLATE_ARGUMENT(TSharedPtr<SScrollBar>, ExternalScrollbar)
	SLATE_ARGUMENT(EConsumeMouseWheel, ConsumeMouseWheel)
	SLATE_EVENT(FOnKeyDown, OnKeyDownHandler)
	SLATE_END_ARGS()

	/** Makes a list. */
	SListView(ETableViewMode::Type InListMode = ETableViewMode::List)
		: STableViewBase(InListMode)
		, SelectorItem(TListTypeTraits<ItemType>::MakeNullPtr())
		, RangeSelectionStart(TListTypeTraits<ItemType>::MakeNullPtr())
		, ItemsSource(nullptr)
		, bClearSelectionOnClick(true)
	{}

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs)
	{
		TakeArguments(InArgs);
		this->ConstructChildren(TAttribute<float>(0.0f), InArgs._ItemHeight, InArgs._ExternalScrollbar, InArgs._OnContextMenuOpening,
			InArgs._OnListViewScrolled, InArgs._ConsumeMouseWheel);
	}

	/** Sets the items, which must outlive the list. */
	void SetListItemsSource(const TArray<ItemType>& InListItemsSource)
	{
		ItemsSource = &InListItemsSource;
		this->RequestListRefresh();
	}

	void RebuildList() override
	{
		this->ClearPanel();
		ReleaseAll();
		this->RequestListRefresh();
	}

	int32 GetNumItemsBeingObserved() const override { return ItemsSource != nullptr ? ItemsSource->Num() : 0; }
	int32 GetNumGeneratedChildren() const override { return Rows.Num(); }

	/** Returns the row of an item, null if it is not in sight. */
	TSharedPtr<ITableRow> WidgetFromItem(const ItemType& InItem) const
	{
		for (int32 Index = 0; Index < Rows.Num(); ++Index)
		{
			if (Rows[Index].Item == InItem)
			{
				return Rows[Index].Row;
			}
		}
		return TSharedPtr<ITableRow>();
	}

	/** Scrolls at the next tick so that an item is in sight. */
	void RequestScrollIntoView(ItemType ItemToView, const uint32 /*UserIndex*/ = 0)
	{
		this->RequestScrollIndexIntoView(ItemsSource != nullptr ? ItemsSource->Find(ItemToView) : INDEX_NONE);
	}

	/** Says whether an item has a row. */
	bool IsItemVisible(ItemType Item) const { return WidgetFromItem(Item).IsValid(); }

	/** Returns the selected items in the order of their selection. */
	TArray<ItemType> GetSelectedItems() const { return SelectedItems; }

	/** Returns the number of selected items. */
	int32 GetNumItemsSelected() const { return SelectedItems.Num(); }

	/** Says whether an item is selected. */
	bool IsItemSelected(const ItemType& InItem) const { return SelectedSet.Contains(InItem); }

	/** Takes all selections away. */
	void ClearSelection()
	{
		if (SelectedItems.Num() > 0)
		{
			Deselect();
			Private_SignalSelectionChanged(ESelectInfo::Direct);
		}
	}

	/** Selects one item and no other. */
	void SetSelection(ItemType SoleSelectedItem, ESelectInfo::Type SelectInfo = ESelectInfo::Direct)
	{
		Deselect();
		SetItemSelection(SoleSelectedItem, true, SelectInfo);
	}

	/** Selects an item or takes its selection away. */
	void SetItemSelection(const ItemType& InItem, bool bSelected, ESelectInfo::Type SelectInfo = ESelectInfo::Direct)
	{
		if (SelectionMode.Get() == ESelectionMode::None)
		{
			return;
		}
		Private_SetItemSelection(InItem, bSelected, SelectInfo != ESelectInfo::Direct);
		Private_SignalSelectionChanged(SelectInfo);
	}

	/** Selects items or takes their selection away, and tells of it once. */
	void SetItemSelection(const TArray<ItemType>& InItems, bool bSelected, ESelectInfo::Type SelectInfo = ESelectInfo::Direct)
	{
		if (SelectionMode.Get() == ESelectionMode::None || InItems.Num() == 0)
		{
			return;
		}
		for (int32 Index = 0; Index < InItems.Num(); ++Index)
		{
			Private_SetItemSelection(InItems[Index], bSelected, SelectInfo != ESelectInfo::Direct);
		}
		Private_SignalSelectionChanged(SelectInfo);
	}

	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override
	{
		if (OnKeyDownHandler.IsBound())
		{
			const FReply Reply = OnKeyDownHandler.Execute(MyGeometry, InKeyEvent);
			if (Reply.IsEventHandled())
			{
				return Reply;
			}
		}
		const int32 NumItems = GetNumItemsBeingObserved();
		if (NumItems == 0 || InKeyEvent.IsControlDown() || InKeyEvent.IsAltDown())
		{
			return FReply::Unhandled();
		}
		const FKey Key = InKeyEvent.GetKey();
		const int32 Current = TListTypeTraits<ItemType>::IsPtrValid(SelectorItem) ? ItemsSource->Find(SelectorItem) : INDEX_NONE;
		const int32 PerLine = this->GetNumItemsPerLine();
		const int32 PerPage = this->GetNumLinesInSight() * PerLine;
		int32 Next = Current;
		if (Key == EKeys::Enter || Key == EKeys::SpaceBar)
		{
			if (Current != INDEX_NONE)
			{
				Select((*ItemsSource)[Current], false);
				return FReply::Handled();
			}
			return FReply::Unhandled();
		}
		else if (Key == EKeys::Home)
		{
			Next = 0;
		}
		else if (Key == EKeys::End)
		{
			Next = NumItems - 1;
		}
		else if (Key == EKeys::Down || Key == EKeys::PageDown)
		{
			Next = Current == INDEX_NONE ? 0 : Current + (Key == EKeys::Down ? PerLine : PerPage);
		}
		else if (Key == EKeys::Up || Key == EKeys::PageUp)
		{
			Next = Current == INDEX_NONE ? NumItems - 1 : Current - (Key == EKeys::Up ? PerLine : PerPage);
		}
		else if (PerLine > 1 && (Key == EKeys::Left || Key == EKeys::Right))
		{
			Next = Current == INDEX_NONE ? 0 : Current + (Key == EKeys::Left ? -1 : 1);
		}
		else
		{
			return FReply::Unhandled();
		}
		Next = FMath::Max(0, FMath::Min(Next, NumItems - 1));
		if (Next != Current && SelectionMode.Get() != ESelectionMode::None)
		{
			const ItemType Item = (*ItemsSource)[Next];
			Select(Item, InKeyEvent.IsShiftDown());
			RequestScrollIntoView(Item);
		}
		return FReply::Handled();
	}

	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override
	{
		if (MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton && bClearSelectionOnClick
			&& SelectionMode.Get() == ESelectionMode::Multi && SelectedItems.Num() > 0)
		{
			Deselect();
			Private_SignalSelectionChanged(ESelectInfo::OnMouseClick);
			return FReply::Handled();
		}
		return STableViewBase::OnMouseButtonDown(MyGeometry, MouseEvent);
	}

	// What rows ask for.

	void Private_SetItemSelection(ItemType TheItem, bool bShouldBeSelected, bool bWasUserDirected = false) override
	{
		if (bShouldBeSelected)
		{
			if (SelectionMode.Get() != ESelectionMode::Multi)
			{
				Deselect();
			}
			AddToSelection(TheItem);
		}
		else if (SelectedSet.Remove(TheItem) > 0)
		{
			SelectedItems.Remove(TheItem);
		}
		if (bWasUserDirected || bShouldBeSelected)
		{
			SelectorItem = TheItem;
			RangeSelectionStart = TheItem;
		}
	}

	void Private_ClearSelection() override { Deselect(); }

	void Private_SelectRangeFromCurrentTo(ItemType InRangeSelectionEnd) override
	{
		if (SelectionMode.Get() != ESelectionMode::Multi || ItemsSource == nullptr)
		{
			return;
		}
		int32 Start = TListTypeTraits<ItemType>::IsPtrValid(RangeSelectionStart) ? ItemsSource->Find(RangeSelectionStart) : 0;
		int32 End = ItemsSource->Find(InRangeSelectionEnd);
		if (Start > End)
		{
			const int32 Swapped = Start;
			Start = End;
			End = Swapped;
		}
		for (int32 Index = FMath::Max(0, Start); Index <= End; ++Index)
		{
			AddToSelection((*ItemsSource)[Index]);
		}
		SelectorItem = InRangeSelectionEnd;
	}

	void Private_SignalSelectionChanged(ESelectInfo::Type SelectInfo) override
	{
		OnSelectionChanged.ExecuteIfBound(
			SelectedItems.Num() > 0 ? NullableItemType(SelectedItems[0]) : TListTypeTraits<ItemType>::MakeNullPtr(), SelectInfo);
	}

	const ItemType* Private_ItemFromWidget(const ITableRow* TheWidget) const override
	{
		for (int32 Index = 0; Index < Rows.Num(); ++Index)
		{
			if (Rows[Index].Row.Get() == TheWidget)
			{
				return &Rows[Index].Item;
			}
		}
		return nullptr;
	}

	bool Private_IsItemSelected(const ItemType& TheItem) const override { return SelectedSet.Contains(TheItem); }
	bool Private_HasSelectorFocus(const ItemType& TheItem) const override { return SelectorItem == TheItem; }
	ESelectionMode::Type Private_GetSelectionMode() const override { return SelectionMode.Get(); }

	bool Private_OnItemClicked(ItemType TheItem) override
	{
		OnClick.ExecuteIfBound(TheItem);
		return OnClick.IsBound();
	}

	bool Private_OnItemDoubleClicked(ItemType TheItem) override
	{
		OnDoubleClick.ExecuteIfBound(TheItem);
		return OnDoubleClick.IsBound();
	}

	void Private_OnItemRightClicked(ItemType /*TheItem*/, const FPointerEvent& MouseEvent) override
	{
		this->OnRightMouseButtonUp(MouseEvent);
	}

	TSharedRef<SWidget> AsWidget() override { return this->AsShared(); }

protected:
	/** Takes the arguments that tile views share. */
	template <typename ArgumentsType>
	void TakeArguments(const ArgumentsType& InArgs)
	{
		check(InArgs._OnGenerateRow.IsBound());
		ItemsSource = InArgs._ListItemsSource;
		OnGenerateRow = InArgs._OnGenerateRow;
		OnRowReleased = InArgs._OnRowReleased;
		OnSelectionChanged = InArgs._OnSelectionChanged;
		OnClick = InArgs._OnMouseButtonClick;
		OnDoubleClick = InArgs._OnMouseButtonDoubleClick;
		OnKeyDownHandler = InArgs._OnKeyDownHandler;
		SelectionMode = InArgs._SelectionMode;
		bClearSelectionOnClick = InArgs._ClearSelectionOnClick;
	}

	TSharedRef<ITableRow> GenerateRowAt(int32 ItemIndex) override
	{
		const ItemType Item = (*ItemsSource)[ItemIndex];
		checkf(TListTypeTraits<ItemType>::IsPtrValid(Item), TEXT("The item at index %d of the list is null."), ItemIndex);
		for (int32 Index = 0; Index < Rows.Num(); ++Index)
		{
			if (Rows[Index].Item == Item)
			{
				Rows[Index].bInSight = true;
				return Rows[Index].Row.ToSharedRef();
			}
		}
		FItemRow NewRow;
		NewRow.Item = Item;
		// Known before it is made: a row may ask for its item while it is constructed.
		const TSharedRef<ITableRow> Row = OnGenerateRow.Execute(Item, StaticCastSharedRef<STableViewBase>(this->AsShared()));
		NewRow.Row = Row;
		NewRow.bInSight = true;
		Rows.Add(NewRow);
		return Row;
	}

	void OnBeginGenerationPass() override
	{
		for (int32 Index = 0; Index < Rows.Num(); ++Index)
		{
			Rows[Index].bInSight = false;
		}
	}

	void OnEndGenerationPass() override
	{
		for (int32 Index = Rows.Num() - 1; Index >= 0; --Index)
		{
			if (!Rows[Index].bInSight)
			{
				const TSharedRef<ITableRow> Released = Rows[Index].Row.ToSharedRef();
				Rows.RemoveAt(Index);
				OnRowReleased.ExecuteIfBound(Released);
			}
		}
	}

	void OnItemsRefreshed() override
	{
		// Items that are gone cannot stay selected.
		const int32 NumBefore = SelectedItems.Num();
		if (NumBefore > 0)
		{
			TSet<ItemType> Present;
			for (int32 Index = 0; ItemsSource != nullptr && Index < ItemsSource->Num(); ++Index)
			{
				Present.Add((*ItemsSource)[Index]);
			}
			const TArray<ItemType> Before = SelectedItems;
			Deselect();
			for (int32 Index = 0; Index < NumBefore; ++Index)
			{
				if (Present.Contains(Before[Index]))
				{
					AddToSelection(Before[Index]);
				}
			}
		}
		if (TListTypeTraits<ItemType>::IsPtrValid(SelectorItem) && (ItemsSource == nullptr || !ItemsSource->Contains(SelectorItem)))
		{
			SelectorItem = TListTypeTraits<ItemType>::MakeNullPtr();
			RangeSelectionStart = SelectorItem;
		}
		if (NumBefore != SelectedItems.Num())
		{
			Private_SignalSelectionChanged(ESelectInfo::Direct);
		}
	}

	/** What makes a row for an item. */
	FOnGenerateRow OnGenerateRow;

	/** What is told of rows that are let go. */
	FOnRowReleased OnRowReleased;

	/** What is told of selections. */
	FOnSelectionChanged OnSelectionChanged;

	/** What is told of clicks. */
	FOnMouseButtonClick OnClick;

	/** What is told of double clicks. */
	FOnMouseButtonDoubleClick OnDoubleClick;

	/** What sees keys first. */
	FOnKeyDown OnKeyDownHandler;

	/** How many items can be selected. */
	TAttribute<ESelectionMode::Type> SelectionMode;

	/** The selected items in the order of their selection; changed by the functions below alone. */
	TArray<ItemType> SelectedItems;

	/** The item that the keyboard goes on from. */
	NullableItemType SelectorItem;

	/** The item that a range starts from. */
	NullableItemType RangeSelectionStart;

	/** All items. */
	const TArray<ItemType>* ItemsSource;

	/** Whether a click beside the items takes the selection away. */
	bool bClearSelectionOnClick;

private:
	struct FItemRow
	{
		ItemType Item = ItemType();
		TSharedPtr<ITableRow> Row;
		bool bInSight = false;
	};

	void Deselect()
	{
		SelectedItems.Empty();
		SelectedSet.Empty();
	}

	void AddToSelection(const ItemType& Item)
	{
		bool bIsAlreadySelected = false;
		SelectedSet.Add(Item, &bIsAlreadySelected);
		if (!bIsAlreadySelected)
		{
			SelectedItems.Add(Item);
		}
	}

	void ReleaseAll()
	{
		while (Rows.Num() > 0)
		{
			const TSharedRef<ITableRow> Released = Rows.Last().Row.ToSharedRef();
			Rows.RemoveAt(Rows.Num() - 1);
			OnRowReleased.ExecuteIfBound(Released);
		}
	}

	void Select(const ItemType& Item, bool bRange)
	{
		if (bRange && SelectionMode.Get() == ESelectionMode::Multi)
		{
			Deselect();
			Private_SelectRangeFromCurrentTo(Item);
		}
		else
		{
			Deselect();
			Private_SetItemSelection(Item, true, true);
		}
		Private_SignalSelectionChanged(ESelectInfo::OnKeyPress);
	}

	TArray<FItemRow> Rows;

	/** The same items as in SelectedItems: thousands may be selected. */
	TSet<ItemType> SelectedSet;
};
