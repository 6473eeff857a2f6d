// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/SlateApplication.h"
#include "Host/Picture/IDesktopPainter.h"
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

#include <ctime>
#include <filesystem>
#include <memory>

// From the moment the mouse meets a row of the View menu to the open submenu: as draw elements, as pixels painted where something
// changed, and as pixels of the whole window painted anew. The module's submenu stands beside two baselines of the same run: a plain
// submenu of another extension with the same heading and the same two rows, and one of the editor's own with seven rows.
//
// Of the module's opening it is told apart what runs inside the submenu's delegate: the module's builder, the panel's construction
// and all that both ask of the engine, which is nearly all of it. What the panel answers while it is drawn (its label and check
// state) is not inside; the whole difference to the plain submenu is the upper bound of what the module costs.
//
// The ratios count, not the times: see Docs/Benchmarks.md for a run.

namespace
{
/** Processor time of this program in microseconds: what else the machine does is not in it. */
double Now()
{
	return 1000000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

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
		Painter.reset();
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
			const double Start = Now();
			Fill.Execute(Menu);
			Inside += Now() - Start;
		});
	}

	/** What is on the window. */
	TintmillHost::FWindowShot Shoot() const
	{
		TintmillHost::FWindowShot Shot;
		FSlateApplication::Get().GetAllVisibleWindowsOrdered(Shot.Windows);
		Shot.Size = FIntPoint(1200, 900);
		return Shot;
	}

	/** Paints what changed since the last call. */
	void PaintChanges() { benchmark::DoNotOptimize(Painter->Update(Shoot(), Picture).Num()); }

	/** Paints everything. */
	void PaintAll() { benchmark::DoNotOptimize(Painter->Paint(Shoot()).Pixels.GetData()); }

	/** Microseconds inside the submenu's delegate. */
	double Inside = 0.0;

private:
	/** Another extension's submenu: what the module's panel shows, as plain entries. */
	static void AddPlainSubMenu()
	{
		FToolMenuOwnerScoped OwnerScoped("PlainExtension");
		FToolMenuSection& Section = UToolMenus::Get()->ExtendMenu(ViewMenu)->AddSection("Plain", FText::FromString(TEXT("Plain")));
		const FNewToolMenuDelegate Fill = FNewToolMenuDelegate::CreateLambda([](UToolMenu* Menu) {
			FToolMenuSection& Rows = Menu->AddSection("Rows", FText::FromString(TEXT("Display Configuration")));
			Rows.AddMenuEntry("Toggle", FText::FromString(TEXT("Enable Display")), FText::FromString(TEXT("A plain row")), FSlateIcon(),
				FUIAction(FExecuteAction(), FCanExecuteAction(), FIsActionChecked::CreateLambda([]() { return false; })),
				EUserInterfaceActionType::ToggleButton);
			Rows.AddSubMenu("Select", FText::FromString(TEXT("Select a TML Asset")), FText::FromString(TEXT("Another plain row")),
				FNewToolMenuDelegate::CreateLambda([](UToolMenu*) {}));
		});
		Section.AddSubMenu("PlainSubMenu", FText::FromString(TEXT("Plain")), FText::FromString(TEXT("A submenu of plain rows")), Fill);
	}

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
		Window = SNew(SWindow)
					 .CreateTitleBar(false)
					 .AutoCenter(EAutoCenter::None)
					 .ClientSize(FVector2D(1200.0f, 900.0f))[LevelEditor.ToSharedRef()];
		FSlateApplication::Get().AddWindow(Window.ToSharedRef());
		AddPlainSubMenu();
		Painter = TintmillHost::MakeDesktopPainter();
		StandIn::AdvanceTime(0.1f);
	}

	std::filesystem::path Folder;
	StandIn::FEngineLoop Loop;
	TSharedPtr<SWindow> Window;
	std::unique_ptr<TintmillHost::IDesktopPainter> Painter;
	TintmillHost::FPicture Picture;
	bool bTimed = false;
};

/** How far an opening goes. */
enum EUntil
{
	Elements,
	ChangedPixels,
	AllPixels
};

/** Opens a submenu of the View menu again and again; only the opening is timed. Returns the microseconds of all openings. */
double Open(benchmark::State& State, const TCHAR* Label)
{
	FEditor& Editor = FEditor::Get();
	const EUntil Until = static_cast<EUntil>(State.range(0));
	double Sum = 0.0;
	int64 Openings = 0;
	for (auto _ : State)
	{
		Editor.OpenViewMenu();
		const FVector2D Row = Editor.FindRow(Label);
		if (Until == ChangedPixels)
		{
			Editor.PaintChanges();
		}

		const double Start = Now();
		StandIn::MoveMouse(Row);
		StandIn::AdvanceTime(0.0f);
		if (Until == ChangedPixels)
		{
			Editor.PaintChanges();
		}
		else if (Until == AllPixels)
		{
			Editor.PaintAll();
		}
		const double Microseconds = Now() - Start;

		State.SetIterationTime(Microseconds / 1000000.0);
		Sum += Microseconds;
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

void OpenPlainSubMenu(benchmark::State& State)
{
	Open(State, TEXT("Plain"));
}

void OpenTintmillSubMenu(benchmark::State& State)
{
	FEditor& Editor = FEditor::Get();
	Editor.TimeDelegate();
	Editor.Inside = 0.0;
	const double Whole = Open(State, TEXT("Tintmill"));
	const double Openings = static_cast<double>(State.iterations());
	State.counters["module_us"] = Editor.Inside / Openings;
	State.counters["module_percent_of_opening"] = 100.0 * Editor.Inside / Whole;
	State.counters["module_percent_of_60Hz_frame"] = 100.0 * Editor.Inside / Openings / FrameMicroseconds;
}

void Measure(benchmark::internal::Benchmark* Benchmark)
{
	Benchmark->ArgName("until")->Arg(Elements)->Arg(ChangedPixels)->Arg(AllPixels);
	Benchmark->UseManualTime()->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly(true);
}

BENCHMARK(OpenPlainSubMenu)->Apply(Measure);
BENCHMARK(OpenEditorSubMenu)->Apply(Measure);
BENCHMARK(OpenTintmillSubMenu)->Apply(Measure);
}
