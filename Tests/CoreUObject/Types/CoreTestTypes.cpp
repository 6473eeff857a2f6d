// Copyright The Tintmill authors. All rights reserved.

#include "CoreTestObjects.h"
#include "CoreTestSettings.h"
#include "CoreTestValues.h"

FString UCoreTestObject::Destructions;
bool UCoreTestCareless::bCareless = false;

UCoreTestObject::~UCoreTestObject()
{
	Destructions += TEXT("D");
}

void UCoreTestObject::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(((UCoreTestObject*)InThis)->Hidden, InThis);
	Super::AddReferencedObjects(InThis, Collector);
}

void UCoreTestObject::BeginDestroy()
{
	Destructions += TEXT("B");
	Super::BeginDestroy();
}

void UCoreTestObject::FinishDestroy()
{
	Destructions += TEXT("F");
	Super::FinishDestroy();
}

void UCoreTestObject::PostInitProperties()
{
	Super::PostInitProperties();
	bPostInit = true;
}

UCoreTestChild::UCoreTestChild(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	Number = 8;
	Subobject = ObjectInitializer.CreateDefaultSubobject<UCoreTestAsset>(this, TEXT("Part"));
}

void UCoreTestAsset::PostLoad()
{
	Super::PostLoad();
	bPostLoaded = true;
}

UCoreTestCareless::UCoreTestCareless()
{
	if (bCareless)
	{
		NewObject<UCoreTestAsset>(this);
	}
}

UCoreTestSettings::UCoreTestSettings()
{
	Slots[0] = 0;
	Slots[1] = 0;
}
