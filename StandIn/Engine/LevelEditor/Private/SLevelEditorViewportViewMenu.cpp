// Copyright The Tintmill authors. All rights reserved.

#include "SLevelEditorViewportViewMenu.h"
#include "SEditorViewportViewMenuContext.h"
#include "SLevelViewport.h"
#include "ToolMenus.h"
#include "Widgets/Input/SSlider.h"
#include "Widgets/Layout/SBox.h"

#define LOCTEXT_NAMESPACE "LevelViewportToolBar"

void SLevelEditorViewportViewMenu::Construct(
	const FArguments&, TSharedRef<SLevelViewport> InViewport, TSharedRef<SViewportToolBar> InParentToolBar)
{
	SEditorViewportViewMenu::Construct(
		SEditorViewportViewMenu::FArguments().MenuName(TEXT("LevelEditor.LevelViewportToolBar.View")), InViewport, InParentToolBar);
}

void SLevelEditorViewportViewMenu::RegisterMenus() const
{
	SEditorViewportViewMenu::RegisterMenus();
	UToolMenus* ToolMenus = UToolMenus::Get();
	const FName Name = TEXT("LevelEditor.LevelViewportToolBar.View");
	if (ToolMenus->IsMenuRegistered(Name))
	{
		return;
	}
	UToolMenu* Menu = ToolMenus->RegisterMenu(Name, TEXT("UnrealEd.ViewportToolbar.View"));
	Menu->AddDynamicSection(TEXT("LevelSection"), FNewToolMenuDelegate::CreateLambda([](UToolMenu* InMenu) {
		const UEditorViewportViewMenuContext* Context = InMenu->FindContext<UEditorViewportViewMenuContext>();
		const TSharedPtr<const SEditorViewportViewMenu> Button = Context ? Context->EditorViewportViewMenu.Pin() : nullptr;
		if (Button.IsValid())
		{
			StaticCastSharedPtr<const SLevelEditorViewportViewMenu>(Button)->FillLevelSections(InMenu);
		}
	}));
}

void SLevelEditorViewportViewMenu::FillLevelSections(UToolMenu* Menu) const
{
	const FUIAction Unavailable(FExecuteAction(), FCanExecuteAction::CreateLambda([]() { return false; }));
	const FUIAction AlwaysChecked(
		FExecuteAction(), FCanExecuteAction::CreateLambda([]() { return false; }), FIsActionChecked::CreateLambda([]() { return true; }));

	Menu->AddSection(
		TEXT("LevelViewportDeferredRendering"), TAttribute<FText>(), FToolMenuInsert(TEXT("ViewMode"), EToolMenuInsertType::After));
	{
		FToolMenuSection& Section = Menu->AddSection(TEXT("ViewMenuCollision"), LOCTEXT("CollisionViewModeHeader", "Collision"));
		AddViewMode(Section, TEXT("CollisionPawn"), LOCTEXT("CollisionPawn", "Player Collision"),
			LOCTEXT("CollisionPawn_ToolTip", "Renders player collision visualization"), FInputChord());
		AddViewMode(Section, TEXT("CollisionVisibility"), LOCTEXT("CollisionVisibility", "Visibility Collision"),
			LOCTEXT("CollisionVisibility_ToolTip", "Renders visibility collision visualization"), FInputChord());
	}
	{
		FToolMenuSection& Section = Menu->AddSection(TEXT("LevelViewportLandscape"), LOCTEXT("LandscapeHeader", "Landscape"));
		Section.AddSubMenu(TEXT("LandscapeLOD"), LOCTEXT("LandscapeLODDisplayName", "LOD"),
			LOCTEXT("LandscapeLODMenu_ToolTip", "Override Landscape LOD in this viewport"),
			FNewToolMenuDelegate::CreateLambda([Unavailable, AlwaysChecked](UToolMenu* InMenu) {
				FToolMenuSection& Lods = InMenu->AddSection(TEXT("LandscapeLOD"));
				Lods.AddMenuEntry(TEXT("LandscapeLODAuto"), LOCTEXT("LandscapeLODAuto", "Auto"), FText::GetEmpty(), FSlateIcon(),
					AlwaysChecked, EUserInterfaceActionType::RadioButton);
				for (int32 Lod = 0; Lod < 8; ++Lod)
				{
					const FString Label = FString(TEXT("LOD ")) + FString::FromInt(Lod);
					Lods.AddMenuEntry(FName(*Label), FText::FromString(Label), FText::GetEmpty(), FSlateIcon(), Unavailable,
						EUserInterfaceActionType::RadioButton);
				}
			}));
	}
	{
		FToolMenuSection& Section = Menu->AddSection(TEXT("Exposure"), LOCTEXT("ExposureHeader", "Exposure"));
		Section.AddMenuEntry(TEXT("AutoExposure"), LOCTEXT("GameSettings", "Game Settings"),
			LOCTEXT("GameSettings_ToolTip", "Whether the exposure of the game is used"), FSlateIcon(), AlwaysChecked,
			EUserInterfaceActionType::ToggleButton);
		// clang-format off
		const TSharedRef<SWidget> Slider = SNew(SBox)
			.WidthOverride(100.0f)
			[
				SNew(SSlider).Value(0.5f).IsEnabled(false)
			];
		// clang-format on
		Section.AddEntry(FToolMenuEntry::InitWidget(TEXT("FixedExposure"), Slider, LOCTEXT("FixedExposure", "EV100")));
	}
}

#undef LOCTEXT_NAMESPACE
