// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "PropertyCustomizationHelpers.h"
#include "AssetPickerTestAsset.h"
#include "AssetPickerTestChild.h"
#include "AssetPickerTestFactory.h"
#include "AssetPickerTestOther.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsModule.h"
#include "AssetTypeActions_Base.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/AssetPickerRows.h"
#include "Support/MenuUser.h"
#include "Support/TestFolder.h"
#include <string>

/** Type actions that give the assets a name. */
class FPickerTestActions : public FAssetTypeActions_Base
{
public:
	virtual FText GetName() const override { return FText::FromString(TEXT("Look")); }
	virtual UClass* GetSupportedClass() const override { return UAssetPickerTestAsset::StaticClass(); }
	virtual FColor GetTypeColor() const override { return FColor(10, 200, 30); }
	virtual uint32 GetCategories() override { return EAssetTypeCategories::Misc; }
	virtual void OpenAssetEditor(const TArray<UObject*>&, TSharedPtr<IToolkitHost>) override {}
};

/** A content folder with assets, and a person in front of a picker. */
class FAssetPickerTest : public ::testing::Test
{
protected:
	FAssetPickerTest()
	{
		Register("look", "AssetPickerTestAsset");
		Register("child", "AssetPickerTestChild");
		Register("other", "AssetPickerTestOther");
		StandIn::RegisterMountPoint(TEXT("/Game/"), Folder.Path() + TEXT("/"));
		Classes.Add(UAssetPickerTestAsset::StaticClass());
	}

	~FAssetPickerTest() override
	{
		FSlateApplication::Get().DismissAllMenus();
		FModuleManager::Get().UnloadModule("AssetTools");
		FModuleManager::Get().UnloadModule("AssetRegistry");
		StandIn::UnregisterMountPoint(TEXT("/Game/"));
		for (const TCHAR* Extension : {TEXT("look"), TEXT("child"), TEXT("other")})
		{
			StandIn::UnregisterAssetFileType(Extension);
		}
	}

	/** Makes a kind of asset known. */
	void Register(const char* Extension, const char* ClassName)
	{
		StandIn::FAssetFileType Type;
		Type.Extension = UTF8_TO_TCHAR(Extension);
		Type.ClassName = FName(ClassName);
		StandIn::RegisterAssetFileType(Type);
	}

	/** Puts an asset on disk. */
	void Write(const char* FileName) { Folder.Write(FileName, "x"); }

	/** The data of an asset on disk. */
	static FAssetData Find(const TCHAR* Path)
	{
		IAssetRegistry& Registry = FModuleManager::LoadModuleChecked<FAssetRegistryModule>("AssetRegistry").Get();
		Registry.ScanPathsSynchronous(TArray<FString>({TEXT("/Game")}), true);
		return Registry.GetAssetByObjectPath(FName(Path));
	}

	/** Pops a picker up. */
	void Open(const FAssetData& Initial = FAssetData(), const bool bAllowClear = false, const bool bAllowCopyPaste = false,
		const TArray<UFactory*>& Factories = TArray<UFactory*>())
	{
		User.Open(PropertyCustomizationHelpers::MakeAssetPickerWithMenu(Initial, bAllowClear, bAllowCopyPaste, Classes, Factories, Filter,
			FOnAssetSelected::CreateLambda([this](const FAssetData& Asset) {
				Events += TEXT("Set:") + (Asset.IsValid() ? Asset.AssetName.ToString() : FString(TEXT("-"))) + TEXT(";");
			}),
			FSimpleDelegate::CreateLambda([this]() { Events += TEXT("Close;"); })));
		User.Wait(0.1f);
		User.Wait(0.1f);
	}

	/** What the picker shows. */
	StandIn::FAssetPickerState GetState() const { return StandIn::GetAssetPickerState(User.GetMenu(0).ToSharedRef()); }

	/** Names of the listed assets, separated by "|". */
	FString GetNames() const
	{
		FString Names;
		for (const StandIn::FAssetPickerRow& Row : GetState().Rows)
		{
			Names += (Names.IsEmpty() ? TEXT("") : TEXT("|")) + Row.Label;
		}
		return Names;
	}

	/** Name of the selected asset, or "". */
	FString GetSelected() const
	{
		for (const StandIn::FAssetPickerRow& Row : GetState().Rows)
		{
			if (Row.bSelected)
			{
				return Row.Label;
			}
		}
		return FString();
	}

	/** Clicks a listed asset. */
	void ClickAsset(const TCHAR* Label)
	{
		StandIn::ScrollAssetPickerTo(User.GetMenu(0).ToSharedRef(), Label);
		for (const StandIn::FAssetPickerRow& Row : GetState().Rows)
		{
			if (Row.Label == Label)
			{
				User.ClickAt(Row.Centre);
				return;
			}
		}
		ADD_FAILURE() << "no such asset";
	}

	FTestFolder Folder;
	FObjectSystemScope ObjectSystem;
	FMenuUser User;
	TArray<const UClass*> Classes;
	FOnShouldFilterAsset Filter;
	FString Events;
};
