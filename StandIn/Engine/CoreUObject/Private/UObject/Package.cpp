// Copyright The Tintmill authors. All rights reserved.

#include "UObject/Package.h"
#include "UObject/MetaData.h"
#include "UObject/ObjectSystemAccess.h"

IMPLEMENT_CLASS(UPackage, 0)

void UPackage::__DefaultConstructor(const FObjectInitializer& X)
{
	new ((EInternal*)X.GetObj()) UPackage(X);
}

UPackage::UPackage(const FObjectInitializer& ObjectInitializer)
	: UObject(ObjectInitializer)
	, bDirty(false)
	, bHasBeenFullyLoaded(false)
	, PackageFlagsPrivate(0)
	, BodyCRC(0)
	, DeclarationsCRC(0)
	, MetaData(nullptr)
{}

UPackage::~UPackage() {}

UMetaData* UPackage::GetMetaData()
{
	if (MetaData == nullptr)
	{
		MetaData = NewObject<UMetaData>(this, FName(TEXT("PackageMetaData")), RF_Standalone);
	}
	return MetaData;
}

void UPackage::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(((UPackage*)InThis)->MetaData, InThis);
	Super::AddReferencedObjects(InThis, Collector);
}
