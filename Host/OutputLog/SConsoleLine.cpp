// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/SConsoleLine.h"

#include "Host/Program/Strings.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "StandIn/TextLines.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SMenuAnchor.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"
#include "Widgets/Views/SListView.h"
#include "Widgets/Views/STableRow.h"

#include <algorithm>

namespace TintmillHost
{
namespace
{
constexpr float HintRowHeight = 20.0f;
constexpr int32 MaxHintsInSight = 10;
constexpr float WidestList = 760.0f;
constexpr float UsageWidth = 270.0f;
}

void SConsoleLine::Construct(const FArguments& InArgs)
{
	Console = InArgs._Console;
	// clang-format off
	ChildSlot
	[
		SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		.Padding(4.0f, 0.0f, 6.0f, 0.0f)
		[
			SNew(STextBlock)
			.Text(FText::FromString(TEXT("Cmd")))
		]
		+ SHorizontalBox::Slot()
		.FillWidth(1.0f)
		[
			SAssignNew(Anchor, SMenuAnchor)
			.Placement(MenuPlacement_AboveAnchor)
			.MenuContent(MakeList())
			[
				SAssignNew(TextBox, SEditableTextBox)
				.HintText(FText::FromString(TEXT("Enter Console Command")))
				.ClearKeyboardFocusOnCommit(false)
				.OnTextChanged(this, &SConsoleLine::OnTextChanged)
				.OnTextCommitted(this, &SConsoleLine::OnTextCommitted)
				.OnKeyDownHandler(this, &SConsoleLine::OnTextKeyDown)
			]
		]
	];
	// clang-format on
}

bool SConsoleLine::IsListOpen() const
{
	return Anchor->IsOpen();
}

TSharedRef<SWidget> SConsoleLine::MakeList()
{
	// clang-format off
	return SNew(SBorder)
		.BorderImage(FCoreStyle::Get().GetBrush("Menu.Background"))
		.Padding(2.0f)
		[
			SNew(SBox)
			.WidthOverride(this, &SConsoleLine::GetListWidth)
			.HeightOverride(this, &SConsoleLine::GetListHeight)
			[
				SAssignNew(List, SListView<FHintItem>)
				.ListItemsSource(&Hints)
				.SelectionMode(ESelectionMode::Single)
				.OnGenerateRow(this, &SConsoleLine::MakeRow)
				.OnMouseButtonClick(this, &SConsoleLine::OnHintClicked)
			]
		];
	// clang-format on
}

TSharedRef<ITableRow> SConsoleLine::MakeRow(FHintItem Hint, const TSharedRef<STableViewBase>& Owner)
{
	const TSharedRef<STextBlock> Summary =
		SNew(STextBlock).Text(FText::FromString(FromUtf8(Hint->Summary))).ColorAndOpacity(FSlateColor::UseSubduedForeground());
	Summary->AddMetadata(MakeShared<StandIn::FEllipsisMetaData>());
	// clang-format off
	return SNew(STableRow<FHintItem>, Owner)
		[
			SNew(SBox)
			.HeightOverride(HintRowHeight)
			.VAlign(VAlign_Center)
			[
				SNew(SHorizontalBox)
				+ SHorizontalBox::Slot()
				.AutoWidth()
				.Padding(6.0f, 0.0f)
				[
					SNew(SBox)
					.MinDesiredWidth(UsageWidth)
					[
						SNew(STextBlock)
						.Text(FText::FromString(FromUtf8(Hint->Usage)))
					]
				]
				+ SHorizontalBox::Slot()
				.FillWidth(1.0f)
				.Padding(6.0f, 0.0f)
				[
					Summary
				]
			]
		];
	// clang-format on
}

void SConsoleLine::OnTextChanged(const FText& Text)
{
	HistoryPlace = History.size();
	FindHints(ToUtf8(Text.ToString()));
}

void SConsoleLine::OnTextCommitted(const FText& Text, ETextCommit::Type How)
{
	const std::string Line = ToUtf8(Text.ToString());
	if (How != ETextCommit::OnEnter)
	{
		return;
	}
	ShowText("");
	if (Line.find_first_not_of(' ') == std::string::npos)
	{
		return;
	}
	// What is entered again is remembered once, as the newest.
	History.erase(std::remove(History.begin(), History.end(), Line), History.end());
	History.push_back(Line);
	HistoryPlace = History.size();
	if (Console.Run)
	{
		Console.Run(Line);
	}
}

FReply SConsoleLine::OnTextKeyDown(const FGeometry&, const FKeyEvent& KeyEvent)
{
	const FKey Key = KeyEvent.GetKey();
	if (Key == EKeys::Up || Key == EKeys::Down)
	{
		const int Step = Key == EKeys::Up ? -1 : 1;
		if (IsListOpen())
		{
			ChooseHint(Step);
		}
		else
		{
			GoThroughHistory(Step);
		}
		return FReply::Handled();
	}
	if (Key == EKeys::Tab && IsListOpen())
	{
		CompleteText(*Hints[std::max(0, ChosenHint)]);
		return FReply::Handled();
	}
	if (Key == EKeys::Escape && (IsListOpen() || !TextBox->GetText().IsEmpty()))
	{
		// The first press closes the list, the next empties the line.
		if (!IsListOpen())
		{
			ShowText("");
		}
		Anchor->SetIsOpen(false);
		return FReply::Handled();
	}
	return FReply::Unhandled();
}

void SConsoleLine::OnHintClicked(FHintItem Hint)
{
	CompleteText(*Hint);
	FSlateApplication::Get().SetKeyboardFocus(TextBox, EFocusCause::SetDirectly);
}

void SConsoleLine::FindHints(const std::string& Text)
{
	Hints.Empty();
	ChosenHint = INDEX_NONE;
	const size_t Blank = Text.find(' ');
	const std::string Name = ToLowerCase(Text.substr(0, Blank));
	if (!Name.empty() && Console.ListCommands)
	{
		for (const FConsoleHint& Hint : Console.ListCommands())
		{
			// Behind the name its usage still helps.
			const std::string Lowered = ToLowerCase(Hint.Name);
			if (Blank == std::string::npos ? Lowered.compare(0, Name.size(), Name) == 0 : Lowered == Name)
			{
				Hints.Add(MakeShared<FConsoleHint>(Hint));
			}
		}
	}
	List->ClearSelection();
	List->RequestListRefresh();
	Anchor->SetIsOpen(Hints.Num() > 0, false);
}

void SConsoleLine::ChooseHint(int32 Step)
{
	// Up from nothing goes to the last one, which is the nearest to the line.
	const int32 Num = Hints.Num();
	ChosenHint = ChosenHint == INDEX_NONE ? (Step < 0 ? Num - 1 : 0) : (ChosenHint + Step + Num) % Num;
	const FHintItem Hint = Hints[ChosenHint];
	List->SetSelection(Hint);
	List->RequestScrollIntoView(Hint);
	TextBox->SetText(FText::FromString(FromUtf8(Hint->Name)));
}

void SConsoleLine::CompleteText(const FConsoleHint& Hint)
{
	const bool bTakesWords = Hint.Usage.size() > Hint.Name.size();
	ShowText(Hint.Name + (bTakesWords ? " " : ""));
}

void SConsoleLine::GoThroughHistory(int Step)
{
	if (Step < 0 ? HistoryPlace == 0 : HistoryPlace >= History.size())
	{
		return;
	}
	HistoryPlace += static_cast<size_t>(Step);
	TextBox->SetText(HistoryPlace < History.size() ? FText::FromString(FromUtf8(History[HistoryPlace])) : FText::GetEmpty());
}

void SConsoleLine::ShowText(const std::string& Text)
{
	TextBox->SetText(FText::FromString(FromUtf8(Text)));
	HistoryPlace = History.size();
	Anchor->SetIsOpen(false);
}

FOptionalSize SConsoleLine::GetListWidth() const
{
	return std::min(WidestList, std::max(0.0f, Anchor->GetCachedGeometry().GetLocalSize().X - 4.0f));
}

FOptionalSize SConsoleLine::GetListHeight() const
{
	return HintRowHeight * static_cast<float>(std::min(Hints.Num(), MaxHintsInSight));
}
}
