// Copyright The Tintmill authors. All rights reserved.

#include "UObject/UObjectBase.h"
#include "UObject/ObjectConstruction.h"
#include "UObject/ObjectSystemAccess.h"

UObjectBase::UObjectBase()
	: ObjectFlags(RF_NoFlags)
	, InternalIndex(-1)
	, ClassPrivate(nullptr)
	, OuterPrivate(nullptr)
{
	StandInPrivate::FPendingObject Pending;
	if (!StandInPrivate::PopPendingObject(this, Pending))
	{
		UE_LOG(LogUObjectGlobals, Fatal, TEXT("Objects are made with NewObject only, not on the stack, as members or by new."));
	}
	ObjectFlags = Pending.Flags;
	ClassPrivate = Pending.Class;
	NamePrivate = Pending.Name;
	OuterPrivate = Pending.Outer;
	FObjectSystemAccess::AddObject(this);
	GUObjectArray.IndexToObject(InternalIndex)->SetFlags(Pending.InternalFlags);
}

UObjectBase::UObjectBase(EObjectFlags InFlags)
	: ObjectFlags(InFlags)
	, InternalIndex(-1)
	, ClassPrivate(nullptr)
	, OuterPrivate(nullptr)
{}

UObjectBase::UObjectBase(FVTableHelper& Helper)
	: UObjectBase(RF_NoFlags)
{
	(void)Helper;
	checkNoEntry();
}

UObjectBase::~UObjectBase()
{
	FObjectSystemAccess::RemoveObject(this);
}

bool UObjectBase::IsValidLowLevel() const
{
	return ClassPrivate != nullptr && GUObjectArray.ObjectToObjectItem(this) != nullptr;
}

bool UObjectBase::IsValidLowLevelFast(bool bRecursive) const
{
	(void)bRecursive;
	return IsValidLowLevel();
}
