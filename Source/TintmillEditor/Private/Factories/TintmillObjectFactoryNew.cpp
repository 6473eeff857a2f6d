// Copyright The Tintmill authors. All rights reserved.

#include "Factories/TintmillObjectFactoryNew.h"

#include "TintmillObject.h"

#include "AssetTypeCategories.h"
#include "UObject/UObjectGlobals.h"

UTintmillObjectFactoryNew::UTintmillObjectFactoryNew(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SupportedClass = UTintmillObject::StaticClass();
	bCreateNew = true;
	bEditAfterNew = true;
}

UObject* UTintmillObjectFactoryNew::FactoryCreateNew(
	UClass* InClass, UObject* InParent, FName InName, EObjectFlags InFlags, UObject* /*InContext*/, FFeedbackContext* /*InWarn*/)
{
	return NewObject<UTintmillObject>(InParent, InClass, InName, InFlags);
}

bool UTintmillObjectFactoryNew::ShouldShowInNewMenu() const
{
	return true;
}

uint32 UTintmillObjectFactoryNew::GetMenuCategories() const
{
	return EAssetTypeCategories::Misc;
}
