// Copyright The Tintmill authors. All rights reserved.

#include "UObject/Class.h"
#include "HAL/UnrealMemory.h"
#include "Misc/ConfigCacheIni.h"
#include "UObject/NativeTypes.h"
#include "UObject/ObjectConstruction.h"
#include "UObject/ObjectSystemAccess.h"

#include <new>

IMPLEMENT_CLASS(UClass, 0)

void UClass::__DefaultConstructor(const FObjectInitializer& X)
{
	new ((EInternal*)X.GetObj()) UClass(X);
}

UClass::UClass(EStaticConstructor, int32 InSize, int32 InAlignment, EClassFlags InClassFlags, EClassCastFlags InClassCastFlags,
	const TCHAR* InClassConfigName, EObjectFlags InFlags, ClassConstructorType InClassConstructor,
	ClassVTableHelperCtorCallerType InClassVTableHelperCtorCaller, ClassAddReferencedObjectsType InClassAddReferencedObjects)
	: UStruct(EC_StaticConstructor, InSize, InAlignment, InFlags)
	, ClassConstructor(InClassConstructor)
	, ClassVTableHelperCtorCaller(InClassVTableHelperCtorCaller)
	, ClassAddReferencedObjects(InClassAddReferencedObjects)
	, ClassFlags(InClassFlags | CLASS_Native)
	, ClassCastFlags(InClassCastFlags)
	, ClassWithin(nullptr)
	, ClassConfigName(InClassConfigName)
	, ClassDefaultObject(nullptr)
{}

UClass::UClass(const FObjectInitializer& ObjectInitializer)
	: UStruct(ObjectInitializer)
	, ClassConstructor(nullptr)
	, ClassVTableHelperCtorCaller(nullptr)
	, ClassAddReferencedObjects(nullptr)
	, ClassFlags(CLASS_None)
	, ClassCastFlags(CASTCLASS_None)
	, ClassWithin(UObject::StaticClass())
	, ClassDefaultObject(nullptr)
{
	checkf(ObjectInitializer.GetObj()->HasAnyFlags(RF_ClassDefaultObject), TEXT("not in this stand-in: classes made at run time"));
}

void UClass::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(((UClass*)InThis)->ClassDefaultObject, InThis);
	Super::AddReferencedObjects(InThis, Collector);
}

void UClass::SetSuperStruct(UStruct* NewSuperStruct)
{
	Super::SetSuperStruct(NewSuperStruct);
	if (NewSuperStruct != nullptr)
	{
		const UClass* SuperClass = (UClass*)NewSuperStruct;
		ClassFlags |= EClassFlags(SuperClass->ClassFlags & CLASS_Inherit);
		ClassCastFlags = ClassCastFlags | SuperClass->ClassCastFlags;
	}
}

FName UClass::GetDefaultObjectName() const
{
	return FName(*(FString(TEXT("Default__")) + GetName()));
}

UObject* UClass::CreateDefaultObject()
{
	if (ClassDefaultObject != nullptr)
	{
		return ClassDefaultObject;
	}
	UE_CLOG(!UObjectInitialized() || !StandInPrivate::IsAwake(this), LogClass, Fatal,
		TEXT("The default object of class %s was asked for while %s."), *GetName(),
		UObjectInitialized() ? TEXT("its module is not loaded") : TEXT("the object system is not running"));
	StandInPrivate::CheckParentsAreAwake(this);
	UObject* ParentDefaultObject = GetSuperClass() != nullptr ? GetSuperClass()->GetDefaultObject() : nullptr;
	// Making the parent's default object may have made this one.
	if (ClassDefaultObject == nullptr)
	{
		UObject* Memory = StandInPrivate::AllocateObject(this, GetOuter(), GetDefaultObjectName(),
			RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject | RF_NeedInitialization, EInternalObjectFlags::None);
		ClassDefaultObject = Memory;
		(*ClassConstructor)(FObjectInitializer(Memory, ParentDefaultObject, false, false));
	}
	return ClassDefaultObject;
}

const FString UClass::GetConfigName() const
{
	struct FKnownIni
	{
		const TCHAR* Name;
		const FString& FileName;
	};
	const FKnownIni KnownInis[] = {{TEXT("Engine"), GEngineIni}, {TEXT("Editor"), GEditorIni}, {TEXT("Input"), GInputIni},
		{TEXT("Game"), GGameIni}, {TEXT("EditorSettings"), GEditorSettingsIni}, {TEXT("EditorLayout"), GEditorLayoutIni},
		{TEXT("EditorKeyBindings"), GEditorKeyBindingsIni}, {TEXT("GameUserSettings"), GGameUserSettingsIni},
		{TEXT("EditorPerProjectUserSettings"), GEditorPerProjectIni}};
	for (const FKnownIni& KnownIni : KnownInis)
	{
		if (ClassConfigName == FName(KnownIni.Name))
		{
			return KnownIni.FileName;
		}
	}
	UE_CLOG(ClassConfigName.IsNone(), LogClass, Fatal,
		TEXT("UObject::GetConfigName() called on class with config name 'None'. Class flags = 0x%08X"), uint32(ClassFlags));
	FString FileName;
	FConfigCacheIni::LoadGlobalIniFile(FileName, *ClassConfigName.ToString());
	return FileName;
}

void UClass::CallAddReferencedObjects(UObject* This, FReferenceCollector& Collector) const
{
	check(This->IsA(this));
	ClassAddReferencedObjects(This, Collector);
}

FText UClass::GetDisplayNameText() const
{
	const FString* DisplayName = FindMetaData(TEXT("DisplayName"));
	return FText::FromString(DisplayName != nullptr ? *DisplayName : GetName());
}

void GetPrivateStaticClassBody(const TCHAR* PackageName, const TCHAR* Name, UClass*& ReturnClass, void (*RegisterNativeFunc)(),
	uint32 InSize, uint32 InAlignment, EClassFlags InClassFlags, EClassCastFlags InClassCastFlags, const TCHAR* InConfigName,
	UClass::ClassConstructorType InClassConstructor, UClass::ClassVTableHelperCtorCallerType InClassVTableHelperCtorCaller,
	UClass::ClassAddReferencedObjectsType InClassAddReferencedObjects, UClass::StaticClassFunctionType InSuperClassFn,
	UClass::StaticClassFunctionType InWithinClassFn, bool bIsDynamic)
{
	checkf(!bIsDynamic, TEXT("not in this stand-in: dynamic types"));
	void* Memory = FMemory::Malloc(sizeof(UClass));
	FMemory::Memzero(Memory, sizeof(UClass));
	ReturnClass = ::new (Memory) UClass(EC_StaticConstructor, int32(InSize), int32(InAlignment), InClassFlags, InClassCastFlags,
		InConfigName, RF_Public | RF_Standalone | RF_Transient | RF_MarkAsNative | RF_MarkAsRootSet, InClassConstructor,
		InClassVTableHelperCtorCaller, InClassAddReferencedObjects);
	UClass* SuperClass = InSuperClassFn();
	if (SuperClass != ReturnClass)
	{
		ReturnClass->SetSuperStruct(SuperClass);
	}
	ReturnClass->ClassWithin = InWithinClassFn();
	ReturnClass->Register(PackageName, Name);
	RegisterNativeFunc();
}

UScriptStruct* GetStaticStruct(UScriptStruct* (*InRegister)(), UObject* StructOuter, const TCHAR* StructName, SIZE_T Size, uint32 Crc)
{
	(void)Crc;
	UScriptStruct* Struct = InRegister();
	checkf(Struct->GetOuter() == StructOuter && Struct->GetFName() == FName(StructName) && SIZE_T(Struct->GetPropertiesSize()) == Size,
		TEXT("Generated code of struct %s does not fit its declaration."), StructName);
	return Struct;
}

UEnum* GetStaticEnum(UEnum* (*InRegister)(), UObject* EnumOuter, const TCHAR* EnumName)
{
	UEnum* Enum = InRegister();
	checkf(Enum->GetOuter() == EnumOuter && Enum->GetFName() == FName(EnumName),
		TEXT("Generated code of enumeration %s does not fit its declaration."), EnumName);
	return Enum;
}
