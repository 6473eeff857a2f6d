// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/OutputLog/ConsoleLink.h"
#include "Host/OutputLog/ShownLines.h"

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

#include <functional>
#include <memory>
#include <string>

class FMenuBuilder;

// The editor's output log.

namespace TintmillHost
{
class SConsoleLine;
class SLogLines;

/** All lines of the log with their colors, a search, filters, and a line for console commands. */
class SOutputLog : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SOutputLog)
		: _Log(nullptr)
	{}
	/** The log, which must outlive the widget. */
	SLATE_ARGUMENT(const FHostLog*, Log)
	SLATE_ARGUMENT(FConsoleLink, Console)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** Takes all lines out of sight. */
	void ClearLog();

	/** The text of the log. */
	const TSharedPtr<SLogLines>& GetLines() const { return LinesWidget; }

	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;

private:
	TSharedRef<SWidget> MakeToolBar();
	TSharedRef<SWidget> MakeFilterMenu();
	void FillCategoryMenu(FMenuBuilder& Menu);
	TSharedRef<SWidget> MakeViewMenu();
	TSharedRef<SWidget> MakeContextMenu();
	void AddToggle(
		FMenuBuilder& Menu, const FText& Label, const FText& Hint, std::function<bool()> IsChecked, std::function<void()> Toggle);
	void ChangeFilter(const std::function<void(FLogFilter&)>& Change);
	void ToggleCategory(const std::string& Category);
	void OnSearchChanged(const FText& Text);
	void OnPlayStarts(const bool bIsSimulating);
	FText DescribeFiltering() const;

	std::unique_ptr<FShownLines> Lines;
	TSharedPtr<SLogLines> LinesWidget;
	bool bClearOnPlay = false;
};
}
