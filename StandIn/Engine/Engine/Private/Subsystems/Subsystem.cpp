// Copyright The Tintmill authors. All rights reserved.

#include "Subsystems/Subsystem.h"

#include "Subsystems/SubsystemCollection.h"
#include "UObject/Class.h"
#include "UObject/UObjectBase.h"
#include "UObject/UObjectIterator.h"

USubsystem::USubsystem() {}

bool USubsystem::ShouldCreateSubsystem(UObject*) const
{
	return true;
}

void USubsystem::Initialize(FSubsystemCollectionBase&) {}

void USubsystem::Deinitialize() {}

FSubsystemCollectionBase::FSubsystemCollectionBase(UClass* (*InGetBaseClass)())
	: GetBaseClass(InGetBaseClass)
{}

FSubsystemCollectionBase::~FSubsystemCollectionBase() {}

void FSubsystemCollectionBase::Initialize(UObject* NewOuter)
{
	check(Subsystems.Num() == 0);
	TArray<UClass*> Classes;
	for (TObjectIterator<UClass> It; It; ++It)
	{
		if (It->IsChildOf(GetBaseClass()) && !It->HasAnyClassFlags(CLASS_Abstract))
		{
			Classes.Add(*It);
		}
	}
	for (UClass* Class : Classes)
	{
		if (static_cast<USubsystem*>(Class->GetDefaultObject())->ShouldCreateSubsystem(NewOuter))
		{
			Subsystems.Add(NewObject<USubsystem>(NewOuter, Class));
		}
	}
	const TArray<USubsystem*> Made = Subsystems;
	for (USubsystem* Subsystem : Made)
	{
		Subsystem->Initialize(*this);
	}
}

void FSubsystemCollectionBase::Deinitialize()
{
	const TArray<USubsystem*> Made = Subsystems;
	for (USubsystem* Subsystem : Made)
	{
		Subsystem->Deinitialize();
	}
	Subsystems.Empty();
}

void FSubsystemCollectionBase::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObjects(Subsystems);
}

USubsystem* FSubsystemCollectionBase::GetSubsystemInternal(UClass* SubsystemClass) const
{
	for (USubsystem* Subsystem : Subsystems)
	{
		if (Subsystem->IsA(SubsystemClass))
		{
			return Subsystem;
		}
	}
	return nullptr;
}
