// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SSearchBox.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"

void SSearchBox::Construct(const FArguments& InArgs)
{
	check(InArgs._Style != nullptr);
	OnTextChangedDelegate = InArgs._OnTextChanged;
	OnTextCommittedDelegate = InArgs._OnTextCommitted;
	SEditableTextBox::Construct(SEditableTextBox::FArguments()
									.Style(&InArgs._Style->TextBoxStyle)
									.Text(FText(InArgs._InitialText.Get()))
									.HintText(InArgs._HintText)
									.SelectAllTextWhenFocused(InArgs._SelectAllTextWhenFocused)
									.RevertTextOnEscape(true)
									.ClearKeyboardFocusOnCommit(false)
									.OnTextChanged(this, &SSearchBox::HandleTextChanged)
									.OnTextCommitted(this, &SSearchBox::HandleTextCommitted)
									.MinDesiredWidth(InArgs._MinDesiredWidth)
									.OnKeyDownHandler(InArgs._OnKeyDownHandler));
	Box->AddSlot().AutoWidth().VAlign(
		VAlign_Center)[SNew(SButton)
						   .Visibility(this, &SSearchBox::GetXVisibility)
						   .ButtonStyle(&FCoreStyle::Get(), "NoBorder")
						   .ContentPadding(FMargin(0.0f))
						   .IsFocusable(false)
						   .OnClicked(this, &SSearchBox::OnClearSearch)[SNew(SImage).Image(&InArgs._Style->ClearImage)]];
	Box->AddSlot().AutoWidth().VAlign(
		VAlign_Center)[SNew(SImage).Visibility(this, &SSearchBox::GetSearchGlassVisibility).Image(&InArgs._Style->GlassImage)];
}

FReply SSearchBox::OnClearSearch()
{
	SetText(FText::GetEmpty());
	HandleTextChanged(FText::GetEmpty());
	HandleTextCommitted(FText::GetEmpty(), ETextCommit::OnCleared);
	return FReply::Handled().SetUserFocus(EditableText.ToSharedRef(), EFocusCause::SetDirectly);
}

EVisibility SSearchBox::GetXVisibility() const
{
	return GetText().IsEmpty() ? EVisibility::Collapsed : EVisibility::Visible;
}

EVisibility SSearchBox::GetSearchGlassVisibility() const
{
	return GetText().IsEmpty() ? EVisibility::HitTestInvisible : EVisibility::Collapsed;
}

void SSearchBox::HandleTextChanged(const FText& NewText)
{
	OnTextChangedDelegate.ExecuteIfBound(NewText);
}

void SSearchBox::HandleTextCommitted(const FText& NewText, ETextCommit::Type CommitType)
{
	OnTextCommittedDelegate.ExecuteIfBound(NewText, CommitType);
}
