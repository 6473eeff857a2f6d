// Copyright The Tintmill authors. All rights reserved.

#include "UObject/ObjectConstruction.h"
#include "HAL/UnrealMemory.h"
#include "UObject/ObjectHash.h"
#include "UObject/ObjectSystemAccess.h"

#include <vector>

namespace StandInPrivate
{
namespace
{
std::vector<FPendingObject>& GetPendingObjects()
{
	static std::vector<FPendingObject>* Pending = new std::vector<FPendingObject>;
	return *Pending;
}

void CheckAllocation(const UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags)
{
	if (Class == nullptr)
	{
		UE_LOG(LogUObjectGlobals, Fatal, TEXT("Empty class for object %s"), *Name.ToString());
	}
	if (!UObjectInitialized())
	{
		UE_LOG(LogUObjectGlobals, Fatal, TEXT("Unable to create new object: %s %s. The object system is not running."), *Class->GetName(),
			*Name.ToString());
	}
	if (IsGarbageCollecting())
	{
		UE_LOG(LogUObjectGlobals, Fatal,
			TEXT("Unable to create new object: %s %s.%s. Creating UObjects while Collecting Garbage is not allowed!"), *Class->GetName(),
			*GetPathNameSafe(Outer), *Name.ToString());
	}
	if (Class->HasAnyClassFlags(CLASS_Abstract) && (Flags & RF_ClassDefaultObject) == 0)
	{
		UE_LOG(LogUObjectGlobals, Fatal, TEXT("Class which was marked abstract was trying to be loaded in Outer %s.  %s %s"),
			*GetPathNameSafe(Outer), *Name.ToString(), *Class->GetName());
	}
	if (Outer == nullptr && Class != UPackage::StaticClass())
	{
		UE_LOG(LogUObjectGlobals, Fatal, TEXT("Object is not packaged: %s %s"), *Class->GetName(), *Name.ToString());
	}
	if (Outer == nullptr && Name.IsNone())
	{
		UE_LOG(LogUObjectGlobals, Fatal, TEXT("Attempted to create a package with an empty package name."));
	}
	if ((Flags & RF_ClassDefaultObject) == 0 && Outer != nullptr && !Outer->IsA(Class->ClassWithin))
	{
		UE_LOG(LogUObjectGlobals, Fatal, TEXT("Object %s %s created in %s instead of %s"), *Class->GetName(), *Name.ToString(),
			*Outer->GetClass()->GetName(), *Class->ClassWithin->GetName());
	}
}
}

void PushPendingObject(const FPendingObject& Pending)
{
	GetPendingObjects().push_back(Pending);
}

bool PopPendingObject(const void* Memory, FPendingObject& OutPending)
{
	std::vector<FPendingObject>& Pending = GetPendingObjects();
	if (Pending.empty() || Pending.back().Memory != Memory)
	{
		return false;
	}
	OutPending = Pending.back();
	Pending.pop_back();
	return true;
}

const FPendingObject* FindPendingObject(const void* Memory)
{
	for (const FPendingObject& Pending : GetPendingObjects())
	{
		if (Pending.Memory == Memory)
		{
			return &Pending;
		}
	}
	return nullptr;
}

void FinishObject(UObject* Object)
{
	Object->ConditionalBeginDestroy();
	Object->ConditionalFinishDestroy();
}

void DestructObject(UObject* Object, bool bFreeMemory)
{
	FObjectSystemAccess::RemoveObject(Object);
	Object->~UObject();
	if (bFreeMemory)
	{
		FMemory::Free(Object);
	}
}

UObject* AllocateObject(const UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, EInternalObjectFlags InternalFlags)
{
	CheckAllocation(Class, Outer, Name, Flags);
	if (Name.IsNone())
	{
		Name = MakeUniqueObjectName(Outer, Class);
	}
	const SIZE_T Size = SIZE_T(Class->GetPropertiesSize());
	UObject* Existing = FindInOuter(Outer, Name);
	void* Memory = nullptr;
	if (Existing != nullptr)
	{
		if (Existing->GetClass() != Class)
		{
			UE_LOG(LogUObjectGlobals, Fatal,
				TEXT("Objects have the same fully qualified name but different paths.\n\tNew Object: %s %s.%s\n\tExisting Object: %s"),
				*Class->GetName(), *GetPathNameSafe(Outer), *Name.ToString(), *Existing->GetFullName());
		}
		if (Existing->IsNative() || FindPendingObject(Existing) != nullptr || GetObjectsUnderConstruction().Contains(Existing))
		{
			UE_LOG(LogUObjectGlobals, Fatal, TEXT("Unable to create new object: %s %s.%s is a compiled-in type or under construction."),
				*Class->GetName(), *GetPathNameSafe(Outer), *Name.ToString());
		}
		if (Existing->IsRooted())
		{
			InternalFlags |= EInternalObjectFlags::RootSet;
		}
		FinishObject(Existing);
		DestructObject(Existing, false);
		Memory = Existing;
	}
	else
	{
		Memory = FMemory::Malloc(Size, uint32(Class->GetMinAlignment()));
	}
	FMemory::Memzero(Memory, Size);
	PushPendingObject(FPendingObject{Memory, const_cast<UClass*>(Class), Outer, Name, Flags, InternalFlags});
	return (UObject*)Memory;
}
}

void FObjectSystemAccess::AddObject(UObjectBase* Object)
{
	GUObjectArray.AllocateUObjectIndex(Object, Object->InternalIndex);
	StandInPrivate::HashObject(Object);
}

void FObjectSystemAccess::RemoveObject(UObjectBase* Object)
{
	if (Object->InternalIndex >= 0)
	{
		StandInPrivate::UnhashObject(Object);
		GUObjectArray.FreeUObjectIndex(Object->InternalIndex);
		Object->InternalIndex = -1;
	}
}
