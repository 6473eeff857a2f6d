// Copyright The Tintmill authors. All rights reserved.

#include "Host/OutputLog/SLogLines.h"
#include "Host/OutputLog/SOutputLog.h"
#include "Host/Program/Strings.h"

#include "Framework/MultiBox/MultiBoxBuilder.h"

// The menus of the output log.

namespace TintmillHost
{
TSharedRef<SWidget> SOutputLog::MakeFilterMenu()
{
	FMenuBuilder Menu(true, nullptr);
	Menu.BeginSection("OutputLogVerbosityEntries", FText::FromString(TEXT("Verbosity")));
	const auto AddVerbosity = [&](const TCHAR* Name, const TCHAR* Hint, bool FLogFilter::*Which) {
		AddToggle(
			Menu, FText::FromString(Name), FText::FromString(Hint), [this, Which] { return Lines->GetFilter().*Which; },
			[this, Which] { ChangeFilter([Which](FLogFilter& Filter) { Filter.*Which = !(Filter.*Which); }); });
	};
	AddVerbosity(TEXT("Messages"), TEXT("Filter the Output Log to show messages"), &FLogFilter::bMessages);
	AddVerbosity(TEXT("Warnings"), TEXT("Filter the Output Log to show warnings"), &FLogFilter::bWarnings);
	AddVerbosity(TEXT("Errors"), TEXT("Filter the Output Log to show errors"), &FLogFilter::bErrors);
	Menu.EndSection();
	Menu.BeginSection("OutputLogMiscEntries", FText::FromString(TEXT("Miscellaneous")));
	Menu.AddSubMenu(FText::FromString(TEXT("Categories")), FText::FromString(TEXT("Select Categories to display.")),
		FNewMenuDelegate::CreateSP(this, &SOutputLog::FillCategoryMenu));
	Menu.EndSection();
	return Menu.MakeWidget();
}

void SOutputLog::FillCategoryMenu(FMenuBuilder& Menu)
{
	Menu.BeginSection("OutputLogCategoriesEntries", FText::FromString(TEXT("Categories")));
	AddToggle(
		Menu, FText::FromString(TEXT("Show All")), FText::FromString(TEXT("Filter the Output Log to show all categories")),
		[this] { return Lines->GetFilter().HiddenCategories.empty(); },
		[this] {
			ChangeFilter([this](FLogFilter& Filter) {
				// Taken away, it hides every category there is.
				const std::vector<std::string> All = Lines->ListCategories();
				Filter.HiddenCategories =
					Filter.HiddenCategories.empty() ? std::set<std::string>(All.begin(), All.end()) : std::set<std::string>();
			});
		});
	for (const std::string& Category : Lines->ListCategories())
	{
		const FString Name = FromUtf8(Category);
		AddToggle(
			Menu, FText::FromString(Name), FText::FromString(TEXT("Filter the Output Log to show category: ") + Name),
			[this, Category] { return Lines->GetFilter().HiddenCategories.count(Category) == 0; },
			[this, Category] { ToggleCategory(Category); });
	}
	Menu.EndSection();
}

TSharedRef<SWidget> SOutputLog::MakeViewMenu()
{
	FMenuBuilder Menu(true, nullptr);
	AddToggle(
		Menu, FText::FromString(TEXT("Show Timestamps")), FText::FromString(TEXT("Begin each line with the seconds since the start.")),
		[this] { return Lines->bTimes; },
		[this] {
			Lines->bTimes = !Lines->bTimes;
			LinesWidget->ClearSelection();
		});
	AddToggle(
		Menu, FText::FromString(TEXT("Clear on PIE")), FText::FromString(TEXT("Clear the log when play begins.")),
		[this] { return bClearOnPlay; }, [this] { bClearOnPlay = !bClearOnPlay; });
	return Menu.MakeWidget();
}

TSharedRef<SWidget> SOutputLog::MakeContextMenu()
{
	FMenuBuilder Menu(true, nullptr);
	Menu.AddMenuEntry(FText::FromString(TEXT("Copy")), FText::FromString(TEXT("Copy the selected text.")), FSlateIcon(),
		FUIAction(FExecuteAction::CreateSP(LinesWidget.ToSharedRef(), &SLogLines::CopySelection),
			FCanExecuteAction::CreateSP(LinesWidget.ToSharedRef(), &SLogLines::HasSelection)));
	Menu.AddMenuEntry(FText::FromString(TEXT("Select All")), FText::FromString(TEXT("Select all lines.")), FSlateIcon(),
		FUIAction(FExecuteAction::CreateSP(LinesWidget.ToSharedRef(), &SLogLines::SelectAll)));
	Menu.AddMenuSeparator();
	Menu.AddMenuEntry(FText::FromString(TEXT("Clear Log")), FText::FromString(TEXT("Clears all log messages.")), FSlateIcon(),
		FUIAction(FExecuteAction::CreateSP(this, &SOutputLog::ClearLog)));
	return Menu.MakeWidget();
}

void SOutputLog::AddToggle(
	FMenuBuilder& Menu, const FText& LabelText, const FText& Hint, std::function<bool()> IsChecked, std::function<void()> Toggle)
{
	// Menus close before the panel goes, so the functions may speak of it.
	Menu.AddMenuEntry(LabelText, Hint, FSlateIcon(),
		FUIAction(
			FExecuteAction::CreateLambda(std::move(Toggle)), FCanExecuteAction(), FIsActionChecked::CreateLambda(std::move(IsChecked))),
		NAME_None, EUserInterfaceActionType::ToggleButton);
}
}
