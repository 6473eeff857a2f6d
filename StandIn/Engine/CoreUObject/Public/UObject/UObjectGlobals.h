// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Logging/LogMacros.h"
#include "StandIn/CodeGenParams.h"
#include "StandIn/ObjectInitializer.h"
#include "StandIn/ReferenceCollector.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

// Making, finding, loading and collecting objects. Left out: linkers, asynchronous loading, saving, duplication
// (DuplicateObject), instancing graphs and sandboxes (their arguments must be null).

class FOutputDevice;
class FUObjectAnnotation;
class UPackageMap;
struct FObjectInstancingGraph;

COREUOBJECT_API DECLARE_LOG_CATEGORY_EXTERN(LogUObjectGlobals, Log, All);
COREUOBJECT_API DECLARE_LOG_CATEGORY_EXTERN(LogObj, Log, All);
COREUOBJECT_API DECLARE_LOG_CATEGORY_EXTERN(LogClass, Log, All);
COREUOBJECT_API DECLARE_LOG_CATEGORY_EXTERN(LogGarbage, Log, All);

/** An outer that stands for every package in searches. */
#define ANY_PACKAGE ((UPackage*)-1)
/** Flags of objects that the editor keeps when it collects. */
#define GARBAGE_COLLECTION_KEEPFLAGS (GIsEditor ? RF_Standalone : RF_NoFlags)

/** The package for objects that belong nowhere. */
COREUOBJECT_API UPackage* GetTransientPackage();
/** The package of a long name such as "/Game/Looks/Warm", made if it is not there; fatal for a bad name. */
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);
/** The package of a name, or null. */
COREUOBJECT_API UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName);
/** The package of an asset's long package name with its asset loaded, or null. */
COREUOBJECT_API UPackage* LoadPackage(UPackage* InOuter, const TCHAR* InLongPackageName, uint32 LoadFlags);

/** A name that no object in the outer has: the base name (or class name) and a number. */
COREUOBJECT_API FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName = NAME_None);

/** Finds an object by name in an outer, by path without outer, or by name anywhere in ANY_PACKAGE; null when there is none. */
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
/** Finds an object by name in an outer; null when there is none. */
COREUOBJECT_API UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool ExactClass = false,
	bool AnyPackage = false, EObjectFlags ExclusiveFlags = RF_NoFlags,
	EInternalObjectFlags ExclusiveInternalFlags = EInternalObjectFlags::None);
/** Finds an object, fatal when there is none. */
COREUOBJECT_API UObject* StaticFindObjectChecked(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
/** Finds or loads the object of a path; null, with warnings in the log, when that fails. */
COREUOBJECT_API UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr,
	uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr, bool bAllowObjectReconciliation = true);
/** Finds or loads the class of a path; null, with warnings in the log, when that fails. */
COREUOBJECT_API UClass* StaticLoadClass(UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr,
	uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr);

/** What an object is made of. */
struct COREUOBJECT_API FStaticConstructObjectParameters
{
	explicit FStaticConstructObjectParameters(const UClass* InClass)
		: Class(InClass)
	{}

	const UClass* Class;
	UObject* Outer = (UObject*)GetTransientPackage();
	FName Name = NAME_None;
	EObjectFlags SetFlags = RF_NoFlags;
	EInternalObjectFlags InternalSetFlags = EInternalObjectFlags::None;
	bool bCopyTransientsFromClassDefaults = false;
	UObject* Template = nullptr;
	FObjectInstancingGraph* InstanceGraph = nullptr;
	UPackage* ExternalPackage = nullptr;
};

/** Makes an object; an existing one of the same outer, name and class is made anew in place, one of another class is fatal. */
COREUOBJECT_API UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params);

/** Fatal when a class cannot have objects in this outer. */
COREUOBJECT_API void CheckIsClassChildOf_Internal(const UClass* Parent, const UClass* Child);

namespace StandInPrivate
{
/** Fatal for a subobject without name that is made in its outer's constructor. */
COREUOBJECT_API void CheckNameInConstructor(UObject* Outer, FName Name);
}

/** Makes an object of a class that is T or a child of it; no name means a new one. */
template <class T>
T* NewObject(UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr,
	bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* InInstanceGraph = nullptr, UPackage* ExternalPackage = nullptr)
{
	CheckIsClassChildOf_Internal(T::StaticClass(), Class);
	StandInPrivate::CheckNameInConstructor(Outer, Name);
	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = Flags;
	Params.Template = Template;
	Params.bCopyTransientsFromClassDefaults = bCopyTransientsFromClassDefaults;
	Params.InstanceGraph = InInstanceGraph;
	Params.ExternalPackage = ExternalPackage;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}
/** Makes an object of class T with a new name. */
template <class T>
T* NewObject(UObject* Outer = (UObject*)GetTransientPackage())
{
	StandInPrivate::CheckNameInConstructor(Outer, NAME_None);
	FStaticConstructObjectParameters Params(T::StaticClass());
	Params.Outer = Outer;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}
/** Makes an object of class T; no name means a new one. */
template <class T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr,
	bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* InInstanceGraph = nullptr)
{
	StandInPrivate::CheckNameInConstructor(Outer, Name);
	FStaticConstructObjectParameters Params(T::StaticClass());
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = Flags;
	Params.Template = Template;
	Params.bCopyTransientsFromClassDefaults = bCopyTransientsFromClassDefaults;
	Params.InstanceGraph = InInstanceGraph;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}

/** Finds an object of class T, or null. */
template <class T>
inline T* FindObject(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return (T*)StaticFindObject(T::StaticClass(), Outer, Name, ExactClass);
}
/** Finds an object of class T; fatal when there is none. */
template <class T>
inline T* FindObjectChecked(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return (T*)StaticFindObjectChecked(T::StaticClass(), Outer, Name, ExactClass);
}
/** Finds an object of class T by its name in an outer, or null. */
template <class T>
inline T* FindObjectFast(
	UObject* Outer, FName Name, bool ExactClass = false, bool AnyPackage = false, EObjectFlags ExclusiveFlags = RF_NoFlags)
{
	return (T*)StaticFindObjectFast(T::StaticClass(), Outer, Name, ExactClass, AnyPackage, ExclusiveFlags);
}
/** Finds or loads an object of class T; null, with warnings in the log, when that fails. */
template <class T>
inline T* LoadObject(
	UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr)
{
	return (T*)StaticLoadObject(T::StaticClass(), Outer, Name, Filename, LoadFlags, Sandbox);
}
/** Finds or loads a child class of T; null, with warnings in the log, when that fails. */
template <class T>
inline UClass* LoadClass(
	UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr)
{
	return StaticLoadClass(T::StaticClass(), Outer, Name, Filename, LoadFlags, Sandbox);
}

/** Destroys all objects that nothing keeps: no root, none of the flags, no reference. */
COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);
/** Collects unless a collection is running; always true here. */
COREUOBJECT_API bool TryCollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);
COREUOBJECT_API bool IsGarbageCollecting();
/** True while an object is under construction on this thread. */
COREUOBJECT_API bool IsInConstructor();

/** The object system's events. */
struct COREUOBJECT_API FCoreUObjectDelegates
{
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnObjectPropertyChanged, UObject*, struct FPropertyChangedEvent&);
	/** After a property was changed in an editor. */
	static FOnObjectPropertyChanged OnObjectPropertyChanged;
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnAssetLoaded, UObject*);
	/** After an asset was loaded. */
	static FOnAssetLoaded OnAssetLoaded;
	/** Before a collection. */
	static FSimpleMulticastDelegate& GetPreGarbageCollectDelegate();
	/** After the unreachable objects have been destroyed. */
	static FSimpleMulticastDelegate& GetPostGarbageCollect();
};
