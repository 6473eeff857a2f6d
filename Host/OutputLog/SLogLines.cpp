// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/SLogLines.h"

#include "Host/OutputLog/LogColors.h"
#include "Host/Program/Strings.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Rendering/DrawElements.h"
#include "StandIn/Clipboard.h"
#include "StandIn/FontMeasurer.h"
#include "StandIn/TextLines.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Layout/SScrollBar.h"

#include <algorithm>
#include <cmath>

namespace TintmillHost
{
namespace
{
/** Space on the left of the text, in Slate units. */
constexpr float TextIndent = 6.0f;

constexpr double LinesPerNotch = 3.0;
constexpr float WidthPerNotch = 60.0f;

/** Lines a second that a selection scrolls by when the mouse is one line outside. */
constexpr double DragLinesPerSecond = 12.0;

FSlateFontInfo GetLogFont()
{
	return FCoreStyle::GetDefaultFontStyle("Mono", 9);
}

float GetLineHeight()
{
	return std::ceil(StandIn::GetFontMeasurer().GetLineHeight(GetLogFont(), 1.0f));
}

float Measure(const FString& Text, int32 Length)
{
	return Length > 0 ? StandIn::GetFontMeasurer().MeasureLine(*Text, Length, GetLogFont(), 1.0f) : 0.0f;
}

bool IsInWord(TCHAR Character)
{
	return Character > 0x7F || FChar::IsAlnum(Character) || Character == TEXT('_');
}
}

void SLogLines::Construct(const FArguments& InArgs, FShownLines& InLines)
{
	Lines = &InLines;
	VerticalBar = InArgs._VerticalBar;
	HorizontalBar = InArgs._HorizontalBar;
	OnContextMenu = InArgs._OnContextMenu;
	SeenGeneration = Lines->GetGeneration();
	VerticalBar->SetOnUserScrolled(FOnUserScrolled::CreateSP(this, &SLogLines::OnVerticallyScrolled));
	HorizontalBar->SetOnUserScrolled(FOnUserScrolled::CreateSP(this, &SLogLines::OnHorizontallyScrolled));
}

void SLogLines::CopySelection() const
{
	if (HasSelection())
	{
		StandIn::SetClipboardText(GetSelectedText());
	}
}

FString SLogLines::GetSelectedText() const
{
	const FLogPlace First = std::min(Anchor, Caret);
	const FLogPlace Last = std::max(Anchor, Caret);
	if (First == Last || First.Line >= Lines->Num())
	{
		return FString();
	}
	if (First.Line == Last.Line)
	{
		return Lines->GetText(First.Line).Mid(First.Column, Last.Column - First.Column);
	}
	// Many lines are quicker put together in one string of the standard library.
	std::string Text = ToUtf8(Lines->GetText(First.Line).Mid(First.Column));
	for (int32 Line = First.Line + 1; Line < Last.Line; ++Line)
	{
		Text += '\n';
		Text += Lines->bTimes ? ToUtf8(Lines->GetText(Line)) : Lines->Get(Line).Text;
	}
	return FromUtf8(Text + "\n" + ToUtf8(Lines->GetText(Last.Line).Left(Last.Column)));
}

void SLogLines::SelectAll()
{
	Anchor = FLogPlace();
	const int32 LastLine = std::max(0, Lines->Num() - 1);
	Caret = {LastLine, Lines->Num() > 0 ? Lines->GetText(LastLine).Len() : 0};
}

void SLogLines::ScrollToEnd()
{
	bFollowing = true;
	ScrollLine = GetFurthest();
}

std::vector<FSeenLogLine> SLogLines::ListSeen() const
{
	std::vector<FSeenLogLine> Seen;
	const FGeometry& Geometry = GetCachedGeometry();
	const float LineHeight = GetLineHeight();
	for (int32 Line = GetFirstSeen(); Line < GetEndOfSeen(); ++Line)
	{
		const float Middle = static_cast<float>(Line - ScrollLine + 0.5) * LineHeight;
		if (Middle > 0.0f && Middle < Geometry.GetLocalSize().Y)
		{
			Seen.push_back({ToUtf8(Lines->GetText(Line)), Geometry.LocalToAbsolute(FVector2D(TextIndent + 1.0f, Middle))});
		}
	}
	return Seen;
}

void SLogLines::Tick(const FGeometry& AllottedGeometry, const double, const float InDeltaTime)
{
	Lines->Update();
	if (SeenGeneration != Lines->GetGeneration())
	{
		SeenGeneration = Lines->GetGeneration();
		Anchor = FLogPlace();
		Caret = FLogPlace();
		TextWidth = 0.0f;
		ScrollX = 0.0f;
	}
	LinesInSight = std::max(1.0, static_cast<double>(AllottedGeometry.GetLocalSize().Y / GetLineHeight()));
	if (HasMouseCapture())
	{
		const double Above = std::min(0.0, static_cast<double>(DragPlace.Y));
		const double Below = std::max(0.0, static_cast<double>(DragPlace.Y - AllottedGeometry.GetLocalSize().Y));
		const double Outside = (Above + Below) / static_cast<double>(GetLineHeight());
		if (Outside != 0.0)
		{
			ScrollTo(ScrollLine + Outside * DragLinesPerSecond * static_cast<double>(InDeltaTime));
			FollowDrag();
		}
	}
	ScrollLine = bFollowing ? GetFurthest() : std::clamp(ScrollLine, 0.0, GetFurthest());
	for (int32 Line = GetFirstSeen(); Line < GetEndOfSeen(); ++Line)
	{
		const FString Text = Lines->GetText(Line);
		TextWidth = std::max(TextWidth, Measure(Text, Text.Len()) + 2.0f * TextIndent);
	}
	UpdateBars(AllottedGeometry.GetLocalSize());
}

FReply SLogLines::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const FKey Button = MouseEvent.GetEffectingButton();
	if (Button == EKeys::RightMouseButton)
	{
		return FReply::Handled().SetUserFocus(AsShared(), EFocusCause::Mouse);
	}
	if (Button != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	DragPlace = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	FollowDrag();
	if (!MouseEvent.IsShiftDown())
	{
		Anchor = Caret;
	}
	return FReply::Handled().CaptureMouse(AsShared()).SetUserFocus(AsShared(), EFocusCause::Mouse);
}

FReply SLogLines::OnMouseButtonUp(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() == EKeys::RightMouseButton && OnContextMenu.IsBound())
	{
		FSlateApplication::Get().PushMenu(AsShared(), FWidgetPath(), OnContextMenu.Execute(), MouseEvent.GetScreenSpacePosition(),
			FPopupTransitionEffect(FPopupTransitionEffect::ContextMenu));
		return FReply::Handled();
	}
	return HasMouseCapture() ? FReply::Handled().ReleaseMouseCapture() : FReply::Unhandled();
}

FReply SLogLines::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (!HasMouseCapture())
	{
		return FReply::Unhandled();
	}
	DragPlace = MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition());
	FollowDrag();
	return FReply::Handled();
}

FReply SLogLines::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton || Lines->Num() == 0)
	{
		return FReply::Unhandled();
	}
	const FLogPlace Place = FindPlace(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition()));
	const FString Text = Lines->GetText(Place.Line);
	Anchor = {Place.Line, FindWordEnd(Text, Place.Column, -1)};
	Caret = {Place.Line, FindWordEnd(Text, Place.Column, 1)};
	return FReply::Handled().SetUserFocus(AsShared(), EFocusCause::Mouse);
}

FReply SLogLines::OnMouseWheel(const FGeometry&, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.IsShiftDown())
	{
		ScrollX -= MouseEvent.GetWheelDelta() * WidthPerNotch;
		UpdateBars(GetCachedGeometry().GetLocalSize());
	}
	else
	{
		ScrollTo(ScrollLine - static_cast<double>(MouseEvent.GetWheelDelta()) * LinesPerNotch);
	}
	return FReply::Handled();
}

FReply SLogLines::OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	const double Page = std::max(1.0, std::floor(LinesInSight) - 1.0);
	if (InKeyEvent.IsControlDown() && (Key == EKeys::C || Key == EKeys::Insert))
	{
		CopySelection();
	}
	else if (InKeyEvent.IsControlDown() && Key == EKeys::A)
	{
		SelectAll();
	}
	else if (InKeyEvent.IsAltDown())
	{
		return FReply::Unhandled();
	}
	else if (Key == EKeys::Up || Key == EKeys::Down)
	{
		ScrollTo(ScrollLine + (Key == EKeys::Up ? -1.0 : 1.0));
	}
	else if (Key == EKeys::PageUp || Key == EKeys::PageDown)
	{
		ScrollTo(ScrollLine + (Key == EKeys::PageUp ? -Page : Page));
	}
	else if (Key == EKeys::Home || Key == EKeys::End)
	{
		ScrollTo(Key == EKeys::Home ? 0.0 : GetFurthest());
	}
	else if (Key == EKeys::Escape && HasSelection())
	{
		ClearSelection();
	}
	else
	{
		return FReply::Unhandled();
	}
	return FReply::Handled();
}

FCursorReply SLogLines::OnCursorQuery(const FGeometry&, const FPointerEvent&) const
{
	return FCursorReply::Cursor(EMouseCursor::TextEditBeam);
}

int32 SLogLines::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FSlateFontInfo Font = GetLogFont();
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	const float LineHeight = GetLineHeight();
	for (int32 Line = GetFirstSeen(); Line < GetEndOfSeen(); ++Line)
	{
		const FLogLine& Record = Lines->Get(Line);
		const FString Text = Lines->GetText(Line);
		const float Top = std::round(static_cast<float>(Line - ScrollLine) * LineHeight);
		PaintSelection(AllottedGeometry, OutDrawElements, LayerId, Line, Text, Top);

		const auto PaintPart = [&](int32 Start, int32 End, const FLinearColor& Color) {
			const float Left = Measure(Text, Start);
			FSlateDrawElement::MakeText(OutDrawElements, static_cast<uint32>(LayerId + 1),
				AllottedGeometry.ToPaintGeometry(
					FVector2D(TextIndent - ScrollX + Left, Top), FVector2D(Measure(Text, End) - Left, LineHeight)),
				Text.Mid(Start, End - Start), Font, Effect, Color * Tint);
		};
		// Warnings and errors are of one color, so that they stand out as a whole.
		const bool bOrdinary = Record.Verbosity == ELogVerbosity::Display || Record.Verbosity == ELogVerbosity::Log;
		const FLinearColor Color = GetLogTextColor(Record.Verbosity, Record.Category);
		const int32 TimeLength = Lines->GetTimeLength(Line);
		const int32 CategoryEnd = TimeLength + FromUtf8(Record.Text.substr(0, Record.CategoryLength)).Len();
		PaintPart(0, TimeLength, Color * FLinearColor(0.6f, 0.6f, 0.6f, 1.0f));
		PaintPart(TimeLength, CategoryEnd, bOrdinary && Color.R > 0.5f ? GetLogCategoryColor(Record.Category) : Color);
		PaintPart(CategoryEnd, Text.Len(), Color);
	}
	return LayerId + 1;
}

void SLogLines::PaintSelection(
	const FGeometry& Geometry, FSlateWindowElementList& Elements, int32 LayerId, int32 Line, const FString& Text, float Top) const
{
	const FLogPlace First = std::min(Anchor, Caret);
	const FLogPlace Last = std::max(Anchor, Caret);
	if (First == Last || Line < First.Line || Line > Last.Line)
	{
		return;
	}
	const float Start = Measure(Text, Line == First.Line ? First.Column : 0);
	// The line's end is selected, too, where the selection goes on.
	const float End = Line == Last.Line ? Measure(Text, Last.Column) : Measure(Text, Text.Len()) + 4.0f;
	FSlateDrawElement::MakeBox(Elements, static_cast<uint32>(LayerId),
		Geometry.ToPaintGeometry(FVector2D(TextIndent - ScrollX + Start, Top), FVector2D(End - Start, GetLineHeight())),
		FCoreStyle::Get().GetBrush("WhiteBrush"), ESlateDrawEffect::None, GetLogSelectionColor());
}

FVector2D SLogLines::ComputeDesiredSize(float) const
{
	return FVector2D(100.0f, 4.0f * GetLineHeight());
}

void SLogLines::OnVerticallyScrolled(float Part)
{
	ScrollTo(static_cast<double>(Part) * Lines->Num());
}

void SLogLines::OnHorizontallyScrolled(float Part)
{
	ScrollX = Part * TextWidth;
}

void SLogLines::ScrollTo(double Line)
{
	ScrollLine = std::clamp(Line, 0.0, GetFurthest());
	bFollowing = ScrollLine >= GetFurthest();
}

double SLogLines::GetFurthest() const
{
	return std::max(0.0, Lines->Num() - LinesInSight);
}

void SLogLines::UpdateBars(const FVector2D& Size)
{
	ScrollX = std::clamp(ScrollX, 0.0f, std::max(0.0f, TextWidth - Size.X));
	const double Num = std::max(1, Lines->Num());
	VerticalBar->SetState(static_cast<float>(ScrollLine / Num), static_cast<float>(LinesInSight / Num));
	HorizontalBar->SetState(TextWidth > 0.0f ? ScrollX / TextWidth : 0.0f, TextWidth > 0.0f ? Size.X / TextWidth : 1.0f);
}

void SLogLines::FollowDrag()
{
	Caret = FindPlace(DragPlace);
}

FLogPlace SLogLines::FindPlace(const FVector2D& Local) const
{
	if (Lines->Num() == 0)
	{
		return FLogPlace();
	}
	const double Wanted = std::floor(ScrollLine + static_cast<double>(Local.Y / GetLineHeight()));
	if (Wanted >= Lines->Num())
	{
		return {Lines->Num() - 1, Lines->GetText(Lines->Num() - 1).Len()};
	}
	FLogPlace Place;
	Place.Line = static_cast<int32>(std::max(0.0, Wanted));
	const FString Text = Lines->GetText(Place.Line);
	const float X = Local.X - TextIndent + ScrollX;
	// The nearest place between two characters, found by halving.
	int32 Low = 0;
	int32 High = Text.Len();
	while (Low < High)
	{
		const int32 Middle = (Low + High) / 2;
		const float Center = (Measure(Text, Middle) + Measure(Text, Middle + 1)) / 2.0f;
		if (X < Center)
		{
			High = Middle;
		}
		else
		{
			Low = Middle + 1;
		}
	}
	// Never between a character and what belongs to it.
	Place.Column = Low == 0 || Low == Text.Len() ? Low : StandIn::NextBreak(Text, StandIn::PreviousBreak(Text, Low));
	return Place;
}

int32 SLogLines::FindWordEnd(const FString& Text, int32 Column, int32 Step) const
{
	int32 Index = Column;
	while (Step < 0 ? Index > 0 && IsInWord(Text[Index - 1]) : Index < Text.Len() && IsInWord(Text[Index]))
	{
		Index += Step;
	}
	return Index;
}

int32 SLogLines::GetEndOfSeen() const
{
	return std::min(Lines->Num(), static_cast<int32>(std::ceil(ScrollLine + LinesInSight)));
}
}
