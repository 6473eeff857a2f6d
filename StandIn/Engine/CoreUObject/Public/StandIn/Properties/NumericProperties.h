// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/Properties/TProperty.h"
#include <limits>

// Numbers; part of UObject/UnrealType.h. Reading takes the leading number of a text; a number that the type cannot hold is
// refused (the engine wraps it around).

/** A number. */
class COREUOBJECT_API FNumericProperty : public FProperty
{
	DECLARE_FIELD(FNumericProperty, FProperty, CASTCLASS_FNumericProperty)

	FNumericProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, FFieldClass* InClass, int32 InOffset,
		EPropertyFlags InFlags, int32 InElementSize)
		: FProperty(InOwner, InName, InObjectFlags, InClass, InOffset, InFlags, InElementSize)
	{}
	virtual bool IsFloatingPoint() const = 0;
	virtual bool IsInteger() const = 0;
	virtual bool IsEnum() const { return false; }
	virtual void SetIntPropertyValue(void* Data, int64 Value) const = 0;
	virtual int64 GetSignedIntPropertyValue(void const* Data) const = 0;
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const = 0;
	virtual double GetFloatingPointPropertyValue(void const* Data) const = 0;

protected:
	static void ExportInteger(FString& ValueStr, int64 Value);
	static void ExportUnsigned(FString& ValueStr, uint64 Value);
	static void ExportFloat(FString& ValueStr, double Value);
	const TCHAR* ImportInteger(const TCHAR* Buffer, int64 Min, int64 Max, int64& OutValue, FOutputDevice* ErrorText) const;
	const TCHAR* ImportUnsigned(const TCHAR* Buffer, uint64 Max, uint64& OutValue, FOutputDevice* ErrorText) const;
	const TCHAR* ImportFloat(const TCHAR* Buffer, double Max, double& OutValue, FOutputDevice* ErrorText) const;
};

/** A number of one C++ type. */
template <typename InTCppType>
class TProperty_Numeric : public TProperty<InTCppType, FNumericProperty>
{
public:
	typedef TProperty<InTCppType, FNumericProperty> TypeSuper;
	typedef InTCppType TCppType;
	using TypeSuper::TypeSuper;

	virtual bool IsFloatingPoint() const override { return std::is_floating_point<TCppType>::value; }
	virtual bool IsInteger() const override { return std::is_integral<TCppType>::value; }
	virtual void SetIntPropertyValue(void* Data, int64 Value) const override { *(TCppType*)Data = TCppType(Value); }
	virtual int64 GetSignedIntPropertyValue(void const* Data) const override { return int64(*(const TCppType*)Data); }
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const override { *(TCppType*)Data = TCppType(Value); }
	virtual double GetFloatingPointPropertyValue(void const* Data) const override { return double(*(const TCppType*)Data); }
	virtual void LinkInternal() override
	{
		TypeSuper::LinkInternal();
		this->PropertyFlags |= CPF_HasGetValueTypeHash;
	}
	virtual bool Identical(const void* A, const void* B, uint32 = 0) const override
	{
		const TCppType Left = *(const TCppType*)A;
		const TCppType Right = B ? *(const TCppType*)B : TCppType(0);
		return !(Left < Right) && !(Right < Left);
	}
	virtual void ExportTextItem(
		FString& ValueStr, const void* PropertyValue, const void*, UObject*, int32, UObject* = nullptr) const override
	{
		Export(ValueStr, *(const TCppType*)PropertyValue, std::is_floating_point<TCppType>());
	}

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32, UObject*, FOutputDevice* ErrorText) const override
	{
		return Import(Buffer, (TCppType*)Data, ErrorText, std::is_floating_point<TCppType>(), std::is_signed<TCppType>());
	}

private:
	static void Export(FString& ValueStr, TCppType Value, std::true_type) { FNumericProperty::ExportFloat(ValueStr, double(Value)); }
	static void Export(FString& ValueStr, TCppType Value, std::false_type) { ExportWhole(ValueStr, Value, std::is_signed<TCppType>()); }
	static void ExportWhole(FString& ValueStr, TCppType Value, std::true_type) { FNumericProperty::ExportInteger(ValueStr, int64(Value)); }
	static void ExportWhole(FString& ValueStr, TCppType Value, std::false_type)
	{
		FNumericProperty::ExportUnsigned(ValueStr, uint64(Value));
	}
	template <typename SignedTag>
	const TCHAR* Import(const TCHAR* Buffer, TCppType* Data, FOutputDevice* ErrorText, std::true_type, SignedTag) const
	{
		double Value = 0.0;
		const TCHAR* Rest = this->ImportFloat(Buffer, double(std::numeric_limits<TCppType>::max()), Value, ErrorText);
		return Store(Rest, Data, Value);
	}
	const TCHAR* Import(const TCHAR* Buffer, TCppType* Data, FOutputDevice* ErrorText, std::false_type, std::true_type) const
	{
		int64 Value = 0;
		const TCHAR* Rest = this->ImportInteger(
			Buffer, int64(std::numeric_limits<TCppType>::min()), int64(std::numeric_limits<TCppType>::max()), Value, ErrorText);
		return Store(Rest, Data, Value);
	}
	const TCHAR* Import(const TCHAR* Buffer, TCppType* Data, FOutputDevice* ErrorText, std::false_type, std::false_type) const
	{
		uint64 Value = 0;
		const TCHAR* Rest = this->ImportUnsigned(Buffer, uint64(std::numeric_limits<TCppType>::max()), Value, ErrorText);
		return Store(Rest, Data, Value);
	}
	template <typename ReadType>
	static const TCHAR* Store(const TCHAR* Rest, TCppType* Data, ReadType Value)
	{
		if (Rest != nullptr)
		{
			*Data = TCppType(Value);
		}
		return Rest;
	}
};

/** Declares the property of one number type. */
#define STANDIN_DECLARE_NUMERIC_PROPERTY(TName, TCpp) \
	class COREUOBJECT_API TName : public TProperty_Numeric<TCpp> \
	{ \
		DECLARE_FIELD(TName, TProperty_Numeric<TCpp>, CASTCLASS_##TName) \
\
		TName(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags) \
			: TProperty_Numeric<TCpp>(InOwner, InName, InObjectFlags, StaticClass(), InOffset, InFlags) \
		{} \
		virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override; \
	};

STANDIN_DECLARE_NUMERIC_PROPERTY(FInt8Property, int8)
STANDIN_DECLARE_NUMERIC_PROPERTY(FInt16Property, int16)
STANDIN_DECLARE_NUMERIC_PROPERTY(FIntProperty, int32)
STANDIN_DECLARE_NUMERIC_PROPERTY(FInt64Property, int64)
STANDIN_DECLARE_NUMERIC_PROPERTY(FUInt16Property, uint16)
STANDIN_DECLARE_NUMERIC_PROPERTY(FUInt32Property, uint32)
STANDIN_DECLARE_NUMERIC_PROPERTY(FUInt64Property, uint64)
STANDIN_DECLARE_NUMERIC_PROPERTY(FFloatProperty, float)
STANDIN_DECLARE_NUMERIC_PROPERTY(FDoubleProperty, double)
