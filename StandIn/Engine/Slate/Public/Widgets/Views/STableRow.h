// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Views/ITypedTableView.h"
#include "Rendering/DrawElements.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Views/ITableRow.h"
#include "Widgets/Views/SListView.h"

// A row of a list: selection by mouse and how it looks. Left out: drag and drop, expanders.

/** A row of a list or a tile: selects its item by the mouse and shows whether it is selected. */
template <typename ItemType>
class STableRow : public ITableRow, public SBorder
{
public:
	SLATE_BEGIN_ARGS(STableRow<ItemType>)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FTableRowStyle>("TableView.Row"))
		, _Padding(FMargin(0.0f))
		, _ShowSelection(true)
		, _Content()
	{}
	SLATE_STYLE_ARGUMENT(FTableRowStyle, Style)
	SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_ARGUMENT(bool, ShowSelection)
	SLATE_DEFAULT_SLOT(typename STableRow<ItemType>::FArguments, Content)
	SLATE_END_ARGS()

	/** Makes a row. */
	STableRow()
		: Style(nullptr)
		, IndexInList(0)
		, bShowSelection(true)
		, bPressed(false)
	{}

	/** Takes the arguments and the list that the row is in, which must be a list of the same items. */
	void Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& InOwnerTableView)
	{
		ConstructInternal(InArgs, InOwnerTableView);
		this->ChildSlot.Padding(InArgs._Padding)[InArgs._Content.Widget];
	}

	void SetIndexInList(int32 InIndexInList) override { IndexInList = InIndexInList; }
	int32 GetIndexInList() override { return IndexInList; }
	TSharedRef<SWidget> AsWidget() override { return this->AsShared(); }
	TSharedPtr<SWidget> GetContent() override { return this->ChildSlot.GetWidget(); }

	bool IsItemSelected() const override
	{
		const TSharedPtr<ITypedTableView<ItemType>> Owner = OwnerTablePtr.Pin();
		const ItemType* Item = Owner.IsValid() ? Owner->Private_ItemFromWidget(this) : nullptr;
		return Item != nullptr && Owner->Private_IsItemSelected(*Item);
	}

	bool SupportsKeyboardFocus() const override { return false; }

	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override
	{
		const TSharedPtr<ITypedTableView<ItemType>> Owner = OwnerTablePtr.Pin();
		const ItemType* Found = Owner.IsValid() ? Owner->Private_ItemFromWidget(this) : nullptr;
		if (Found == nullptr)
		{
			return FReply::Unhandled();
		}
		const ItemType Item = *Found;
		if (MouseEvent.GetEffectingButton() == EKeys::RightMouseButton)
		{
			return FReply::Handled();
		}
		if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
		{
			return SBorder::OnMouseButtonDown(MyGeometry, MouseEvent);
		}
		bPressed = true;
		const ESelectionMode::Type Mode = Owner->Private_GetSelectionMode();
		if (Mode != ESelectionMode::None)
		{
			const bool bMulti = Mode == ESelectionMode::Multi;
			const bool bToggle = (bMulti && MouseEvent.IsControlDown()) || Mode == ESelectionMode::SingleToggle;
			bool bChanged = true;
			if (bMulti && MouseEvent.IsShiftDown())
			{
				Owner->Private_ClearSelection();
				Owner->Private_SelectRangeFromCurrentTo(Item);
			}
			else if (bToggle)
			{
				Owner->Private_SetItemSelection(Item, !Owner->Private_IsItemSelected(Item), true);
			}
			else
			{
				bChanged = bMulti || !Owner->Private_IsItemSelected(Item);
				Owner->Private_ClearSelection();
				Owner->Private_SetItemSelection(Item, true, true);
			}
			if (bChanged)
			{
				Owner->Private_SignalSelectionChanged(ESelectInfo::OnMouseClick);
			}
		}
		return FReply::Handled().CaptureMouse(this->AsShared()).SetUserFocus(Owner->AsWidget(), EFocusCause::Mouse);
	}

	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override
	{
		const TSharedPtr<ITypedTableView<ItemType>> Owner = OwnerTablePtr.Pin();
		const ItemType* Found = Owner.IsValid() ? Owner->Private_ItemFromWidget(this) : nullptr;
		if (Found == nullptr)
		{
			return this->HasMouseCapture() ? FReply::Handled().ReleaseMouseCapture() : FReply::Unhandled();
		}
		const ItemType Item = *Found;
		const bool bOnRow = MyGeometry.IsUnderLocation(MouseEvent.GetScreenSpacePosition());
		if (MouseEvent.GetEffectingButton() == EKeys::LeftMouseButton)
		{
			const bool bWasPressed = bPressed;
			bPressed = false;
			if (bWasPressed && bOnRow)
			{
				Owner->Private_OnItemClicked(Item);
			}
			return bWasPressed ? FReply::Handled().ReleaseMouseCapture() : FReply::Unhandled();
		}
		if (MouseEvent.GetEffectingButton() == EKeys::RightMouseButton && bOnRow)
		{
			if (Owner->Private_GetSelectionMode() != ESelectionMode::None && !Owner->Private_IsItemSelected(Item))
			{
				Owner->Private_ClearSelection();
				Owner->Private_SetItemSelection(Item, true, true);
				Owner->Private_SignalSelectionChanged(ESelectInfo::OnMouseClick);
			}
			Owner->Private_OnItemRightClicked(Item, MouseEvent);
			return FReply::Handled();
		}
		return FReply::Unhandled();
	}

	FReply OnMouseButtonDoubleClick(const FGeometry& /*InMyGeometry*/, const FPointerEvent& InMouseEvent) override
	{
		const TSharedPtr<ITypedTableView<ItemType>> Owner = OwnerTablePtr.Pin();
		const ItemType* Found = Owner.IsValid() ? Owner->Private_ItemFromWidget(this) : nullptr;
		if (Found != nullptr && InMouseEvent.GetEffectingButton() == EKeys::LeftMouseButton)
		{
			const ItemType Item = *Found;
			return Owner->Private_OnItemDoubleClicked(Item) ? FReply::Handled() : FReply::Unhandled();
		}
		return FReply::Unhandled();
	}

	void OnMouseCaptureLost(const FCaptureLostEvent& /*CaptureLostEvent*/) override { bPressed = false; }

	FSlateColor GetForegroundColor() const override
	{
		return bShowSelection && IsItemSelected() ? Style->SelectedTextColor : Style->TextColor;
	}

protected:
	/** Takes the arguments but puts nothing into the row. */
	void ConstructInternal(const FArguments& InArgs, const TSharedRef<STableViewBase>& InOwnerTableView)
	{
		check(InArgs._Style != nullptr);
		Style = InArgs._Style;
		bShowSelection = InArgs._ShowSelection;
		this->BorderImage = TAttribute<const FSlateBrush*>::Create(
			TAttribute<const FSlateBrush*>::FGetter::CreateSP(this, &STableRow<ItemType>::GetBorder));
		this->BorderBackgroundColor = FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
		// A list of items is always a list view of them.
		OwnerTablePtr = StaticCastSharedRef<SListView<ItemType>>(InOwnerTableView);
	}

	/** Returns the brush of the state. */
	virtual const FSlateBrush* GetBorder() const
	{
		const TSharedPtr<ITypedTableView<ItemType>> Owner = OwnerTablePtr.Pin();
		const bool bHovered = this->IsHovered();
		if (bShowSelection && IsItemSelected())
		{
			const TSharedRef<SWidget> OwnerWidget = Owner->AsWidget();
			const bool bActive = OwnerWidget->HasKeyboardFocus() || OwnerWidget->HasFocusedDescendants();
			return bActive ? (bHovered ? &Style->ActiveHoveredBrush : &Style->ActiveBrush)
						   : (bHovered ? &Style->InactiveHoveredBrush : &Style->InactiveBrush);
		}
		if (IndexInList % 2 == 0)
		{
			return bHovered ? &Style->EvenRowBackgroundHoveredBrush : &Style->EvenRowBackgroundBrush;
		}
		return bHovered ? &Style->OddRowBackgroundHoveredBrush : &Style->OddRowBackgroundBrush;
	}

	/** The list that the row is in. */
	TWeakPtr<ITypedTableView<ItemType>> OwnerTablePtr;

	/** The brushes and colours. */
	const FTableRowStyle* Style;

private:
	int32 IndexInList;
	bool bShowSelection;
	bool bPressed;
};
