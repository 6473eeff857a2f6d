// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AssetActivation.h"
#include "AssetTools.h"
#include "AssetToolsModule.h"
#include "Editor.h"
#include "Factories/Factory.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/Package.h"

namespace AssetActivationPrivate
{
/** Assets that share their actions. */
struct FGroup
{
	TSharedPtr<IAssetTypeActions> Actions;
	TArray<FAssetData> Assets;
};

TArray<FGroup> GroupByActions(const TArray<FAssetData>& Assets)
{
	const IAssetTools& Tools = FAssetToolsModule::GetModule().Get();
	TArray<FGroup> Groups;
	for (const FAssetData& Asset : Assets)
	{
		// Assets are loaded before anybody is asked about them.
		const UObject* Object = Asset.GetAsset();
		if (!Object)
		{
			continue;
		}
		const TSharedPtr<IAssetTypeActions> Actions = Tools.GetAssetTypeActionsForClass(Object->GetClass()).Pin();
		FGroup* Group = Groups.FindByPredicate([&Actions](const FGroup& Element) { return Element.Actions == Actions; });
		if (!Group)
		{
			Group = &Groups[Groups.Add(FGroup())];
			Group->Actions = Actions;
		}
		Group->Assets.Add(Asset);
	}
	return Groups;
}

TArray<UObject*> Load(const TArray<FAssetData>& Assets)
{
	TArray<UObject*> Objects;
	for (const FAssetData& Asset : Assets)
	{
		if (UObject* Object = Asset.GetAsset())
		{
			Objects.Add(Object);
		}
	}
	return Objects;
}
}

void StandIn::ActivateAssets(const TArray<FAssetData>& Assets, EAssetTypeActivationMethod::Type ActivationMethod)
{
	const bool bIsPreview = ActivationMethod == EAssetTypeActivationMethod::Previewed;
	for (const AssetActivationPrivate::FGroup& Group : AssetActivationPrivate::GroupByActions(Assets))
	{
		TArray<UObject*> Objects;
		if (Group.Actions.IsValid())
		{
			Objects = AssetActivationPrivate::Load(Group.Actions->GetValidAssetsForPreviewOrEdit(Group.Assets, bIsPreview));
			if (Objects.Num() == 0 || Group.Actions->AssetsActivatedOverride(Objects, ActivationMethod))
			{
				continue;
			}
		}
		else
		{
			Objects = AssetActivationPrivate::Load(Group.Assets);
		}
		if (!bIsPreview)
		{
			GEditor->GetEditorSubsystem<UAssetEditorSubsystem>()->OpenEditorForAssets(Objects);
		}
	}
}

bool StandIn::BeginNewAsset(UFactory* DefaultFactory, const FString& PackagePath, FPendingNewAsset& OutPending)
{
	UFactory* Factory = NewObject<UFactory>(GetTransientPackage(), DefaultFactory->GetClass());
	FEditorDelegates::OnConfigureNewAssetProperties.Broadcast(Factory);
	if (!Factory->ConfigureProperties())
	{
		return false;
	}
	Factory->AddToRoot();
	FString PackageName;
	FString AssetName;
	FAssetToolsModule::GetModule().Get().CreateUniqueAssetName(
		PackagePath / Factory->GetDefaultNewAssetName(), FString(), PackageName, AssetName);
	OutPending.Factory = Factory;
	OutPending.PackagePath = PackagePath;
	OutPending.AssetName = AssetName;
	return true;
}

UObject* StandIn::CommitNewAsset(FPendingNewAsset& Pending, const FString& AssetName)
{
	UFactory* Factory = Pending.Factory;
	check(Factory);
	UObject* Asset = FAssetToolsModule::GetModule().Get().CreateAsset(
		AssetName, Pending.PackagePath, Factory->GetSupportedClass(), Factory, TEXT("ContentBrowserNewAsset"));
	const bool bEdit = Asset && Factory->bEditAfterNew;
	CancelNewAsset(Pending);
	if (bEdit)
	{
		GEditor->GetEditorSubsystem<UAssetEditorSubsystem>()->OpenEditorForAsset(Asset);
	}
	return Asset;
}

void StandIn::CancelNewAsset(FPendingNewAsset& Pending)
{
	if (Pending.Factory)
	{
		Pending.Factory->RemoveFromRoot();
		Pending.Factory = nullptr;
	}
}

TArray<StandIn::FNewAssetMenuEntry> StandIn::ListNewAssetMenu()
{
	const FAssetTools& Tools = static_cast<const FAssetTools&>(FAssetToolsModule::GetModule().Get());
	TArray<FNewAssetMenuEntry> Entries;
	for (uint32 Bit = EAssetTypeCategories::Basic; Bit != 0; Bit <<= 1)
	{
		for (UFactory* Factory : Tools.GetNewAssetFactories())
		{
			if (Factory->GetMenuCategories() & Bit)
			{
				FNewAssetMenuEntry Entry;
				Entry.Factory = Factory;
				Entry.Label = Factory->GetDisplayName().ToString();
				Entry.Category = Bit == EAssetTypeCategories::Basic ? FString() : Tools.GetCategoryName(Bit).ToString();
				Entries.Add(Entry);
			}
		}
	}
	return Entries;
}
