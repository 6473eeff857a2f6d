// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditorModule.h"

#include "AssetTypeActions_TintmillObject.h"
#include "TintmillDisplayConfiguration.h"
#include "TintmillDisplayManager.h"
#include "TintmillEditorSettings.h"
#include "TintmillEditorStyle.h"
#include "TintmillModule.h"
#include "TintmillObject.h"
#include "Widgets/STintmillWidget.h"

#include "AssetToolsModule.h"
#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "EditorViewportClient.h"
#include "Engine/GameViewportClient.h"
#include "IAssetTools.h"
#include "LevelEditorViewport.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "SLevelViewport.h"
#include "ToolMenu.h"
#include "ToolMenuDelegates.h"
#include "ToolMenuEntry.h"
#include "ToolMenuSection.h"
#include "ToolMenus.h"
#include "UObject/UObjectBase.h"
#include "UnrealClient.h"

#define LOCTEXT_NAMESPACE "TintmillEditorModule"

DEFINE_LOG_CATEGORY(LogTintmillEditor);

FTintmillModule& FTintmillEditorModule::GetTintmillModule()
{
	// Asked for by name at every call: whoever needs it first has it loaded.
	static const FName TintmillModuleName(TEXT("Tintmill"));
	return FModuleManager::Get().LoadModuleChecked<FTintmillModule>(TintmillModuleName);
}

void FTintmillEditorModule::StartupModule()
{
	// GEditor does not exist yet: what needs it waits for the end of the engine loop's initialization.
	FWorldDelegates::OnPreWorldInitialization.AddRaw(this, &FTintmillEditorModule::OnPreWorldInitialization);
	RegisterAssetTypeActions();
	FCoreDelegates::OnFEngineLoopInitComplete.AddRaw(this, &FTintmillEditorModule::OnEngineLoopInitComplete);
	FTintmillEditorStyle::Initialize(StyleSet);
	RegisterMenus();
}

void FTintmillEditorModule::ShutdownModule()
{
	// The bindings to FEditorDelegates::PreBeginPIE and PostPIEStarted and to UGameViewportClient::OnViewportCreated() stay.
	UnregisterEditorHooks();
	FTintmillEditorStyle::Shutdown(StyleSet);
	UnregisterAssetTypeActions();
	UnbindFeatureLevelHandler();
	FWorldDelegates::OnPreWorldInitialization.RemoveAll(this);
	FCoreDelegates::OnFEngineLoopInitComplete.RemoveAll(this);
}

bool FTintmillEditorModule::SupportsDynamicReloading()
{
	return true;
}

bool FTintmillEditorModule::SupportsAutomaticShutdown()
{
	return true;
}

bool FTintmillEditorModule::IsGameModule() const
{
	return false;
}

void FTintmillEditorModule::DetachFromEditor()
{
	UnregisterEditorHooks();
}

void FTintmillEditorModule::UnregisterEditorHooks()
{
	if (!UObjectInitialized())
	{
		return;
	}

	if (GEditor)
	{
		// Not the event that OnEngineLoopInitComplete binds but its neighbour: the binding made there stays on purpose.
		GEditor->OnViewportClientListChanged().RemoveAll(this);
	}
	UToolMenus::UnregisterOwner(this);
}

void FTintmillEditorModule::RegisterAssetTypeActions()
{
	IAssetTools& AssetTools = FModuleManager::LoadModuleChecked<FAssetToolsModule>(TEXT("AssetTools")).Get();
	const TSharedRef<IAssetTypeActions> Actions = MakeShared<FAssetTypeActions_TintmillObject>();
	AssetTools.RegisterAssetTypeActions(Actions);
	CreatedAssetTypeActions.Add(Actions);
}

void FTintmillEditorModule::UnregisterAssetTypeActions()
{
	if (FAssetToolsModule* const AssetToolsModule = FModuleManager::GetModulePtr<FAssetToolsModule>(TEXT("AssetTools")))
	{
		for (const TSharedPtr<IAssetTypeActions>& Actions : CreatedAssetTypeActions)
		{
			AssetToolsModule->Get().UnregisterAssetTypeActions(Actions.ToSharedRef());
		}
	}
}

void FTintmillEditorModule::RegisterMenus()
{
	FToolMenuOwnerScoped OwnerScoped(this);

	UToolMenu* const Menu = UToolMenus::Get()->ExtendMenu(TEXT("LevelEditor.LevelViewportToolBar.View"));
	FToolMenuSection* Section = Menu->FindSection(TEXT("ColorManagement"));
	if (!Section)
	{
		// Another extension's section of that name would keep its own label.
		Section = &Menu->AddSection(TEXT("ColorManagement"), LOCTEXT("ColorManagement_Label", "Color Management"), FToolMenuInsert());
	}
	check(Section);

	Section->AddSubMenu(TEXT("TMLDisplaySubMenu"), LOCTEXT("TMLDisplaySubMenu_Label", "Tintmill"),
		LOCTEXT("TMLDisplaySubMenu_ToolTip", "Configure the viewport to use a Tintmill asset."),
		FNewToolMenuChoice(FNewToolMenuDelegate::CreateRaw(this, &FTintmillEditorModule::FillDisplaySubMenu)), false, FSlateIcon(), true);
}

void FTintmillEditorModule::FillDisplaySubMenu(UToolMenu* Menu)
{
	// The editor's active viewport, whichever toolbar the menu was opened from.
	FViewport* const Viewport = GEditor->GetActiveViewport();
	TrackLevelViewport(Viewport);

	const FTintmillDisplayConfiguration& DisplayConfiguration =
		GetTintmillModule().GetDisplayManager()->FindOrAddDisplayConfiguration(Viewport->GetClient());

	FToolMenuSection& Section =
		Menu->AddSection(TEXT("DisplayConfiguration"), LOCTEXT("DisplayConfiguration_Label", "Display Configuration"), FToolMenuInsert());

	// clang-format off
	const TSharedRef<STintmillWidget> Widget =
		SNew(STintmillWidget)
		.Viewport(Viewport)
		.DisplayConfiguration(DisplayConfiguration)
		.OnDisplayConfigurationChanged_Raw(this, &FTintmillEditorModule::HandleDisplayConfigurationChanged);
	// clang-format on

	Section.AddEntry(FToolMenuEntry::InitWidget(TEXT("TintmillConfigurationWidget"), Widget, FText::GetEmpty(), true, false));
}

void FTintmillEditorModule::HandleDisplayConfigurationChanged(const FTintmillDisplayConfiguration& NewConfiguration)
{
	// The viewport that is active now, not the one for which the menu was opened.
	FViewport* const Viewport = GEditor->GetActiveViewport();
	GetTintmillModule().GetDisplayManager()->FindOrAddDisplayConfiguration(Viewport->GetClient()) = NewConfiguration;
}

void FTintmillEditorModule::OnPreWorldInitialization(UWorld* World, const UWorld::InitializationValues /*InitializationValues*/)
{
	// Play, preview and game worlds are not watched.
	if (!World || World->WorldType != EWorldType::Editor)
	{
		return;
	}

	UnbindFeatureLevelHandler();
	EditorWorld = World;
	FeatureLevelChangedHandle = World->AddOnFeatureLevelChangedHandler(
		FOnFeatureLevelChanged::FDelegate::CreateRaw(this, &FTintmillEditorModule::OnFeatureLevelChanged));
}

void FTintmillEditorModule::UnbindFeatureLevelHandler()
{
	if (FeatureLevelChangedHandle.IsValid())
	{
		if (EditorWorld.IsValid())
		{
			EditorWorld->RemoveOnFeatureLevelChangedHandler(FeatureLevelChangedHandle);
		}
		FeatureLevelChangedHandle.Reset();
	}
}

void FTintmillEditorModule::OnEngineLoopInitComplete()
{
	// The event of level viewport clients: it fires when a new client is in both lists, the other one too early for that.
	GEditor->OnLevelViewportClientListChanged().AddRaw(this, &FTintmillEditorModule::OnLevelViewportClientListChanged);
	FEditorDelegates::PreBeginPIE.AddRaw(this, &FTintmillEditorModule::OnPreBeginPIE);
	FEditorDelegates::PostPIEStarted.AddRaw(this, &FTintmillEditorModule::OnPostPIEStarted);
	UGameViewportClient::OnViewportCreated().AddRaw(this, &FTintmillEditorModule::OnGameViewportCreated);
}

void FTintmillEditorModule::OnLevelViewportClientListChanged()
{
	FTintmillDisplayManager* const DisplayManager = GetTintmillModule().GetDisplayManager();
	// A copy: the editor's list may change while panes are set up.
	const TArray<FLevelEditorViewportClient*> LevelViewportClients = GEditor->GetLevelViewportClients();

	// What a pane showed outlives its client under the pane's key. The client itself must not be touched any more.
	for (int32 Index = 0; Index < TrackedViewports.Num();)
	{
		const FTrackedLevelViewport& TrackedViewport = TrackedViewports[Index];
		if (LevelViewportClients.Contains(TrackedViewport.Client))
		{
			++Index;
			continue;
		}

		const FTintmillDisplayConfiguration* const DisplayConfiguration = DisplayManager->GetDisplayConfiguration(TrackedViewport.Client);
		if (DisplayConfiguration)
		{
			SaveDisplayConfiguration(TrackedViewport.Identifier, *DisplayConfiguration);
			DisplayManager->RemoveDisplayConfiguration(TrackedViewport.Client);
			UE_LOG(LogTemp, Warning, TEXT("OnLevelViewportClientListChanged"));
		}
		TrackedViewports.RemoveAt(Index);
	}

	for (FLevelEditorViewportClient* const Client : LevelViewportClients)
	{
		SetupViewportDisplaySettings(Client);
	}
}

void FTintmillEditorModule::OnPreBeginPIE(const bool /*bIsSimulating*/)
{
	// The record's address, not a copy: what it holds when the game viewport is created counts.
	FViewport* const Viewport = GEditor->GetActiveViewport();
	PIESourceConfiguration = &GetTintmillModule().GetDisplayManager()->FindOrAddDisplayConfiguration(Viewport->GetClient());
}

void FTintmillEditorModule::OnPostPIEStarted(const bool /*bIsSimulating*/)
{
	// Bound on purpose, with nothing to do.
}

void FTintmillEditorModule::OnGameViewportCreated()
{
	FViewport* const PIEViewport = GEditor->GetPIEViewport();
	if (!PIESourceConfiguration || !PIEViewport)
	{
		return;
	}

	FTintmillDisplayConfiguration& DisplayConfiguration =
		GetTintmillModule().GetDisplayManager()->FindOrAddDisplayConfiguration(PIEViewport->GetClient());

	// Without a look nothing is carried over, the enable flag and the intensity neither.
	if (PIESourceConfiguration->LookAsset)
	{
		DisplayConfiguration = *PIESourceConfiguration;
	}
}

void FTintmillEditorModule::OnFeatureLevelChanged(ERHIFeatureLevel::Type /*FeatureLevel*/)
{
	// Watched on every editor world on purpose, with nothing to do.
}

void FTintmillEditorModule::SetupViewportDisplaySettings(FLevelEditorViewportClient* Client)
{
	// Once in a client's lifetime: what was changed since must not be overwritten.
	if (IsTracked(Client))
	{
		return;
	}

	// A client need not have a pane, or not yet.
	const TSharedPtr<SEditorViewport> ViewportWidget = Client->GetEditorViewportWidget();
	if (!ViewportWidget.IsValid())
	{
		return;
	}

	FTintmillDisplayConfiguration& DisplayConfiguration = GetTintmillModule().GetDisplayManager()->FindOrAddDisplayConfiguration(Client);
	const FName Identifier = StaticCastSharedPtr<SLevelViewport>(ViewportWidget)->GetConfigKey();

	const FTintmillDisplayConfiguration* const SavedConfiguration =
		GetMutableDefault<UTintmillLevelViewportSettings>()->FindDisplayConfiguration(Identifier);
	if (SavedConfiguration)
	{
		DisplayConfiguration = *SavedConfiguration;
		TrackedViewports.Add({Client, Identifier});
		UE_LOG(LogTemp, Warning, TEXT("SetupViewportDisplaySettings"));
	}
	else if (Client->Viewport)
	{
		// The settings learn what a pane has that was never configured.
		TrackLevelViewport(Client->Viewport);
		SaveDisplayConfiguration(Identifier, DisplayConfiguration);
	}
	// A client without an FViewport yet keeps its record and is tried again at the next list change.
}

void FTintmillEditorModule::TrackLevelViewport(FViewport* Viewport)
{
	// Tracks and no more: a client that the menu tracks first is not given its saved configuration later.
	FViewportClient* const Client = Viewport->GetClient();
	if (IsTracked(Client))
	{
		return;
	}

	const TArray<FLevelEditorViewportClient*> LevelViewportClients = GEditor->GetLevelViewportClients();
	FLevelEditorViewportClient* const* const AssociatedClient = LevelViewportClients.FindByKey(Client);

	// Crash reports are told apart by this expression and its line.
	check(AssociatedClient && *AssociatedClient);

	const TSharedPtr<SEditorViewport> ViewportWidget = (*AssociatedClient)->GetEditorViewportWidget();
	if (ViewportWidget.IsValid())
	{
		TrackedViewports.Add({Client, StaticCastSharedPtr<SLevelViewport>(ViewportWidget)->GetConfigKey()});
	}
}

bool FTintmillEditorModule::IsTracked(const FViewportClient* Client) const
{
	return TrackedViewports.ContainsByPredicate([Client](const FTrackedLevelViewport& Candidate) { return Candidate.Client == Client; });
}

void FTintmillEditorModule::SaveDisplayConfiguration(FName Identifier, const FTintmillDisplayConfiguration& DisplayConfiguration)
{
	UTintmillLevelViewportSettings* const Settings = GetMutableDefault<UTintmillLevelViewportSettings>();
	Settings->SetDisplayConfiguration(Identifier, DisplayConfiguration);
	Settings->SaveConfig(CPF_Config, nullptr, GConfig, true);
}

#undef LOCTEXT_NAMESPACE

IMPLEMENT_MODULE(FTintmillEditorModule, TintmillEditor)
