// Copyright The Tintmill authors. All rights reserved.

#include "UObject/ObjectRemoval.h"
#include "HAL/UnrealMemory.h"
#include "UObject/GCObjectList.h"
#include "UObject/ObjectConstruction.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/ReferenceVisitor.h"

#include <unordered_set>

namespace StandInPrivate
{
namespace
{
// Nulls references to a set of objects.
class FNullingCollector : public FReferenceCollector
{
public:
	explicit FNullingCollector(const std::unordered_set<const UObject*>& InGone)
		: Gone(InGone)
	{}
	virtual bool IsIgnoringArchetypeRef() const override { return false; }
	virtual bool IsIgnoringTransient() const override { return false; }

protected:
	virtual void HandleObjectReference(UObject*& InObject, const UObject*, const FProperty*) override
	{
		if (InObject != nullptr && Gone.count(InObject) != 0)
		{
			InObject = nullptr;
		}
	}

private:
	const std::unordered_set<const UObject*>& Gone;
};

template <typename PredicateType>
TArray<UObject*> FindObjects(PredicateType Predicate)
{
	TArray<UObject*> Result;
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		UObject* Object = (UObject*)GUObjectArray.IndexToObject(Index)->Object;
		if (Object != nullptr && Predicate(Object))
		{
			Result.Add(Object);
		}
	}
	return Result;
}
}

void DestroyObjects(const TArray<UObject*>& Objects, bool bEvenIfNotReady)
{
	for (UObject* Object : Objects)
	{
		Object->ConditionalBeginDestroy();
	}
	TArray<UObject*> Finished;
	for (UObject* Object : Objects)
	{
		if (Object->ConditionalFinishDestroy() || Object->HasAnyFlags(RF_FinishDestroyed) || bEvenIfNotReady)
		{
			Finished.Add(Object);
		}
	}
	// Memory is freed last, so that destructors may look at each other's objects.
	for (UObject* Object : Finished)
	{
		DestructObject(Object, false);
	}
	for (UObject* Object : Finished)
	{
		FMemory::Free(Object);
	}
}

void DestroyObjectsOfClasses(const TArray<UClass*>& Classes)
{
	std::unordered_set<const UObject*> Gone;
	const auto IsOfClasses = [&Classes](const UObject* Object) {
		for (const UClass* Class : Classes)
		{
			if (Object->IsA(Class))
			{
				return true;
			}
		}
		return false;
	};
	const TArray<UObject*> Objects = FindObjects([&Gone, &IsOfClasses](const UObject* Object) {
		for (const UObject* Outer = Object; Outer != nullptr; Outer = Outer->GetOuter())
		{
			if (Gone.count(Outer) != 0 || IsOfClasses(Outer))
			{
				Gone.insert(Object);
				return !Object->IsNative();
			}
		}
		return false;
	});
	if (Objects.Num() == 0)
	{
		return;
	}
	FNullingCollector Collector(Gone);
	for (UObject* Object : FindObjects([&Gone](const UObject* Candidate) { return Gone.count(Candidate) == 0; }))
	{
		VisitObjectReferences(Object, Collector);
	}
	ReportGCObjects(Collector);
	for (UObject* Object : Objects)
	{
		Object->RemoveFromRoot();
		Object->MarkPendingKill();
	}
	DestroyObjects(Objects, true);
}

void DestroyAllObjects()
{
	// Plain objects first, then the default objects they were made from, then what contains them.
	DestroyObjects(
		FindObjects([](const UObject* Object) { return !Object->IsNative() && !Object->IsTemplate() && Object->GetOuter() != nullptr; }),
		true);
	DestroyObjects(FindObjects([](const UObject* Object) { return !Object->IsNative() && Object->GetOuter() != nullptr; }), true);
	DestroyObjects(FindObjects([](const UObject* Object) { return !Object->IsNative(); }), true);
}
}
