// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/ObjectInitializer.h"
#include "UObject/ObjectConstruction.h"
#include "UObject/ObjectHash.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/UnrealType.h"

namespace StandInPrivate
{
namespace
{
FObjectInitializer*& TopInitializer()
{
	static FObjectInitializer* Top = nullptr;
	return Top;
}

// What stands behind Get: objects under construction, kept for the collector.
TArray<UObject*>& UnderConstruction()
{
	static TArray<UObject*>* Objects = new TArray<UObject*>;
	return *Objects;
}

void CopyProperties(UObject* Object, UObject* Source, bool bCopyTransientsFromClassDefaults, bool bConfigOnly)
{
	UObject* Defaults = Object->GetClass()->GetDefaultObject(false);
	for (TFieldIterator<FProperty> It(Object->GetClass()); It; ++It)
	{
		if (bConfigOnly && !It->HasAnyPropertyFlags(CPF_Config))
		{
			continue;
		}
		const bool bFromDefaults =
			bCopyTransientsFromClassDefaults && Defaults != nullptr && It->HasAnyPropertyFlags(CPF_Transient | CPF_DuplicateTransient);
		UObject* From = bFromDefaults ? Defaults : Source;
		if (From->IsA((const UClass*)It.GetStruct()))
		{
			It->CopyCompleteValue_InContainer(Object, From);
		}
	}
}
}

FObjectInitializer* GetTopInitializer()
{
	return TopInitializer();
}

TArray<UObject*> GetObjectsUnderConstruction()
{
	TArray<UObject*> Result;
	for (UObject* Object : UnderConstruction())
	{
		if (FindPendingObject(Object) == nullptr)
		{
			Result.Add(Object);
		}
	}
	return Result;
}

void CheckNameInConstructor(UObject* Outer, FName Name)
{
	if (Name.IsNone())
	{
		FObjectInitializer::AssertIfInConstructor(Outer,
			TEXT("NewObject with empty name can't be used to create default subobjects (inside of UObject derived class constructor) as it "
				 "produces inconsistent object names. Use ObjectInitializer.CreateDefaultSubobject<> instead."));
	}
}
}

FObjectInitializer::FObjectInitializer(UObject* InObj, UObject* InObjectArchetype, bool bInCopyTransientsFromClassDefaults,
	bool bInShouldInitializeProps, FObjectInstancingGraph* InInstanceGraph)
	: Obj(InObj)
	, ObjectArchetype(InObjectArchetype)
	, bCopyTransientsFromClassDefaults(bInCopyTransientsFromClassDefaults)
	, bShouldInitializePropsFromArchetype(bInShouldInitializeProps)
	, Previous(StandInPrivate::TopInitializer())
{
	checkf(InInstanceGraph == nullptr, TEXT("not in this stand-in: instancing graphs"));
	StandInPrivate::TopInitializer() = this;
	StandInPrivate::UnderConstruction().Push(InObj);
}

FObjectInitializer::~FObjectInitializer()
{
	StandInPrivate::TopInitializer() = Previous;
	PostConstructInit();
	StandInPrivate::UnderConstruction().Pop();
}

FObjectInitializer& FObjectInitializer::Get()
{
	FObjectInitializer* Top = StandInPrivate::TopInitializer();
	if (Top == nullptr)
	{
		UE_LOG(LogUObjectGlobals, Fatal, TEXT("FObjectInitializer::Get() can only be used inside of UObject-derived class constructor."));
	}
	return *Top;
}

UClass* FObjectInitializer::GetClass() const
{
	const StandInPrivate::FPendingObject* Pending = StandInPrivate::FindPendingObject(Obj);
	return Pending != nullptr ? Pending->Class : Obj->GetClass();
}

void FObjectInitializer::AssertIfInConstructor(UObject* Outer, const TCHAR* ErrorMessage)
{
	const FObjectInitializer* Top = StandInPrivate::TopInitializer();
	UE_CLOG(Top != nullptr && Top->Obj == Outer, LogUObjectGlobals, Fatal, TEXT("%s"), ErrorMessage);
}

UObject* FObjectInitializer::CreateDefaultSubobject(
	UObject* Outer, FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient) const
{
	(void)bIsRequired;
	UE_CLOG(StandInPrivate::TopInitializer() != this, LogClass, Fatal,
		TEXT("Subobjects cannot be created outside of UObject constructors. UObject constructing subobjects cannot be created using new or "
			 "placement new operator."));
	UE_CLOG(SubobjectFName.IsNone(), LogClass, Fatal, TEXT("Illegal default subobject name: %s"), *SubobjectFName.ToString());
	check(Outer == Obj);
	check(ClassToCreateByDefault->IsChildOf(ReturnType));
	UObject* Template = nullptr;
	if (ObjectArchetype != nullptr)
	{
		UObject* Subobject = ObjectArchetype->GetDefaultSubobjectByName(SubobjectFName);
		Template = Subobject != nullptr && Subobject->GetClass() == ClassToCreateByDefault ? Subobject : nullptr;
	}
	FStaticConstructObjectParameters Params(ClassToCreateByDefault);
	Params.Outer = Outer;
	Params.Name = SubobjectFName;
	Params.SetFlags = Outer->GetMaskedFlags(RF_PropagateToSubObjects) | RF_DefaultSubObject | (bIsTransient ? RF_Transient : RF_NoFlags)
		| (Outer->IsTemplate() ? RF_ArchetypeObject : RF_NoFlags);
	Params.Template = Template;
	return StaticConstructObject_Internal(Params);
}

void FObjectInitializer::PostConstructInit()
{
	if (StandInPrivate::FindPendingObject(Obj) != nullptr)
	{
		UE_LOG(LogClass, Fatal, TEXT("The constructor of %s did not run."), *GetClass()->GetName());
	}
	UClass* Class = Obj->GetClass();
	const bool bIsDefaultObject = Obj->HasAnyFlags(RF_ClassDefaultObject);
	if (!bIsDefaultObject && ObjectArchetype != nullptr)
	{
		// A compiled-in class's constructor makes the default values; only what configuration changed is copied from the
		// default object. Any other template is copied whole.
		const bool bFromDefaultObject = ObjectArchetype == Class->GetDefaultObject(false);
		StandInPrivate::CopyProperties(
			Obj, ObjectArchetype, bCopyTransientsFromClassDefaults, bFromDefaultObject || !bShouldInitializePropsFromArchetype);
	}
	if (bIsDefaultObject && Class->HasAnyClassFlags(CLASS_Config))
	{
		Obj->LoadConfig(nullptr, nullptr, UE4::LCPF_ReadParentSections);
	}
	FObjectSystemAccess::RemoveFlags(Obj, RF_NeedInitialization);
	Obj->PostInitProperties();
}

bool IsInConstructor()
{
	return StandInPrivate::TopInitializer() != nullptr;
}
