// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "StandIn/EnumType.h"
#include "StandIn/StructTypes.h"
#include "UObject/Field.h"
#include "UObject/Object.h"

// Classes. Left out: interfaces, functions, replication, component tables, class redirects, sparse data.

class FFeedbackContext;

/** A class of objects. */
class COREUOBJECT_API UClass : public UStruct
{
	DECLARE_CLASS(UClass, UStruct, CLASS_Intrinsic, CASTCLASS_UClass, TEXT("/Script/CoreUObject"), NO_API)
	DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER(UClass)
	static void StaticRegisterNativesUClass() {}
	static void __DefaultConstructor(const FObjectInitializer& X);

	typedef void (*ClassConstructorType)(const FObjectInitializer&);
	typedef UObject* (*ClassVTableHelperCtorCallerType)(FVTableHelper& Helper);
	typedef void (*ClassAddReferencedObjectsType)(UObject*, FReferenceCollector&);
	typedef UClass* (*StaticClassFunctionType)();

	UClass(EStaticConstructor, int32 InSize, int32 InAlignment, EClassFlags InClassFlags, EClassCastFlags InClassCastFlags,
		const TCHAR* InClassConfigName, EObjectFlags InFlags, ClassConstructorType InClassConstructor,
		ClassVTableHelperCtorCallerType InClassVTableHelperCtorCaller, ClassAddReferencedObjectsType InClassAddReferencedObjects);
	explicit UClass(const FObjectInitializer& ObjectInitializer);

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
	virtual const TCHAR* GetPrefixCPP() const override { return TEXT("U"); }
	virtual void SetSuperStruct(UStruct* NewSuperStruct) override;

	UClass* GetSuperClass() const { return (UClass*)GetSuperStruct(); }
	/** The class's default object, made if it is not there yet and asked for. */
	UObject* GetDefaultObject(bool bCreateIfNeeded = true) const
	{
		if (ClassDefaultObject == nullptr && bCreateIfNeeded)
		{
			const_cast<UClass*>(this)->CreateDefaultObject();
		}
		return ClassDefaultObject;
	}
	/** The class's default object as T; fatal for another class. */
	template <class T>
	T* GetDefaultObject() const
	{
		UObject* Ret = GetDefaultObject();
		check(Ret->IsA(T::StaticClass()));
		return (T*)Ret;
	}
	/** `Default__` and the class's name. */
	FName GetDefaultObjectName() const;
	FORCEINLINE bool HasAnyClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) != 0; }
	FORCEINLINE bool HasAllClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) == uint32(FlagsToCheck); }
	FORCEINLINE EClassFlags GetClassFlags() const { return ClassFlags; }
	FORCEINLINE bool HasAnyCastFlag(EClassCastFlags FlagToCheck) const { return (ClassCastFlags & FlagToCheck) != 0; }
	/** File name of the class's configuration, as the configuration cache knows it. */
	const FString GetConfigName() const;
	/** Runs AddReferencedObjects of the class on an object. */
	void CallAddReferencedObjects(UObject* This, FReferenceCollector& Collector) const;
	/** The class's description in words. */
	FText GetDisplayNameText() const;
	/** The class and its parents say no to placing, editing and so on; always false, interfaces do not exist. */
	bool ImplementsInterface(const UClass* SomeInterface) const
	{
		(void)SomeInterface;
		return false;
	}
	/** The nearest compiled-in class. */
	UClass* GetAuthoritativeClass() { return this; }

	ClassConstructorType ClassConstructor;
	ClassVTableHelperCtorCallerType ClassVTableHelperCtorCaller;
	ClassAddReferencedObjectsType ClassAddReferencedObjects;
	EClassFlags ClassFlags;
	EClassCastFlags ClassCastFlags;
	/** Class that every outer of an object must have. */
	UClass* ClassWithin;
	/** Name of the configuration file without path and extension. */
	FName ClassConfigName;
	UObject* ClassDefaultObject;

protected:
	/** Makes the default object, the parent's first. */
	UObject* CreateDefaultObject();

private:
	friend struct FObjectSystemAccess;
};

/** Runs a class's constructor on the object of an initializer. */
template <class T>
void InternalConstructor(const FObjectInitializer& X)
{
	T::__DefaultConstructor(X);
}

/** Never calls anything: there is no hot reload. */
template <class T>
UObject* InternalVTableHelperCtorCaller(FVTableHelper& Helper)
{
	return T::__VTableCtorCaller(Helper);
}

/** Makes the class object of a compiled-in class; used by IMPLEMENT_CLASS. */
COREUOBJECT_API void GetPrivateStaticClassBody(const TCHAR* PackageName, const TCHAR* Name, UClass*& ReturnClass,
	void (*RegisterNativeFunc)(), uint32 InSize, uint32 InAlignment, EClassFlags InClassFlags, EClassCastFlags InClassCastFlags,
	const TCHAR* InConfigName, UClass::ClassConstructorType InClassConstructor,
	UClass::ClassVTableHelperCtorCallerType InClassVTableHelperCtorCaller,
	UClass::ClassAddReferencedObjectsType InClassAddReferencedObjects, UClass::StaticClassFunctionType InSuperClassFn,
	UClass::StaticClassFunctionType InWithinClassFn, bool bIsDynamic = false);

/** The struct object that Register makes; used by generated code. */
COREUOBJECT_API UScriptStruct* GetStaticStruct(
	UScriptStruct* (*InRegister)(), UObject* StructOuter, const TCHAR* StructName, SIZE_T Size, uint32 Crc);
/** The enumeration object that Register makes; used by generated code. */
COREUOBJECT_API UEnum* GetStaticEnum(UEnum* (*InRegister)(), UObject* EnumOuter, const TCHAR* EnumName);

/** The default object of T's class, for changing. */
template <class T>
inline T* GetMutableDefault()
{
	return (T*)T::StaticClass()->GetDefaultObject();
}
/** The default object of a class, for changing; fatal when it is no T. */
template <class T>
inline T* GetMutableDefault(UClass* Class)
{
	check(Class->GetDefaultObject()->IsA(T::StaticClass()));
	return (T*)Class->GetDefaultObject();
}
/** The default object of T's class. */
template <class T>
inline const T* GetDefault()
{
	return (const T*)T::StaticClass()->GetDefaultObject();
}
/** The default object of a class; fatal when it is no T. */
template <class T>
inline const T* GetDefault(const UClass* Class)
{
	check(Class->GetDefaultObject()->IsA(T::StaticClass()));
	return (const T*)Class->GetDefaultObject();
}
