// Copyright The Tintmill authors. All rights reserved.

#include "UObject/Object.h"
#include "UObject/Class.h"
#include "UObject/NativeTypes.h"
#include "UObject/ObjectHash.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/UnrealType.h"

IMPLEMENT_CLASS(UObject, 0)

UObject::UObject() {}

UObject::UObject(const FObjectInitializer& ObjectInitializer)
{
	checkf(ObjectInitializer.GetObj() == this, TEXT("An object initializer is for the object that it was made for only."));
}

UObject::UObject(EStaticConstructor, EObjectFlags InFlags)
	: UObjectBaseUtility(InFlags)
{}

UObject::UObject(FVTableHelper& Helper)
	: UObjectBaseUtility(Helper)
{}

UObject* UObject::CreateDefaultSubobject(
	FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient)
{
	return FObjectInitializer::Get().CreateDefaultSubobject(
		this, SubobjectFName, ReturnType, ClassToCreateByDefault, bIsRequired, bIsTransient);
}

void UObject::PostInitProperties() {}

void UObject::BeginDestroy()
{
	checkf(HasAnyFlags(RF_BeginDestroyed),
		TEXT("Trying to call UObject::BeginDestroy from outside of UObject::ConditionalBeginDestroy on object %s."), *GetName());
}

void UObject::FinishDestroy()
{
	checkf(HasAnyFlags(RF_FinishDestroyed),
		TEXT("Trying to call UObject::FinishDestroy from outside of UObject::ConditionalFinishDestroy on object %s."), *GetName());
}

bool UObject::ConditionalBeginDestroy()
{
	if (HasAnyFlags(RF_BeginDestroyed))
	{
		return false;
	}
	SetFlags(RF_BeginDestroyed);
	BeginDestroy();
	return true;
}

bool UObject::ConditionalFinishDestroy()
{
	if (HasAnyFlags(RF_FinishDestroyed) || !IsReadyForFinishDestroy())
	{
		return false;
	}
	SetFlags(RF_FinishDestroyed);
	FinishDestroy();
	return true;
}

bool UObject::Rename(const TCHAR* NewName, UObject* NewOuter, ERenameFlags Flags)
{
	UObject* OldOuter = GetOuter();
	const FName OldName = GetFName();
	UObject* Outer = NewOuter != nullptr ? NewOuter : OldOuter;
	const FName Name = NewName != nullptr ? FName(NewName) : (Outer == OldOuter ? OldName : MakeUniqueObjectName(Outer, GetClass()));
	const UObject* Existing = StandInPrivate::FindInOuter(Outer, Name);
	if (Existing != nullptr && Existing != this)
	{
		if (Flags & REN_Test)
		{
			return false;
		}
		UE_LOG(LogObj, Fatal, TEXT("Renaming an object (%s) on top of an existing object (%s) is not allowed"), *GetFullName(),
			*Existing->GetFullName());
	}
	if (Flags & REN_Test)
	{
		return true;
	}
	checkf(!IsNative() && !HasAnyFlags(RF_ClassDefaultObject), TEXT("%s cannot be renamed."), *GetFullName());
	StandInPrivate::UnhashObject(this);
	FObjectSystemAccess::SetName(this, Name);
	FObjectSystemAccess::SetOuter(this, Outer);
	StandInPrivate::HashObject(this);
	if (!(Flags & REN_DoNotDirty) && GetOuter() != nullptr)
	{
		MarkPackageDirty();
	}
	PostRename(OldOuter, OldName);
	return true;
}

bool UObject::Modify(bool bAlwaysMarkDirty)
{
	if (bAlwaysMarkDirty && GetOuter() != nullptr)
	{
		MarkPackageDirty();
	}
	return false;
}

void UObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.Broadcast(this, PropertyChangedEvent);
}

void UObject::PostEditChange()
{
	FPropertyChangedEvent EmptyPropertyUpdateStruct(nullptr);
	PostEditChangeProperty(EmptyPropertyUpdateStruct);
}

UWorld* UObject::GetWorld() const
{
	return GetOuter() != nullptr ? GetOuter()->GetWorld() : nullptr;
}

bool UObject::IsAsset() const
{
	// Assets are public objects directly in a package that are neither default objects nor types nor packages.
	return HasAnyFlags(RF_Public) && !HasAnyFlags(RF_Transient | RF_ClassDefaultObject) && !IsPendingKill() && !IsNative()
		&& GetOuter() != nullptr && GetOuter()->IsA(UPackage::StaticClass()) && GetOuter() != (UObject*)GetTransientPackage();
}

void UObject::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	(void)InThis;
	(void)Collector;
}

UObject* UObject::GetArchetype() const
{
	if (HasAnyFlags(RF_ClassDefaultObject))
	{
		UClass* SuperClass = GetClass()->GetSuperClass();
		return SuperClass != nullptr ? SuperClass->GetDefaultObject() : nullptr;
	}
	if (HasAnyFlags(RF_DefaultSubObject) && GetOuter() != nullptr && GetOuter()->GetArchetype() != nullptr)
	{
		UObject* Subobject = GetOuter()->GetArchetype()->GetDefaultSubobjectByName(GetFName());
		if (Subobject != nullptr && Subobject->GetClass() == GetClass())
		{
			return Subobject;
		}
	}
	return GetClass()->GetDefaultObject();
}
