// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MultiBox.h"
#include "Framework/Application/SlateApplication.h"
#include "Framework/MultiBox/MenuLook.h"
#include "Framework/MultiBox/SMenuEntryRow.h"
#include "Layout/Children.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"

namespace MultiBoxWidgetPrivate
{
/** Seconds for which the pointer must rest on a row before the open submenu of another row gives way. */
const float SubMenuClobberSeconds = 0.5f;

void CollectRows(const TSharedRef<SWidget>& Widget, TArray<TSharedRef<SMenuEntryRow>>& OutRows)
{
	if (!Widget->GetVisibility().IsVisible())
	{
		return;
	}
	if (Widget->GetType() == TEXT("SMenuEntryRow"))
	{
		const TSharedRef<SMenuEntryRow> Row = StaticCastSharedRef<SMenuEntryRow>(Widget);
		if (Row->IsEnabled())
		{
			OutRows.Add(Row);
		}
		return;
	}
	FChildren* Children = Widget->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		CollectRows(Children->GetChildAt(Index), OutRows);
	}
}
}

SMultiBoxWidget::SMultiBoxWidget()
	: PendingSeconds(0.0f)
	, bPending(false)
	, bFocusFirstRow(false)
{}

void SMultiBoxWidget::Construct(const FArguments&) {}

void SMultiBoxWidget::BuildMultiBoxWidget()
{
	if (const TSharedPtr<SMenuEntryRow> Open = GetOpenRow())
	{
		Open->CloseSubMenu();
	}
	OpenRow.Reset();
	PendingRow.Reset();
	bPending = false;
	if (MultiBox->GetType() != EMultiBoxType::Menu)
	{
		ChildSlot[MakeBar()];
		return;
	}
	Rows = SNew(SVerticalBox);
	// clang-format off
	for (const TSharedRef<const FMultiBlock>& Block : MultiBox->GetBlocks())
	{
		Rows->AddSlot()
		.AutoHeight()
		[
			Block->MakeWidget(SharedThis(this))
		];
	}
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(this, &SMultiBoxWidget::GetBackground)
		.Padding(FMargin(2.0f))
		[
			SAssignNew(ScrollBox, SScrollBox)
			+ SScrollBox::Slot()
			[
				Rows.ToSharedRef()
			]
		]
	];
	// clang-format on
}

const FSlateBrush* SMultiBoxWidget::GetBackground() const
{
	// A menu that is part of another one has no frame of its own.
	return IsNested() ? FMenuLook::None() : FMenuLook::Background();
}

TSharedPtr<SMenuEntryRow> SMultiBoxWidget::GetOpenRow() const
{
	const TSharedPtr<SMenuEntryRow> Row = OpenRow.Pin();
	return Row.IsValid() && Row->IsSubMenuOpen() ? Row : TSharedPtr<SMenuEntryRow>();
}

void SMultiBoxWidget::OnRowHovered(const TSharedRef<SMenuEntryRow>& InRow)
{
	bPending = false;
	PendingRow.Reset();
	const TSharedPtr<SMenuEntryRow> Open = GetOpenRow();
	if (Open == InRow)
	{
		return;
	}
	if (Open.IsValid())
	{
		// On the way to the open submenu the pointer may cross other rows.
		bPending = true;
		PendingSeconds = MultiBoxWidgetPrivate::SubMenuClobberSeconds;
		PendingRow = InRow;
	}
	else if (InRow->OpensOnHover())
	{
		OpenSubMenuNow(InRow);
	}
}

void SMultiBoxWidget::OnRowUnhovered(const TSharedRef<SMenuEntryRow>& InRow)
{
	if (PendingRow == InRow)
	{
		bPending = false;
		PendingRow.Reset();
	}
}

void SMultiBoxWidget::OpenSubMenuNow(const TSharedRef<SMenuEntryRow>& InRow)
{
	bPending = false;
	const TSharedPtr<SMenuEntryRow> Open = GetOpenRow();
	if (Open == InRow)
	{
		return;
	}
	if (Open.IsValid())
	{
		Open->CloseSubMenu();
	}
	OpenRow = InRow;
	InRow->OpenSubMenu();
}

void SMultiBoxWidget::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	SCompoundWidget::Tick(AllottedGeometry, InCurrentTime, InDeltaTime);
	if (bFocusFirstRow)
	{
		FocusFirstRow();
	}
	if (!bPending)
	{
		return;
	}
	PendingSeconds -= InDeltaTime;
	if (PendingSeconds > 0.0f)
	{
		return;
	}
	bPending = false;
	const TSharedPtr<SMenuEntryRow> Row = PendingRow.Pin();
	if (Row.IsValid() && Row->OpensOnHover())
	{
		OpenSubMenuNow(Row.ToSharedRef());
	}
	else if (const TSharedPtr<SMenuEntryRow> Open = GetOpenRow())
	{
		Open->CloseSubMenu();
	}
}

bool SMultiBoxWidget::IsNested() const
{
	for (TSharedPtr<SWidget> Widget = GetParentWidget(); Widget.IsValid(); Widget = Widget->GetParentWidget())
	{
		if (Widget->GetType() == TEXT("SMultiBoxWidget"))
		{
			return true;
		}
	}
	return false;
}

void SMultiBoxWidget::FocusFirstRow()
{
	TArray<TSharedRef<SMenuEntryRow>> Focusable;
	MultiBoxWidgetPrivate::CollectRows(AsShared(), Focusable);
	// A menu that was just pushed may not be found before it has been arranged: one more try at the next tick.
	const bool bMayTryAgain = !bFocusFirstRow;
	bFocusFirstRow = false;
	if (Focusable.Num() > 0 && !FSlateApplication::Get().SetKeyboardFocus(Focusable[0], EFocusCause::Navigation))
	{
		bFocusFirstRow = bMayTryAgain;
	}
}

bool SMultiBoxWidget::MoveFocus(const int32 Step)
{
	TArray<TSharedRef<SMenuEntryRow>> Focusable;
	MultiBoxWidgetPrivate::CollectRows(AsShared(), Focusable);
	if (Focusable.Num() == 0)
	{
		return false;
	}
	int32 Current = Focusable.IndexOfByPredicate([](const TSharedRef<SMenuEntryRow>& Row) { return Row->HasKeyboardFocus(); });
	if (Current == INDEX_NONE)
	{
		Current = Step > 0 ? -1 : Focusable.Num();
	}
	const int32 Next = (Current + Step + Focusable.Num()) % Focusable.Num();
	FSlateApplication::Get().SetKeyboardFocus(Focusable[Next], EFocusCause::Navigation);
	return true;
}

bool SMultiBoxWidget::MoveFocusToEnd(const bool bLast)
{
	TArray<TSharedRef<SMenuEntryRow>> Focusable;
	MultiBoxWidgetPrivate::CollectRows(AsShared(), Focusable);
	return Focusable.Num() > 0
		&& FSlateApplication::Get().SetKeyboardFocus(bLast ? Focusable.Last() : Focusable[0], EFocusCause::Navigation);
}

void SMultiBoxWidget::ScrollIntoView(const TSharedPtr<SWidget>& Widget)
{
	// Bars do not scroll.
	if (ScrollBox.IsValid())
	{
		ScrollBox->ScrollDescendantIntoView(Widget);
	}
}

void SMultiBoxWidget::OnFocusChanging(
	const FWeakWidgetPath& PreviousFocusPath, const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent)
{
	SCompoundWidget::OnFocusChanging(PreviousFocusPath, NewWidgetPath, InFocusEvent);
	if (NewWidgetPath.ContainsWidget(this) && InFocusEvent.GetCause() != EFocusCause::Mouse)
	{
		ScrollIntoView(NewWidgetPath.GetLastWidget());
	}
}

FReply SMultiBoxWidget::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	// The outermost menu of a window moves the focus, so that rows of menus inside it are reached as well.
	if (!IsNested())
	{
		if ((Key == EKeys::Down && MoveFocus(1)) || (Key == EKeys::Up && MoveFocus(-1)) || (Key == EKeys::Home && MoveFocusToEnd(false))
			|| (Key == EKeys::End && MoveFocusToEnd(true)))
		{
			return FReply::Handled();
		}
		const TSharedPtr<SMenuEntryRow> Parent = ParentRow.Pin();
		if (Key == EKeys::Left && Parent.IsValid() && Parent->IsSubMenuOpen())
		{
			Parent->CloseSubMenu();
			FSlateApplication::Get().SetKeyboardFocus(Parent, EFocusCause::Navigation);
			return FReply::Handled();
		}
	}
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}

FReply SMultiBoxWidget::OnMouseButtonDown(const FGeometry&, const FPointerEvent&)
{
	// A press beside the rows is still a press in the menu.
	return FReply::Handled();
}
