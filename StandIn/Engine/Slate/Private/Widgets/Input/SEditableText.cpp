// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SEditableText.h"
#include "Rendering/DrawElements.h"
#include "StandIn/FontMeasurer.h"
#include "StandIn/TextLines.h"

SEditableText::SEditableText()
	: Style(nullptr)
	, CaretPosition(0)
	, SelectionStart(0)
	, ScrollOffset(0.0f)
	, bKeepSelectionOfPress(false)
{}

void SEditableText::Construct(const FArguments& InArgs)
{
	check(InArgs._Style != nullptr);
	Style = InArgs._Style;
	HintText = InArgs._HintText;
	Font = InArgs._Font;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	IsReadOnly = InArgs._IsReadOnly;
	bSelectAllTextWhenFocused = InArgs._SelectAllTextWhenFocused;
	bRevertTextOnEscape = InArgs._RevertTextOnEscape;
	bClearKeyboardFocusOnCommit = InArgs._ClearKeyboardFocusOnCommit;
	bSelectAllTextOnCommit = InArgs._SelectAllTextOnCommit;
	MinDesiredWidth = InArgs._MinDesiredWidth;
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;
	OnKeyDownHandler = InArgs._OnKeyDownHandler;
	SetText(InArgs._Text);
}

void SEditableText::SetText(const TAttribute<FText>& InNewText)
{
	BoundText = InNewText;
	LastBoundText = BoundText.Get().ToString();
	EditedText = LastBoundText;
	MoveCaret(EditedText.Len(), false);
}

void SEditableText::SelectAllText()
{
	SelectionStart = 0;
	CaretPosition = EditedText.Len();
}

FText SEditableText::GetSelectedText() const
{
	const int32 First = FMath::Min(SelectionStart, CaretPosition);
	return FText::FromString(EditedText.Mid(First, FMath::Max(SelectionStart, CaretPosition) - First));
}

void SEditableText::Tick(const FGeometry& /*AllottedGeometry*/, const double /*InCurrentTime*/, const float /*InDeltaTime*/)
{
	// A polled text is followed unless it is being edited.
	if (BoundText.IsBound() && !HasKeyboardFocus())
	{
		const FString NewText = BoundText.Get().ToString();
		if (NewText != LastBoundText || NewText != EditedText)
		{
			LastBoundText = NewText;
			EditedText = NewText;
			MoveCaret(EditedText.Len(), false);
		}
	}
}

FReply SEditableText::OnFocusReceived(const FGeometry& /*MyGeometry*/, const FFocusEvent& InFocusEvent)
{
	TextBeforeEdit = EditedText;
	if (bSelectAllTextWhenFocused.Get())
	{
		SelectAllText();
		bKeepSelectionOfPress = InFocusEvent.GetCause() == EFocusCause::Mouse;
	}
	return FReply::Handled();
}

void SEditableText::OnFocusLost(const FFocusEvent& /*InFocusEvent*/)
{
	ClearSelection();
	bKeepSelectionOfPress = false;
	OnTextCommitted.ExecuteIfBound(GetText(), ETextCommit::OnUserMovedFocus);
}

FReply SEditableText::OnKeyChar(const FGeometry& /*MyGeometry*/, const FCharacterEvent& InCharacterEvent)
{
	const TCHAR Character = InCharacterEvent.GetCharacter();
	if (Character < 0x20 || Character == 0x7F || IsReadOnly.Get() || InCharacterEvent.IsControlDown() || InCharacterEvent.IsCommandDown())
	{
		// Control characters come as keys; what is read-only still takes the event from its parents.
		return IsReadOnly.Get() ? FReply::Handled() : FReply::Unhandled();
	}
	const TCHAR Characters[2] = {Character, 0};
	ReplaceSelection(FString(Characters));
	return FReply::Handled();
}

FReply SEditableText::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (OnKeyDownHandler.IsBound())
	{
		const FReply Reply = OnKeyDownHandler.Execute(MyGeometry, InKeyEvent);
		if (Reply.IsEventHandled())
		{
			return Reply;
		}
	}
	const FKey Key = InKeyEvent.GetKey();
	const bool bSelect = InKeyEvent.IsShiftDown();
	const bool bControl = InKeyEvent.IsControlDown();
	if (Key == EKeys::Left || Key == EKeys::Right)
	{
		const int32 Step = Key == EKeys::Left ? -1 : 1;
		if (AnyTextSelected() && !bSelect && !bControl)
		{
			MoveCaret(Step < 0 ? FMath::Min(SelectionStart, CaretPosition) : FMath::Max(SelectionStart, CaretPosition), false);
		}
		else
		{
			MoveCaret(bControl ? FindWord(CaretPosition, Step)
					: Step < 0 ? StandIn::PreviousBreak(EditedText, CaretPosition)
							   : StandIn::NextBreak(EditedText, CaretPosition),
				bSelect);
		}
	}
	else if (Key == EKeys::Home || Key == EKeys::End)
	{
		MoveCaret(Key == EKeys::Home ? 0 : EditedText.Len(), bSelect);
	}
	else if (Key == EKeys::BackSpace || Key == EKeys::Delete)
	{
		DeleteText(Key == EKeys::Delete, bControl);
	}
	else if (Key == EKeys::Enter)
	{
		Commit(ETextCommit::OnEnter);
		return bClearKeyboardFocusOnCommit.Get() && HasKeyboardFocus() ? FReply::Handled().ClearUserFocus(EFocusCause::Cleared)
																	   : FReply::Handled();
	}
	else if (Key == EKeys::Escape)
	{
		if (AnyTextSelected() && !bRevertTextOnEscape.Get())
		{
			ClearSelection();
			return FReply::Handled();
		}
		if (!bRevertTextOnEscape.Get() || EditedText == TextBeforeEdit)
		{
			return FReply::Unhandled();
		}
		SelectAllText();
		ReplaceSelection(TextBeforeEdit);
	}
	else if (bControl && Key == EKeys::A)
	{
		SelectAllText();
	}
	else if (bControl && (Key == EKeys::C || Key == EKeys::X))
	{
		if (CopySelection() && Key == EKeys::X && !IsReadOnly.Get())
		{
			ReplaceSelection(FString());
		}
	}
	else if (bControl && Key == EKeys::V)
	{
		PasteText();
	}
	else
	{
		return FReply::Unhandled();
	}
	return FReply::Handled();
}

FReply SEditableText::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	if (HasKeyboardFocus() || !bSelectAllTextWhenFocused.Get())
	{
		MoveCaret(FindPosition(MyGeometry, MouseEvent), MouseEvent.IsShiftDown());
	}
	return FReply::Handled().CaptureMouse(AsShared()).SetUserFocus(AsShared(), EFocusCause::Mouse);
}

FReply SEditableText::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!HasMouseCapture())
	{
		return FReply::Unhandled();
	}
	if (!bKeepSelectionOfPress)
	{
		MoveCaret(FindPosition(MyGeometry, MouseEvent), true);
	}
	return FReply::Handled();
}

FReply SEditableText::OnMouseButtonUp(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*MouseEvent*/)
{
	bKeepSelectionOfPress = false;
	return HasMouseCapture() ? FReply::Handled().ReleaseMouseCapture() : FReply::Unhandled();
}

FReply SEditableText::OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent)
{
	if (InMouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	const int32 Position = FindPosition(InMyGeometry, InMouseEvent);
	MoveCaret(FindWord(StandIn::NextBreak(EditedText, Position), -1), false);
	MoveCaret(FindWord(CaretPosition, 1), true);
	return FReply::Handled();
}

FCursorReply SEditableText::OnCursorQuery(const FGeometry& /*MyGeometry*/, const FPointerEvent& /*CursorEvent*/) const
{
	return FCursorReply::Cursor(EMouseCursor::TextEditBeam);
}

float SEditableText::MeasureUpTo(int32 Position) const
{
	return Position > 0 ? StandIn::GetFontMeasurer().MeasureLine(*EditedText, Position, GetFont(), 1.0f) : 0.0f;
}

int32 SEditableText::FindPosition(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const
{
	const float X = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()).X + ScrollOffset;
	float Before = 0.0f;
	for (int32 Position = 0; Position < EditedText.Len();)
	{
		const int32 Next = StandIn::NextBreak(EditedText, Position);
		const float After = MeasureUpTo(Next);
		if (X < (Before + After) / 2.0f)
		{
			return Position;
		}
		Before = After;
		Position = Next;
	}
	return EditedText.Len();
}

void SEditableText::MoveCaret(int32 Position, bool bSelect)
{
	CaretPosition = FMath::Max(0, FMath::Min(Position, EditedText.Len()));
	if (!bSelect)
	{
		SelectionStart = CaretPosition;
	}
}

int32 SEditableText::FindWord(int32 Position, int32 Step) const
{
	const auto IsSpaceAt = [this](int32 Index) { return EditedText[Index] == TEXT(' ') || EditedText[Index] == TEXT('\t'); };
	int32 Index = FMath::Max(0, FMath::Min(Position, EditedText.Len()));
	if (Step < 0)
	{
		while (Index > 0 && IsSpaceAt(Index - 1))
		{
			--Index;
		}
		while (Index > 0 && !IsSpaceAt(Index - 1))
		{
			--Index;
		}
		return Index;
	}
	while (Index < EditedText.Len() && IsSpaceAt(Index))
	{
		++Index;
	}
	while (Index < EditedText.Len() && !IsSpaceAt(Index))
	{
		++Index;
	}
	return Index;
}

void SEditableText::ReplaceSelection(const FString& NewText)
{
	const int32 First = FMath::Min(SelectionStart, CaretPosition);
	const int32 Last = FMath::Max(SelectionStart, CaretPosition);
	const FString OldText = EditedText;
	EditedText = EditedText.Left(First) + NewText + EditedText.Mid(Last);
	MoveCaret(First + NewText.Len(), false);
	if (EditedText.Len() != OldText.Len() || EditedText != OldText)
	{
		OnTextChanged.ExecuteIfBound(GetText());
	}
}

void SEditableText::DeleteText(bool bForward, bool bWord)
{
	if (IsReadOnly.Get())
	{
		return;
	}
	if (!AnyTextSelected())
	{
		MoveCaret(bWord    ? FindWord(CaretPosition, bForward ? 1 : -1)
				: bForward ? StandIn::NextBreak(EditedText, CaretPosition)
						   : StandIn::PreviousBreak(EditedText, CaretPosition),
			true);
	}
	ReplaceSelection(FString());
}

void SEditableText::Commit(ETextCommit::Type CommitType)
{
	TextBeforeEdit = EditedText;
	if (bSelectAllTextOnCommit.Get())
	{
		SelectAllText();
	}
	OnTextCommitted.ExecuteIfBound(GetText(), CommitType);
}

int32 SEditableText::OnPaint(const FPaintArgs& /*Args*/, const FGeometry& AllottedGeometry, const FSlateRect& /*MyCullingRect*/,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FSlateFontInfo FontInfo = GetFont();
	const float LineHeight = StandIn::GetFontMeasurer().GetLineHeight(FontInfo, 1.0f);
	const FVector2D Size = AllottedGeometry.GetLocalSize();
	const float Top = FMath::Max(0.0f, (Size.Y - LineHeight) / 2.0f);
	const bool bFocused = HasKeyboardFocus();

	// The caret stays in sight.
	const float CaretX = MeasureUpTo(CaretPosition);
	const float TextWidth = MeasureUpTo(EditedText.Len());
	if (bFocused)
	{
		ScrollOffset = FMath::Max(FMath::Min(ScrollOffset, CaretX), CaretX + 1.0f - Size.X);
	}
	ScrollOffset = FMath::Max(0.0f, FMath::Min(ScrollOffset, TextWidth + 1.0f - Size.X));

	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FSlateColor Color = ColorAndOpacity.IsSet() ? ColorAndOpacity.Get() : Style->ColorAndOpacity;
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint() * Color.GetColor(InWidgetStyle);
	if (AnyTextSelected() && bFocused)
	{
		const float First = MeasureUpTo(FMath::Min(SelectionStart, CaretPosition)) - ScrollOffset;
		const float Last = MeasureUpTo(FMath::Max(SelectionStart, CaretPosition)) - ScrollOffset;
		FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId),
			AllottedGeometry.ToPaintGeometry(FVector2D(First, Top), FVector2D(Last - First, LineHeight)), &Style->BackgroundImageSelected,
			Effect, Style->BackgroundImageSelected.GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint());
	}
	if (EditedText.Len() > 0)
	{
		FSlateDrawElement::MakeText(OutDrawElements, static_cast<uint32>(LayerId + 1),
			AllottedGeometry.ToPaintGeometry(FVector2D(-ScrollOffset, Top), FVector2D(TextWidth, LineHeight)), EditedText, FontInfo, Effect,
			Tint);
	}
	else
	{
		// Clear of the caret.
		const float HintX = 2.0f;
		FLinearColor HintTint = Tint;
		HintTint.A *= 0.5f;
		FSlateDrawElement::MakeText(OutDrawElements, static_cast<uint32>(LayerId + 1),
			AllottedGeometry.ToPaintGeometry(FVector2D(HintX, Top), FVector2D(Size.X, LineHeight)), HintText.Get(), FontInfo, Effect,
			HintTint);
	}
	if (bFocused && !IsReadOnly.Get())
	{
		FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId + 2),
			AllottedGeometry.ToPaintGeometry(FVector2D(CaretX - ScrollOffset, Top), FVector2D(1.0f, LineHeight)), &Style->CaretImage,
			Effect, Style->CaretImage.GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint());
	}
	return LayerId + 2;
}

FVector2D SEditableText::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	StandIn::IFontMeasurer& Measurer = StandIn::GetFontMeasurer();
	const FSlateFontInfo FontInfo = GetFont();
	const FString Shown = EditedText.Len() > 0 ? EditedText : HintText.Get().ToString();
	const float Width = Shown.Len() > 0 ? Measurer.MeasureLine(*Shown, Shown.Len(), FontInfo, 1.0f) : 0.0f;
	return FVector2D(FMath::Max(Width + 1.0f, MinDesiredWidth.Get()), Measurer.GetLineHeight(FontInfo, 1.0f));
}
