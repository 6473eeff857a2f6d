// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/SlateApplication.h"
#include "LevelEditor.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "StandIn/EngineLoop.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/MenuRows.h"
#include "StandIn/SlateDriver.h"
#include "StandIn/ViewportToolBarButtons.h"
#include "ToolMenu.h"
#include "ToolMenus.h"
#include "UObject/UObjectGlobals.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>

// From the moment the mouse meets a row of the View menu to the draw elements of its open submenu: the module's, beside one of
// the editor's own. Of the module's opening it is told apart what runs inside the submenu's delegate: the module's builder, the
// panel's construction and all that both ask of the engine.

namespace
{
typedef std::chrono::steady_clock FClock;

const FName ViewMenu(TEXT("LevelEditor.LevelViewportToolBar.View"));
const double FrameMicroseconds = 1000000.0 / 60.0;

/** The editor with one pane, for the whole program. */
class FEditor
{
public:
	static FEditor& Get()
	{
		static FEditor Editor;
		return Editor;
	}

	FEditor(const FEditor&) = delete;

	~FEditor()
	{
		Close();
		Window.Reset();
		Loop.Exit();
		std::filesystem::remove_all(Folder);
	}

	/** Opens the View menu, with the mouse beside it. */
	void OpenViewMenu() const
	{
		for (const StandIn::FViewportToolBarButton& Button : StandIn::ListViewportToolBarButtons(StandIn::GetPanes()[0].ToSharedRef()))
		{
			if (Button.Label == TEXT("Lit"))
			{
				StandIn::ClickAt(Button.Centre);
			}
		}
	}

	/** Where a row of the open View menu is. */
	FVector2D FindRow(const TCHAR* Label) const
	{
		const TSharedPtr<SWidget> Menu = FSlateApplication::Get().GetMenuStack().GetMenu(0)->GetContent();
		for (const StandIn::FMenuRow& Row : StandIn::ListMenuRows(Menu.ToSharedRef()))
		{
			if (Row.Label == Label)
			{
				return Row.Centre;
			}
		}
		return FVector2D(0.0f, 0.0f);
	}

	void Close() const
	{
		FSlateApplication::Get().DismissAllMenus();
		StandIn::MoveMouse(FVector2D(1190.0f, 890.0f));
		StandIn::AdvanceTime(0.0f);
	}

	/** Times the submenu's delegate from now on; the sum is in Inside. */
	void TimeDelegate()
	{
		if (bTimed)
		{
			return;
		}
		bTimed = true;
		FToolMenuEntry* const Entry =
			UToolMenus::Get()->FindMenu(ViewMenu)->FindSection(TEXT("ColorManagement"))->FindEntry(TEXT("TMLDisplaySubMenu"));
		const FNewToolMenuDelegate Fill = Entry->SubMenuData.ConstructMenu.NewToolMenu;
		Entry->SubMenuData.ConstructMenu.NewToolMenu = FNewToolMenuDelegate::CreateLambda([this, Fill](UToolMenu* Menu) {
			const FClock::time_point Start = FClock::now();
			Fill.Execute(Menu);
			Inside += FClock::now() - Start;
		});
	}

	FClock::duration Inside = FClock::duration::zero();

private:
	FEditor()
		: Folder(std::filesystem::temp_directory_path() / "tintmill-menu-benchmark")
	{
		std::filesystem::create_directories(Folder / "Content");
		FPaths::SetProjectFilePath(FString((Folder / "Benchmark.uproject").u16string().c_str()));
		StandIn::FEngineLoopOptions Options;
		Options.Layout = TEXT("OnePane");
		Options.MaximizedPane = NAME_None;
		Loop.PreInit(Options);
		Loop.Init();
		Loop.InitEditor();
		const TSharedPtr<ILevelEditor> LevelEditor =
			FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstLevelEditor();
		Window = SNew(SWindow).CreateTitleBar(false).AutoCenter(EAutoCenter::None).ClientSize(FVector2D(1200.0f, 900.0f))[LevelEditor.ToSharedRef()];
		FSlateApplication::Get().AddWindow(Window.ToSharedRef());
		StandIn::AdvanceTime(0.1f);
	}

	std::filesystem::path Folder;
	StandIn::FEngineLoop Loop;
	TSharedPtr<SWindow> Window;
	bool bTimed = false;
};

/** Opens a submenu of the View menu again and again; only the opening is timed. Returns the microseconds of all openings. */
double Open(benchmark::State& State, const TCHAR* Label)
{
	const FEditor& Editor = FEditor::Get();
	double Sum = 0.0;
	int64 Openings = 0;
	for (auto _ : State)
	{
		Editor.OpenViewMenu();
		const FVector2D Row = Editor.FindRow(Label);

		const FClock::time_point Start = FClock::now();
		StandIn::MoveMouse(Row);
		StandIn::AdvanceTime(0.0f);
		const double Seconds = std::chrono::duration<double>(FClock::now() - Start).count();

		State.SetIterationTime(Seconds);
		Sum += 1000000.0 * Seconds;
		if (FSlateApplication::Get().GetMenuStack().GetNumStackLevels() != 2)
		{
			State.SkipWithError("the submenu did not open");
		}
		Editor.Close();
		if (++Openings % 256 == 0)
		{
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}
	}
	return Sum;
}

void OpenEditorSubMenu(benchmark::State& State)
{
	Open(State, TEXT("Buffer Visualization"));
}

void OpenTintmillSubMenu(benchmark::State& State)
{
	FEditor& Editor = FEditor::Get();
	Editor.TimeDelegate();
	Editor.Inside = FClock::duration::zero();
	const double Whole = Open(State, TEXT("Tintmill"));
	const double Inside = std::chrono::duration<double, std::micro>(Editor.Inside).count();
	const double Openings = static_cast<double>(State.iterations());
	State.counters["module_us"] = Inside / Openings;
	State.counters["module_percent_of_opening"] = 100.0 * Inside / Whole;
	State.counters["module_percent_of_60Hz_frame"] = 100.0 * Inside / Openings / FrameMicroseconds;
}

BENCHMARK(OpenEditorSubMenu)->UseManualTime()->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(OpenTintmillSubMenu)->UseManualTime()->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly(true);
}
