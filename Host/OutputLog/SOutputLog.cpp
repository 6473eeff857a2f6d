// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/SOutputLog.h"

#include "Host/OutputLog/LogColors.h"
#include "Host/OutputLog/SConsoleLine.h"
#include "Host/OutputLog/SLogLines.h"
#include "Host/Program/Strings.h"

#include "Brushes/SlateColorBrush.h"
#include "Editor.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace TintmillHost
{
namespace
{
FText Label(const TCHAR* Text)
{
	return FText::FromString(Text);
}

const FSlateBrush* LogBrush()
{
	static const FSlateColorBrush Brush(GetLogBackgroundColor());
	return &Brush;
}
}

void SOutputLog::Construct(const FArguments& InArgs)
{
	check(InArgs._Log != nullptr);
	Lines = std::make_unique<FShownLines>(*InArgs._Log);
	FEditorDelegates::PreBeginPIE.AddSP(this, &SOutputLog::OnPlayStarts);
	const TSharedRef<SScrollBar> VerticalBar = SNew(SScrollBar);
	const TSharedRef<SScrollBar> HorizontalBar = SNew(SScrollBar).Orientation(Orient_Horizontal);
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(FCoreStyle::Get().GetBrush("ToolPanel.GroupBorder"))
		.Padding(4.0f)
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(0.0f, 0.0f, 0.0f, 4.0f)
			[
				MakeToolBar()
			]
			+ SVerticalBox::Slot()
			.FillHeight(1.0f)
			[
				SNew(SBorder)
				.BorderImage(LogBrush())
				.Padding(FMargin(0.0f, 2.0f, 0.0f, 0.0f))
				[
					SNew(SVerticalBox)
					+ SVerticalBox::Slot()
					.FillHeight(1.0f)
					[
						SNew(SHorizontalBox)
						+ SHorizontalBox::Slot()
						.FillWidth(1.0f)
						[
							SAssignNew(LinesWidget, SLogLines, *Lines)
							.VerticalBar(VerticalBar)
							.HorizontalBar(HorizontalBar)
							.OnContextMenu(this, &SOutputLog::MakeContextMenu)
						]
						+ SHorizontalBox::Slot()
						.AutoWidth()
						[
							VerticalBar
						]
					]
					+ SVerticalBox::Slot()
					.AutoHeight()
					[
						HorizontalBar
					]
				]
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(0.0f, 4.0f, 0.0f, 0.0f)
			[
				SNew(SConsoleLine)
				.Console(InArgs._Console)
			]
		]
	];
	// clang-format on
}

void SOutputLog::ClearLog()
{
	Lines->Clear();
	LinesWidget->ScrollToEnd();
}

FReply SOutputLog::OnFocusReceived(const FGeometry&, const FFocusEvent& InFocusEvent)
{
	return FReply::Handled().SetUserFocus(LinesWidget.ToSharedRef(), InFocusEvent.GetCause());
}

TSharedRef<SWidget> SOutputLog::MakeToolBar()
{
	// clang-format off
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		[
			SNew(SComboButton)
			.OnGetMenuContent(this, &SOutputLog::MakeFilterMenu)
			.ToolTipText(Label(TEXT("Add or change what lines the log shows.")))
			.ButtonContent()
			[
				SNew(STextBlock)
				.Text(Label(TEXT("Filters")))
			]
		]
		+ SHorizontalBox::Slot()
		.FillWidth(1.0f)
		.Padding(4.0f, 0.0f)
		[
			SNew(SSearchBox)
			.HintText(Label(TEXT("Search Log")))
			.OnTextChanged(this, &SOutputLog::OnSearchChanged)
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		[
			SNew(STextBlock)
			.Text(this, &SOutputLog::DescribeFiltering)
			.ColorAndOpacity(FSlateColor::UseSubduedForeground())
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.Padding(4.0f, 0.0f, 0.0f, 0.0f)
		[
			SNew(SComboButton)
			.OnGetMenuContent(this, &SOutputLog::MakeViewMenu)
			.ButtonContent()
			[
				SNew(STextBlock)
				.Text(Label(TEXT("View Options")))
			]
		];
	// clang-format on
}

void SOutputLog::ChangeFilter(const std::function<void(FLogFilter&)>& Change)
{
	FLogFilter Filter = Lines->GetFilter();
	Change(Filter);
	Lines->SetFilter(Filter);
	LinesWidget->ScrollToEnd();
}

void SOutputLog::ToggleCategory(const std::string& Category)
{
	ChangeFilter([&Category](FLogFilter& Filter) {
		if (Filter.HiddenCategories.erase(Category) == 0)
		{
			Filter.HiddenCategories.insert(Category);
		}
	});
}

void SOutputLog::OnSearchChanged(const FText& Text)
{
	ChangeFilter([&Text](FLogFilter& Filter) { Filter.Search = ToUtf8(Text.ToString()); });
}

void SOutputLog::OnPlayStarts(const bool)
{
	if (bClearOnPlay)
	{
		ClearLog();
	}
}

FText SOutputLog::DescribeFiltering() const
{
	if (Lines->Num() == Lines->NumUnfiltered())
	{
		return FText::GetEmpty();
	}
	return FText::FromString(FString::Printf(TEXT("%d of %d lines"), Lines->Num(), Lines->NumUnfiltered()));
}
}
