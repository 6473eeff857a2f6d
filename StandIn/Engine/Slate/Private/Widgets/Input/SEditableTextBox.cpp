// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/SBoxPanel.h"

SEditableTextBox::SEditableTextBox()
	: Style(nullptr)
{}

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	check(InArgs._Style != nullptr);
	Style = InArgs._Style;
	SAssignNew(EditableText, SEditableText)
		.Text(InArgs._Text)
		.HintText(InArgs._HintText)
		.Font(InArgs._Font.IsSet() ? InArgs._Font : TAttribute<FSlateFontInfo>(Style->Font))
		.IsReadOnly(InArgs._IsReadOnly)
		.SelectAllTextWhenFocused(InArgs._SelectAllTextWhenFocused)
		.RevertTextOnEscape(InArgs._RevertTextOnEscape)
		.ClearKeyboardFocusOnCommit(InArgs._ClearKeyboardFocusOnCommit)
		.OnTextChanged(InArgs._OnTextChanged)
		.OnTextCommitted(InArgs._OnTextCommitted)
		.MinDesiredWidth(InArgs._MinDesiredWidth)
		.SelectAllTextOnCommit(InArgs._SelectAllTextOnCommit)
		.OnKeyDownHandler(InArgs._OnKeyDownHandler);
	SBorder::Construct(
		SBorder::FArguments()
			.BorderImage(this, &SEditableTextBox::GetBackground)
			.BorderBackgroundColor(Style->BackgroundColor)
			.ForegroundColor(this, &SEditableTextBox::DetermineForegroundColor)
			.Padding(InArgs._Padding.IsSet() ? InArgs._Padding : TAttribute<FMargin>(Style->Padding))[SAssignNew(Box, SHorizontalBox)
				+ SHorizontalBox::Slot().VAlign(VAlign_Center)[EditableText.ToSharedRef()]]);
}

bool SEditableTextBox::HasKeyboardFocus() const
{
	return SBorder::HasKeyboardFocus() || EditableText->HasKeyboardFocus();
}

FReply SEditableTextBox::OnFocusReceived(const FGeometry& /*MyGeometry*/, const FFocusEvent& InFocusEvent)
{
	// The focus belongs to the text.
	return FReply::Handled().SetUserFocus(EditableText.ToSharedRef(), InFocusEvent.GetCause());
}

const FSlateBrush* SEditableTextBox::GetBackground() const
{
	if (EditableText->IsTextReadOnly())
	{
		return &Style->BackgroundImageReadOnly;
	}
	if (EditableText->HasKeyboardFocus())
	{
		return &Style->BackgroundImageFocused;
	}
	return IsHovered() ? &Style->BackgroundImageHovered : &Style->BackgroundImageNormal;
}

FSlateColor SEditableTextBox::DetermineForegroundColor() const
{
	return EditableText->IsTextReadOnly() ? Style->ReadOnlyForegroundColor : Style->ForegroundColor;
}
