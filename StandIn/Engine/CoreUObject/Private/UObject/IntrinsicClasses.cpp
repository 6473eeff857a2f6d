// Copyright The Tintmill authors. All rights reserved.

#include "UObject/Class.h"
#include "UObject/MetaData.h"
#include "UObject/NativeTypes.h"
#include "UObject/Package.h"

// Construct functions of the object system's own classes, for generated code that names them.

namespace StandInPrivate
{
namespace
{
UClass* FinishIntrinsicClass(UClass* Class)
{
	if (!Class->HasAnyClassFlags(CLASS_Constructed))
	{
		Class->ClassFlags |= CLASS_Constructed | CLASS_MatchedSerializers;
		Class->StaticLink();
	}
	return Class;
}
}
}

#define STANDIN_INTRINSIC_CLASS(TClass) \
	COREUOBJECT_API UClass* Z_Construct_UClass_##TClass##_NoRegister(); \
	UClass* Z_Construct_UClass_##TClass##_NoRegister() \
	{ \
		return TClass::StaticClass(); \
	} \
	COREUOBJECT_API UClass* Z_Construct_UClass_##TClass(); \
	UClass* Z_Construct_UClass_##TClass() \
	{ \
		return StandInPrivate::FinishIntrinsicClass(TClass::StaticClass()); \
	} \
	static FCompiledInDefer Z_CompiledInDefer_UClass_##TClass( \
		Z_Construct_UClass_##TClass, &TClass::StaticClass, TEXT("/Script/CoreUObject"), TEXT(#TClass), false);

UPackage* Z_Construct_UPackage__Script_CoreUObject();
UPackage* Z_Construct_UPackage__Script_CoreUObject()
{
	return StandInPrivate::FindOrAddNativePackage(TEXT("/Script/CoreUObject"));
}

STANDIN_INTRINSIC_CLASS(UObject)
STANDIN_INTRINSIC_CLASS(UField)
STANDIN_INTRINSIC_CLASS(UStruct)
STANDIN_INTRINSIC_CLASS(UScriptStruct)
STANDIN_INTRINSIC_CLASS(UEnum)
STANDIN_INTRINSIC_CLASS(UClass)
STANDIN_INTRINSIC_CLASS(UPackage)
STANDIN_INTRINSIC_CLASS(UMetaData)
