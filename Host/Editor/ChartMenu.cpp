// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/ChartMenu.h"

#include "Host/Editor/SceneViews.h"

#include "LevelEditorMenuContext.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "SLevelViewportToolBar.h"
#include "ToolMenus.h"

namespace TintmillHost
{
namespace
{
TWeakPtr<SLevelViewport> FindPaneOf(const FToolMenuContext& Context)
{
	const ULevelViewportToolBarContext* const Object = Context.FindContext<ULevelViewportToolBarContext>();
	const TSharedPtr<SLevelViewportToolBar> ToolBar = Object ? Object->LevelViewportToolBarWidget.Pin() : nullptr;
	return ToolBar.IsValid() ? ToolBar->GetLevelViewport() : nullptr;
}

void FillMenu(UToolMenu& Menu, FSceneViews& Views)
{
	const TWeakPtr<SLevelViewport> WeakPane = FindPaneOf(Menu.Context);
	const auto IsShown = [WeakPane, &Views] {
		const TSharedPtr<SLevelViewport> Pane = WeakPane.Pin();
		return Pane.IsValid() && Views.IsChartShown(Pane->GetLevelViewportClient());
	};
	const auto Toggle = [WeakPane, &Views] {
		if (const TSharedPtr<SLevelViewport> Pane = WeakPane.Pin())
		{
			FLevelEditorViewportClient& Client = Pane->GetLevelViewportClient();
			Views.ShowChart(Client, !Views.IsChartShown(Client));
			Client.Invalidate();
		}
	};
	Menu.AddSection(TEXT("LevelViewportColorChart"), FText::FromString(TEXT("Chart")))
		.AddMenuEntry(TEXT("ColorChart"), FText::FromString(TEXT("Color Chart")),
			FText::FromString(TEXT("Shows patches, skin tones and ramps instead of the scene, to judge a look by.")), FSlateIcon(),
			FUIAction(FExecuteAction::CreateLambda(Toggle), FCanExecuteAction(), FIsActionChecked::CreateLambda(IsShown)),
			EUserInterfaceActionType::ToggleButton);
}
}

FChartMenu::FChartMenu(FSceneViews& InViews)
	: Views(InViews)
{
	const FToolMenuOwnerScoped Owner(this);
	UToolMenus::Get()
		->ExtendMenu(TEXT("LevelEditor.LevelViewportToolBar.Camera"))
		->AddDynamicSection(
			TEXT("ColorChartSection"), FNewToolMenuDelegate::CreateLambda([this](UToolMenu* Menu) { FillMenu(*Menu, Views); }));
}

FChartMenu::~FChartMenu()
{
	if (UToolMenus::TryGet())
	{
		UToolMenus::UnregisterOwner(this);
	}
}
}
