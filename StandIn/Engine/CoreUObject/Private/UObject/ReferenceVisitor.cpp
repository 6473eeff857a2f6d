// Copyright The Tintmill authors. All rights reserved.

#include "UObject/ReferenceVisitor.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/UnrealType.h"

namespace StandInPrivate
{
namespace
{
void VisitStruct(const UStruct* Struct, void* Container, UObject* Owner, FReferenceCollector& Collector);

void VisitValue(const FProperty* Property, void* Value, UObject* Owner, FReferenceCollector& Collector)
{
	if (Property->IsA<FObjectProperty>())
	{
		Collector.AddReferencedObject(*(UObject**)Value, Owner, Property);
	}
	else if (const FStructProperty* StructProperty = CastField<FStructProperty>(Property))
	{
		UScriptStruct* Struct = StructProperty->Struct;
		VisitStruct(Struct, Value, Owner, Collector);
		if (Struct->StructFlags & STRUCT_AddStructReferencedObjects)
		{
			Struct->GetCppStructOps()->AddStructReferencedObjects()(Value, Collector);
		}
	}
	else if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(Property))
	{
		FScriptArrayHelper Helper(ArrayProperty, Value);
		for (int32 Index = 0; Index < Helper.Num(); ++Index)
		{
			VisitValue(ArrayProperty->Inner, Helper.GetRawPtr(Index), Owner, Collector);
		}
	}
}

void VisitStruct(const UStruct* Struct, void* Container, UObject* Owner, FReferenceCollector& Collector)
{
	for (const FProperty* Property = Struct->RefLink; Property != nullptr; Property = Property->NextRef)
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			VisitValue(Property, Property->ContainerPtrToValuePtr<void>(Container, Index), Owner, Collector);
		}
	}
}
}

void VisitObjectReferences(UObject* Object, FReferenceCollector& Collector)
{
	VisitStruct(Object->GetClass(), Object, Object, Collector);
	Object->GetClass()->CallAddReferencedObjects(Object, Collector);
}
}
