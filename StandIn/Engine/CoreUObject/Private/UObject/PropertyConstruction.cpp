// Copyright The Tintmill authors. All rights reserved.

#include "UObject/PropertyConstruction.h"
#include "HAL/UnrealMemory.h"
#include "StandIn/FatalHandler.h"
#include "UObject/UnrealType.h"

namespace StandInPrivate
{
namespace
{
#if WITH_METADATA
void AddFieldMetaData(FProperty* Property, const UE4CodeGen_Private::FMetaDataPairParam* MetaData, int32 Count)
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Property->SetMetaData(FName(UTF8_TO_TCHAR(MetaData[Index].NameUTF8)), FString(UTF8_TO_TCHAR(MetaData[Index].ValueUTF8)));
	}
}
#endif

// Finds a bool's byte and bit by setting it in an empty object.
FBoolProperty* MakeBool(FFieldVariant Owner, FName Name, const UE4CodeGen_Private::FBoolPropertyParams& Params)
{
	int32 Offset = 0;
	uint8 Mask = 0xff;
	const bool bNative =
		(Params.Flags & UE4CodeGen_Private::EPropertyGenFlags::NativeBool) == UE4CodeGen_Private::EPropertyGenFlags::NativeBool;
	if (Params.SetBitFunc != nullptr && Params.SizeOfOuter > 0)
	{
		uint8* Memory = (uint8*)FMemory::Malloc(Params.SizeOfOuter);
		FMemory::Memzero(Memory, Params.SizeOfOuter);
		Params.SetBitFunc(Memory);
		while (SIZE_T(Offset) < Params.SizeOfOuter && Memory[Offset] == 0)
		{
			++Offset;
		}
		check(SIZE_T(Offset) < Params.SizeOfOuter);
		Mask = bNative ? uint8(0xff) : Memory[Offset];
		FMemory::Free(Memory);
	}
	return new FBoolProperty(Owner, Name, Params.ObjectFlags, Offset, Params.PropertyFlags, Mask, Params.ElementSize, bNative);
}

template <typename PropertyType>
void MakePlain(FFieldVariant Owner, FName Name, const UE4CodeGen_Private::FPropertyParamsBase* Base, FProperty*& OutMade)
{
	const auto& Params = *(const UE4CodeGen_Private::FGenericPropertyParams*)Base;
	OutMade = new PropertyType(Owner, Name, Params.ObjectFlags, Params.Offset, Params.PropertyFlags);
#if WITH_METADATA
	AddFieldMetaData(OutMade, Params.MetaDataArray, Params.NumMetaData);
#endif
}

template <typename ParamsType>
FProperty* Finish(FProperty* Property, const ParamsType& Params)
{
#if WITH_METADATA
	AddFieldMetaData(Property, Params.MetaDataArray, Params.NumMetaData);
#else
	(void)Params;
#endif
	return Property;
}

// Makes the property of the record at the cursor, which counts down, and those that belong to it.
FProperty* MakeProperty(FFieldVariant Owner, const UE4CodeGen_Private::FPropertyParamsBase* const*& Cursor, int32& Remaining)
{
	using namespace UE4CodeGen_Private;
	check(Remaining > 0);
	const FPropertyParamsBase* Base = *--Cursor;
	--Remaining;
	const FName Name(UTF8_TO_TCHAR(Base->NameUTF8));
	const EPropertyGenFlags Kind = EPropertyGenFlags(uint8(Base->Flags) & 0x1f);
	FProperty* Made = nullptr;
	int32 NumInner = 0;
	switch (Kind)
	{
	case EPropertyGenFlags::Byte:
	{
		const FBytePropertyParams& Params = *(const FBytePropertyParams*)Base;
		Made = Finish(new FByteProperty(Owner, Name, Params.ObjectFlags, Params.Offset, Params.PropertyFlags,
						  Params.EnumFunc != nullptr ? Params.EnumFunc() : nullptr),
			Params);
		break;
	}
	case EPropertyGenFlags::Int8:
		MakePlain<FInt8Property>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::Int16:
		MakePlain<FInt16Property>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::Int:
		MakePlain<FIntProperty>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::Int64:
		MakePlain<FInt64Property>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::UInt16:
		MakePlain<FUInt16Property>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::UInt32:
		MakePlain<FUInt32Property>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::UInt64:
		MakePlain<FUInt64Property>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::Float:
		MakePlain<FFloatProperty>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::Double:
		MakePlain<FDoubleProperty>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::Name:
		MakePlain<FNameProperty>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::Str:
		MakePlain<FStrProperty>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::Text:
		MakePlain<FTextProperty>(Owner, Name, Base, Made);
		break;
	case EPropertyGenFlags::Bool:
	{
		const FBoolPropertyParams& Params = *(const FBoolPropertyParams*)Base;
		Made = Finish(MakeBool(Owner, Name, Params), Params);
		break;
	}
	case EPropertyGenFlags::Object:
	{
		const FObjectPropertyParams& Params = *(const FObjectPropertyParams*)Base;
		Made =
			Finish(new FObjectProperty(Owner, Name, Params.ObjectFlags, Params.Offset, Params.PropertyFlags, Params.ClassFunc()), Params);
		break;
	}
	case EPropertyGenFlags::WeakObject:
	{
		const FWeakObjectPropertyParams& Params = *(const FWeakObjectPropertyParams*)Base;
		Made = Finish(
			new FWeakObjectProperty(Owner, Name, Params.ObjectFlags, Params.Offset, Params.PropertyFlags, Params.ClassFunc()), Params);
		break;
	}
	case EPropertyGenFlags::Class:
	{
		const FClassPropertyParams& Params = *(const FClassPropertyParams*)Base;
		Made = Finish(new FClassProperty(Owner, Name, Params.ObjectFlags, Params.Offset, Params.PropertyFlags,
						  Params.MetaClassFunc != nullptr ? Params.MetaClassFunc() : UObject::StaticClass(), Params.ClassFunc()),
			Params);
		break;
	}
	case EPropertyGenFlags::Struct:
	{
		const FStructPropertyParams& Params = *(const FStructPropertyParams*)Base;
		Made = Finish(
			new FStructProperty(Owner, Name, Params.ObjectFlags, Params.Offset, Params.PropertyFlags, Params.ScriptStructFunc()), Params);
		break;
	}
	case EPropertyGenFlags::Enum:
	{
		const FEnumPropertyParams& Params = *(const FEnumPropertyParams*)Base;
		Made = Finish(new FEnumProperty(Owner, Name, Params.ObjectFlags, Params.Offset, Params.PropertyFlags, Params.EnumFunc()), Params);
		NumInner = 1;
		break;
	}
	case EPropertyGenFlags::Array:
	{
		const FArrayPropertyParams& Params = *(const FArrayPropertyParams*)Base;
		Made = Finish(new FArrayProperty(Owner, Name, Params.ObjectFlags, Params.Offset, Params.PropertyFlags), Params);
		NumInner = 1;
		break;
	}
	default:
		STANDIN_MISSING(*FString::Printf(TEXT("property kind %d of %s"), int32(Kind), *Name.ToString()));
	}
	Made->ArrayDim = Base->ArrayDim;
	for (; NumInner > 0; --NumInner)
	{
		Made->AddCppProperty(MakeProperty(FFieldVariant(Made), Cursor, Remaining));
	}
	return Made;
}
}

void ConstructProperties(UStruct* Outer, const UE4CodeGen_Private::FPropertyParamsBase* const* Properties, int32 NumProperties)
{
	// Owners follow what belongs to them, so the records are read from the last to the first.
	const UE4CodeGen_Private::FPropertyParamsBase* const* Cursor = Properties + NumProperties;
	FField* First = nullptr;
	while (NumProperties > 0)
	{
		FProperty* Property = MakeProperty(FFieldVariant(Outer), Cursor, NumProperties);
		Property->Next = First;
		First = Property;
	}
	Outer->ChildProperties = First;
}
}
