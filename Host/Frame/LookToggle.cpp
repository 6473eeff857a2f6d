// Copyright The Tintmill authors. All rights reserved.

#include "Host/Frame/LookToggle.h"

#include "Host/Console/Console.h"
#include "Host/Editor/Panes.h"
#include "Host/Program/Strings.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "SEditorViewportToolbarMenu.h"
#include "SLevelViewport.h"
#include "StandIn/MenuRows.h"
#include "StandIn/SlateDriver.h"
#include "ToolMenus.h"

namespace TintmillHost
{
namespace
{
// The places of the module's entries.
const FName ViewMenu("LevelEditor.LevelViewportToolBar.View");
const FName PanelEntry("TMLDisplaySubMenu");
const FName PanelMenu("TintmillWidget.DisplayConfiguration");
const FName CheckBoxEntry("EnableDisplay");

/** The label that an entry of a menu has now. */
FString GetLabel(const FName& MenuName, const FName& EntryName)
{
	const UToolMenu* const Menu = UToolMenus::Get()->FindMenu(MenuName);
	const FToolMenuEntry* const Entry = Menu ? Menu->FindEntry(EntryName) : nullptr;
	if (!Entry)
	{
		throw FCommandError("The menu " + ToUtf8(MenuName.ToString()) + " has no entry " + ToUtf8(EntryName.ToString())
			+ ", so the look cannot be toggled.");
	}
	return Entry->Label.Get().ToString();
}

/** Gives the row of a label in the last opened menu the keyboard. */
void FocusRow(const FString& Label)
{
	FSlateApplication& Application = FSlateApplication::Get();
	const TSharedPtr<SWindow> Menu = Application.GetVisibleMenuWindow();
	if (Menu.IsValid())
	{
		for (const StandIn::FMenuRow& Row : StandIn::ListMenuRows(Menu->GetContent()))
		{
			if (Row.Label == Label && Row.bEnabled && Application.SetKeyboardFocus(Row.Widget, EFocusCause::Navigation))
			{
				return;
			}
		}
	}
	throw FCommandError("The menu of the active pane does not offer '" + ToUtf8(Label) + "'.");
}

void ChooseCheckBox()
{
	FSlateApplication& Application = FSlateApplication::Get();
	const TSharedPtr<SWidget> Button = StandIn::FindWidgetOfType(GetActivePane(), "SLevelEditorViewportViewMenu");
	if (!Button.IsValid())
	{
		throw FCommandError("The active pane has no tool bar.");
	}
	Application.DismissAllMenus();
	StaticCastSharedPtr<SEditorViewportToolbarMenu>(Button)->SetMenuOpen(true);
	FocusRow(GetLabel(ViewMenu, PanelEntry));
	StandIn::PressKey(EKeys::Right);
	FocusRow(GetLabel(PanelMenu, CheckBoxEntry));
	StandIn::PressKey(EKeys::SpaceBar);
}
}

void ToggleLookOfActivePane()
{
	try
	{
		ChooseCheckBox();
	}
	catch (...)
	{
		FSlateApplication::Get().DismissAllMenus();
		throw;
	}
}
}
