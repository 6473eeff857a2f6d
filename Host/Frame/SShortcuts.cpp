// Copyright The Tintmill authors. All rights reserved.

#include "Host/Frame/SShortcuts.h"

#include "Host/Frame/FrameCommands.h"
#include "Host/Frame/FrameStyle.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "TintmillHost"

namespace TintmillHost
{
namespace
{
constexpr float ListWidth = 380.0f;
constexpr float RowHeight = 20.0f;
constexpr float OtherHeight = 58.0f;

TSharedRef<SWidget> MakeRow(const FText& Label, const FText& Keys)
{
	// clang-format off
	return SNew(SBox)
		.HeightOverride(RowHeight)
		[
			SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.FillWidth(1.0f)
			.VAlign(VAlign_Center)
			[
				SNew(STextBlock).Text(Label)
			]
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			[
				SNew(SBox)
				.WidthOverride(110.0f)
				[
					SNew(STextBlock).Text(Keys)
				]
			]
		];
	// clang-format on
}
}

void SShortcuts::Construct(const FArguments&, const FFrameCommands& Commands)
{
	const TSharedRef<SScrollBox> List = SNew(SScrollBox);
	for (const TSharedPtr<FUICommandInfo>& Command : Commands.GetWithKeys())
	{
		List->AddSlot()[MakeRow(Command->GetLabel(), Command->GetInputText())];
	}
	List->AddSlot()[MakeRow(LOCTEXT("MoveFocus", "Move through buttons, boxes and tabs"), LOCTEXT("MoveFocusKeys", "Tab, Shift+Tab"))];
	List->AddSlot()[MakeRow(LOCTEXT("UseFocus", "Use what the keyboard is at"), LOCTEXT("UseFocusKeys", "Enter, Space Bar"))];
	List->AddSlot()[MakeRow(LOCTEXT("MoveInMenu", "Move through menus"), LOCTEXT("MoveInMenuKeys", "Arrow keys"))];
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(FFrameStyle::GetPanel())
		.Padding(FMargin(14.0f, 10.0f))
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.FillHeight(1.0f)
			[
				List
			]
			+ SVerticalBox::Slot()
			.AutoHeight()
			.HAlign(HAlign_Right)
			.Padding(FMargin(0.0f, 8.0f, 0.0f, 0.0f))
			[
				SNew(SButton)
				.ContentPadding(FMargin(12.0f, 2.0f))
				.Text(LOCTEXT("Close", "Close"))
				.OnClicked(this, &SShortcuts::OnClose)
			]
		]
	];
	// clang-format on
}

void SShortcuts::Open(const FFrameCommands& Commands, const TSharedRef<SWindow>& Parent)
{
	const TArray<TSharedRef<SWindow>> Children = Parent->GetChildWindows();
	for (const TSharedRef<SWindow>& Child : Children)
	{
		if (Child->GetContent()->GetType() == TEXT("SShortcuts"))
		{
			Child->BringToFront();
			FSlateApplication::Get().SetKeyboardFocus(Child->GetContent());
			return;
		}
	}
	const FVector2D Space = Parent->GetSizeInScreen();
	const float Scale = Parent->GetDPIScaleFactor();
	const float Rows = static_cast<float>(Commands.GetWithKeys().size()) + 3.0f;
	const FVector2D Size(FMath::Min(ListWidth * Scale, Space.X), FMath::Min((Rows * RowHeight + OtherHeight) * Scale, Space.Y));
	const TSharedRef<SShortcuts> List = SNew(SShortcuts, Commands);
	// clang-format off
	const TSharedRef<SWindow> Window = SNew(SWindow)
		.Title(LOCTEXT("ShortcutsTitle", "Keyboard Shortcuts"))
		.AutoCenter(EAutoCenter::None)
		.ScreenPosition(Parent->GetPositionInScreen() + (Space - Size) * 0.5f)
		.ClientSize(Size)
		[
			List
		];
	// clang-format on
	FSlateApplication::Get().AddWindowAsNativeChild(Window, Parent);
	FSlateApplication::Get().SetKeyboardFocus(List);
}

FReply SShortcuts::OnClose()
{
	if (const TSharedPtr<SWindow> Window = FSlateApplication::Get().FindWidgetWindow(AsShared()))
	{
		Window->RequestDestroyWindow();
	}
	return FReply::Handled();
}

FReply SShortcuts::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (InKeyEvent.GetKey() == EKeys::Escape || InKeyEvent.GetKey() == EKeys::Enter)
	{
		return OnClose();
	}
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}
}

#undef LOCTEXT_NAMESPACE
