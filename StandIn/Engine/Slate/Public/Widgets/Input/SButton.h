// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"

// A button. Left out: sounds, touch.

/** A button: something to click with any content. */
class SLATE_API SButton : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SButton)
		: _Content()
		, _ButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button"))
		, _TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText"))
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _ContentPadding(FMargin(4.0f, 2.0f))
		, _Text()
		, _ClickMethod(EButtonClickMethod::DownAndUp)
		, _PressMethod(EButtonPressMethod::DownAndUp)
		, _DesiredSizeScale(FVector2D(1.0f, 1.0f))
		, _ContentScale(FVector2D(1.0f, 1.0f))
		, _ButtonColorAndOpacity(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
		, _ForegroundColor(FSlateColor::UseForeground())
		, _IsFocusable(true)
	{}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
	SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_ATTRIBUTE(FMargin, ContentPadding)
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_EVENT(FOnClicked, OnClicked)
	SLATE_EVENT(FSimpleDelegate, OnPressed)
	SLATE_EVENT(FSimpleDelegate, OnReleased)
	SLATE_EVENT(FSimpleDelegate, OnHovered)
	SLATE_EVENT(FSimpleDelegate, OnUnhovered)
	SLATE_ARGUMENT(EButtonClickMethod::Type, ClickMethod)
	SLATE_ARGUMENT(EButtonPressMethod::Type, PressMethod)
	SLATE_ATTRIBUTE(FVector2D, DesiredSizeScale)
	SLATE_ATTRIBUTE(FVector2D, ContentScale)
	SLATE_ATTRIBUTE(FSlateColor, ButtonColorAndOpacity)
	SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SButton();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Says whether the button is held down. */
	virtual bool IsPressed() const { return bIsPressed; }

	/** Sets what is called by a click. */
	void SetOnClicked(FOnClicked InOnClicked) { OnClicked = InOnClicked; }

	/** Sets the space around the content. */
	void SetContentPadding(const TAttribute<FMargin>& InContentPadding) { ContentPadding = InContentPadding; }

	/** Sets the style, which must outlive the button. */
	void SetButtonStyle(const FButtonStyle* InButtonStyle);

	bool SupportsKeyboardFocus() const override { return bIsFocusable; }
	void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;

protected:
	/** Presses the button. */
	virtual void Press();

	/** Releases the button without a click. */
	virtual void Release();

	/** Calls what a click calls; an unhandled reply counts as handled. */
	FReply ExecuteOnClick();

	/** Returns the brush of the state. */
	virtual const FSlateBrush* GetBorder() const;

private:
	FMargin GetCombinedPadding() const;

	const FButtonStyle* Style;
	TAttribute<FMargin> ContentPadding;
	FOnClicked OnClicked;
	FSimpleDelegate OnPressed;
	FSimpleDelegate OnReleased;
	FSimpleDelegate OnHovered;
	FSimpleDelegate OnUnhovered;
	EButtonClickMethod::Type ClickMethod;
	EButtonPressMethod::Type PressMethod;
	bool bIsFocusable;
	bool bIsPressed;
};
