// Copyright The Tintmill authors. All rights reserved.

#include "SEditorViewportViewMenu.h"
#include "InputCoreTypes.h"
#include "SEditorViewport.h"
#include "SEditorViewportViewMenuContext.h"
#include "Styling/CoreStyle.h"
#include "ToolMenus.h"

#define LOCTEXT_NAMESPACE "EditorViewportViewMenu"

namespace EditorViewportViewMenuPrivate
{
/** The only view mode that views are drawn in. */
const TCHAR* const LitMode = TEXT("LitMode");

struct FViewMode
{
	const TCHAR* Name;
	const TCHAR* Label;
	const TCHAR* ToolTip;
	FKey Key;
};

/** Icon of a view mode or of a group of them. */
FSlateIcon MakeIcon(const FName Name)
{
	const FName BrushName(*(FString(TEXT("EditorViewport.")) + Name.ToString()));
	return FSlateIcon(FCoreStyle::Get().GetStyleSetName(), BrushName, BrushName);
}

void FillWith(UToolMenu* Menu, const FName SectionName, const TArray<const TCHAR*>& Labels)
{
	FToolMenuSection& Section = Menu->AddSection(SectionName);
	for (const TCHAR* Label : Labels)
	{
		const FUIAction Unavailable(FExecuteAction(), FCanExecuteAction::CreateLambda([]() { return false; }));
		Section.AddMenuEntry(
			FName(Label), FText::FromString(Label), FText::GetEmpty(), FSlateIcon(), Unavailable, EUserInterfaceActionType::RadioButton);
	}
}
}

void SEditorViewportViewMenu::Construct(
	const FArguments& InArgs, TSharedRef<SEditorViewport> InViewport, TSharedRef<SViewportToolBar> InParentToolBar)
{
	Viewport = InViewport;
	MenuName = InArgs._MenuName;
	MenuExtenders = InArgs._MenuExtenders;
	ViewModeCommands = MakeShared<FUICommandList>();
	SEditorViewportToolbarMenu::Construct(SEditorViewportToolbarMenu::FArguments()
											  .ParentToolBar(InParentToolBar)
											  .Label(LOCTEXT("ViewMenuTitle_Lit", "Lit"))
											  .OnGetMenuContent(this, &SEditorViewportViewMenu::GenerateViewMenuContent));
}

void SEditorViewportViewMenu::RegisterMenus() const
{
	UToolMenus* ToolMenus = UToolMenus::Get();
	const FName BaseName = TEXT("UnrealEd.ViewportToolbar.View");
	if (!ToolMenus->IsMenuRegistered(BaseName))
	{
		UToolMenu* Menu = ToolMenus->RegisterMenu(BaseName);
		Menu->AddDynamicSection(TEXT("BaseSection"), FNewToolMenuDelegate::CreateLambda([](UToolMenu* InMenu) {
			const UEditorViewportViewMenuContext* Context = InMenu->FindContext<UEditorViewportViewMenuContext>();
			const TSharedPtr<const SEditorViewportViewMenu> Button = Context ? Context->EditorViewportViewMenu.Pin() : nullptr;
			if (Button.IsValid())
			{
				Button->FillViewMenu(InMenu);
			}
		}));
	}
}

TSharedRef<SWidget> SEditorViewportViewMenu::GenerateViewMenuContent() const
{
	RegisterMenus();
	UEditorViewportViewMenuContext* ContextObject = NewObject<UEditorViewportViewMenuContext>();
	ContextObject->EditorViewportViewMenu = StaticCastSharedRef<const SEditorViewportViewMenu>(AsShared());
	const TSharedPtr<SEditorViewport> Pinned = Viewport.Pin();
	FToolMenuContext MenuContext(ViewModeCommands, MenuExtenders, ContextObject);
	if (Pinned.IsValid())
	{
		MenuContext.AppendCommandList(Pinned->GetCommandList());
	}
	return UToolMenus::Get()->GenerateWidget(MenuName, MenuContext);
}

void SEditorViewportViewMenu::AddViewMode(
	FToolMenuSection& Section, const FName Name, const FText& Label, const FText& InToolTip, const FInputChord& Chord) const
{
	const TSharedRef<FBindingContext> Context = MakeShared<FBindingContext>(
		TEXT("EditorViewport"), LOCTEXT("EditorViewportCommands", "Common Viewport Commands"), NAME_None, NAME_None);
	TSharedPtr<FUICommandInfo> Command;
	FUICommandInfo::MakeCommandInfo(Context, Command, Name, Label, InToolTip, EditorViewportViewMenuPrivate::MakeIcon(Name),
		EUserInterfaceActionType::RadioButton, Chord);
	const bool bLit = Name == EditorViewportViewMenuPrivate::LitMode;
	const TSharedRef<FUICommandList> Commands = MakeShared<FUICommandList>();
	Commands->MapAction(Command, FExecuteAction(), FCanExecuteAction::CreateLambda([bLit]() { return bLit; }),
		FIsActionChecked::CreateLambda([bLit]() { return bLit; }));
	Section.AddMenuEntryWithCommandList(Command, Commands);
}

void SEditorViewportViewMenu::FillViewMenu(UToolMenu* Menu) const
{
	const EditorViewportViewMenuPrivate::FViewMode Modes[] = {
		{EditorViewportViewMenuPrivate::LitMode, TEXT("Lit"), TEXT("Renders the scene with normal lighting"), EKeys::Four},
		{TEXT("UnlitMode"), TEXT("Unlit"), TEXT("Renders the scene with no lights"), EKeys::Three},
		{TEXT("BrushWireframeMode"), TEXT("Wireframe"), TEXT("Renders the scene in brush wireframe"), EKeys::Two},
		{TEXT("DetailLightingMode"), TEXT("Detail Lighting"), TEXT("Renders the scene with detailed lighting only"), EKeys::Five},
		{TEXT("LightingOnlyMode"), TEXT("Lighting Only"), TEXT("Renders the scene with lights only, no textures"), EKeys::Six},
		{TEXT("ReflectionOverrideMode"), TEXT("Reflections"), TEXT("Renders the scene with reflections only"), FKey()},
	};
	FToolMenuSection& Section = Menu->AddSection(TEXT("ViewMode"), LOCTEXT("ViewModeHeader", "View Mode"));
	for (const EditorViewportViewMenuPrivate::FViewMode& Mode : Modes)
	{
		AddViewMode(Section, Mode.Name, FText::FromString(Mode.Label), FText::FromString(Mode.ToolTip),
			Mode.Key.IsValid() ? FInputChord(EModifierKey::Alt, Mode.Key) : FInputChord());
	}
	Section.AddSubMenu(TEXT("OptimizationViewmodes"), LOCTEXT("OptimizationSubMenu", "Optimization Viewmodes"),
		LOCTEXT("Optimization_ToolTip", "Select optimization visualizer"), FNewToolMenuDelegate::CreateLambda([](UToolMenu* InMenu) {
			EditorViewportViewMenuPrivate::FillWith(InMenu, TEXT("OptimizationViewmodes"),
				{TEXT("Light Complexity"), TEXT("Lightmap Density"), TEXT("Stationary Light Overlap"), TEXT("Shader Complexity"),
					TEXT("Shader Complexity & Quads"), TEXT("Quad Overdraw")});
		}),
		false, EditorViewportViewMenuPrivate::MakeIcon(TEXT("QuadOverdrawMode")));
	Section.AddSubMenu(TEXT("VisualizeBufferViewMode"), LOCTEXT("VisualizeBufferViewModeDisplayName", "Buffer Visualization"),
		LOCTEXT("BufferVisualization_ToolTip", "Select a mode for buffer visualization"),
		FNewToolMenuDelegate::CreateLambda([](UToolMenu* InMenu) {
			EditorViewportViewMenuPrivate::FillWith(InMenu, TEXT("BufferVisualization"),
				{TEXT("Overview"), TEXT("Base Color"), TEXT("Metallic"), TEXT("Roughness"), TEXT("Scene Color"), TEXT("Scene Depth"),
					TEXT("World Normal")});
		}),
		false, EditorViewportViewMenuPrivate::MakeIcon(TEXT("VisualizeBufferMode")));
	Section.AddSubMenu(TEXT("LevelOfDetailColoration"), LOCTEXT("VisualizeLODViewModeDisplayName", "Level of Detail Coloration"),
		LOCTEXT("LevelOfDetailColoration_ToolTip", "Select a mode for coloration by level of detail"),
		FNewToolMenuDelegate::CreateLambda([](UToolMenu* InMenu) {
			EditorViewportViewMenuPrivate::FillWith(
				InMenu, TEXT("LevelOfDetailColoration"), {TEXT("Mesh LOD Coloration"), TEXT("Hierarchical LOD Coloration")});
		}),
		false, EditorViewportViewMenuPrivate::MakeIcon(TEXT("LODColorationMode")));
}

#undef LOCTEXT_NAMESPACE
