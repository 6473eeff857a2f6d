// Copyright The Tintmill authors. All rights reserved.

#include "Subsystems/AssetEditorSubsystem.h"
#include "AssetToolsModule.h"
#include "Toolkits/SimpleAssetEditor.h"

namespace AssetEditorSubsystemPrivate
{
/** Assets that are opened in one call. */
struct FGroup
{
	TSharedPtr<IAssetTypeActions> Actions;
	TArray<UObject*> Assets;
};
}

UAssetEditorSubsystem::UAssetEditorSubsystem() {}

bool UAssetEditorSubsystem::OpenEditorForAsset(
	UObject* Asset, const EToolkitMode::Type ToolkitMode, TSharedPtr<IToolkitHost> OpenedFromLevelEditor, const bool bShowProgressWindow)
{
	return OpenEditorForAssets(TArray<UObject*>({Asset}), ToolkitMode, OpenedFromLevelEditor, bShowProgressWindow);
}

bool UAssetEditorSubsystem::OpenEditorForAssets(
	const TArray<UObject*>& Assets, const EToolkitMode::Type ToolkitMode, TSharedPtr<IToolkitHost> OpenedFromLevelEditor, const bool)
{
	const IAssetTools& Tools = FAssetToolsModule::GetModule().Get();
	TArray<AssetEditorSubsystemPrivate::FGroup> Groups;
	bool bAny = false;
	for (UObject* Asset : Assets)
	{
		if (!Asset)
		{
			continue;
		}
		bAny = true;
		AssetEditorRequestedOpenEvent.Broadcast(Asset);
		if (FindEditorForAsset(Asset, true))
		{
			continue;
		}
		const TSharedPtr<IAssetTypeActions> Actions = Tools.GetAssetTypeActionsForClass(Asset->GetClass()).Pin();
		AssetEditorSubsystemPrivate::FGroup* Group =
			Groups.FindByPredicate([&Actions](const AssetEditorSubsystemPrivate::FGroup& Element) { return Element.Actions == Actions; });
		if (!Group)
		{
			Group = &Groups[Groups.Add(AssetEditorSubsystemPrivate::FGroup())];
			Group->Actions = Actions;
		}
		Group->Assets.Add(Asset);
	}
	for (const AssetEditorSubsystemPrivate::FGroup& Group : Groups)
	{
		const bool bWorldCentric =
			ToolkitMode == EToolkitMode::WorldCentric || (Group.Actions.IsValid() && Group.Actions->ShouldForceWorldCentric());
		const TSharedPtr<IToolkitHost> Host = bWorldCentric ? OpenedFromLevelEditor : TSharedPtr<IToolkitHost>();
		if (Group.Actions.IsValid())
		{
			Group.Actions->OpenAssetEditor(Group.Assets, Host);
		}
		else
		{
			FSimpleAssetEditor::CreateEditor(ToolkitMode, Host, Group.Assets);
		}
	}
	return bAny;
}

void UAssetEditorSubsystem::OpenEditorForAsset(const FString& AssetPathName)
{
	if (UObject* Asset = LoadObject<UObject>(nullptr, *AssetPathName))
	{
		OpenEditorForAsset(Asset);
	}
}

IAssetEditorInstance* UAssetEditorSubsystem::FindEditorForAsset(UObject* Asset, bool bFocusIfOpen)
{
	for (const FOpenAsset& Open : OpenAssets)
	{
		if (Open.Asset.Get() == Asset)
		{
			IAssetEditorInstance* Instance = Open.Instance;
			if (bFocusIfOpen)
			{
				Instance->FocusWindow(Asset);
			}
			return Instance;
		}
	}
	return nullptr;
}

void UAssetEditorSubsystem::NotifyAssetOpened(UObject* Asset, IAssetEditorInstance* Instance)
{
	FOpenAsset Open;
	Open.Asset = Asset;
	Open.Instance = Instance;
	OpenAssets.Add(Open);
}

void UAssetEditorSubsystem::NotifyAssetClosed(UObject* Asset, IAssetEditorInstance* Instance)
{
	OpenAssets.RemoveAll([Asset, Instance](const FOpenAsset& Open) { return Open.Asset.Get() == Asset && Open.Instance == Instance; });
}

int32 UAssetEditorSubsystem::CloseAllEditorsForAsset(UObject* Asset)
{
	TArray<IAssetEditorInstance*> Instances;
	for (const FOpenAsset& Open : OpenAssets)
	{
		if (Open.Asset.Get() == Asset)
		{
			Instances.Add(Open.Instance);
		}
	}
	for (IAssetEditorInstance* Instance : Instances)
	{
		Instance->CloseWindow();
	}
	return Instances.Num();
}

bool UAssetEditorSubsystem::CloseAllAssetEditors()
{
	TArray<IAssetEditorInstance*> Instances;
	for (const FOpenAsset& Open : OpenAssets)
	{
		Instances.AddUnique(Open.Instance);
	}
	bool bAllClosed = true;
	for (IAssetEditorInstance* Instance : Instances)
	{
		bAllClosed = Instance->CloseWindow() && bAllClosed;
	}
	return bAllClosed;
}

TArray<UObject*> UAssetEditorSubsystem::GetAllEditedAssets()
{
	TArray<UObject*> Assets;
	for (const FOpenAsset& Open : OpenAssets)
	{
		if (UObject* Asset = Open.Asset.Get())
		{
			Assets.AddUnique(Asset);
		}
	}
	return Assets;
}
