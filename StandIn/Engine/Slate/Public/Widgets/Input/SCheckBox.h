// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SCompoundWidget.h"

// A check box, or a button that stays down. Left out: sounds, context menus, image overrides.

/** A check box, or a button that stays down. */
class SLATE_API SCheckBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SCheckBox)
		: _Content()
		, _Style(&FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox"))
		, _IsChecked(ECheckBoxState::Unchecked)
		, _HAlign(HAlign_Fill)
		, _ClickMethod(EButtonClickMethod::DownAndUp)
		, _IsFocusable(true)
	{}
	SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_STYLE_ARGUMENT(FCheckBoxStyle, Style)
	SLATE_ARGUMENT(TOptional<ESlateCheckBoxType::Type>, Type)
	SLATE_EVENT(FOnCheckStateChanged, OnCheckStateChanged)
	SLATE_ATTRIBUTE(ECheckBoxState, IsChecked)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_ARGUMENT(EButtonClickMethod::Type, ClickMethod)
	SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SCheckBox();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Says whether the state is Checked. */
	bool IsChecked() const { return GetCheckedState() == ECheckBoxState::Checked; }

	/** Returns the state. */
	ECheckBoxState GetCheckedState() const { return IsCheckboxChecked.Get(); }

	/** Sets the state or where it is polled from. */
	void SetIsChecked(TAttribute<ECheckBoxState> InIsChecked) { IsCheckboxChecked = InIsChecked; }

	/** Says whether the box is held down. */
	bool IsPressed() const { return bIsPressed; }

	/** Changes the state as a click does; a polled state is left to its owner. */
	void ToggleCheckedState();

	bool SupportsKeyboardFocus() const override { return bIsFocusable; }
	FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonDoubleClick(const FGeometry& InMyGeometry, const FPointerEvent& InMouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;

private:
	const FSlateBrush* GetCheckImage() const;

	const FCheckBoxStyle* Style;
	TAttribute<ECheckBoxState> IsCheckboxChecked;
	FOnCheckStateChanged OnCheckStateChanged;
	EButtonClickMethod::Type ClickMethod;
	bool bIsFocusable;
	bool bIsPressed;
};
