// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/SWindowTitleBar.h"
#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

void SWindowTitleBar::Construct(const FArguments&, const TSharedRef<SWindow>& InWindow, const TSharedPtr<SWidget>& InCenterContent,
	EHorizontalAlignment InCenterContentAlignment)
{
	OwnerWindow = InWindow;
	const TWeakPtr<SWindow> Owner = OwnerWindow;
	TSharedPtr<SWidget> Center = InCenterContent;
	if (!Center.IsValid())
	{
		// clang-format off
		Center = SNew(STextBlock)
			.Text_Lambda([Owner]() { return Owner.IsValid() ? Owner.Pin()->GetTitle() : FText::GetEmpty(); })
			.ColorAndOpacity(this, &SWindowTitleBar::GetTitleColor);
		// clang-format on
	}
	const TSharedRef<SHorizontalBox> Bar = SNew(SHorizontalBox);
	Bar->AddSlot()
		.FillWidth(1.0f)
		.VAlign(VAlign_Center)
		.HAlign(InCenterContentAlignment)
		.Padding(FMargin(6.0f, 0.0f))[Center.ToSharedRef()];
	if (InWindow->HasCloseBox())
	{
		// clang-format off
		Bar->AddSlot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		[
			SNew(SButton)
			.ButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder"))
			.ToolTipText(NSLOCTEXT("SWindowTitleBar", "Close", "Close"))
			.IsFocusable(false)
			.ContentPadding(FMargin(6.0f, 2.0f))
			.OnClicked(this, &SWindowTitleBar::OnCloseClicked)
			[
				SNew(SImage)
				.Image(FCoreStyle::Get().GetBrush("Icons.Cross"))
			]
		];
		// clang-format on
	}
	ChildSlot[SNew(SBox).HeightOverride(SWindowDefs::DefaultTitleBarSize)[Bar]];
}

FReply SWindowTitleBar::OnMouseButtonDown(const FGeometry&, const FPointerEvent& MouseEvent)
{
	const TSharedPtr<SWindow> Window = OwnerWindow.Pin();
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || !Window.IsValid())
	{
		return FReply::Unhandled();
	}
	Grabbed = MouseEvent.GetScreenSpacePosition() - Window->GetPositionInScreen();
	return FReply::Handled().CaptureMouse(SharedThis(this));
}

FReply SWindowTitleBar::OnMouseButtonUp(const FGeometry&, const FPointerEvent&)
{
	return HasMouseCapture() ? FReply::Handled().ReleaseMouseCapture() : FReply::Unhandled();
}

FReply SWindowTitleBar::OnMouseMove(const FGeometry&, const FPointerEvent& MouseEvent)
{
	const TSharedPtr<SWindow> Window = OwnerWindow.Pin();
	if (!HasMouseCapture() || !Window.IsValid())
	{
		return FReply::Unhandled();
	}
	// The bar stays in reach: what is beyond the desktop's edges could not be dragged back.
	const FVector2D Wanted = MouseEvent.GetScreenSpacePosition() - Grabbed;
	const FSlateRect Area = FSlateApplication::Get().GetWorkArea(Window->GetRectInScreen());
	const float Reach = SWindowDefs::DefaultTitleBarSize * Window->GetDPIScaleFactor();
	Window->MoveWindowTo(FVector2D(FMath::Clamp(Wanted.X, Area.Left + Reach - Window->GetSizeInScreen().X, Area.Right - Reach),
		FMath::Clamp(Wanted.Y, Area.Top, FMath::Max(Area.Top, Area.Bottom - Reach))));
	return FReply::Handled();
}

FReply SWindowTitleBar::OnCloseClicked()
{
	if (const TSharedPtr<SWindow> Window = OwnerWindow.Pin())
	{
		Window->RequestDestroyWindow();
	}
	return FReply::Handled();
}

FSlateColor SWindowTitleBar::GetTitleColor() const
{
	const bool bActive = OwnerWindow.IsValid() && OwnerWindow.Pin()->IsActive();
	return FSlateColor(bActive ? FLinearColor(0.72f, 0.72f, 0.72f) : FLinearColor(0.3f, 0.3f, 0.3f));
}
