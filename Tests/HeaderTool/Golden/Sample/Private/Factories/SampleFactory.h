// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Factory.h"
#include "SampleFactory.generated.h"

/**
 * Implements a factory for samples.
 */
UCLASS(hidecategories=Object)
class USampleFactory : public UFactory
{
	GENERATED_UCLASS_BODY()

	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName) override;
};
