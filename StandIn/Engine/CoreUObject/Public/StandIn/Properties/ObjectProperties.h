// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/Properties/TProperty.h"
#include "UObject/WeakObjectPtr.h"

// References to objects and classes; part of UObject/UnrealType.h. Reading finds the object or loads its asset.

/** A reference to an object of a class. */
class COREUOBJECT_API FObjectPropertyBase : public FProperty
{
	DECLARE_FIELD(FObjectPropertyBase, FProperty, CASTCLASS_FObjectPropertyBase)

	FObjectPropertyBase(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, FFieldClass* InClass, int32 InOffset,
		EPropertyFlags InFlags, UClass* InPropertyClass, int32 InElementSize);

	/** Class of the objects that may be referred to. */
	UClass* PropertyClass;

	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const = 0;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const = 0;
	UObject* GetObjectPropertyValue_InContainer(const void* ContainerAddress, int32 ArrayIndex = 0) const
	{
		return GetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex));
	}
	void SetObjectPropertyValue_InContainer(void* ContainerAddress, UObject* Value, int32 ArrayIndex = 0) const
	{
		SetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex), Value);
	}
	virtual int32 GetMinAlignment() const override { return int32(alignof(void*)); }
	virtual void LinkInternal() override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual bool ContainsObjectReference() const override { return true; }
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;

protected:
	virtual const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;
	virtual void CopyElement(void* Dest, void const* Src) const override;
	virtual void InitializeElement(void* Dest) const override;
	virtual void DestroyElement(void* Dest) const override;
	/** Says whether a read object may be stored; the reason goes to OutReason. */
	virtual bool AcceptsObject(UObject* Object, FString& OutReason) const;
};

/** A plain pointer to an object. */
class COREUOBJECT_API FObjectProperty : public FObjectPropertyBase
{
	DECLARE_FIELD(FObjectProperty, FObjectPropertyBase, CASTCLASS_FObjectProperty)

	FObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags,
		UClass* InPropertyClass, FFieldClass* InClass = StaticClass())
		: FObjectPropertyBase(InOwner, InName, InObjectFlags, InClass, InOffset, InFlags, InPropertyClass, int32(sizeof(UObject*)))
	{}
	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override
	{
		return *(UObject* const*)PropertyValueAddress;
	}
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override
	{
		*(UObject**)PropertyValueAddress = Value;
	}
};

/** A pointer to a class, or TSubclassOf. */
class COREUOBJECT_API FClassProperty : public FObjectProperty
{
	DECLARE_FIELD(FClassProperty, FObjectProperty, CASTCLASS_FClassProperty)

	FClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags,
		UClass* InMetaClass, UClass* InClassType)
		: FObjectProperty(InOwner, InName, InObjectFlags, InOffset, InFlags, InClassType, StaticClass())
		, MetaClass(InMetaClass)
	{}

	/** Parent of the classes that may be referred to. */
	UClass* MetaClass;

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;

protected:
	virtual bool AcceptsObject(UObject* Object, FString& OutReason) const override;
};

/** A weak pointer to an object. */
class COREUOBJECT_API FWeakObjectProperty : public FObjectPropertyBase
{
	DECLARE_FIELD(FWeakObjectProperty, FObjectPropertyBase, CASTCLASS_FWeakObjectProperty)

	FWeakObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags,
		UClass* InPropertyClass)
		: FObjectPropertyBase(
			InOwner, InName, InObjectFlags, StaticClass(), InOffset, InFlags, InPropertyClass, int32(sizeof(FWeakObjectPtr)))
	{}
	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;
	virtual int32 GetMinAlignment() const override { return int32(alignof(FWeakObjectPtr)); }
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool ContainsObjectReference() const override { return false; }

protected:
	virtual void CopyElement(void* Dest, void const* Src) const override;
	virtual void InitializeElement(void* Dest) const override;
};
