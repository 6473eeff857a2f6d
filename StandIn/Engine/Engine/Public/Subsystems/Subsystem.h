// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Subsystem.generated.h"

// The base of subsystems: objects of which an owner has one for each class.

class FSubsystemCollectionBase;

/** An object of which an owner has one for each class. */
UCLASS(Abstract)
class ENGINE_API USubsystem : public UObject
{
	GENERATED_BODY()

public:
	USubsystem();

	/** Tells whether the owner shall have this subsystem; asked of the default object. */
	virtual bool ShouldCreateSubsystem(UObject* Outer) const;

	/** Sets the subsystem up. */
	virtual void Initialize(FSubsystemCollectionBase& Collection);

	/** Lets go of everything. */
	virtual void Deinitialize();
};
