// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SMenuAnchor.h"

// A button that opens a menu.

DECLARE_DELEGATE(FOnComboBoxOpened)

/** A button that opens a menu below it. */
class SLATE_API SComboButton : public SMenuAnchor
{
public:
	SLATE_BEGIN_ARGS(SComboButton)
		: _ComboButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FComboButtonStyle>("ComboButton"))
		, _ButtonStyle(nullptr)
		, _ButtonContent()
		, _MenuContent()
		, _IsFocusable(true)
		, _HasDownArrow(true)
		, _ForegroundColor(FSlateColor::UseForeground())
		, _ButtonColorAndOpacity(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
		, _ContentPadding(FMargin(5.0f, 0.0f))
		, _MenuPlacement(MenuPlacement_BelowAnchor)
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Center)
	{}
	SLATE_STYLE_ARGUMENT(FComboButtonStyle, ComboButtonStyle)
	SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
	SLATE_NAMED_SLOT(FArguments, ButtonContent)
	SLATE_NAMED_SLOT(FArguments, MenuContent)
	SLATE_EVENT(FOnGetContent, OnGetMenuContent)
	SLATE_EVENT(FOnComboBoxOpened, OnComboBoxOpened)
	SLATE_EVENT(FOnIsOpenChanged, OnMenuOpenChanged)
	SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_ARGUMENT(bool, HasDownArrow)
	SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_ATTRIBUTE(FSlateColor, ButtonColorAndOpacity)
	SLATE_ATTRIBUTE(FMargin, ContentPadding)
	SLATE_ATTRIBUTE(EMenuPlacement, MenuPlacement)
	SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
	SLATE_ARGUMENT(EVerticalAlignment, VAlign)
	SLATE_END_ARGS()

	/** Makes the widget. */
	SComboButton();

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Sets what is asked for the menu's content at each opening. */
	void SetOnGetMenuContent(FOnGetContent InOnGetMenuContent) { OnGetContent = InOnGetMenuContent; }

	void SetMenuContent(TSharedRef<SWidget> InContent) override;

private:
	FReply OnButtonClicked();

	const FComboButtonStyle* Style;
	FOnGetContent OnGetContent;
	FOnComboBoxOpened OnComboBoxOpened;
	bool bIsFocusable;
};
