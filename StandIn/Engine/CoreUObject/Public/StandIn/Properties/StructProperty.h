// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/Properties/Property.h"

// Structs by value; part of UObject/UnrealType.h.

/** A struct by value. */
class COREUOBJECT_API FStructProperty : public FProperty
{
	DECLARE_FIELD(FStructProperty, FProperty, CASTCLASS_FStructProperty)

	FStructProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags,
		UScriptStruct* InStruct);

	UScriptStruct* Struct;

	virtual int32 GetMinAlignment() const override;
	virtual void LinkInternal() override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual bool ContainsObjectReference() const override;
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;

protected:
	virtual const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;
	virtual void CopyElement(void* Dest, void const* Src) const override;
	virtual void InitializeElement(void* Dest) const override;
	virtual void DestroyElement(void* Dest) const override;
};
