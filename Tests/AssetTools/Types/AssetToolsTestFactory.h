// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "AssetToolsTestFactory.generated.h"

/** Factory of tests that notes how it was called. */
UCLASS()
class UAssetToolsTestFactory : public UFactory
{
	GENERATED_BODY()

public:
	UAssetToolsTestFactory(const FObjectInitializer& ObjectInitializer);

	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context,
		FFeedbackContext* Warn, FName CallingContext) override;
	virtual UObject* FactoryCreateNew(
		UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	virtual bool ConfigureProperties() override;

	/** Context of the last call of the form with seven arguments. */
	FName LastCallingContext;

	/** True if the factory is to refuse. */
	bool bRefuse = false;

	/** Number of calls of ConfigureProperties of all objects. */
	static int32 NumConfigured;

	/** What ConfigureProperties returns. */
	static bool bConfigure;
};
