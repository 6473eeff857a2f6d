// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/Properties/Property.h"

// Bools and single bits; part of UObject/UnrealType.h.

/** A bool, or one bit of an integer. */
class COREUOBJECT_API FBoolProperty : public FProperty
{
	DECLARE_FIELD(FBoolProperty, FProperty, CASTCLASS_FBoolProperty)

	/** InBitMask is the bit's value in the byte at the offset; 0xff for a whole bool. */
	FBoolProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags,
		uint8 InBitMask, uint32 InElementSize, bool bInIsNativeBool);

	bool GetPropertyValue(void const* A) const { return (*(const uint8*)A & FieldMask) != 0; }
	void SetPropertyValue(void* A, bool Value) const;
	bool GetPropertyValue_InContainer(void const* A, int32 ArrayIndex = 0) const
	{
		return GetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex));
	}
	void SetPropertyValue_InContainer(void* A, bool Value, int32 ArrayIndex = 0) const
	{
		SetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex), Value);
	}
	bool IsNativeBool() const { return FieldMask == 0xff; }

	virtual int32 GetMinAlignment() const override { return 1; }
	virtual void LinkInternal() override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;

protected:
	virtual const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;
	virtual void CopyElement(void* Dest, void const* Src) const override;
	virtual void InitializeElement(void* Dest) const override;
	virtual void DestroyElement(void* Dest) const override;

private:
	uint8 FieldMask;
};
