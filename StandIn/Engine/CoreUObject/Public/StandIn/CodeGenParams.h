// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/ObjectMacros.h"

// The records that generated code describes types with, and the functions that make the types from them; part of
// UObject/UObjectGlobals.h. Left out: sets, maps, soft and lazy references, interfaces, delegates, functions.

class FText;
struct FCppClassTypeInfoStatic;

namespace UE4CodeGen_Private
{
/** Kind of a property. */
enum class EPropertyGenFlags : uint8
{
	Byte = 0x00,
	Int8 = 0x01,
	Int16 = 0x02,
	Int = 0x03,
	Int64 = 0x04,
	UInt16 = 0x05,
	UInt32 = 0x06,
	UInt64 = 0x07,
	Float = 0x0A,
	Double = 0x0B,
	Bool = 0x0C,
	WeakObject = 0x0E,
	Class = 0x11,
	Object = 0x12,
	Name = 0x14,
	Str = 0x15,
	Array = 0x16,
	Struct = 0x19,
	Text = 0x1D,
	Enum = 0x1E,
	/** A whole bool, not a bit; together with Bool. */
	NativeBool = 0x20
};
ENUM_CLASS_FLAGS(EPropertyGenFlags)

/** Where a type comes from. */
enum class EDynamicType
{
	NotDynamic,
	Dynamic
};

#if WITH_METADATA
/** One metadata key and value. */
struct FMetaDataPairParam
{
	const char* NameUTF8;
	const char* ValueUTF8;
};
#endif

/** One enumerator. */
struct FEnumeratorParam
{
	const char* NameUTF8;
	int64 Value;
};

/** What all property records start with. */
struct FPropertyParamsBase
{
	const char* NameUTF8;
	const char* RepNotifyFuncUTF8;
	EPropertyFlags PropertyFlags;
	EPropertyGenFlags Flags;
	EObjectFlags ObjectFlags;
	int32 ArrayDim;
};

/** What the records of all properties but bools start with. */
struct FPropertyParamsBaseWithOffset
{
	const char* NameUTF8;
	const char* RepNotifyFuncUTF8;
	EPropertyFlags PropertyFlags;
	EPropertyGenFlags Flags;
	EObjectFlags ObjectFlags;
	int32 ArrayDim;
	int32 Offset;
};

/** A property without more to say. */
struct FGenericPropertyParams
{
	const char* NameUTF8;
	const char* RepNotifyFuncUTF8;
	EPropertyFlags PropertyFlags;
	EPropertyGenFlags Flags;
	EObjectFlags ObjectFlags;
	int32 ArrayDim;
	int32 Offset;
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** A byte, with its enumeration or null. */
struct FBytePropertyParams
{
	const char* NameUTF8;
	const char* RepNotifyFuncUTF8;
	EPropertyFlags PropertyFlags;
	EPropertyGenFlags Flags;
	EObjectFlags ObjectFlags;
	int32 ArrayDim;
	int32 Offset;
	UEnum* (*EnumFunc)();
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** A bool, whose place is found by setting it. */
struct FBoolPropertyParams
{
	const char* NameUTF8;
	const char* RepNotifyFuncUTF8;
	EPropertyFlags PropertyFlags;
	EPropertyGenFlags Flags;
	EObjectFlags ObjectFlags;
	int32 ArrayDim;
	uint32 ElementSize;
	SIZE_T SizeOfOuter;
	void (*SetBitFunc)(void* Obj);
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** A reference to an object. */
struct FObjectPropertyParams
{
	const char* NameUTF8;
	const char* RepNotifyFuncUTF8;
	EPropertyFlags PropertyFlags;
	EPropertyGenFlags Flags;
	EObjectFlags ObjectFlags;
	int32 ArrayDim;
	int32 Offset;
	UClass* (*ClassFunc)();
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** A reference to a class. */
struct FClassPropertyParams
{
	const char* NameUTF8;
	const char* RepNotifyFuncUTF8;
	EPropertyFlags PropertyFlags;
	EPropertyGenFlags Flags;
	EObjectFlags ObjectFlags;
	int32 ArrayDim;
	int32 Offset;
	UClass* (*MetaClassFunc)();
	UClass* (*ClassFunc)();
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** A struct. */
struct FStructPropertyParams
{
	const char* NameUTF8;
	const char* RepNotifyFuncUTF8;
	EPropertyFlags PropertyFlags;
	EPropertyGenFlags Flags;
	EObjectFlags ObjectFlags;
	int32 ArrayDim;
	int32 Offset;
	UScriptStruct* (*ScriptStructFunc)();
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** An enum class; its integer property stands before it. */
struct FEnumPropertyParams
{
	const char* NameUTF8;
	const char* RepNotifyFuncUTF8;
	EPropertyFlags PropertyFlags;
	EPropertyGenFlags Flags;
	EObjectFlags ObjectFlags;
	int32 ArrayDim;
	int32 Offset;
	UEnum* (*EnumFunc)();
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** An array; its element property stands before it. */
struct FArrayPropertyParams
{
	const char* NameUTF8;
	const char* RepNotifyFuncUTF8;
	EPropertyFlags PropertyFlags;
	EPropertyGenFlags Flags;
	EObjectFlags ObjectFlags;
	int32 ArrayDim;
	int32 Offset;
	EArrayPropertyFlags ArrayFlags;
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

typedef FGenericPropertyParams FInt8PropertyParams;
typedef FGenericPropertyParams FInt16PropertyParams;
typedef FGenericPropertyParams FIntPropertyParams;
typedef FGenericPropertyParams FInt64PropertyParams;
typedef FGenericPropertyParams FFInt16PropertyParams;
typedef FGenericPropertyParams FUInt32PropertyParams;
typedef FGenericPropertyParams FFInt64PropertyParams;
typedef FGenericPropertyParams FUnsizedIntPropertyParams;
typedef FGenericPropertyParams FUnsizedFIntPropertyParams;
typedef FGenericPropertyParams FFloatPropertyParams;
typedef FGenericPropertyParams FDoublePropertyParams;
typedef FGenericPropertyParams FNamePropertyParams;
typedef FGenericPropertyParams FStrPropertyParams;
typedef FGenericPropertyParams FTextPropertyParams;
typedef FObjectPropertyParams FWeakObjectPropertyParams;

/** An enumeration. */
struct FEnumParams
{
	UObject* (*OuterFunc)();
	FText (*DisplayNameFunc)(int32);
	const char* NameUTF8;
	const char* CppTypeUTF8;
	const FEnumeratorParam* EnumeratorParams;
	int32 NumEnumerators;
	EObjectFlags ObjectFlags;
	EEnumFlags EnumFlags;
	EDynamicType DynamicType;
	uint8 CppForm;
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** A struct. */
struct FStructParams
{
	UObject* (*OuterFunc)();
	UScriptStruct* (*SuperFunc)();
	void* (*StructOpsFunc)();
	const char* NameUTF8;
	SIZE_T SizeOf;
	SIZE_T AlignOf;
	const FPropertyParamsBase* const* PropertyArray;
	int32 NumProperties;
	EObjectFlags ObjectFlags;
	uint32 StructFlags;
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** A package of compiled-in types. */
struct FPackageParams
{
	const char* NameUTF8;
	UObject* (*const* SingletonFuncArray)();
	int32 NumSingletons;
	uint32 PackageFlags;
	uint32 BodyCRC;
	uint32 DeclarationsCRC;
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** A function of a class; there are none. */
struct FClassFunctionLinkInfo
{
	void* (*CreateFuncPtr)();
	const char* FuncNameUTF8;
};

/** An interface of a class; there are none. */
struct FImplementedInterfaceParams
{
	UClass* (*ClassFunc)();
	int32 Offset;
	bool bImplementedByK2;
};

/** A class. */
struct FClassParams
{
	UClass* (*ClassNoRegisterFunc)();
	const char* ClassConfigNameUTF8;
	const FCppClassTypeInfoStatic* CppClassInfo;
	UObject* (*const* DependencySingletonFuncArray)();
	const FClassFunctionLinkInfo* FunctionLinkArray;
	const FPropertyParamsBase* const* PropertyArray;
	const FImplementedInterfaceParams* ImplementedInterfaceArray;
	int32 NumDependencySingletons;
	int32 NumFunctions;
	int32 NumProperties;
	int32 NumImplementedInterfaces;
	uint32 ClassFlags;
#if WITH_METADATA
	const FMetaDataPairParam* MetaDataArray;
	int32 NumMetaData;
#endif
};

/** Makes an enumeration. */
COREUOBJECT_API void ConstructUEnum(UEnum*& OutEnum, const FEnumParams& Params);
/** Makes a struct with its properties. */
COREUOBJECT_API void ConstructUScriptStruct(UScriptStruct*& OutStruct, const FStructParams& Params);
/** Makes a package. */
COREUOBJECT_API void ConstructUPackage(UPackage*& OutPackage, const FPackageParams& Params);
/** Completes a class with its parents, flags, properties and metadata. */
COREUOBJECT_API void ConstructUClass(UClass*& OutClass, const FClassParams& Params);
}
