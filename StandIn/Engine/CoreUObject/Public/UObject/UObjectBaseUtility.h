// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "UObject/UObjectBase.h"

// What can be asked of every object: flags, names, paths, outers, kind. Left out: linkers, thread-safe flag access, clusters.

/** Flags, names, outers and kind of objects. */
class COREUOBJECT_API UObjectBaseUtility : public UObjectBase
{
protected:
	UObjectBaseUtility() {}
	explicit UObjectBaseUtility(EObjectFlags InFlags)
		: UObjectBase(InFlags)
	{}
	explicit UObjectBaseUtility(FVTableHelper& Helper)
		: UObjectBase(Helper)
	{}

public:
	/** Sets flags; RF_MarkAsNative and RF_MarkAsRootSet are not allowed here. */
	void SetFlags(EObjectFlags NewFlags);
	void ClearFlags(EObjectFlags NewFlags);
	FORCEINLINE bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) != 0; }
	FORCEINLINE bool HasAllFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) == FlagsToCheck; }
	/** The flags among these that are set. */
	FORCEINLINE EObjectFlags GetMaskedFlags(EObjectFlags Mask = RF_AllFlags) const { return EObjectFlags(GetFlags() & Mask); }

	/** Says whether the object waits for its collection. */
	bool IsPendingKill() const;
	/** Lets the object be collected and references to it be nulled; fatal for a rooted one. */
	void MarkPendingKill();
	void ClearPendingKill();
	/** Keeps the object from being collected. */
	void AddToRoot();
	void RemoveFromRoot();
	bool IsRooted() const;
	/** Says whether the object is a compiled-in type. */
	bool IsNative() const;
	/** Says whether the last mark phase did not reach the object. */
	bool IsUnreachable() const;
	bool HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const;

	/** `Class Package.Outer:Name`, relative to StopOuter. */
	FString GetFullName(const UObject* StopOuter = nullptr) const;
	/** `Package.Outer:Name`, relative to StopOuter. */
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	void GetPathName(const UObject* StopOuter, FString& ResultString) const;
	FString GetName() const { return GetFName().ToString(); }
	void GetName(FString& ResultString) const { GetFName().ToString(ResultString); }
	void AppendName(FString& ResultString) const { GetFName().AppendString(ResultString); }

	/** The outermost object as a package; fatal if it is none. */
	UPackage* GetOutermost() const;
	UPackage* GetPackage() const { return GetOutermost(); }
	/** The outermost object of any class. */
	UObject* GetOutermostObject() const;
	/** Marks the package as changed; false for transient objects. */
	bool MarkPackageDirty() const;
	bool IsTemplate(EObjectFlags TemplateTypes = EObjectFlags(RF_ArchetypeObject | RF_ClassDefaultObject)) const;
	/** The nearest outer of a class, or null. */
	UObject* GetTypedOuter(UClass* Target) const;
	/** The nearest outer of a class, or null. */
	template <typename T>
	T* GetTypedOuter() const
	{
		return (T*)GetTypedOuter(T::StaticClass());
	}
	/** Says whether SomeOuter is among the outers. */
	bool IsIn(const UObject* SomeOuter) const;
	/** Says whether an outer is of a class. */
	bool IsInA(const UClass* SomeBaseClass) const;
	/** Says whether the object is of a class or of one of its children. */
	bool IsA(const UClass* SomeBase) const;
	/** Says whether the object is of a class or of one of its children. */
	template <class T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}
	bool IsDefaultSubobject() const { return HasAnyFlags(RF_DefaultSubObject); }
	/** The default subobject of this name, or null. */
	UObject* GetDefaultSubobjectByName(FName ToFind);
};

/** The object's name, or "None" for null. */
FORCEINLINE FString GetNameSafe(const UObjectBaseUtility* Object)
{
	return Object == nullptr ? FString(TEXT("None")) : Object->GetName();
}
/** The object's path, or "None" for null. */
FORCEINLINE FString GetPathNameSafe(const UObjectBaseUtility* Object)
{
	return Object == nullptr ? FString(TEXT("None")) : Object->GetPathName();
}
/** The object's full name, or "None" for null. */
FORCEINLINE FString GetFullNameSafe(const UObjectBaseUtility* Object)
{
	return Object == nullptr ? FString(TEXT("None")) : Object->GetFullName();
}
