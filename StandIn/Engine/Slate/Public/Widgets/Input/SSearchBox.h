// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/Input/SEditableTextBox.h"

// A text box for searching, with a glass and a cross that empties it. Changes are told at once: no delay while typing. Left out:
// going through results, suggestions.

/** A text box for searching. */
class SLATE_API SSearchBox : public SEditableTextBox
{
public:
	SLATE_BEGIN_ARGS(SSearchBox)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FSearchBoxStyle>("SearchBox"))
		, _HintText(FText::FromString(FString(TEXT("Search"))))
		, _SelectAllTextWhenFocused(true)
		, _DelayChangeNotificationsWhileTyping(false)
		, _MinDesiredWidth(0.0f)
	{}
	SLATE_STYLE_ARGUMENT(FSearchBoxStyle, Style)
	SLATE_ATTRIBUTE(FText, HintText)
	SLATE_ATTRIBUTE(FText, InitialText)
	SLATE_EVENT(FOnTextChanged, OnTextChanged)
	SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
	SLATE_ATTRIBUTE(bool, DelayChangeNotificationsWhileTyping)
	SLATE_ATTRIBUTE(float, MinDesiredWidth)
	SLATE_EVENT(FOnKeyDown, OnKeyDownHandler)
	SLATE_END_ARGS()

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

private:
	FReply OnClearSearch();
	EVisibility GetXVisibility() const;
	EVisibility GetSearchGlassVisibility() const;
	void HandleTextChanged(const FText& NewText);
	void HandleTextCommitted(const FText& NewText, ETextCommit::Type CommitType);

	FOnTextChanged OnTextChangedDelegate;
	FOnTextCommitted OnTextCommittedDelegate;
};
