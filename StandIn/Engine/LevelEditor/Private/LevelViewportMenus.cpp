// Copyright The Tintmill authors. All rights reserved.

#include "LevelViewportMenus.h"

#include "LevelEditor.h"
#include "LevelEditorMenuContext.h"
#include "LevelEditorViewport.h"
#include "LevelViewportLayout.h"
#include "LevelViewportTabContent.h"
#include "Modules/ModuleManager.h"
#include "SLevelEditor.h"
#include "SLevelViewport.h"
#include "SLevelViewportToolBar.h"
#include "ToolMenus.h"

#define LOCTEXT_NAMESPACE "LevelViewportToolBar"

FLevelEditorViewportClient* ULevelViewportToolBarContext::GetLevelViewportClient()
{
	const TSharedPtr<SLevelViewportToolBar> ToolBar = LevelViewportToolBarWidget.Pin();
	const TSharedPtr<SLevelViewport> Viewport = ToolBar.IsValid() ? ToolBar->GetLevelViewport() : nullptr;
	return Viewport.IsValid() ? &Viewport->GetLevelViewportClient() : nullptr;
}

namespace
{
/** Entries of the menus: their names, labels and what they stand for. */
struct FLayoutEntry
{
	const TCHAR* Name;
	FText Label;
};

struct FCameraEntry
{
	const TCHAR* Name;
	FText Label;
	ELevelViewportType Type;
};

FUIAction Unavailable(const bool bChecked)
{
	return FUIAction(FExecuteAction(), FCanExecuteAction::CreateLambda([]() { return false; }),
		FIsActionChecked::CreateLambda([bChecked]() { return bChecked; }));
}

/** The viewport of the toolbar that a menu was opened from, or null. */
TSharedPtr<SLevelViewport> FindViewport(const UToolMenu* Menu)
{
	const ULevelViewportToolBarContext* Context = Menu->FindContext<ULevelViewportToolBarContext>();
	const TSharedPtr<SLevelViewportToolBar> ToolBar = Context ? Context->LevelViewportToolBarWidget.Pin() : nullptr;
	return ToolBar.IsValid() ? ToolBar->GetLevelViewport() : nullptr;
}

TSharedPtr<FLevelViewportTabContent> FindTab(const TWeakPtr<SLevelViewport>& Viewport)
{
	const TSharedPtr<SLevelEditor> LevelEditor = FModuleManager::GetModuleChecked<FLevelEditorModule>("LevelEditor").GetLevelEditorWidget();
	return LevelEditor.IsValid() ? LevelEditor->FindTabOf(Viewport.Pin()) : nullptr;
}

void AddLayouts(UToolMenu* Menu, const TWeakPtr<SLevelViewport>& Viewport, const TCHAR* SectionName, const FText& Heading,
	const TArray<FLayoutEntry>& Layouts)
{
	FToolMenuSection& Section = Menu->AddSection(SectionName, Heading);
	for (const FLayoutEntry& Layout : Layouts)
	{
		const FName Name(Layout.Name);
		const FUIAction Action(FExecuteAction::CreateLambda([Viewport, Name]() {
			if (const TSharedPtr<FLevelViewportTabContent> Tab = FindTab(Viewport))
			{
				Tab->SetViewportConfiguration(Name);
			}
		}),
			FCanExecuteAction(), FIsActionChecked::CreateLambda([Viewport, Name]() {
				const TSharedPtr<FLevelViewportTabContent> Tab = FindTab(Viewport);
				return Tab.IsValid() && Tab->IsViewportConfigurationSet(Name);
			}));
		Section.AddMenuEntry(Name, Layout.Label, FText::GetEmpty(), FSlateIcon(), Action, EUserInterfaceActionType::RadioButton);
	}
}

void FillLayouts(UToolMenu* Menu)
{
	const TWeakPtr<SLevelViewport> Viewport = FindViewport(Menu);
	AddLayouts(Menu, Viewport, TEXT("LevelViewportOnePaneConfigs"), LOCTEXT("OnePaneConfigHeader", "One Pane"),
		{{TEXT("OnePane"), LOCTEXT("OnePane", "One Pane")}});
	AddLayouts(Menu, Viewport, TEXT("LevelViewportTwoPaneConfigs"), LOCTEXT("TwoPaneConfigHeader", "Two Panes"),
		{{TEXT("TwoPanesHoriz"), LOCTEXT("TwoPanesHoriz", "Two Panes (side by side)")},
			{TEXT("TwoPanesVert"), LOCTEXT("TwoPanesVert", "Two Panes (one above the other)")}});
	AddLayouts(Menu, Viewport, TEXT("LevelViewportThreePaneConfigs"), LOCTEXT("ThreePaneConfigHeader", "Three Panes"),
		{{TEXT("ThreePanesLeft"), LOCTEXT("ThreePanesLeft", "Three Panes (one left, two right)")},
			{TEXT("ThreePanesRight"), LOCTEXT("ThreePanesRight", "Three Panes (one right, two left)")},
			{TEXT("ThreePanesTop"), LOCTEXT("ThreePanesTop", "Three Panes (one top, two bottom)")},
			{TEXT("ThreePanesBottom"), LOCTEXT("ThreePanesBottom", "Three Panes (one bottom, two top)")}});
	AddLayouts(Menu, Viewport, TEXT("LevelViewportFourPaneConfigs"), LOCTEXT("FourPaneConfigHeader", "Four Panes"),
		{{TEXT("FourPanes2x2"), LOCTEXT("FourPanes2x2", "Four Panes (2x2)")},
			{TEXT("FourPanesLeft"), LOCTEXT("FourPanesLeft", "Four Panes (one left, three right)")},
			{TEXT("FourPanesRight"), LOCTEXT("FourPanesRight", "Four Panes (one right, three left)")},
			{TEXT("FourPanesTop"), LOCTEXT("FourPanesTop", "Four Panes (one top, three bottom)")},
			{TEXT("FourPanesBottom"), LOCTEXT("FourPanesBottom", "Four Panes (one bottom, three top)")}});
}

void FillOptions(UToolMenu* Menu)
{
	const TWeakPtr<SLevelViewport> Viewport = FindViewport(Menu);
	{
		FToolMenuSection& Section =
			Menu->AddSection(TEXT("LevelViewportViewportOptions"), LOCTEXT("OptionsMenuHeader", "Viewport Options"));
		const FUIAction Realtime(FExecuteAction::CreateLambda([Viewport]() {
			if (const TSharedPtr<SLevelViewport> Pinned = Viewport.Pin())
			{
				FLevelEditorViewportClient& Client = Pinned->GetLevelViewportClient();
				Client.SetRealtime(!Client.IsRealtime());
			}
		}),
			FCanExecuteAction(), FIsActionChecked::CreateLambda([Viewport]() {
				const TSharedPtr<SLevelViewport> Pinned = Viewport.Pin();
				return Pinned.IsValid() && Pinned->GetLevelViewportClient().IsRealtime();
			}));
		Section.AddMenuEntry(TEXT("ToggleRealTime"), LOCTEXT("ToggleRealTime", "Realtime"),
			LOCTEXT("ToggleRealTime_ToolTip", "Toggles real time rendering in this viewport"), FSlateIcon(), Realtime,
			EUserInterfaceActionType::ToggleButton);
	}
	{
		FToolMenuSection& Section = Menu->AddSection(TEXT("LevelViewportLayouts"));
		Section.AddSubMenu(TEXT("Configs"), LOCTEXT("ConfigsSubMenu", "Layouts"),
			LOCTEXT("ConfigsSubMenu_ToolTip", "Select a layout of the panes of this tab"),
			FNewToolMenuDelegate::CreateStatic(&FillLayouts));
		const bool bMaximized = Viewport.IsValid() && Viewport.Pin()->IsMaximized();
		Section.AddMenuEntry(TEXT("ToggleMaximize"),
			bMaximized ? LOCTEXT("ToggleMaximizeMenu_Restore", "Restore Viewport")
					   : LOCTEXT("ToggleMaximizeMenu_Maximize", "Maximize Viewport"),
			LOCTEXT("ToggleMaximize_ToolTip", "Toggles the viewport between maximized and restored"), FSlateIcon(),
			FUIAction(FExecuteAction::CreateLambda([Viewport]() {
				if (const TSharedPtr<SLevelViewport> Pinned = Viewport.Pin())
				{
					Pinned->OnToggleMaximize();
				}
			}),
				FCanExecuteAction()));
	}
}

void AddCameras(UToolMenu* Menu, const TCHAR* SectionName, const FText& Heading, const TArray<FCameraEntry>& Cameras)
{
	const TWeakPtr<SLevelViewport> Viewport = FindViewport(Menu);
	FToolMenuSection& Section = Menu->AddSection(SectionName, Heading);
	for (const FCameraEntry& Camera : Cameras)
	{
		const ELevelViewportType Type = Camera.Type;
		const FUIAction Action(FExecuteAction::CreateLambda([Viewport, Type]() {
			if (const TSharedPtr<SLevelViewport> Pinned = Viewport.Pin())
			{
				Pinned->GetLevelViewportClient().SetViewportType(Type);
			}
		}),
			FCanExecuteAction(), FIsActionChecked::CreateLambda([Viewport, Type]() {
				const TSharedPtr<SLevelViewport> Pinned = Viewport.Pin();
				return Pinned.IsValid() && Pinned->GetLevelViewportClient().GetViewportType() == Type;
			}));
		Section.AddMenuEntry(Camera.Name, Camera.Label, FText::GetEmpty(), FSlateIcon(), Action, EUserInterfaceActionType::RadioButton);
	}
}

void FillCameras(UToolMenu* Menu)
{
	AddCameras(Menu, TEXT("LevelViewportCameraType_Perspective"), LOCTEXT("CameraTypeHeader_Perspective", "Perspective"),
		{{TEXT("Perspective"), LOCTEXT("CameraMenuTitle_Perspective", "Perspective"), LVT_Perspective}});
	AddCameras(Menu, TEXT("LevelViewportCameraType_Ortho"), LOCTEXT("CameraTypeHeader_Ortho", "Orthographic"),
		{{TEXT("Top"), LOCTEXT("CameraMenuTitle_Top", "Top"), LVT_OrthoXY},
			{TEXT("Left"), LOCTEXT("CameraMenuTitle_Left", "Left"), LVT_OrthoYZ},
			{TEXT("Front"), LOCTEXT("CameraMenuTitle_Front", "Front"), LVT_OrthoXZ}});
}

void FillShow(UToolMenu* Menu)
{
	FToolMenuSection& Section =
		Menu->AddSection(TEXT("ShowFlagsMenuSectionCommon"), LOCTEXT("ShowFlagsMenuSectionCommon", "Common Show Flags"));
	const TCHAR* const Labels[] = {TEXT("Anti-aliasing"), TEXT("Atmosphere"), TEXT("Grid"), TEXT("Static Meshes"), TEXT("Skeletal Meshes")};
	for (const TCHAR* Label : Labels)
	{
		Section.AddMenuEntry(
			Label, FText::FromString(Label), FText::GetEmpty(), FSlateIcon(), Unavailable(true), EUserInterfaceActionType::ToggleButton);
	}
}

void RegisterMenu(const FName Name, void (*Fill)(UToolMenu*))
{
	if (!UToolMenus::Get()->IsMenuRegistered(Name))
	{
		UToolMenus::Get()->RegisterMenu(Name)->AddDynamicSection(TEXT("DynamicSection"), FNewToolMenuDelegate::CreateStatic(Fill));
	}
}
}

FName LevelViewportMenus::GetOptionsName()
{
	return TEXT("LevelEditor.LevelViewportToolBar.Options");
}

FName LevelViewportMenus::GetCameraName()
{
	return TEXT("LevelEditor.LevelViewportToolBar.Camera");
}

FName LevelViewportMenus::GetShowName()
{
	return TEXT("LevelEditor.LevelViewportToolBar.Show");
}

void LevelViewportMenus::Register()
{
	RegisterMenu(GetOptionsName(), &FillOptions);
	RegisterMenu(GetCameraName(), &FillCameras);
	RegisterMenu(GetShowName(), &FillShow);
}

#undef LOCTEXT_NAMESPACE
