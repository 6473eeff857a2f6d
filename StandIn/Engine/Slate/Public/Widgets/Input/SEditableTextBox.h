// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Layout/SBorder.h"

class SHorizontalBox;

// One line of text that can be edited, in a box. Left out: error reporting.

/** One line of text that can be edited, in a box. */
class SLATE_API SEditableTextBox : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SEditableTextBox)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox"))
		, _Text()
		, _HintText()
		, _IsReadOnly(false)
		, _SelectAllTextWhenFocused(false)
		, _RevertTextOnEscape(false)
		, _ClearKeyboardFocusOnCommit(true)
		, _MinDesiredWidth(0.0f)
		, _SelectAllTextOnCommit(false)
	{}
	SLATE_STYLE_ARGUMENT(FEditableTextBoxStyle, Style)
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_ATTRIBUTE(FText, HintText)
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	SLATE_ATTRIBUTE(bool, IsReadOnly)
	SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
	SLATE_ATTRIBUTE(bool, RevertTextOnEscape)
	SLATE_ATTRIBUTE(bool, ClearKeyboardFocusOnCommit)
	SLATE_EVENT(FOnTextChanged, OnTextChanged)
	SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_ATTRIBUTE(float, MinDesiredWidth)
	SLATE_ATTRIBUTE(bool, SelectAllTextOnCommit)
	SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_EVENT(FOnKeyDown, OnKeyDownHandler)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SEditableTextBox();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Returns the text as edited. */
	FText GetText() const { return EditableText->GetText(); }

	/** Sets the text or where it is polled from; OnTextChanged is not called. */
	void SetText(const TAttribute<FText>& InNewText) { EditableText->SetText(InNewText); }

	/** Sets what shows while the text is empty. */
	void SetHintText(const TAttribute<FText>& InHintText) { EditableText->SetHintText(InHintText); }

	/** Selects all of the text. */
	void SelectAllText() { EditableText->SelectAllText(); }

	/** Says whether any text is selected. */
	bool AnyTextSelected() const { return EditableText->AnyTextSelected(); }

	bool SupportsKeyboardFocus() const override { return EditableText.IsValid(); }
	bool HasKeyboardFocus() const override;
	FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;

protected:
	/** The text. */
	TSharedPtr<SEditableText> EditableText;

	/** The row that holds the text. */
	TSharedPtr<SHorizontalBox> Box;

private:
	const FSlateBrush* GetBackground() const;
	FSlateColor DetermineForegroundColor() const;

	const FEditableTextBoxStyle* Style;
};
