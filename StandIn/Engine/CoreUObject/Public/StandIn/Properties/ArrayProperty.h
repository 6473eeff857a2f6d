// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/Properties/Property.h"
#include "StandIn/ScriptArray.h"

// Dynamic arrays; part of UObject/UnrealType.h. Elements are relocated bitwise, as the engine does it.

/** A TArray. */
class COREUOBJECT_API FArrayProperty : public FProperty
{
	DECLARE_FIELD(FArrayProperty, FProperty, CASTCLASS_FArrayProperty)

	FArrayProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags);
	virtual ~FArrayProperty();

	/** The element's property. */
	FProperty* Inner;

	virtual void AddCppProperty(FProperty* Property) override;
	virtual int32 GetMinAlignment() const override;
	virtual void LinkInternal() override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual bool ContainsObjectReference() const override { return Inner->ContainsObjectReference(); }
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;

protected:
	virtual const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;
	virtual void CopyElement(void* Dest, void const* Src) const override;
	virtual void InitializeElement(void* Dest) const override;
	virtual void DestroyElement(void* Dest) const override;
};

/** Reads and changes the array behind an array property. */
class COREUOBJECT_API FScriptArrayHelper
{
public:
	/** For the value at InArray. */
	FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray);

	int32 Num() const;
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	/** Address of an element; fatal for a bad index. */
	uint8* GetRawPtr(int32 Index = 0);
	/** Appends one default element and returns its index. */
	int32 AddValue() { return AddValues(1); }
	/** Appends default elements and returns the index of the first. */
	int32 AddValues(int32 Count);
	/** Destroys all elements and keeps room for Slack. */
	void EmptyValues(int32 Slack = 0);
	/** Destroys all elements, then makes Count default ones. */
	void EmptyAndAddValues(int32 Count);
	/** Destroys and removes elements. */
	void RemoveValues(int32 Index, int32 Count = 1);
	void Resize(int32 Count);

private:
	const FProperty* InnerProperty;
	FScriptArray* Array;
	int32 ElementSize;
};

/** FScriptArrayHelper for the array of an object or struct value. */
class FScriptArrayHelper_InContainer : public FScriptArrayHelper
{
public:
	FScriptArrayHelper_InContainer(const FArrayProperty* InProperty, const void* InContainer, int32 FixedArrayIndex = 0)
		: FScriptArrayHelper(InProperty, InProperty->ContainerPtrToValuePtr<void>(InContainer, FixedArrayIndex))
	{}
};
