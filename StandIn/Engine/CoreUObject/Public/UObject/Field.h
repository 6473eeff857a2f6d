// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

// Fields: the properties of structs and classes, which are not objects. Left out: field paths, serialisation, duplication.

class FField;
class FFieldClass;
class UField;

/** The kind of a field. */
class COREUOBJECT_API FFieldClass
{
public:
	/** A kind with its cast bits and parent; the name is without prefix. */
	FFieldClass(const TCHAR* InName, uint64 InCastFlags, FFieldClass* InSuperClass);

	FString GetName() const { return Name.ToString(); }
	FName GetFName() const { return Name; }
	uint64 GetCastFlags() const { return CastFlags; }
	bool HasAnyCastFlags(uint64 InCastFlags) const { return (CastFlags & InCastFlags) != 0; }
	bool IsChildOf(const FFieldClass* InClass) const;
	FFieldClass* GetSuperClass() const { return SuperClass; }

private:
	FName Name;
	uint64 CastFlags;
	FFieldClass* SuperClass;
};

/** Owner of a field: an object (class, struct, enumeration) or another field (array, enumeration property). */
class FFieldVariant
{
public:
	FFieldVariant()
		: Field(nullptr)
		, Object(nullptr)
	{}
	FFieldVariant(FField* InField)
		: Field(InField)
		, Object(nullptr)
	{}
	FFieldVariant(UObject* InObject)
		: Field(nullptr)
		, Object(InObject)
	{}
	bool IsUObject() const { return Object != nullptr; }
	bool IsValid() const { return Field != nullptr || Object != nullptr; }
	FField* ToField() const { return Field; }
	UObject* ToUObject() const { return Object; }

private:
	FField* Field;
	UObject* Object;
};

/** Declares a field kind's accessors. */
#define DECLARE_FIELD(TClass, TSuperClass, TStaticCastFlags) \
public: \
	typedef TSuperClass Super; \
	typedef TClass ThisClass; \
	/** The kind. */ \
	static FFieldClass* StaticClass(); \
	static uint64 StaticClassCastFlagsPrivate() \
	{ \
		return uint64(TStaticCastFlags); \
	} \
	static uint64 StaticClassCastFlags() \
	{ \
		return uint64(TStaticCastFlags) | Super::StaticClassCastFlags(); \
	}

/** Defines what DECLARE_FIELD declares. */
#define IMPLEMENT_FIELD(TClass) \
	FFieldClass* TClass::StaticClass() \
	{ \
		static FFieldClass StaticFieldClass(&TEXT(#TClass)[1], TClass::StaticClassCastFlags(), TClass::Super::StaticClass()); \
		return &StaticFieldClass; \
	}

/** Base of all fields. */
class COREUOBJECT_API FField
{
public:
	typedef FField ThisClass;
	static FFieldClass* StaticClass();
	static uint64 StaticClassCastFlagsPrivate() { return 0; }
	static uint64 StaticClassCastFlags() { return 0; }

	FField(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, FFieldClass* InClass);
	virtual ~FField();
	FField(const FField&) = delete;
	FField& operator=(const FField&) = delete;

	FFieldClass* GetClass() const { return ClassPrivate; }
	uint64 GetCastFlags() const { return ClassPrivate->GetCastFlags(); }
	bool IsA(const FFieldClass* FieldType) const { return ClassPrivate->IsChildOf(FieldType); }
	template <typename T>
	bool IsA() const
	{
		return ClassPrivate->HasAnyCastFlags(T::StaticClassCastFlagsPrivate());
	}
	bool HasAnyCastFlags(uint64 InCastFlags) const { return ClassPrivate->HasAnyCastFlags(InCastFlags); }

	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	FString GetFullName() const;
	EObjectFlags GetFlags() const { return FlagsPrivate; }
	FFieldVariant GetOwnerVariant() const { return Owner; }
	/** The object that owns the outermost field. */
	UObject* GetOwnerUObject() const;
	/** The owner as a class, or null. */
	UClass* GetOwnerClass() const;
	/** The owner as a struct (or class); null when a field owns this one. */
	UStruct* GetOwnerStruct() const;

	/** Metadata value of a key, or "". */
	const FString& GetMetaData(const TCHAR* Key) const;
	const FString& GetMetaData(const FName& Key) const;
	/** Metadata value of a key, or null. */
	const FString* FindMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const FName& Key) const;
	bool HasMetaData(const TCHAR* Key) const { return FindMetaData(Key) != nullptr; }
	bool HasMetaData(const FName& Key) const { return FindMetaData(Key) != nullptr; }
	/** True for a key with value "true" or with no value. */
	bool GetBoolMetaData(const TCHAR* Key) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue);
	void SetMetaData(const FName& Key, const FString& InValue);
	/** All metadata in the order of its declaration, or null when there is none. */
	const TMap<FName, FString>* GetMetaDataMap() const { return MetaDataMap; }

	FFieldVariant Owner;
	FField* Next;
	FName NamePrivate;
	EObjectFlags FlagsPrivate;

private:
	FFieldClass* ClassPrivate;
	TMap<FName, FString>* MetaDataMap;
};

/** The field as a kind, or null. */
template <typename FieldType>
FORCEINLINE FieldType* CastField(FField* Src)
{
	return Src && Src->HasAnyCastFlags(FieldType::StaticClassCastFlagsPrivate()) ? static_cast<FieldType*>(Src) : nullptr;
}
/** The field as a kind, or null. */
template <typename FieldType>
FORCEINLINE const FieldType* CastField(const FField* Src)
{
	return Src && Src->HasAnyCastFlags(FieldType::StaticClassCastFlagsPrivate()) ? static_cast<const FieldType*>(Src) : nullptr;
}
/** The field as a kind; fatal when it is another. */
template <typename FieldType>
FORCEINLINE FieldType* CastFieldChecked(FField* Src)
{
	FieldType* CastResult = CastField<FieldType>(Src);
	check(CastResult);
	return CastResult;
}
/** The field as a kind; fatal when it is another. */
template <typename FieldType>
FORCEINLINE const FieldType* CastFieldChecked(const FField* Src)
{
	const FieldType* CastResult = CastField<FieldType>(Src);
	check(CastResult);
	return CastResult;
}
