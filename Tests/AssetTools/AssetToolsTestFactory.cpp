// Copyright The Tintmill authors. All rights reserved.

#include "AssetToolsTestFactory.h"
#include "AssetToolsTestAsset.h"

int32 UAssetToolsTestFactory::NumConfigured = 0;
bool UAssetToolsTestFactory::bConfigure = true;

UAssetToolsTestFactory::UAssetToolsTestFactory(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SupportedClass = UAssetToolsTestAsset::StaticClass();
	bCreateNew = true;
}

UObject* UAssetToolsTestFactory::FactoryCreateNew(
	UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn, FName CallingContext)
{
	LastCallingContext = CallingContext;
	return Super::FactoryCreateNew(InClass, InParent, InName, Flags, Context, Warn, CallingContext);
}

UObject* UAssetToolsTestFactory::FactoryCreateNew(
	UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject*, FFeedbackContext*)
{
	return bRefuse ? nullptr : NewObject<UAssetToolsTestAsset>(InParent, InClass, InName, Flags);
}

bool UAssetToolsTestFactory::ConfigureProperties()
{
	++NumConfigured;
	return bConfigure;
}
