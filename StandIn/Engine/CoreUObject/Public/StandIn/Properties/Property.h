// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "CoreGlobals.h"
#include "Misc/FeedbackContext.h"
#include "UObject/Class.h"
#include "UObject/Field.h"
#include "UObject/PropertyPortFlags.h"

// The base of all properties; reach it through UObject/UnrealType.h. Left out: network, archives, hashing, getters and setters.

class FReferenceCollector;

/** One property of a struct or class, or the element of an array: where a value lies and how it is handled. */
class COREUOBJECT_API FProperty : public FField
{
	DECLARE_FIELD(FProperty, FField, CASTCLASS_FProperty)

	FProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, FFieldClass* InClass, int32 InOffset,
		EPropertyFlags InFlags, int32 InElementSize);

	/** Number of elements of a fixed array, else 1. */
	int32 ArrayDim;
	/** Size of one element in bytes. */
	int32 ElementSize;
	EPropertyFlags PropertyFlags;
	/** Next property in UStruct::PropertyLink. */
	FProperty* PropertyLinkNext;
	/** Next property in UStruct::RefLink. */
	FProperty* NextRef;

	EPropertyFlags GetPropertyFlags() const { return PropertyFlags; }
	void SetPropertyFlags(EPropertyFlags NewFlags) { PropertyFlags |= NewFlags; }
	void ClearPropertyFlags(EPropertyFlags NewFlags) { PropertyFlags &= ~NewFlags; }
	bool HasAnyPropertyFlags(uint64 FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) != 0; }
	bool HasAllPropertyFlags(uint64 FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) == FlagsToCheck; }

	/** Size of the whole value in bytes. */
	int32 GetSize() const { return ArrayDim * ElementSize; }
	/** Distance in bytes from the start of the owner's value. */
	int32 GetOffset_ForInternal() const { return Offset_Internal; }
	int32 GetOffset_ForDebug() const { return Offset_Internal; }
	int32 GetOffset_ForUFunction() const { return Offset_Internal; }
	virtual int32 GetMinAlignment() const = 0;
	/** C++ type; ExtendedTypeText gets what stands in angle brackets. */
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const = 0;
	FString GetNameCPP() const { return GetName(); }
	/** DisplayName metadata, else the name in words. */
	FText GetDisplayNameText() const;
	FText GetToolTipText() const;
	/** Says whether the other property is of the same kind and type. */
	virtual bool SameType(const FProperty* Other) const;

	/** Address of the value in an object or struct value. */
	template <typename ValueType>
	ValueType* ContainerPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return (ValueType*)((uint8*)ContainerPtr + Offset_Internal + ElementSize * ArrayIndex);
	}
	template <typename ValueType>
	const ValueType* ContainerPtrToValuePtr(const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return (const ValueType*)((const uint8*)ContainerPtr + Offset_Internal + ElementSize * ArrayIndex);
	}

	/** Says whether two single values are the same; a null B stands for a default value. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const = 0;
	/** Says whether the values of two containers are the same at an index. */
	bool Identical_InContainer(const void* A, const void* B, int32 ArrayIndex = 0, uint32 PortFlags = 0) const;
	/** Copies one element. */
	void CopySingleValue(void* Dest, void const* Src) const { CopyElement(Dest, Src); }
	/** Copies all elements. */
	void CopyCompleteValue(void* Dest, void const* Src) const;
	void CopyCompleteValue_InContainer(void* Dest, void const* Src) const;
	/** Constructs all elements in raw memory. */
	void InitializeValue(void* Dest) const;
	void InitializeValue_InContainer(void* Dest) const;
	/** Destroys all elements. */
	void DestroyValue(void* Dest) const;
	void DestroyValue_InContainer(void* Dest) const;
	/** Sets one element to its default. */
	void ClearValue(void* Data) const;

	/** Appends one element's text. */
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const = 0;
	/** Appends the text of an element of Data, at an address; false (nothing appended) when it equals Delta's. */
	bool ExportText_Direct(
		FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	/** Appends the text of an element of a container; false (nothing appended) when it equals DeltaContainer's. */
	bool ExportText_InContainer(int32 Index, FString& ValueStr, const void* Container, const void* DeltaContainer, UObject* Parent,
		int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	/** Reads one element from text; returns the text behind it, or null when the text is none for it. */
	const TCHAR* ImportText(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText = (FOutputDevice*)GWarn) const;
	/** Says whether the property takes part in text under these flags. */
	bool ShouldPort(uint32 PortFlags = 0) const;
	/** Says whether values hold strong or weak object references. */
	virtual bool ContainsObjectReference() const { return false; }
	/** Takes the element property that a generated array or the integer property that a generated enumeration needs. */
	virtual void AddCppProperty(FProperty* Property);
	/** Works out the computed flags. */
	virtual void LinkInternal() = 0;

protected:
	virtual const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const = 0;
	virtual void CopyElement(void* Dest, void const* Src) const = 0;
	virtual void InitializeElement(void* Dest) const = 0;
	virtual void DestroyElement(void* Dest) const = 0;

	int32 Offset_Internal;
};
