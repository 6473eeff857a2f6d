// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/SEditorFrame.h"

#include "Host/Console/Console.h"
#include "Host/Editor/Panes.h"
#include "Host/Frame/FrameMenus.h"
#include "Host/Frame/LookToggle.h"
#include "Host/Frame/SShortcuts.h"
#include "Host/Program/Strings.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Framework/Application/SlateApplication.h"
#include "Layout/Children.h"
#include "Layout/WidgetPath.h"
#include "SEditorViewportToolbarMenu.h"
#include "SLevelViewport.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/Notices.h"
#include "StandIn/SlateDriver.h"
#include "ToolMenus.h"

// What the commands of the window do.

namespace TintmillHost
{
namespace
{
/** The first widget below another one that takes the keyboard, the deepest of its branch; null if there is none. */
TSharedPtr<SWidget> FindFocusable(const TSharedRef<SWidget>& Widget)
{
	if (!Widget->GetVisibility().IsVisible() || !Widget->IsEnabled())
	{
		return nullptr;
	}
	FChildren* const Children = Widget->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		if (const TSharedPtr<SWidget> Found = FindFocusable(Children->GetChildAt(Index)))
		{
			return Found;
		}
	}
	return Widget->SupportsKeyboardFocus() ? TSharedPtr<SWidget>(Widget) : nullptr;
}

/** Keeps the level editor's rules: nothing but play itself is possible as long as it starts. */
bool IsNothingPlayed()
{
	return !GEditor->IsPlaySessionInProgress();
}
}

void SEditorFrame::FocusFirst(const TSharedRef<SWidget>& Panel)
{
	if (const TSharedPtr<SWidget> First = FindFocusable(Panel))
	{
		FSlateApplication::Get().SetKeyboardFocus(First, EFocusCause::Navigation);
	}
}

void SEditorFrame::Try(const char* What, const std::function<void()>& Action) const
{
	try
	{
		Action();
	}
	catch (const FCommandError& Error)
	{
		StandIn::AddNotice(FromUtf8(std::string("Frame.") + What), FromUtf8(std::string(What) + ": " + Error.what()));
	}
}

void SEditorFrame::BindCommands()
{
	const auto Map = [this](const TSharedPtr<FUICommandInfo>& Command, const char* Problem, auto Body) {
		CommandList->MapAction(Command, FExecuteAction::CreateLambda([this, Problem, Body]() { Try(Problem, Body); }), FCanExecuteAction());
	};
	Map(Commands.NewLevel, "No new level could be made", [] { GEditor->NewMap(); });
	Map(Commands.OpenLevel, "The levels cannot be shown", [this] { OpenMapsMenu(); });
	Map(Commands.Exit, "The editor cannot be closed", [] { RequestEngineExit(TEXT("File > Exit was chosen.")); });
	Map(Commands.ToggleLook, "The look could not be toggled", [] { ToggleLookOfActivePane(); });
	Map(Commands.OpenViewMenu, "The View menu could not be opened", [] {
		const TSharedPtr<SWidget> Button = StandIn::FindWidgetOfType(GetActivePane(), "SLevelEditorViewportViewMenu");
		if (Button.IsValid())
		{
			StaticCastSharedPtr<SEditorViewportToolbarMenu>(Button)->SetMenuOpen(true);
		}
	});
	Map(Commands.Maximize, "No viewport could be maximized", [] { GetActivePane()->OnToggleMaximize(); });
	Map(Commands.NextPane, "There is no next viewport", [this] { ActivateNeighbor(1); });
	Map(Commands.PreviousPane, "There is no previous viewport", [this] { ActivateNeighbor(-1); });
	Map(Commands.ContentBrowser, "The content browser cannot be shown", [this] { ShowPanel("ContentBrowser"); });
	Map(Commands.OutputLog, "The output log cannot be shown", [this] { ShowPanel("OutputLog"); });
	Map(Commands.Shortcuts, "The keys cannot be listed", [this] {
		if (const TSharedPtr<SWindow> Window = FSlateApplication::Get().FindWidgetWindow(AsShared()))
		{
			SShortcuts::Open(Commands, Window.ToSharedRef());
		}
	});

	const auto MapPlay = [this](const TSharedPtr<FUICommandInfo>& Command, EPlayWay Way) {
		CommandList->MapAction(Command, FExecuteAction::CreateLambda([this, Way]() { StartPlay(Way); }),
			FCanExecuteAction::CreateStatic(&IsNothingPlayed),
			FIsActionChecked::CreateLambda([this, Way]() { return LastPlayWay == Way; }));
	};
	MapPlay(Commands.PlayInPane, EPlayWay::InPane);
	MapPlay(Commands.PlayInWindow, EPlayWay::InWindow);
	MapPlay(Commands.Simulate, EPlayWay::Simulate);
	CommandList->MapAction(Commands.Play, FExecuteAction::CreateLambda([this]() { StartPlay(LastPlayWay); }),
		FCanExecuteAction::CreateStatic(&IsNothingPlayed));
	CommandList->MapAction(Commands.Stop, FExecuteAction::CreateLambda([]() { GEditor->RequestEndPlayMap(); }),
		FCanExecuteAction::CreateLambda([]() { return !IsNothingPlayed(); }));
}

void SEditorFrame::StartPlay(EPlayWay Way)
{
	LastPlayWay = Way;
	Try("Play could not start", [Way] { AskForPlay(Way); });
}

void SEditorFrame::ActivateNeighbor(int32 Step) const
{
	TArray<TSharedPtr<SLevelViewport>> Panes = StandIn::GetPanes();
	Panes.RemoveAll([](const TSharedPtr<SLevelViewport>& Pane) { return !Pane->IsVisible(); });
	const int32 Active = Panes.Find(GetActivePane());
	if (Active != INDEX_NONE)
	{
		const TSharedPtr<SLevelViewport> Pane = Panes[(Active + Step + Panes.Num()) % Panes.Num()];
		StandIn::ActivatePane(Pane->GetConfigKey());
		FSlateApplication::Get().SetKeyboardFocus(Pane, EFocusCause::Navigation);
	}
}

void SEditorFrame::OpenMapsMenu()
{
	const FGeometry& Place = MenuBar->GetCachedGeometry();
	FSlateApplication::Get().PushMenu(MenuBar.ToSharedRef(), FWidgetPath(),
		UToolMenus::Get()->GenerateWidget(FrameMenus::Levels, FToolMenuContext(CommandList)), Place.GetAbsolutePosition(),
		FPopupTransitionEffect(FPopupTransitionEffect::TopMenu), true, Place.GetAbsoluteSize());
}

FReply SEditorFrame::OnUnhandledKey(const FKeyEvent& InKeyEvent)
{
	return CommandList->ProcessCommandBindings(InKeyEvent) ? FReply::Handled() : FReply::Unhandled();
}
}
