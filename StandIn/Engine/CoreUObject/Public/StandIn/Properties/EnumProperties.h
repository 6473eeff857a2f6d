// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/Properties/NumericProperties.h"

// Bytes and enumerations; part of UObject/UnrealType.h. A value without an enumerator is written as "(INVALID)", which does not read back.

/** A byte, plain or with an enumeration. */
class COREUOBJECT_API FByteProperty : public TProperty_Numeric<uint8>
{
	DECLARE_FIELD(FByteProperty, TProperty_Numeric<uint8>, CASTCLASS_FByteProperty)

	FByteProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags,
		UEnum* InEnum = nullptr)
		: TProperty_Numeric<uint8>(InOwner, InName, InObjectFlags, StaticClass(), InOffset, InFlags)
		, Enum(InEnum)
	{}

	UEnum* Enum;

	virtual bool IsEnum() const override { return Enum != nullptr; }
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;

protected:
	virtual const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;
};

/** An enum class over an integer property. */
class COREUOBJECT_API FEnumProperty : public FProperty
{
	DECLARE_FIELD(FEnumProperty, FProperty, CASTCLASS_FEnumProperty)

	FEnumProperty(
		FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UEnum* InEnum);
	virtual ~FEnumProperty();

	UEnum* GetEnum() const { return Enum; }
	FNumericProperty* GetUnderlyingProperty() const { return UnderlyingProp; }
	virtual void AddCppProperty(FProperty* Inner) override;
	virtual int32 GetMinAlignment() const override;
	virtual void LinkInternal() override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
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
	FNumericProperty* UnderlyingProp;
	UEnum* Enum;
};
