// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "UObject/Object.h"
#include "Factory.generated.h"

UCLASS(abstract)
class BASE_API UFactory : public UObject
{
	GENERATED_UCLASS_BODY()

	/** The class that the factory makes. */
	UPROPERTY()
	TSubclassOf<UObject> SupportedClass;

	virtual UObject* FactoryCreateNew(UClass*, UObject*, FName) { return nullptr; }

protected:
	/** Shown in the new menu */
	UPROPERTY()
	uint8 bCreateNew : 1;
};
