// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Views/STableViewBase.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Views/SListPanel.h"

namespace
{
/** How far one notch of the wheel scrolls, in Slate units. */
const float ListWheelScrollAmount = 32.0f;

/** The height of a line before any was made. */
const float GuessedLineHeight = 16.0f;
}

STableViewBase::STableViewBase(ETableViewMode::Type InTableViewMode)
	: TableViewMode(InTableViewMode)
	, ConsumeMouseWheel(EConsumeMouseWheel::WhenScrollingPossible)
	, ScrollOffset(0.0)
	, IndexToShow(INDEX_NONE)
	, ViewWidth(0.0f)
	, LastViewHeight(0.0f)
	, AverageLineHeight(GuessedLineHeight)
	, bItemsNeedRefresh(true)
{}

void STableViewBase::ConstructChildren(const TAttribute<float>& InItemWidth, const TAttribute<float>& InItemHeight,
	const TSharedPtr<SScrollBar>& InScrollBar, const FOnContextMenuOpening& InOnContextMenuOpening,
	const FOnTableViewScrolled& InOnScrolled, EConsumeMouseWheel InConsumeMouseWheel)
{
	ItemWidth = InItemWidth;
	ItemHeight = InItemHeight;
	OnContextMenuOpening = InOnContextMenuOpening;
	OnScrolled = InOnScrolled;
	ConsumeMouseWheel = InConsumeMouseWheel;
	SAssignNew(ItemsPanel, SListPanel);
	ItemsPanel->bTiles = TableViewMode == ETableViewMode::Tile;
	const FOnUserScrolled Scrolled = FOnUserScrolled::CreateSP(this, &STableViewBase::OnScrollBarScrolled);
	if (InScrollBar.IsValid())
	{
		// Shown by whoever made it.
		ScrollBar = InScrollBar;
		ScrollBar->SetOnUserScrolled(Scrolled);
		ChildSlot[ItemsPanel.ToSharedRef()];
		return;
	}
	SAssignNew(ScrollBar, SScrollBar).OnUserScrolled(Scrolled);
	ChildSlot[SNew(SHorizontalBox) + SHorizontalBox::Slot().FillWidth(1.0f)[ItemsPanel.ToSharedRef()]
		+ SHorizontalBox::Slot().AutoWidth()[ScrollBar.ToSharedRef()]];
}

void STableViewBase::RequestListRefresh()
{
	bItemsNeedRefresh = true;
}

void STableViewBase::SetScrollOffset(const double InScrollOffset)
{
	const double NewOffset = InScrollOffset > 0.0 ? InScrollOffset : 0.0;
	if (NewOffset != ScrollOffset)
	{
		ScrollOffset = NewOffset;
		OnScrolled.ExecuteIfBound(ScrollOffset);
	}
}

float STableViewBase::ScrollBy(float ScrollByAmount)
{
	const double Lines = static_cast<double>(ScrollByAmount / GetLineHeight());
	const double LinesInSight = static_cast<double>(LastViewHeight / GetLineHeight());
	const double NumLines = static_cast<double>((GetNumItemsBeingObserved() + GetNumItemsPerLine() - 1) / GetNumItemsPerLine());
	const double Furthest = NumLines > LinesInSight ? (NumLines - LinesInSight) * GetNumItemsPerLine() : 0.0;
	const double Before = ScrollOffset;
	const double Wanted = ScrollOffset + Lines * GetNumItemsPerLine();
	SetScrollOffset(Wanted < Furthest ? Wanted : Furthest);
	return static_cast<float>(ScrollOffset - Before);
}

void STableViewBase::ClearPanel()
{
	if (ItemsPanel.IsValid())
	{
		ItemsPanel->Children.Empty();
	}
}

int32 STableViewBase::GetNumItemsPerLine() const
{
	const float Width = ItemWidth.Get();
	return TableViewMode == ETableViewMode::Tile && Width > 0.0f ? FMath::Max(1, static_cast<int32>(ViewWidth / Width)) : 1;
}

int32 STableViewBase::GetNumLinesInSight() const
{
	return FMath::Max(1, static_cast<int32>(LastViewHeight / GetLineHeight()));
}

float STableViewBase::GetLineHeight() const
{
	const float Height = TableViewMode == ETableViewMode::Tile ? ItemHeight.Get() : AverageLineHeight;
	return Height > 0.0f ? Height : GuessedLineHeight;
}

void STableViewBase::Tick(const FGeometry& AllottedGeometry, const double /*InCurrentTime*/, const float /*InDeltaTime*/)
{
	if (bItemsNeedRefresh)
	{
		bItemsNeedRefresh = false;
		OnItemsRefreshed();
	}
	RegenerateItems(AllottedGeometry);
}

float STableViewBase::AddLine(int32 FirstItem, int32 AtPanelIndex)
{
	float Height = TableViewMode == ETableViewMode::Tile ? GetLineHeight() : 0.0f;
	const int32 LineEnd = FMath::Min(FirstItem + GetNumItemsPerLine(), GetNumItemsBeingObserved());
	for (int32 ItemIndex = FirstItem; ItemIndex < LineEnd; ++ItemIndex)
	{
		const TSharedRef<ITableRow> Row = GenerateRowAt(ItemIndex);
		Row->SetIndexInList(ItemIndex);
		const TSharedRef<SWidget> RowWidget = Row->AsWidget();
		ItemsPanel->Children.Insert(RowWidget, AtPanelIndex + ItemIndex - FirstItem);
		RowWidget->SlatePrepass();
		if (TableViewMode != ETableViewMode::Tile)
		{
			Height = RowWidget->GetDesiredSize().Y;
		}
	}
	return Height;
}

float STableViewBase::GenerateLines(int32 FirstItem, float FirstLineOffset, float ViewHeight)
{
	// FirstLineOffset says how much of the first line is out of sight.
	float Filled = 0.0f;
	float HiddenPart = 0.0f;
	const int32 NumItems = GetNumItemsBeingObserved();
	for (int32 ItemIndex = FirstItem; ItemIndex < NumItems && Filled - HiddenPart < ViewHeight; ItemIndex += GetNumItemsPerLine())
	{
		const float Height = AddLine(ItemIndex, ItemsPanel->Children.Num());
		if (ItemIndex == FirstItem)
		{
			HiddenPart = FirstLineOffset * Height;
		}
		Filled += Height;
	}
	ItemsPanel->FirstLineOffset = -HiddenPart;
	return Filled - HiddenPart;
}

void STableViewBase::RegenerateItems(const FGeometry& AllottedGeometry)
{
	ViewWidth = FMath::Max(0.0f, AllottedGeometry.GetLocalSize().X - (ScrollBar->IsNeeded() ? ScrollBar->GetDesiredSize().X : 0.0f));
	LastViewHeight = AllottedGeometry.GetLocalSize().Y;
	const int32 NumItems = GetNumItemsBeingObserved();
	const int32 PerLine = GetNumItemsPerLine();
	const int32 NumLines = (NumItems + PerLine - 1) / PerLine;

	if (IndexToShow != INDEX_NONE && IndexToShow < NumItems)
	{
		const double Line = static_cast<double>(IndexToShow / PerLine);
		const double FirstLine = ScrollOffset / PerLine;
		const double LinesInSight = static_cast<double>(LastViewHeight / GetLineHeight());
		if (Line < FirstLine)
		{
			SetScrollOffset(Line * PerLine);
		}
		else if (Line + 1.0 > FirstLine + LinesInSight)
		{
			SetScrollOffset((Line + 1.0 - LinesInSight) * PerLine);
		}
	}
	IndexToShow = INDEX_NONE;

	OnBeginGenerationPass();
	ItemsPanel->Children.Empty();
	ItemsPanel->ItemsPerLine = PerLine;
	ItemsPanel->TileSize = FVector2D(ItemWidth.Get(), ItemHeight.Get());
	const double LineOffset = ScrollOffset / PerLine;
	int32 FirstLine = static_cast<int32>(LineOffset);
	if (FirstLine >= NumLines)
	{
		FirstLine = NumLines - 1;
	}
	if (NumItems > 0)
	{
		const double Part = LineOffset - FirstLine;
		float Filled = GenerateLines(FirstLine * PerLine, static_cast<float>(Part < 1.0 ? Part : 1.0), LastViewHeight);
		if (Filled < LastViewHeight)
		{
			// The end is in sight: lines before the first one fill what is left, and the last one ends the view.
			Filled -= ItemsPanel->FirstLineOffset;
			while (Filled < LastViewHeight && FirstLine > 0)
			{
				--FirstLine;
				Filled += AddLine(FirstLine * PerLine, 0);
			}
			ItemsPanel->FirstLineOffset = FMath::Min(0.0f, LastViewHeight - Filled);
			const float FirstHeight = TableViewMode == ETableViewMode::Tile ? GetLineHeight() : ItemsPanel->Children[0]->GetDesiredSize().Y;
			const double Hidden = FirstHeight > 0.0f ? static_cast<double>(-ItemsPanel->FirstLineOffset / FirstHeight) : 0.0;
			ScrollOffset = (FirstLine + Hidden) * PerLine;
		}
	}
	else
	{
		ScrollOffset = 0.0;
	}
	OnEndGenerationPass();

	if (TableViewMode != ETableViewMode::Tile && ItemsPanel->Children.Num() > 0)
	{
		float Total = 0.0f;
		for (int32 Index = 0; Index < ItemsPanel->Children.Num(); ++Index)
		{
			Total += ItemsPanel->Children[Index]->GetDesiredSize().Y;
		}
		AverageLineHeight = FMath::Max(1.0f, Total / static_cast<float>(ItemsPanel->Children.Num()));
	}
	ItemsPanel->WantedHeight = GetLineHeight() * static_cast<float>(NumLines);
	const float LinesInSight = LastViewHeight / GetLineHeight();
	ScrollBar->SetState(NumItems > 0 ? static_cast<float>(ScrollOffset / NumItems) : 0.0f,
		NumLines > 0 ? LinesInSight / static_cast<float>(NumLines) : 1.0f);
}

FReply STableViewBase::OnMouseWheel(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (ConsumeMouseWheel == EConsumeMouseWheel::Never)
	{
		return FReply::Unhandled();
	}
	const float Moved = ScrollBy(-MouseEvent.GetWheelDelta() * ListWheelScrollAmount);
	return Moved != 0.0f || ConsumeMouseWheel == EConsumeMouseWheel::Always ? FReply::Handled() : FReply::Unhandled();
}

FReply STableViewBase::OnMouseButtonUp(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() == EKeys::RightMouseButton && OnContextMenuOpening.IsBound())
	{
		OnRightMouseButtonUp(MouseEvent);
		return FReply::Handled();
	}
	return FReply::Unhandled();
}

void STableViewBase::OnRightMouseButtonUp(const FPointerEvent& MouseEvent)
{
	const TSharedPtr<SWidget> MenuContent = OnContextMenuOpening.IsBound() ? OnContextMenuOpening.Execute() : TSharedPtr<SWidget>();
	if (MenuContent.IsValid())
	{
		FSlateApplication::Get().PushMenu(AsShared(), FWidgetPath(), MenuContent.ToSharedRef(), MouseEvent.GetScreenSpacePosition(),
			FPopupTransitionEffect(FPopupTransitionEffect::ContextMenu));
	}
}

void STableViewBase::OnScrollBarScrolled(float InOffsetFraction)
{
	SetScrollOffset(static_cast<double>(InOffsetFraction) * GetNumItemsBeingObserved());
}
