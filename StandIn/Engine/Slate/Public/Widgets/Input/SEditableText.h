// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SLeafWidget.h"

// One line of text that can be edited. Left out: undo, input methods, passwords, context menus, virtual keyboards.

/** One line of text that can be edited. */
class SLATE_API SEditableText : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SEditableText)
		: _Text()
		, _HintText()
		, _Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextStyle>("NormalEditableText"))
		, _IsReadOnly(false)
		, _SelectAllTextWhenFocused(false)
		, _RevertTextOnEscape(false)
		, _ClearKeyboardFocusOnCommit(true)
		, _MinDesiredWidth(0.0f)
		, _SelectAllTextOnCommit(false)
	{
		_Clipping = EWidgetClipping::ClipToBounds;
	}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_ATTRIBUTE(FText, HintText)
	SLATE_STYLE_ARGUMENT(FEditableTextStyle, Style)
	SLATE_ATTRIBUTE(FSlateFontInfo, Font)
	SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
	SLATE_ATTRIBUTE(bool, IsReadOnly)
	SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
	SLATE_ATTRIBUTE(bool, RevertTextOnEscape)
	SLATE_ATTRIBUTE(bool, ClearKeyboardFocusOnCommit)
	SLATE_EVENT(FOnTextChanged, OnTextChanged)
	SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_ATTRIBUTE(float, MinDesiredWidth)
	SLATE_ATTRIBUTE(bool, SelectAllTextOnCommit)
	SLATE_EVENT(FOnKeyDown, OnKeyDownHandler)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SEditableText();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Sets the text or where it is polled from; OnTextChanged is not called. */
	void SetText(const TAttribute<FText>& InNewText);

	/** Returns the text as edited. */
	FText GetText() const { return FText::FromString(EditedText); }

	/** Sets what shows while the text is empty. */
	void SetHintText(const TAttribute<FText>& InHintText) { HintText = InHintText; }

	/** Returns what shows while the text is empty. */
	FText GetHintText() const { return HintText.Get(); }

	/** Selects all of the text. */
	void SelectAllText();

	/** Ends the selection. */
	void ClearSelection() { SelectionStart = CaretPosition; }

	/** Says whether any text is selected. */
	bool AnyTextSelected() const { return SelectionStart != CaretPosition; }

	/** Returns the selected text. */
	FText GetSelectedText() const;

	/** Returns where the caret is, in characters from the start. */
	int32 GetCaretPosition() const { return CaretPosition; }

	/** Says whether the text cannot be changed. */
	bool IsTextReadOnly() const { return IsReadOnly.Get(); }

	bool SupportsKeyboardFocus() const override { return true; }
	void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent) override;
	FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const override;

protected:
	int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	FSlateFontInfo GetFont() const { return Font.IsSet() ? Font.Get() : Style->Font; }
	float MeasureUpTo(int32 Position) const;
	int32 FindPosition(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const;
	void MoveCaret(int32 Position, bool bSelect);
	int32 FindWord(int32 Position, int32 Step) const;
	void ReplaceSelection(const FString& NewText);
	void DeleteText(bool bForward, bool bWord);
	void Commit(ETextCommit::Type CommitType);
	bool CopySelection() const;
	void PasteText();

	const FEditableTextStyle* Style;
	TAttribute<FText> BoundText;
	TAttribute<FText> HintText;
	TAttribute<FSlateFontInfo> Font;
	TAttribute<FSlateColor> ColorAndOpacity;
	TAttribute<bool> IsReadOnly;
	TAttribute<bool> bSelectAllTextWhenFocused;
	TAttribute<bool> bRevertTextOnEscape;
	TAttribute<bool> bClearKeyboardFocusOnCommit;
	TAttribute<bool> bSelectAllTextOnCommit;
	TAttribute<float> MinDesiredWidth;
	FOnTextChanged OnTextChanged;
	FOnTextCommitted OnTextCommitted;
	FOnKeyDown OnKeyDownHandler;
	FString EditedText;
	FString LastBoundText;
	FString TextBeforeEdit;
	int32 CaretPosition;
	int32 SelectionStart;
	mutable float ScrollOffset;
	bool bKeepSelectionOfPress;
};
