// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtr.h"

// Metadata of the types and objects of a package. Left out: archives, root metadata, redirects.

/** Metadata of a package's objects: key and value pairs in the order of their declaration. */
class COREUOBJECT_API UMetaData : public UObject
{
	DECLARE_CLASS(UMetaData, UObject, CLASS_Intrinsic, CASTCLASS_None, TEXT("/Script/CoreUObject"), NO_API)
	DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER(UMetaData)
	static void StaticRegisterNativesUMetaData() {}
	static void __DefaultConstructor(const FObjectInitializer& X);

	explicit UMetaData(const FObjectInitializer& ObjectInitializer);

	/** Value of a key, or "". */
	const FString& GetValue(const UObject* Object, FName Key);
	const FString& GetValue(const UObject* Object, const TCHAR* Key);
	/** Value of a key, or null. */
	const FString* FindValue(const UObject* Object, FName Key);
	bool HasValue(const UObject* Object, FName Key) { return FindValue(Object, Key) != nullptr; }
	bool HasValue(const UObject* Object, const TCHAR* Key);
	void SetValue(const UObject* Object, FName Key, const TCHAR* Value);
	void SetValue(const UObject* Object, const TCHAR* Key, const TCHAR* Value);
	void RemoveValue(const UObject* Object, FName Key);
	/** All metadata of an object of some package, or null. */
	static TMap<FName, FString>* GetMapForObject(const UObject* Object);

	TMap<FWeakObjectPtr, TMap<FName, FString>> ObjectMetaDataMap;
};
