// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "EditorSubsystem.h"
#include "Toolkits/IToolkit.h"
#include "Toolkits/IToolkitHost.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "AssetEditorSubsystem.generated.h"

// Opens assets for editing and knows which ones are open. Left out: recently opened assets, restoring after a crash, message
// endpoints. Assets whose type has no actions get FSimpleAssetEditor.

/** A window that edits assets. */
class IAssetEditorInstance
{
public:
	virtual ~IAssetEditorInstance() {}

	/** Name of the kind of editor. */
	virtual FName GetEditorName() const = 0;

	/** Brings the window to the front. */
	virtual void FocusWindow(UObject* ObjectToFocusOn = nullptr) = 0;

	/** Closes the window; false if the person kept it open. */
	virtual bool CloseWindow() = 0;

	/** True for the main editor of an asset. */
	virtual bool IsPrimaryEditor() const = 0;
};

/** Opens assets for editing. */
UCLASS()
class UNREALED_API UAssetEditorSubsystem : public UEditorSubsystem
{
	GENERATED_BODY()

public:
	UAssetEditorSubsystem();

	/** Opens an asset, or brings its open editor to the front; false if there is no asset. */
	bool OpenEditorForAsset(UObject* Asset, const EToolkitMode::Type ToolkitMode = EToolkitMode::Standalone,
		TSharedPtr<IToolkitHost> OpenedFromLevelEditor = TSharedPtr<IToolkitHost>(), const bool bShowProgressWindow = true);

	/** Opens assets, those that share their type's actions together; false if there are none. */
	bool OpenEditorForAssets(const TArray<UObject*>& Assets, const EToolkitMode::Type ToolkitMode = EToolkitMode::Standalone,
		TSharedPtr<IToolkitHost> OpenedFromLevelEditor = TSharedPtr<IToolkitHost>(), const bool bShowProgressWindow = true);

	/** Opens an asset by its path; it is loaded if needed. */
	void OpenEditorForAsset(const FString& AssetPathName);

	/** The editor in which an asset is open, or null. */
	IAssetEditorInstance* FindEditorForAsset(UObject* Asset, bool bFocusIfOpen);

	/** Notes that an asset is open in an editor. */
	void NotifyAssetOpened(UObject* Asset, IAssetEditorInstance* Instance);

	/** Notes that an asset is no longer open in an editor. */
	void NotifyAssetClosed(UObject* Asset, IAssetEditorInstance* Instance);

	/** Closes all editors of an asset and returns how many there were. */
	int32 CloseAllEditorsForAsset(UObject* Asset);

	/** Closes all editors; false if one was kept open. */
	bool CloseAllAssetEditors();

	/** All assets that are open. */
	TArray<UObject*> GetAllEditedAssets();

	/** Called before an asset is opened. */
	DECLARE_EVENT_OneParam(UAssetEditorSubsystem, FOnAssetEditorRequestedOpenEvent, UObject*);

	/** The event of a request to open an asset. */
	FOnAssetEditorRequestedOpenEvent& OnAssetEditorRequestedOpen() { return AssetEditorRequestedOpenEvent; }

private:
	struct FOpenAsset
	{
		TWeakObjectPtr<UObject> Asset;
		IAssetEditorInstance* Instance;
	};

	TArray<FOpenAsset> OpenAssets;
	FOnAssetEditorRequestedOpenEvent AssetEditorRequestedOpenEvent;
};
