// Copyright The Tintmill authors. All rights reserved.

// clang-format off
#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "UObject/ObjectMacros.h"

#include "TintmillObjectFactoryNew.generated.h"

/** Implements a factory for UTintmillObject objects. */
UCLASS(hidecategories = Object)
class UTintmillObjectFactoryNew : public UFactory
{
	GENERATED_UCLASS_BODY()

public:
	//~ Begin UFactory interface
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags InFlags, UObject* InContext,
		FFeedbackContext* InWarn) override;
	virtual bool ShouldShowInNewMenu() const override;
	virtual uint32 GetMenuCategories() const override;
	//~ End UFactory interface
};
