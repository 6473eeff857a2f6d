// Copyright The Tintmill authors. All rights reserved.

#include "UObject/UObjectHash.h"
#include "UObject/Class.h"
#include "UObject/UObjectArray.h"

namespace StandInPrivate
{
namespace
{
template <typename PredicateType>
void AppendObjects(
	TArray<UObject*>& Results, EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags, PredicateType Predicate)
{
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
		UObject* Object = (UObject*)Item->Object;
		if (Object != nullptr && !Object->HasAnyFlags(ExclusionFlags)
			&& !Item->HasAnyFlags(ExclusionInternalFlags | EInternalObjectFlags::Unreachable) && Predicate(Object))
		{
			Results.Add(Object);
		}
	}
}
}
}

void GetObjectsWithOuter(const UObjectBase* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags,
	EInternalObjectFlags ExclusionInternalFlags)
{
	check(Outer != nullptr);
	StandInPrivate::AppendObjects(Results, ExclusionFlags, ExclusionInternalFlags,
		[=](const UObject* Object) { return bIncludeNestedObjects ? Object->IsIn((const UObject*)Outer) : Object->GetOuter() == Outer; });
}

void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses, EObjectFlags ExcludeFlags,
	EInternalObjectFlags ExclusionInternalFlags)
{
	check(ClassToLookFor != nullptr);
	StandInPrivate::AppendObjects(Results, ExcludeFlags, ExclusionInternalFlags,
		[=](const UObject* Object) { return bIncludeDerivedClasses ? Object->IsA(ClassToLookFor) : Object->GetClass() == ClassToLookFor; });
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive)
{
	check(ClassToLookFor != nullptr);
	TArray<UObject*> Classes;
	StandInPrivate::AppendObjects(Classes, RF_ClassDefaultObject, EInternalObjectFlags::None, [=](const UObject* Object) {
		if (!Object->IsA(UClass::StaticClass()) || Object == ClassToLookFor)
		{
			return false;
		}
		const UClass* Class = (const UClass*)Object;
		return bRecursive ? Class->IsChildOf(ClassToLookFor) : Class->GetSuperClass() == ClassToLookFor;
	});
	for (UObject* Class : Classes)
	{
		Results.Add((UClass*)Class);
	}
}
