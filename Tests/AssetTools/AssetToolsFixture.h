// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "AssetToolsModule.h"
#include "AssetToolsTestAsset.h"
#include "AssetToolsTestChild.h"
#include "AssetToolsTestFactory.h"
#include "AssetTypeActions_Base.h"
#include "StandIn/ObjectSystem.h"
#include "UObject/Package.h"
#include <gtest/gtest.h>

/** Type actions that note what they are asked to open. */
class FTestActions : public FAssetTypeActions_Base
{
public:
	explicit FTestActions(UClass* InClass)
		: Class(InClass)
	{}

	virtual FText GetName() const override { return FText::FromString(TEXT("Look")); }
	virtual UClass* GetSupportedClass() const override { return Class; }
	virtual FColor GetTypeColor() const override { return FColor::White; }
	virtual uint32 GetCategories() override { return EAssetTypeCategories::Sounds; }
	virtual void OpenAssetEditor(const TArray<UObject*>& InObjects, TSharedPtr<IToolkitHost>) override
	{
		++NumOpened;
		LastOpened = InObjects;
	}
	virtual bool AssetsActivatedOverride(const TArray<UObject*>&, EAssetTypeActivationMethod::Type) override
	{
		++NumActivated;
		return bTakesActivation;
	}

	UClass* Class;
	int32 NumOpened = 0;
	int32 NumActivated = 0;
	bool bTakesActivation = false;
	TArray<UObject*> LastOpened;
};

/** Fresh asset tools for each test. */
class FAssetToolsFixture : public ::testing::Test
{
protected:
	FAssetToolsFixture()
	{
		StandIn::StartObjectSystem();
		UAssetToolsTestFactory::NumConfigured = 0;
		UAssetToolsTestFactory::bConfigure = true;
	}

	~FAssetToolsFixture() override
	{
		FModuleManager::Get().UnloadModule("AssetTools");
		FModuleManager::Get().UnloadModule("AssetRegistry");
		StandIn::ShutdownObjectSystem();
	}

	/** The tools. */
	static IAssetTools& Tools() { return FAssetToolsModule::GetModule().Get(); }

	/** Registers actions of a class. */
	static TSharedRef<FTestActions> Register(UClass* Class)
	{
		const TSharedRef<FTestActions> Actions = MakeShared<FTestActions>(Class);
		Tools().RegisterAssetTypeActions(Actions);
		return Actions;
	}

	/** A factory object. */
	static UAssetToolsTestFactory* MakeFactory() { return NewObject<UAssetToolsTestFactory>(GetTransientPackage()); }

	/** Makes an asset through the tools. */
	static UObject* Create(const TCHAR* Name, UFactory* Factory)
	{
		return Tools().CreateAsset(Name, TEXT("/Game/Looks"), UAssetToolsTestAsset::StaticClass(), Factory, "Test");
	}
};
