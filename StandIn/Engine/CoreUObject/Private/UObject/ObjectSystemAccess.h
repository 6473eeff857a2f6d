// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectArray.h"

// The object system's way into the private parts of objects.

/** Reads and changes what only the object system may. */
struct FObjectSystemAccess
{
	static int32 GetIndex(const UObjectBase* Object) { return Object->InternalIndex; }
	static void SetIndex(UObjectBase* Object, int32 Index) { Object->InternalIndex = Index; }
	static void SetClass(UObjectBase* Object, UClass* Class) { Object->ClassPrivate = Class; }
	static void SetName(UObjectBase* Object, FName Name) { Object->NamePrivate = Name; }
	static void SetOuter(UObjectBase* Object, UObject* Outer) { Object->OuterPrivate = Outer; }
	static UObject*& OuterReference(UObjectBase* Object) { return Object->OuterPrivate; }
	static void AddFlags(UObjectBase* Object, EObjectFlags Flags) { Object->ObjectFlags |= Flags; }
	static void RemoveFlags(UObjectBase* Object, EObjectFlags Flags) { Object->ObjectFlags &= ~Flags; }
	static void SetStructOps(UScriptStruct* Struct, UScriptStruct::ICppStructOps* Ops) { Struct->CppStructOps = Ops; }
	static void SetPackageChecksums(UPackage* Package, uint32 BodyCRC, uint32 DeclarationsCRC)
	{
		Package->BodyCRC = BodyCRC;
		Package->DeclarationsCRC = DeclarationsCRC;
	}
	static void ForgetMetaData(UPackage* Package) { Package->MetaData = nullptr; }
	static TMap<FName, FString>& TypeMetaData(UField* Field) { return Field->TypeMetaData; }
	static FUObjectItem* GetItem(const UObjectBase* Object) { return GUObjectArray.IndexToObject(Object->InternalIndex); }

	/** Puts an object with class, name and outer into the object array and under its name. */
	static void AddObject(UObjectBase* Object);
	/** Takes an object out of the object array and from under its name. */
	static void RemoveObject(UObjectBase* Object);
};
