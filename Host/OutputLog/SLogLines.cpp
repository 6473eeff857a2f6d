// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/SLogLines.h"

#include "Host/OutputLog/LogColors.h"
#include "Host/OutputLog/LogText.h"
#include "Host/Program/Strings.h"

#include "Rendering/DrawElements.h"
#include "StandIn/Clipboard.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Layout/SScrollBar.h"

#include <algorithm>
#include <cmath>

namespace TintmillHost
{
namespace
{
/** Lines a second that a selection scrolls by when the mouse is one line outside. */
constexpr double DragLinesPerSecond = 12.0;
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
	const float LineHeight = GetLogLineHeight();
	for (int32 Line = GetFirstSeen(); Line < GetEndOfSeen(); ++Line)
	{
		const float Middle = static_cast<float>(Line - ScrollLine + 0.5) * LineHeight;
		if (Middle > 0.0f && Middle < Geometry.GetLocalSize().Y)
		{
			Seen.push_back({ToUtf8(Lines->GetText(Line)), Geometry.LocalToAbsolute(FVector2D(LogTextIndent + 1.0f, Middle))});
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
	LinesInSight = std::max(1.0, static_cast<double>(AllottedGeometry.GetLocalSize().Y / GetLogLineHeight()));
	if (HasMouseCapture())
	{
		const double Above = std::min(0.0, static_cast<double>(DragPlace.Y));
		const double Below = std::max(0.0, static_cast<double>(DragPlace.Y - AllottedGeometry.GetLocalSize().Y));
		const double Outside = (Above + Below) / static_cast<double>(GetLogLineHeight());
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
		TextWidth = std::max(TextWidth, MeasureLog(Text, Text.Len()) + 2.0f * LogTextIndent);
	}
	UpdateBars(AllottedGeometry.GetLocalSize());
}

int32 SLogLines::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FSlateFontInfo Font = GetLogFont();
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	const float LineHeight = GetLogLineHeight();
	for (int32 Line = GetFirstSeen(); Line < GetEndOfSeen(); ++Line)
	{
		const FLogLine& Record = Lines->Get(Line);
		const FString Text = Lines->GetText(Line);
		const float Top = std::round(static_cast<float>(Line - ScrollLine) * LineHeight);
		PaintSelection(AllottedGeometry, OutDrawElements, LayerId, Line, Text, Top);

		const auto PaintPart = [&](int32 Start, int32 End, const FLinearColor& Color) {
			const float Left = MeasureLog(Text, Start);
			FSlateDrawElement::MakeText(OutDrawElements, static_cast<uint32>(LayerId + 1),
				AllottedGeometry.ToPaintGeometry(
					FVector2D(LogTextIndent - ScrollX + Left, Top), FVector2D(MeasureLog(Text, End) - Left, LineHeight)),
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
	const float Start = MeasureLog(Text, Line == First.Line ? First.Column : 0);
	// The line's end is selected, too, where the selection goes on.
	const float End = Line == Last.Line ? MeasureLog(Text, Last.Column) : MeasureLog(Text, Text.Len()) + 4.0f;
	FSlateDrawElement::MakeBox(Elements, static_cast<uint32>(LayerId),
		Geometry.ToPaintGeometry(FVector2D(LogTextIndent - ScrollX + Start, Top), FVector2D(End - Start, GetLogLineHeight())),
		FCoreStyle::Get().GetBrush("WhiteBrush"), ESlateDrawEffect::None, GetLogSelectionColor());
}

FVector2D SLogLines::ComputeDesiredSize(float) const
{
	return FVector2D(100.0f, 4.0f * GetLogLineHeight());
}

void SLogLines::OnVerticallyScrolled(float Share)
{
	ScrollTo(static_cast<double>(Share) * Lines->Num());
}

void SLogLines::OnHorizontallyScrolled(float Share)
{
	ScrollX = Share * TextWidth;
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

int32 SLogLines::GetEndOfSeen() const
{
	return std::min(Lines->Num(), static_cast<int32>(std::ceil(ScrollLine + LinesInSight)));
}
}
