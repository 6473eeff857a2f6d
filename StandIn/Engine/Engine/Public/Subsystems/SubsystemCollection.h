// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Subsystems/Subsystem.h"
#include "UObject/GCObject.h"

class UClass;

// The subsystems of an owner: one object for each concrete class below a base class, made when the collection is initialised.
// Classes of modules that are loaded later are not picked up; dependencies between subsystems are left out.

/** The subsystems of an owner. */
class ENGINE_API FSubsystemCollectionBase : public FGCObject
{
public:
	/** Makes an empty collection of the classes below a base class. */
	explicit FSubsystemCollectionBase(UClass* (*InGetBaseClass)());
	virtual ~FSubsystemCollectionBase();

	/** Makes and initialises the subsystems. */
	void Initialize(UObject* NewOuter);

	/** Has all subsystems let go and forgets them. */
	void Deinitialize();

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;

protected:
	/** Returns the subsystem of a class or of a class below it, or null. */
	USubsystem* GetSubsystemInternal(UClass* SubsystemClass) const;

private:
	UClass* (*GetBaseClass)();
	TArray<USubsystem*> Subsystems;
};

/** The subsystems of an owner, below a base class. */
template <typename TBaseType>
class FSubsystemCollection : public FSubsystemCollectionBase
{
public:
	FSubsystemCollection()
		: FSubsystemCollectionBase(&TBaseType::StaticClass)
	{}

	/** Returns the subsystem of a class, or null. */
	template <typename TSubsystemClass>
	TSubsystemClass* GetSubsystem(const UClass* SubsystemClass) const
	{
		return static_cast<TSubsystemClass*>(GetSubsystemInternal(const_cast<UClass*>(SubsystemClass)));
	}
};
