// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/World.h"
#include "Modules/ModuleInterface.h"
#include "Styling/SlateStyle.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"
#include "UObject/WeakObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FLevelEditorViewportClient;
class FTintmillModule;
class FViewport;
class FViewportClient;
class IAssetTypeActions;
class SWidget;
class UToolMenu;
struct FTintmillDisplayConfiguration;

DECLARE_LOG_CATEGORY_EXTERN(LogTintmillEditor, Log, All);

/** A level viewport whose display configuration is remembered under its pane's layout key. */
struct FTrackedLevelViewport
{
	/** An identity only: the client may be gone already. */
	FViewportClient* Client;
	FName Identifier;
};

/** Gives the editor's viewports their looks: assets, icons, the viewport menu and the bookkeeping across panes and runs. */
class FTintmillEditorModule : public IModuleInterface
{
public:
	/** The runtime module, loaded on demand; asked for anew by every user. */
	static FTintmillModule& GetTintmillModule();

	//~ Begin IModuleInterface
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;
	virtual bool SupportsDynamicReloading() override;
	virtual bool SupportsAutomaticShutdown() override;
	virtual bool IsGameModule() const override;
	//~ End IModuleInterface

	/** Takes the viewport list hook and the menus down and leaves the rest of the module as it is. */
	void DetachFromEditor();

private:
	void UnregisterEditorHooks();
	void RegisterAssetTypeActions();
	void UnregisterAssetTypeActions();

	void RegisterMenus();
	void FillDisplaySubMenu(UToolMenu* Menu);
	void HandleDisplayConfigurationChanged(const FTintmillDisplayConfiguration& NewConfiguration);

	void OnPreWorldInitialization(UWorld* World, const UWorld::InitializationValues InitializationValues);
	void UnbindFeatureLevelHandler();
	void OnEngineLoopInitComplete();
	void OnLevelViewportClientListChanged();
	void OnPreBeginPIE(const bool bIsSimulating);
	void OnPostPIEStarted(const bool bIsSimulating);
	void OnGameViewportCreated();
	void OnFeatureLevelChanged(ERHIFeatureLevel::Type FeatureLevel);

	void SetupViewportDisplaySettings(FLevelEditorViewportClient* Client);
	void TrackLevelViewport(FViewport* Viewport);
	bool IsTracked(const FViewportClient* Client) const;
	static void SaveDisplayConfiguration(FName Identifier, const FTintmillDisplayConfiguration& DisplayConfiguration);

	TWeakPtr<SWidget> WeakWidget;
	TWeakObjectPtr<UWorld> EditorWorld;
	FDelegateHandle FeatureLevelChangedHandle;
	TUniquePtr<FSlateStyleSet> StyleSet;
	TArray<TSharedPtr<IAssetTypeActions>> CreatedAssetTypeActions;
	TArray<FTrackedLevelViewport> TrackedViewports;
	FTintmillDisplayConfiguration* PIESourceConfiguration = nullptr;
};
