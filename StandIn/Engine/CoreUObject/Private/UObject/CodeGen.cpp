// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/CodeGenParams.h"
#include "UObject/Class.h"
#include "UObject/MetaData.h"
#include "UObject/NativeTypes.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/Package.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/UnrealType.h"

// Makes types from the records of generated code.

namespace StandInPrivate
{
namespace
{
// Makes a type object of a class in a module's package.
UObject* MakeType(UClass* TypeClass, UObject* Outer, const char* NameUTF8, EObjectFlags Flags)
{
	FStaticConstructObjectParameters Params(TypeClass);
	Params.Outer = Outer;
	Params.Name = FName(UTF8_TO_TCHAR(NameUTF8));
	Params.SetFlags = Flags;
	UObject* Type = StaticConstructObject_Internal(Params);
	AddNativeType(Type, Outer->GetName(), Type->GetName());
	return Type;
}

#if WITH_METADATA
void AddTypeMetaData(UField* Type, const UE4CodeGen_Private::FMetaDataPairParam* MetaData, int32 Count)
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		FObjectSystemAccess::TypeMetaData(Type).Add(
			FName(UTF8_TO_TCHAR(MetaData[Index].NameUTF8)), FString(UTF8_TO_TCHAR(MetaData[Index].ValueUTF8)));
	}
}
#endif
}
}

namespace UE4CodeGen_Private
{
void ConstructUEnum(UEnum*& OutEnum, const FEnumParams& Params)
{
	checkf(Params.DynamicType == EDynamicType::NotDynamic && Params.DisplayNameFunc == nullptr,
		TEXT("not in this stand-in: dynamic types and display name functions"));
	UObject* Outer = Params.OuterFunc();
	if (OutEnum != nullptr)
	{
		return;
	}
	UEnum* Enum = (UEnum*)StandInPrivate::MakeType(UEnum::StaticClass(), Outer, Params.NameUTF8, Params.ObjectFlags);
	OutEnum = Enum;
	TArray<TPair<FName, int64>> Names;
	for (int32 Index = 0; Index < Params.NumEnumerators; ++Index)
	{
		const FEnumeratorParam& Enumerator = Params.EnumeratorParams[Index];
		Names.Add(TPair<FName, int64>(FName(UTF8_TO_TCHAR(Enumerator.NameUTF8)), Enumerator.Value));
	}
	Enum->SetEnums(Names, UEnum::ECppForm(Params.CppForm), Params.EnumFlags);
	Enum->CppType = UTF8_TO_TCHAR(Params.CppTypeUTF8);
#if WITH_METADATA
	StandInPrivate::AddTypeMetaData(Enum, Params.MetaDataArray, Params.NumMetaData);
#endif
}

void ConstructUScriptStruct(UScriptStruct*& OutStruct, const FStructParams& Params)
{
	UObject* Outer = Params.OuterFunc();
	UScriptStruct* Super = Params.SuperFunc != nullptr ? Params.SuperFunc() : nullptr;
	if (OutStruct != nullptr)
	{
		return;
	}
	UScriptStruct* Struct =
		(UScriptStruct*)StandInPrivate::MakeType(UScriptStruct::StaticClass(), Outer, Params.NameUTF8, Params.ObjectFlags);
	OutStruct = Struct;
	Struct->PropertiesSize = int32(Params.SizeOf);
	Struct->MinAlignment = int32(Params.AlignOf);
	Struct->StructFlags = EStructFlags(Params.StructFlags);
	Struct->SetSuperStruct(Super);
	UScriptStruct::ICppStructOps* Ops = (UScriptStruct::ICppStructOps*)Params.StructOpsFunc();
	FObjectSystemAccess::SetStructOps(Struct, Ops);
	checkf(SIZE_T(Ops->GetSize()) == Params.SizeOf && SIZE_T(Ops->GetAlignment()) == Params.AlignOf,
		TEXT("Generated code of struct %s does not fit its declaration."), *Struct->GetName());
	const auto AddFlag = [Struct](bool bSet, EStructFlags Flag) {
		Struct->StructFlags = EStructFlags(Struct->StructFlags | (bSet ? Flag : STRUCT_NoFlags));
	};
	AddFlag(true, STRUCT_CopyNative);
	AddFlag(Ops->HasIdentical(), STRUCT_IdenticalNative);
	AddFlag(Ops->IsPlainOldData(), STRUCT_IsPlainOldData);
	AddFlag(!Ops->HasDestructor(), STRUCT_NoDestructor);
	AddFlag(Ops->HasZeroConstructor() || Ops->IsPlainOldData(), STRUCT_ZeroConstructor);
	AddFlag(Ops->HasAddStructReferencedObjects(), STRUCT_AddStructReferencedObjects);
	StandInPrivate::ConstructProperties(Struct, Params.PropertyArray, Params.NumProperties);
	Struct->StaticLink();
#if WITH_METADATA
	StandInPrivate::AddTypeMetaData(Struct, Params.MetaDataArray, Params.NumMetaData);
#endif
}

void ConstructUPackage(UPackage*& OutPackage, const FPackageParams& Params)
{
	if (OutPackage != nullptr)
	{
		return;
	}
	UPackage* Package = StandInPrivate::FindOrAddNativePackage(UTF8_TO_TCHAR(Params.NameUTF8));
	OutPackage = Package;
	Package->SetPackageFlags(Params.PackageFlags);
	FObjectSystemAccess::SetPackageChecksums(Package, Params.BodyCRC, Params.DeclarationsCRC);
	for (int32 Index = 0; Index < Params.NumSingletons; ++Index)
	{
		Params.SingletonFuncArray[Index]();
	}
}

void ConstructUClass(UClass*& OutClass, const FClassParams& Params)
{
	if (OutClass != nullptr && (OutClass->ClassFlags & CLASS_Constructed))
	{
		return;
	}
	for (int32 Index = 0; Index < Params.NumDependencySingletons; ++Index)
	{
		Params.DependencySingletonFuncArray[Index]();
	}
	UClass* Class = Params.ClassNoRegisterFunc();
	OutClass = Class;
	if (Class->ClassFlags & CLASS_Constructed)
	{
		return;
	}
	checkf(Params.NumFunctions == 0 && Params.NumImplementedInterfaces == 0, TEXT("not in this stand-in: functions and interfaces of %s"),
		*Class->GetName());
	checkf(
		(Params.ClassFlags & CLASS_PerObjectConfig) == 0, TEXT("not in this stand-in: per-object configuration of %s"), *Class->GetName());
	Class->ClassFlags |= EClassFlags(Params.ClassFlags | CLASS_Constructed);
	if (Class->GetSuperClass() != nullptr)
	{
		Class->ClassFlags |= EClassFlags(Class->GetSuperClass()->ClassFlags & CLASS_Inherit);
	}
	if (Params.ClassConfigNameUTF8 != nullptr)
	{
		Class->ClassConfigName = FName(UTF8_TO_TCHAR(Params.ClassConfigNameUTF8));
	}
	StandInPrivate::ConstructProperties(Class, Params.PropertyArray, Params.NumProperties);
	Class->StaticLink();
#if WITH_METADATA
	StandInPrivate::AddTypeMetaData(Class, Params.MetaDataArray, Params.NumMetaData);
#endif
}
}
