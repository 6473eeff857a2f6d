// Copyright The Tintmill authors. All rights reserved.

#include "Host/Frame/FrameMenus.h"

#include "Host/Editor/Maps.h"
#include "Host/Program/Strings.h"
#include "Host/Ui/SEditorFrame.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "StandIn/LevelEditorPanes.h"
#include "ToolMenus.h"

#define LOCTEXT_NAMESPACE "TintmillHost"

namespace TintmillHost
{
const FName FrameMenus::MainMenu("LevelEditor.MainMenu");
const FName FrameMenus::ToolBar("LevelEditor.LevelEditorToolBar");
const FName FrameMenus::Levels("TintmillHost.Levels");
const FName FrameMenus::BrowserPanel("ContentBrowser");
const FName FrameMenus::LogPanel("OutputLog");

namespace
{
using FWeakFrame = TWeakPtr<SEditorFrame>;

constexpr int32 NumTabs = 4;

/** The owner of everything that is registered here. */
const FName Owner("TintmillHost");

const FName RegisteredMenus[] = {"LevelEditor.MainMenu", "LevelEditor.MainMenu.File", "LevelEditor.MainMenu.Edit",
	"LevelEditor.MainMenu.Window", "LevelEditor.MainMenu.Help", "LevelEditor.LevelEditorToolBar", "TintmillHost.Levels"};

FText ToText(const std::string& Text)
{
	return FText::FromString(FromUtf8(Text));
}

/** "Four Panes 2x2" for FourPanes2x2. */
FText NameLayout(const FName& Layout)
{
	FString Words;
	for (const TCHAR Letter : ToUtf8(Layout.ToString()))
	{
		const bool bNewWord = (Letter >= 'A' && Letter <= 'Z') || Letter == '2';
		Words += FString(bNewWord && !Words.IsEmpty() && !Words.EndsWith(TEXT("x")) ? TEXT(" ") : TEXT("")) + FString::Chr(Letter);
	}
	return FText::FromString(Words);
}

FUIAction ToggleAction(TFunction<void()> Toggle, TFunction<bool()> IsChecked)
{
	return FUIAction(FExecuteAction::CreateLambda([Toggle]() { Toggle(); }), FCanExecuteAction(),
		FIsActionChecked::CreateLambda([IsChecked]() { return IsChecked(); }));
}

void FillLevels(UToolMenu* Menu, const FWeakFrame Frame)
{
	FToolMenuSection& Section = Menu->AddSection("Levels", LOCTEXT("Levels", "Levels of the Project"));
	const std::vector<std::string> Maps = ListMaps();
	for (const std::string& Map : Maps)
	{
		const std::string Name = Map.substr(Map.rfind('/') + 1);
		const auto Open = [Frame, Map]() {
			if (const TSharedPtr<SEditorFrame> Pinned = Frame.Pin())
			{
				Pinned->Try("The level could not be opened", [&Map] { OpenMap(Map); });
			}
		};
		Section.AddMenuEntry(FName(*FromUtf8(Map)), ToText(Name), ToText("Opens " + Map), FFrameStyle::GetIcon("Map"),
			ToggleAction(Open, [Map]() { return GetOpenMap() == Map; }), EUserInterfaceActionType::RadioButton);
	}
	if (Maps.empty())
	{
		Section.AddMenuEntry("NoLevels", LOCTEXT("NoLevels", "There are no levels in this project"), FText::GetEmpty(), FSlateIcon(),
			FUIAction(FExecuteAction(), FCanExecuteAction::CreateLambda([]() { return false; })));
	}
}

void FillLayouts(UToolMenu* Menu)
{
	FToolMenuSection& Section = Menu->AddSection("Layouts", LOCTEXT("LayoutsHeading", "Layout of the Tab in Front"));
	for (const FName& Layout : StandIn::GetViewportLayoutNames())
	{
		Section.AddMenuEntry(Layout, NameLayout(Layout), FText::GetEmpty(), FSlateIcon(),
			ToggleAction([Layout]() { StandIn::SetViewportLayout(Layout, StandIn::GetFrontViewportTab()); },
				[Layout]() { return StandIn::GetViewportLayout(StandIn::GetFrontViewportTab()) == Layout; }),
			EUserInterfaceActionType::RadioButton);
	}
}

void FillViewports(UToolMenu* Menu)
{
	FToolMenuSection& Section = Menu->AddSection("Viewports");
	for (int32 Tab = 1; Tab <= NumTabs; ++Tab)
	{
		const FString Name = FString::Printf(TEXT("Viewport %d"), Tab);
		const auto IsOpen = [Tab]() { return StandIn::GetViewportTabs().Contains(Tab); };
		const auto Toggle = [Tab, IsOpen]() {
			if (IsOpen())
			{
				StandIn::CloseViewportTab(Tab);
			}
			else
			{
				StandIn::OpenViewportTab(Tab, "OnePane");
			}
		};
		FUIAction Action = ToggleAction(Toggle, IsOpen);
		if (Tab == 1)
		{
			// There is always one tab.
			Action.CanExecuteAction = FCanExecuteAction::CreateLambda([]() { return false; });
		}
		Section.AddMenuEntry(
			FName(*Name), FText::FromString(Name), FText::GetEmpty(), FSlateIcon(), Action, EUserInterfaceActionType::ToggleButton);
	}
}

void FillWindows(UToolMenu* Menu, const FWeakFrame Frame)
{
	const TSharedPtr<SEditorFrame> Pinned = Frame.Pin();
	if (!Pinned.IsValid())
	{
		return;
	}
	FToolMenuSection& Panels = Menu->AddSection("General", LOCTEXT("General", "General"));
	for (const TSharedPtr<FUICommandInfo>& Command : {Pinned->GetCommands().ContentBrowser, Pinned->GetCommands().OutputLog})
	{
		const FName Panel = Command == Pinned->GetCommands().ContentBrowser ? "ContentBrowser" : "OutputLog";
		const auto Toggle = [Frame, Panel]() {
			if (const TSharedPtr<SEditorFrame> Living = Frame.Pin())
			{
				Living->TogglePanel(Panel);
			}
		};
		const auto IsOpen = [Frame, Panel]() {
			const TSharedPtr<SEditorFrame> Living = Frame.Pin();
			return Living.IsValid() && Living->IsPanelOpen(Panel);
		};
		Panels.AddMenuEntry(Panel, Command->GetLabel(), LOCTEXT("Panel_ToolTip", "Opens or closes the panel below the viewports"),
			FSlateIcon(), ToggleAction(Toggle, IsOpen), EUserInterfaceActionType::ToggleButton);
	}
	FToolMenuSection& Editor = Menu->AddSection("LevelEditor", LOCTEXT("LevelEditor", "Level Editor"));
	Editor.AddSubMenu("Viewports", LOCTEXT("Viewports", "Viewports"), LOCTEXT("Viewports_ToolTip", "Opens or closes viewport tabs"),
		FNewToolMenuDelegate::CreateStatic(&FillViewports));
	Editor.AddSubMenu("Layouts", LOCTEXT("Layouts", "Viewport Layouts"),
		LOCTEXT("Layouts_ToolTip", "Arranges the viewports of the tab in front"), FNewToolMenuDelegate::CreateStatic(&FillLayouts));
}

void RegisterMainMenu(const TSharedRef<SEditorFrame>& Frame)
{
	UToolMenus* const Menus = UToolMenus::Get();
	const FFrameCommands& Commands = Frame->GetCommands();
	const FWeakFrame WeakFrame = Frame;
	UToolMenu* const Bar = Menus->RegisterMenu(FrameMenus::MainMenu, NAME_None, EMultiBoxType::MenuBar);
	const std::pair<const TCHAR*, FText> Heads[] = {{TEXT("File"), LOCTEXT("File", "File")}, {TEXT("Edit"), LOCTEXT("Edit", "Edit")},
		{TEXT("Window"), LOCTEXT("Window", "Window")}, {TEXT("Help"), LOCTEXT("Help", "Help")}};
	for (const auto& [Name, Label] : Heads)
	{
		Bar->AddSubMenu(FToolMenuOwner(Owner), "Heads", Name, Label);
	}

	UToolMenu* const File = Menus->RegisterMenu("LevelEditor.MainMenu.File");
	{
		FToolMenuSection& Section = File->AddSection("FileLoadAndSave", LOCTEXT("LoadAndSave", "Level"));
		Section.AddMenuEntry(Commands.NewLevel);
		Section.AddSubMenu("OpenLevel", Commands.OpenLevel->GetLabel(), Commands.OpenLevel->GetDescription(),
			FNewToolMenuDelegate::CreateStatic(&FillLevels, WeakFrame));
	}
	File->AddSection("Exit").AddMenuEntry(Commands.Exit);

	UToolMenu* const Edit = Menus->RegisterMenu("LevelEditor.MainMenu.Edit");
	FToolMenuSection& Viewport = Edit->AddSection("ActiveViewport", LOCTEXT("ActiveViewport", "Active Viewport"));
	Viewport.AddMenuEntry(Commands.ToggleLook);
	Viewport.AddMenuEntry(Commands.OpenViewMenu);
	Viewport.AddMenuEntry(Commands.Maximize);
	Viewport.AddMenuEntry(Commands.NextPane);
	Viewport.AddMenuEntry(Commands.PreviousPane);

	Menus->RegisterMenu("LevelEditor.MainMenu.Window")
		->AddDynamicSection("Windows", FNewToolMenuDelegate::CreateStatic(&FillWindows, WeakFrame));
	Menus->RegisterMenu("LevelEditor.MainMenu.Help")
		->AddSection("HelpBrowse", LOCTEXT("HelpBrowse", "Reference"))
		.AddMenuEntry(Commands.Shortcuts);
	Menus->RegisterMenu(FrameMenus::Levels)->AddDynamicSection("Levels", FNewToolMenuDelegate::CreateStatic(&FillLevels, WeakFrame));
}

FName GetPlayIcon(const FWeakFrame& Frame)
{
	const TSharedPtr<SEditorFrame> Pinned = Frame.Pin();
	const EPlayWay Way = Pinned.IsValid() ? Pinned->GetLastPlayWay() : EPlayWay::InPane;
	return Way == EPlayWay::InWindow ? "PlayInWindow" : Way == EPlayWay::Simulate ? "Simulate" : "Play";
}

/** A button for a command that is there only as long as the command may run, or a drop-down beside it. */
FUIAction WhilePossible(const FWeakFrame& Frame, const TSharedPtr<FUICommandInfo>& Command)
{
	const auto IsPossible = [Frame, Command]() {
		const TSharedPtr<SEditorFrame> Pinned = Frame.Pin();
		return Pinned.IsValid() && Pinned->GetCommandList()->CanExecuteAction(Command.ToSharedRef());
	};
	const auto Run = [Frame, Command]() {
		if (const TSharedPtr<SEditorFrame> Pinned = Frame.Pin())
		{
			Pinned->GetCommandList()->ExecuteAction(Command.ToSharedRef());
		}
	};
	return FUIAction(
		FExecuteAction::CreateLambda(Run), FCanExecuteAction(), FIsActionChecked(), FIsActionButtonVisible::CreateLambda(IsPossible));
}

FText WithKey(const FUICommandInfo& Command)
{
	return FText::FromString(Command.GetDescription().ToString() + TEXT(" (") + Command.GetInputText().ToString() + TEXT(")"));
}

void RegisterToolBar(const TSharedRef<SEditorFrame>& Frame)
{
	const FFrameCommands& Commands = Frame->GetCommands();
	const FWeakFrame WeakFrame = Frame;
	UToolMenu* const Bar = UToolMenus::Get()->RegisterMenu(FrameMenus::ToolBar, NAME_None, EMultiBoxType::ToolBar);
	Bar->bToolBarIsFocusable = true;
	const auto AddButton = [&](const TCHAR* Section, const TSharedPtr<FUICommandInfo>& Command, const FText& Label, const FName& Icon) {
		Bar->AddSection(Section).AddEntry(FToolMenuEntry::InitToolBarButton(
			Command->GetCommandName(), WhilePossible(WeakFrame, Command), Label, WithKey(*Command), FFrameStyle::GetIcon(Icon)));
	};
	Bar->AddSection("File").AddEntry(
		FToolMenuEntry::InitComboButton("Levels", FToolUIActionChoice(), FNewToolMenuDelegate::CreateStatic(&FillLevels, WeakFrame),
			LOCTEXT("LevelsButton", "Levels"), WithKey(*Commands.OpenLevel), FFrameStyle::GetIcon("Map")));
	AddButton(TEXT("Content"), Commands.ContentBrowser, LOCTEXT("ContentButton", "Content"), "Folder");
	AddButton(TEXT("Look"), Commands.ToggleLook, LOCTEXT("LookButton", "Look"), "Layers");
	FToolMenuSection& Play = Bar->AddSection("Play");
	Play.AddEntry(FToolMenuEntry::InitToolBarButton("Play", WhilePossible(WeakFrame, Commands.Play), Commands.Play->GetLabel(),
		WithKey(*Commands.Play), TAttribute<FSlateIcon>::Create(TAttribute<FSlateIcon>::FGetter::CreateLambda([WeakFrame]() {
			return FFrameStyle::GetIcon(GetPlayIcon(WeakFrame));
		}))));
	const auto FillModes = [Commands](UToolMenu* Menu) {
		FToolMenuSection& Modes = Menu->AddSection("LevelEditorPlayModes", LOCTEXT("Modes", "Modes"));
		Modes.AddMenuEntry(Commands.PlayInPane, TAttribute<FText>(), TAttribute<FText>(), FFrameStyle::GetIcon("Play"));
		Modes.AddMenuEntry(Commands.PlayInWindow, TAttribute<FText>(), TAttribute<FText>(), FFrameStyle::GetIcon("PlayInWindow"));
		Modes.AddMenuEntry(Commands.Simulate, TAttribute<FText>(), TAttribute<FText>(), FFrameStyle::GetIcon("Simulate"));
	};
	Play.AddEntry(
		FToolMenuEntry::InitComboButton("PlayModes", WhilePossible(WeakFrame, Commands.Play), FNewToolMenuDelegate::CreateLambda(FillModes),
			LOCTEXT("PlayModes", "Play Modes"), LOCTEXT("PlayModes_ToolTip", "How to play"), FSlateIcon(), true, "Play Modes"));
	Play.AddEntry(FToolMenuEntry::InitToolBarButton(
		"Stop", WhilePossible(WeakFrame, Commands.Stop), Commands.Stop->GetLabel(), WithKey(*Commands.Stop), FFrameStyle::GetIcon("Stop")));
}
}

void FrameMenus::Register(const TSharedRef<SEditorFrame>& Frame)
{
	const FToolMenuOwnerScoped OwnerScope(Owner);
	RegisterMainMenu(Frame);
	RegisterToolBar(Frame);
}

void FrameMenus::Unregister()
{
	if (!UObjectInitialized())
	{
		return;
	}
	if (UToolMenus* const Menus = UToolMenus::TryGet())
	{
		Menus->UnregisterOwnerByName(Owner);
		for (const FName& Name : RegisteredMenus)
		{
			Menus->RemoveMenu(Name);
		}
	}
}
}

#undef LOCTEXT_NAMESPACE
