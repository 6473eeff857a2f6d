// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include <new>
#include <type_traits>

// What a struct may say about itself, and the typed operations behind UScriptStruct::TCppStructOps; part of UObject/Class.h.
// Traits that ask for native text or archive functions are refused when the struct is compiled.

class FReferenceCollector;

/** Defaults of a struct's traits. */
template <class CPPSTRUCT>
struct TStructOpsTypeTraitsBase2
{
	enum
	{
		WithZeroConstructor = false,
		WithNoInitConstructor = false,
		WithNoDestructor = false,
		WithCopy = true,
		WithIdenticalViaEquality = false,
		WithIdentical = false,
		WithExportTextItem = false,
		WithImportTextItem = false,
		WithAddStructReferencedObjects = false,
		WithSerializer = false,
		WithPostSerialize = false,
		WithNetSerializer = false,
	};
};

/** A struct's traits; specialise to change them. */
template <class CPPSTRUCT>
struct TStructOpsTypeTraits : public TStructOpsTypeTraitsBase2<CPPSTRUCT>
{};

/** What a class params record knows of a C++ class. */
struct FCppClassTypeInfoStatic
{
	bool bIsAbstract;
};

/** Traits of a C++ class. */
template <class CPPCLASS>
struct TCppClassTypeTraits
{
	enum
	{
		IsAbstract = std::is_abstract<CPPCLASS>::value
	};
};

namespace StandInPrivate
{
template <class CPPSTRUCT>
void ConstructStruct(void* Dest)
{
	::new (Dest) CPPSTRUCT();
}

template <class CPPSTRUCT>
bool CopyStruct(void* Dest, void const* Src, int32 ArrayDim, std::true_type)
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		static_cast<CPPSTRUCT*>(Dest)[Index] = static_cast<const CPPSTRUCT*>(Src)[Index];
	}
	return true;
}
template <class CPPSTRUCT>
bool CopyStruct(void*, void const*, int32, std::false_type)
{
	return false;
}

template <class CPPSTRUCT>
bool IdenticalStruct(const CPPSTRUCT* A, const CPPSTRUCT* B, uint32 PortFlags, bool& bOutResult, std::integral_constant<int, 1>)
{
	bOutResult = A->Identical(B, PortFlags);
	return true;
}
template <class CPPSTRUCT>
bool IdenticalStruct(const CPPSTRUCT* A, const CPPSTRUCT* B, uint32, bool& bOutResult, std::integral_constant<int, 2>)
{
	bOutResult = (*A == *B);
	return true;
}
template <class CPPSTRUCT>
bool IdenticalStruct(const CPPSTRUCT*, const CPPSTRUCT*, uint32, bool& bOutResult, std::integral_constant<int, 0>)
{
	bOutResult = false;
	return false;
}

typedef void (*FStructReferences)(void* Struct, FReferenceCollector& Collector);
template <class CPPSTRUCT>
void AddStructReferences(void* Struct, FReferenceCollector& Collector)
{
	static_cast<CPPSTRUCT*>(Struct)->AddStructReferencedObjects(Collector);
}
template <class CPPSTRUCT>
FStructReferences StructReferences(std::true_type)
{
	return &AddStructReferences<CPPSTRUCT>;
}
template <class CPPSTRUCT>
FStructReferences StructReferences(std::false_type)
{
	return nullptr;
}
}
