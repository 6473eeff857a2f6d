// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/OutputLog/ConsoleLink.h"

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Types/SlateStructs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

#include <string>
#include <vector>

class ITableRow;
class SEditableTextBox;
class SMenuAnchor;
class STableViewBase;
template <typename ItemType>
class SListView;

// The line below the log where commands are entered.

namespace TintmillHost
{
/** A text box for commands, with those entered before (Up and Down) and a list of commands that begin with what is typed. */
class SConsoleLine : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SConsoleLine) {}
	SLATE_ARGUMENT(FConsoleLink, Console)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** Whether the list of commands is open. */
	bool IsListOpen() const;

private:
	using FHintItem = TSharedPtr<FConsoleHint>;

	TSharedRef<SWidget> MakeList();
	TSharedRef<ITableRow> MakeRow(FHintItem Hint, const TSharedRef<STableViewBase>& Owner);
	void OnTextChanged(const FText& Text);
	void OnTextCommitted(const FText& Text, ETextCommit::Type How);
	FReply OnTextKeyDown(const FGeometry& Geometry, const FKeyEvent& KeyEvent);
	void OnHintClicked(FHintItem Hint);
	void FindHints(const std::string& Text);
	void ChooseHint(int32 Step);
	void CompleteText(const FConsoleHint& Hint);
	void GoThroughHistory(int Step);
	void ShowText(const std::string& Text);
	FOptionalSize GetListWidth() const;
	FOptionalSize GetListHeight() const;

	FConsoleLink Console;
	TSharedPtr<SEditableTextBox> TextBox;
	TSharedPtr<SMenuAnchor> Anchor;
	TSharedPtr<SListView<FHintItem>> List;
	TArray<FHintItem> Hints;
	int32 ChosenHint = INDEX_NONE;

	/** Oldest first. */
	std::vector<std::string> History;

	/** The place in the history, its size when what is typed is new. */
	size_t HistoryPlace = 0;
};
}
