// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

// The object initializer; reach it through UObject/UObjectGlobals.h. Left out: overriding the class of default subobjects
// and doing without optional ones.

struct FObjectInstancingGraph;

/** Finishes an object's construction: lives while its constructors run, then initialises properties from the archetype. */
class COREUOBJECT_API FObjectInitializer
{
public:
	/** For an object whose memory has been prepared. */
	FObjectInitializer(UObject* InObj, UObject* InObjectArchetype, bool bInCopyTransientsFromClassDefaults, bool bInShouldInitializeProps,
		FObjectInstancingGraph* InInstanceGraph = nullptr);
	/** Initialises the properties and calls PostInitProperties. */
	~FObjectInitializer();
	FObjectInitializer(const FObjectInitializer&) = delete;
	FObjectInitializer& operator=(const FObjectInitializer&) = delete;

	/** The initializer of the object under construction; fatal outside of one. */
	static FObjectInitializer& Get();
	/** The object under construction. */
	UObject* GetObj() const { return Obj; }
	/** Class of the object under construction. */
	UClass* GetClass() const;
	/** The object whose values the new one starts from. */
	UObject* GetArchetype() const { return ObjectArchetype; }

	/** Fatal with this message while Outer is under construction. */
	static void AssertIfInConstructor(UObject* Outer, const TCHAR* ErrorMessage);

	/** Makes a subobject of the object under construction, from the archetype's subobject of the name. */
	UObject* CreateDefaultSubobject(UObject* Outer, FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault,
		bool bIsRequired, bool bIsTransient) const;
	/** Makes a subobject of the object under construction, from the archetype's subobject of the name. */
	template <class TReturnType>
	TReturnType* CreateDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		UClass* ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(Outer, SubobjectName, ReturnType, ReturnType, true, bTransient));
	}

private:
	UObject* Obj;
	UObject* ObjectArchetype;
	bool bCopyTransientsFromClassDefaults;
	bool bShouldInitializePropsFromArchetype;
	FObjectInitializer* Previous;

	void PostConstructInit();
	friend struct FObjectSystemAccess;
};

/** Chooses the constructors that only make a virtual function table; never used here. */
class COREUOBJECT_API FVTableHelper
{
public:
	FVTableHelper() {}
};
