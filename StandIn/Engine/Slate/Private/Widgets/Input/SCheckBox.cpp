// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"

SCheckBox::SCheckBox()
	: Style(nullptr)
	, ClickMethod(EButtonClickMethod::DownAndUp)
	, bIsFocusable(true)
	, bIsPressed(false)
{}

void SCheckBox::Construct(const FArguments& InArgs)
{
	check(InArgs._Style != nullptr);
	Style = InArgs._Style;
	IsCheckboxChecked = InArgs._IsChecked;
	OnCheckStateChanged = InArgs._OnCheckStateChanged;
	ClickMethod = InArgs._ClickMethod;
	bIsFocusable = InArgs._IsFocusable;
	ForegroundColor = InArgs._ForegroundColor.IsSet() ? InArgs._ForegroundColor : TAttribute<FSlateColor>(Style->ForegroundColor);

	const TAttribute<FMargin> Padding = InArgs._Padding.IsSet() ? InArgs._Padding : TAttribute<FMargin>(Style->Padding);
	const ESlateCheckBoxType::Type Type = InArgs._Type.IsSet() ? InArgs._Type.GetValue() : Style->CheckBoxType;
	if (Type == ESlateCheckBoxType::ToggleButton)
	{
		ChildSlot[SNew(SBorder)
					  .BorderImage(this, &SCheckBox::GetCheckImage)
					  .HAlign(InArgs._HAlign)
					  .Padding(Padding)
					  .BorderBackgroundColor(Style->BorderBackgroundColor)[InArgs._Content.Widget]];
		return;
	}
	ChildSlot[SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
			  .AutoWidth()
			  .VAlign(VAlign_Center)
			  .HAlign(HAlign_Center)[SNew(SImage)
										 .Image(this, &SCheckBox::GetCheckImage)
										 .ColorAndOpacity(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
										 .Visibility(EVisibility::HitTestInvisible)]
		+ SHorizontalBox::Slot().Padding(Padding).VAlign(VAlign_Center)[InArgs._Content.Widget]];
}

void SCheckBox::ToggleCheckedState()
{
	const ECheckBoxState NewState =
		IsCheckboxChecked.Get() == ECheckBoxState::Unchecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
	if (!IsCheckboxChecked.IsBound())
	{
		IsCheckboxChecked.Set(NewState);
	}
	OnCheckStateChanged.ExecuteIfBound(NewState);
}

FReply SCheckBox::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (IsEnabled() && (InKeyEvent.GetKey() == EKeys::Enter || InKeyEvent.GetKey() == EKeys::SpaceBar))
	{
		ToggleCheckedState();
		return FReply::Handled();
	}
	return SCompoundWidget::OnKeyUp(MyGeometry, InKeyEvent);
}

FReply SCheckBox::OnMouseButtonDown(const FGeometry& /*MyGeometry*/, const FPointerEvent& MouseEvent)
{
	if (!IsEnabled() || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	bIsPressed = true;
	if (ClickMethod == EButtonClickMethod::MouseDown)
	{
		ToggleCheckedState();
		return FReply::Handled();
	}
	return FReply::Handled().CaptureMouse(AsShared());
}

FReply SCheckBox::OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent)
{
	return OnMouseButtonDown(InMyGeometry, InMouseEvent);
}

FReply SCheckBox::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!IsEnabled() || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	const bool bWasPressed = bIsPressed;
	bIsPressed = false;
	if (bWasPressed && ClickMethod != EButtonClickMethod::MouseDown && MyGeometry.IsUnderLocation(MouseEvent.GetScreenSpacePosition()))
	{
		ToggleCheckedState();
	}
	return FReply::Handled().ReleaseMouseCapture();
}

void SCheckBox::OnMouseCaptureLost(const FCaptureLostEvent& /*CaptureLostEvent*/)
{
	bIsPressed = false;
}

const FSlateBrush* SCheckBox::GetCheckImage() const
{
	switch (GetCheckedState())
	{
	case ECheckBoxState::Checked:
		return bIsPressed ? &Style->CheckedPressedImage : IsHovered() ? &Style->CheckedHoveredImage : &Style->CheckedImage;
	case ECheckBoxState::Undetermined:
		return bIsPressed ? &Style->UndeterminedPressedImage : IsHovered() ? &Style->UndeterminedHoveredImage : &Style->UndeterminedImage;
	default:
		return bIsPressed ? &Style->UncheckedPressedImage : IsHovered() ? &Style->UncheckedHoveredImage : &Style->UncheckedImage;
	}
}
