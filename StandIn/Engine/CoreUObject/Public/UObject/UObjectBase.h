// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

// The root of all objects: class, name, outer, flags, place in the object array; and the registration of compiled-in types.
// Differs from the engine: a compiled-in type is forgotten when its registration object is destroyed (its library is unmapped).
// Left out: dynamic (generated C++) types, statistics, linkers, external packages.

class UObject;
class UClass;
class UPackage;

/** True from the object system's start to its tear-down. */
COREUOBJECT_API bool UObjectInitialized();

/** Root of all objects. */
class COREUOBJECT_API UObjectBase
{
protected:
	/** Takes class, name, outer and flags from the object initializer in progress; fatal without one. */
	UObjectBase();
	/** For type objects that are made by static data of a binary. */
	explicit UObjectBase(EObjectFlags InFlags);
	explicit UObjectBase(FVTableHelper& Helper);

public:
	virtual ~UObjectBase();

	/** Place in the object array, reused after the object's destruction. */
	FORCEINLINE uint32 GetUniqueID() const { return uint32(InternalIndex); }
	FORCEINLINE UClass* GetClass() const { return ClassPrivate; }
	FORCEINLINE UObject* GetOuter() const { return OuterPrivate; }
	FORCEINLINE FName GetFName() const { return NamePrivate; }
	FORCEINLINE EObjectFlags GetFlags() const { return ObjectFlags; }
	/** Says whether the object is in the object array and has a class. */
	bool IsValidLowLevel() const;
	/** Says the same as IsValidLowLevel. */
	bool IsValidLowLevelFast(bool bRecursive = true) const;

	/** Compiled-in types: puts the object under its package and name. */
	void Register(const TCHAR* PackageName, const TCHAR* Name);

protected:
	FORCEINLINE void SetFlagsTo(EObjectFlags NewFlags) { ObjectFlags = NewFlags; }

private:
	EObjectFlags ObjectFlags;
	int32 InternalIndex;
	UClass* ClassPrivate;
	FName NamePrivate;
	UObject* OuterPrivate;

	friend struct FObjectSystemAccess;
};

/** Announces a class that a binary compiled in, by the size and checksum of its declaration. */
struct COREUOBJECT_API FFieldCompiledInInfo
{
	FFieldCompiledInInfo(SIZE_T InClassSize, uint32 InCrc)
		: Size(InClassSize)
		, Crc(InCrc)
	{}
	virtual ~FFieldCompiledInInfo() {}
	/** Makes the class object. */
	virtual UClass* Register() const = 0;
	/** Package of the class, "/Script/Module". */
	virtual const TCHAR* ClassPackage() const = 0;

	SIZE_T Size;
	uint32 Crc;
};

/** Queues a class until the newly loaded types are processed. */
COREUOBJECT_API void UClassCompiledInDefer(FFieldCompiledInInfo* Class, const TCHAR* Name, SIZE_T ClassSize, uint32 Crc);
/** Forgets a queued class. */
COREUOBJECT_API void UClassCompiledInForget(FFieldCompiledInInfo* Class);

/** Static registration object of a class, made by IMPLEMENT_CLASS. */
template <typename TClass>
struct TClassCompiledInDefer : public FFieldCompiledInInfo
{
	TClassCompiledInDefer(const TCHAR* InName, SIZE_T InClassSize, uint32 InCrc)
		: FFieldCompiledInInfo(InClassSize, InCrc)
	{
		UClassCompiledInDefer(this, InName, InClassSize, InCrc);
	}
	virtual ~TClassCompiledInDefer() { UClassCompiledInForget(this); }
	virtual UClass* Register() const override { return TClass::StaticClass(); }
	virtual const TCHAR* ClassPackage() const override { return TClass::StaticPackage(); }
};

/** Queues a class's construct function until the newly loaded types are processed. */
COREUOBJECT_API void UObjectCompiledInDefer(UClass* (*InRegister)(), UClass* (*InStaticClass)(), const TCHAR* Name,
	const TCHAR* PackageName, bool bDynamic, const TCHAR* DynamicPathName, void (*InInitSearchableValues)(TMap<FName, FName>&));
/** Queues a struct's construct function until the newly loaded types are processed. */
COREUOBJECT_API void UObjectCompiledInDeferStruct(
	UScriptStruct* (*InRegister)(), const TCHAR* PackageName, const TCHAR* ObjectName, bool bDynamic, const TCHAR* DynamicPathName);
/** Queues an enumeration's construct function until the newly loaded types are processed. */
COREUOBJECT_API void UObjectCompiledInDeferEnum(
	UEnum* (*InRegister)(), const TCHAR* PackageName, const TCHAR* ObjectName, bool bDynamic, const TCHAR* DynamicPathName);
/** Drops a package's compiled-in types, their objects and registrations: its binary is going away. */
COREUOBJECT_API void UObjectCompiledInForget(const TCHAR* PackageName);

/** Static registration object of a class's construct function. */
struct FCompiledInDefer
{
	FCompiledInDefer(UClass* (*InRegister)(), UClass* (*InStaticClass)(), const TCHAR* PackageName, const TCHAR* Name, bool bDynamic,
		const TCHAR* DynamicPackageName = nullptr, const TCHAR* DynamicPathName = nullptr,
		void (*InInitSearchableValues)(TMap<FName, FName>&) = nullptr)
		: Package(PackageName)
	{
		(void)DynamicPackageName;
		UObjectCompiledInDefer(InRegister, InStaticClass, Name, PackageName, bDynamic, DynamicPathName, InInitSearchableValues);
	}
	~FCompiledInDefer() { UObjectCompiledInForget(Package); }

private:
	const TCHAR* Package;
};

/** Static registration object of a struct. */
struct FCompiledInDeferStruct
{
	FCompiledInDeferStruct(UScriptStruct* (*InRegister)(), const TCHAR* PackageName, const TCHAR* ObjectName, bool bDynamic,
		const TCHAR* DynamicPackageName, const TCHAR* DynamicPathName)
		: Package(PackageName)
	{
		(void)DynamicPackageName;
		UObjectCompiledInDeferStruct(InRegister, PackageName, ObjectName, bDynamic, DynamicPathName);
	}
	~FCompiledInDeferStruct() { UObjectCompiledInForget(Package); }

private:
	const TCHAR* Package;
};

/** Static registration object of an enumeration. */
struct FCompiledInDeferEnum
{
	FCompiledInDeferEnum(UEnum* (*InRegister)(), const TCHAR* PackageName, const TCHAR* ObjectName, bool bDynamic,
		const TCHAR* DynamicPackageName, const TCHAR* DynamicPathName)
		: Package(PackageName)
	{
		(void)DynamicPackageName;
		UObjectCompiledInDeferEnum(InRegister, PackageName, ObjectName, bDynamic, DynamicPathName);
	}
	~FCompiledInDeferEnum() { UObjectCompiledInForget(Package); }

private:
	const TCHAR* Package;
};

/** Constructs all types that binaries queued since the last call, makes their default objects and loads their configuration. */
COREUOBJECT_API void ProcessNewlyLoadedUObjects(FName Package = NAME_None, bool bCanProcessNewlyLoadedObjects = true);
