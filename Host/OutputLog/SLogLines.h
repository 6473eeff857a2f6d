// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/OutputLog/ShownLines.h"

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

#include <string>
#include <vector>

class SScrollBar;

// The text of the log. Only the lines in sight are ever turned into text, measured or painted, so their number does not matter.

namespace TintmillHost
{
/** A place in the text: a line by its place among the shown ones, and a number of characters. */
struct FLogPlace
{
	int32 Line = 0;
	int32 Column = 0;

	bool operator<(const FLogPlace& Other) const { return Line != Other.Line ? Line < Other.Line : Column < Other.Column; }
	bool operator==(const FLogPlace& Other) const { return Line == Other.Line && Column == Other.Column; }
};

/** A line that is in sight. */
struct FSeenLogLine
{
	std::string Text;

	/** The middle of its beginning, in desktop space. */
	FVector2D Place = FVector2D(0.0f, 0.0f);
};

/** Shows lines; follows their end until it is scrolled away from it; lets text be selected and copied. */
class SLogLines : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SLogLines) { _Clipping = EWidgetClipping::ClipToBounds; }
	SLATE_ARGUMENT(TSharedPtr<SScrollBar>, VerticalBar)
	SLATE_ARGUMENT(TSharedPtr<SScrollBar>, HorizontalBar)
	SLATE_EVENT(FOnGetContent, OnContextMenu)
	SLATE_END_ARGS()

	/** Lines must outlive the widget. */
	void Construct(const FArguments& InArgs, FShownLines& InLines);

	/** Puts what is selected onto the clipboard, as lines; nothing when nothing is. */
	void CopySelection() const;

	/** The selected text. */
	FString GetSelectedText() const;

	bool HasSelection() const { return !(Anchor == Caret); }
	void SelectAll();
	void ClearSelection() { Anchor = Caret; }

	/** Goes to the end and follows it again. */
	void ScrollToEnd();

	/** Whether new lines scroll the text. */
	bool IsFollowing() const { return bFollowing; }

	/** The lines in sight, from top to bottom. */
	std::vector<FSeenLogLine> ListSeen() const;

	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const override;

protected:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	void OnVerticallyScrolled(float Share);
	void OnHorizontallyScrolled(float Share);
	void ScrollTo(double Line);
	double GetFurthest() const;
	void UpdateBars(const FVector2D& Size);
	void FollowDrag();
	FLogPlace FindPlace(const FVector2D& Local) const;
	int32 GetFirstSeen() const { return static_cast<int32>(ScrollLine); }
	int32 GetEndOfSeen() const;
	void PaintSelection(
		const FGeometry& Geometry, FSlateWindowElementList& Elements, int32 LayerId, int32 Line, const FString& Text, float Top) const;

	FShownLines* Lines = nullptr;
	TSharedPtr<SScrollBar> VerticalBar;
	TSharedPtr<SScrollBar> HorizontalBar;
	FOnGetContent OnContextMenu;

	/** The first line in sight, with its part that is not. */
	double ScrollLine = 0.0;
	float ScrollX = 0.0f;

	/** The widest line that was seen since the lines changed. */
	float TextWidth = 0.0f;

	/** Lines that fit into the widget. */
	double LinesInSight = 1.0;

	/** Where the selection began, and where it ends. */
	FLogPlace Anchor;
	FLogPlace Caret;

	/** Where the mouse is while it selects, in the widget's space. */
	FVector2D DragPlace = FVector2D(0.0f, 0.0f);
	int32 SeenGeneration = 0;
	bool bFollowing = true;
};
}
