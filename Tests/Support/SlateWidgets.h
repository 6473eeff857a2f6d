// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Layout/ArrangedChildren.h"
#include "Rendering/DrawElements.h"
#include "Support/Text.h"
#include "Widgets/SLeafWidget.h"
#include <ostream>
#include <string>
#include <vector>

// Small widgets and comparisons for tests of layout and input.

/** Shows a vector in parentheses. */
inline void PrintTo(const FVector2D& Value, std::ostream* Out)
{
	*Out << '(' << Value.X << ", " << Value.Y << ')';
}

/** Shows a margin in parentheses. */
inline void PrintTo(const FMargin& Value, std::ostream* Out)
{
	*Out << '(' << Value.Left << ", " << Value.Top << ", " << Value.Right << ", " << Value.Bottom << ')';
}

/** Shows a rectangle as edges. */
inline void PrintTo(const FSlateRect& Value, std::ostream* Out)
{
	*Out << '[' << Value.Left << ", " << Value.Top << " - " << Value.Right << ", " << Value.Bottom << ']';
}

/** A widget of a wished size that notes what happens to it and answers as told. */
class STestBox : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STestBox)
		: _Size(FVector2D(0.0f, 0.0f))
		, _Focusable(false)
		, _Handles(false)
		, _Log(nullptr)
	{}
	SLATE_ATTRIBUTE(FVector2D, Size)
	SLATE_ARGUMENT(bool, Focusable)
	SLATE_ARGUMENT(bool, Handles)
	SLATE_ARGUMENT(std::vector<std::string>*, Log)
	SLATE_ARGUMENT(std::string, Name)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		Size = InArgs._Size;
		bFocusable = InArgs._Focusable;
		bHandles = InArgs._Handles;
		Log = InArgs._Log;
		Name = InArgs._Name;
	}

	bool SupportsKeyboardFocus() const override { return bFocusable; }

	FReply OnMouseButtonDown(const FGeometry&, const FPointerEvent&) override
	{
		Note("down");
		return bCaptures ? FReply::Handled().CaptureMouse(AsShared()) : bHandles ? FReply::Handled() : FReply::Unhandled();
	}

	FReply OnMouseButtonUp(const FGeometry&, const FPointerEvent&) override
	{
		Note("up");
		return HasMouseCapture() ? FReply::Handled().ReleaseMouseCapture() : bHandles ? FReply::Handled() : FReply::Unhandled();
	}

	FReply OnMouseMove(const FGeometry&, const FPointerEvent&) override
	{
		Note("move");
		return FReply::Unhandled();
	}

	void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override
	{
		SLeafWidget::OnMouseEnter(MyGeometry, MouseEvent);
		Note("enter");
	}

	void OnMouseLeave(const FPointerEvent& MouseEvent) override
	{
		SLeafWidget::OnMouseLeave(MouseEvent);
		Note("leave");
	}

	void OnMouseCaptureLost(const FCaptureLostEvent&) override { Note("capture lost"); }

	FReply OnFocusReceived(const FGeometry&, const FFocusEvent&) override
	{
		Note("focus");
		return FReply::Handled();
	}

	void OnFocusLost(const FFocusEvent&) override { Note("blur"); }

	FReply OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent) override
	{
		Note("key " + ToStd(InKeyEvent.GetKey().ToString()));
		return bHandles ? FReply::Handled() : FReply::Unhandled();
	}

	/** Whether a press takes the mouse. */
	bool bCaptures = false;

protected:
	FVector2D ComputeDesiredSize(float) const override { return Size.Get(); }

	int32 OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool) const override
	{
		FSlateDrawElement::MakeText(OutDrawElements, static_cast<uint32>(LayerId), AllottedGeometry.ToPaintGeometry(),
			FString(UTF8_TO_TCHAR(Name.c_str())), FSlateFontInfo(), ESlateDrawEffect::None, InWidgetStyle.GetColorAndOpacityTint());
		return LayerId;
	}

private:
	void Note(const std::string& What)
	{
		if (Log != nullptr)
		{
			Log->push_back(Name.empty() ? What : Name + " " + What);
		}
	}

	TAttribute<FVector2D> Size;
	bool bFocusable = false;
	bool bHandles = false;
	std::vector<std::string>* Log = nullptr;
	std::string Name;
};

/** Makes a box of a size. */
inline TSharedRef<STestBox> MakeBox(float Width, float Height)
{
	return SNew(STestBox).Size(FVector2D(Width, Height));
}

/** Lays a widget out in a size and returns the rectangles of the children that pass the filter. */
inline std::vector<FSlateRect> Arrange(
	const TSharedRef<SWidget>& Widget, const FVector2D& Size, EVisibility Filter = EVisibility::Visible, float Scale = 1.0f)
{
	Widget->SlatePrepass(Scale);
	FArrangedChildren Children(Filter);
	Widget->ArrangeChildren(FGeometry::MakeRoot(Size, FSlateLayoutTransform(Scale)), Children);
	std::vector<FSlateRect> Rects;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		Rects.push_back(Children[Index].Geometry.GetLayoutBoundingRect());
	}
	return Rects;
}
