// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/Set.h"

// Takes the references that AddReferencedObjects reports; reach it through UObject/UObjectGlobals.h. Left out: weak
// references, archives, stable reference hints.

class FProperty;
class UObject;

/** Takes an object's references during a collection; a reference to an object that is pending kill becomes null. */
class COREUOBJECT_API FReferenceCollector
{
public:
	virtual ~FReferenceCollector() {}

	/** Reports one reference. */
	template <class UObjectType>
	void AddReferencedObject(
		UObjectType*& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		HandleObjectReference(*(UObject**)&Object, ReferencingObject, ReferencingProperty);
	}
	/** Reports one reference. */
	template <class UObjectType>
	void AddReferencedObject(
		const UObjectType*& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		HandleObjectReference(*(UObject**)const_cast<UObjectType**>(&Object), ReferencingObject, ReferencingProperty);
	}
	/** Reports the references of an array. */
	template <class UObjectType>
	void AddReferencedObjects(
		TArray<UObjectType*>& ObjectArray, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (UObjectType*& Object : ObjectArray)
		{
			AddReferencedObject(Object, ReferencingObject, ReferencingProperty);
		}
	}
	/** Reports the references of a set; its keys must not be pending kill. */
	template <class UObjectType>
	void AddReferencedObjects(
		TSet<UObjectType*>& ObjectSet, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (UObjectType* Object : ObjectSet)
		{
			AddReferencedObject(Object, ReferencingObject, ReferencingProperty);
		}
	}
	/** Reports the values of a map. */
	template <typename KeyType, class UObjectType>
	void AddReferencedObjects(
		TMap<KeyType, UObjectType*>& Map, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (auto& Pair : Map)
		{
			AddReferencedObject(Pair.Value, ReferencingObject, ReferencingProperty);
		}
	}

	/** Whether archetypes are skipped; never. */
	virtual bool IsIgnoringArchetypeRef() const = 0;
	/** Whether transient references are skipped; never. */
	virtual bool IsIgnoringTransient() const = 0;
	virtual void AllowEliminatingReferences(bool bAllow) { (void)bAllow; }

protected:
	/** Takes one reference; may null it. */
	virtual void HandleObjectReference(UObject*& InObject, const UObject* InReferencingObject, const FProperty* InReferencingProperty) = 0;
};
