// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SButton.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

SButton::SButton()
	: Style(nullptr)
	, ClickMethod(EButtonClickMethod::DownAndUp)
	, PressMethod(EButtonPressMethod::DownAndUp)
	, bIsFocusable(true)
	, bIsPressed(false)
{}

void SButton::Construct(const FArguments& InArgs)
{
	SetButtonStyle(InArgs._ButtonStyle);
	ContentPadding = InArgs._ContentPadding;
	OnClicked = InArgs._OnClicked;
	OnPressed = InArgs._OnPressed;
	OnReleased = InArgs._OnReleased;
	OnHovered = InArgs._OnHovered;
	OnUnhovered = InArgs._OnUnhovered;
	ClickMethod = InArgs._ClickMethod;
	PressMethod = InArgs._PressMethod;
	bIsFocusable = InArgs._IsFocusable;

	// Content goes before a text.
	const TSharedRef<SWidget> Content = InArgs._Content.Widget == SNullWidget::NullWidget
		? TSharedRef<SWidget>(SNew(STextBlock).Text(InArgs._Text).TextStyle(InArgs._TextStyle))
		: InArgs._Content.Widget;
	SBorder::Construct(SBorder::FArguments()
						   .ContentScale(InArgs._ContentScale)
						   .DesiredSizeScale(InArgs._DesiredSizeScale)
						   .BorderBackgroundColor(InArgs._ButtonColorAndOpacity)
						   .ForegroundColor(InArgs._ForegroundColor)
						   .BorderImage(this, &SButton::GetBorder)
						   .HAlign(InArgs._HAlign)
						   .VAlign(InArgs._VAlign)
						   .Padding(TAttribute<FMargin>::Create(TAttribute<FMargin>::FGetter::CreateSP(this, &SButton::GetCombinedPadding)))
						   .ShowEffectWhenDisabled(true)[Content]);
}

void SButton::SetButtonStyle(const FButtonStyle* InButtonStyle)
{
	check(InButtonStyle != nullptr);
	Style = InButtonStyle;
}

void SButton::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	SBorder::OnFocusLost(InFocusEvent);
	Release();
}

FReply SButton::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (IsEnabled() && (Key == EKeys::Enter || Key == EKeys::SpaceBar))
	{
		Press();
		return PressMethod == EButtonPressMethod::ButtonPress ? ExecuteOnClick() : FReply::Handled();
	}
	return SBorder::OnKeyDown(MyGeometry, InKeyEvent);
}

FReply SButton::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (IsEnabled() && (Key == EKeys::Enter || Key == EKeys::SpaceBar))
	{
		const bool bWasPressed = bIsPressed;
		Release();
		if (PressMethod == EButtonPressMethod::ButtonRelease || (PressMethod == EButtonPressMethod::DownAndUp && bWasPressed))
		{
			return ExecuteOnClick();
		}
		return FReply::Handled();
	}
	return SBorder::OnKeyUp(MyGeometry, InKeyEvent);
}

FReply SButton::OnMouseButtonDown(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (!IsEnabled() || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	Press();
	FReply Reply = FReply::Handled();
	if (ClickMethod == EButtonClickMethod::MouseDown)
	{
		Reply = ExecuteOnClick();
	}
	else if (ClickMethod != EButtonClickMethod::PreciseClick)
	{
		Reply.CaptureMouse(AsShared());
	}
	return Reply;
}

FReply SButton::OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent)
{
	return OnMouseButtonDown(InMyGeometry, InMouseEvent);
}

FReply SButton::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!IsEnabled() || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	const bool bWasPressed = bIsPressed;
	Release();
	FReply Reply = FReply::Unhandled();
	if (ClickMethod != EButtonClickMethod::MouseDown)
	{
		const bool bIsUnderMouse = MyGeometry.IsUnderLocation(MouseEvent.GetScreenSpacePosition());
		if (bIsUnderMouse && (ClickMethod == EButtonClickMethod::MouseUp || bWasPressed))
		{
			Reply = ExecuteOnClick();
		}
		else if (bWasPressed)
		{
			Reply = FReply::Handled();
		}
	}
	else if (bWasPressed)
	{
		Reply = FReply::Handled();
	}
	if (HasMouseCapture())
	{
		if (!Reply.IsEventHandled())
		{
			Reply = FReply::Handled();
		}
		if (!Reply.GetMouseCaptor().IsValid())
		{
			Reply.ReleaseMouseCapture();
		}
	}
	return Reply;
}

FReply SButton::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (bIsPressed && ClickMethod == EButtonClickMethod::PreciseClick && !MyGeometry.IsUnderLocation(MouseEvent.GetScreenSpacePosition()))
	{
		Release();
	}
	return FReply::Unhandled();
}

void SButton::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseEnter(MyGeometry, MouseEvent);
	OnHovered.ExecuteIfBound();
}

void SButton::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseLeave(MouseEvent);
	if (!HasMouseCapture())
	{
		Release();
	}
	OnUnhovered.ExecuteIfBound();
}

void SButton::OnMouseCaptureLost(const FCaptureLostEvent& /*CaptureLostEvent*/)
{
	Release();
}

void SButton::Press()
{
	if (!bIsPressed)
	{
		bIsPressed = true;
		OnPressed.ExecuteIfBound();
	}
}

void SButton::Release()
{
	if (bIsPressed)
	{
		bIsPressed = false;
		OnReleased.ExecuteIfBound();
	}
}

FReply SButton::ExecuteOnClick()
{
	if (OnClicked.IsBound())
	{
		const FReply Reply = OnClicked.Execute();
		return Reply.IsEventHandled() ? Reply : FReply::Handled();
	}
	return FReply::Handled();
}

const FSlateBrush* SButton::GetBorder() const
{
	if (!IsEnabled())
	{
		return &Style->Disabled;
	}
	if (IsPressed())
	{
		return &Style->Pressed;
	}
	return IsHovered() ? &Style->Hovered : &Style->Normal;
}

FMargin SButton::GetCombinedPadding() const
{
	return ContentPadding.Get() + (IsPressed() ? Style->PressedPadding : Style->NormalPadding);
}
