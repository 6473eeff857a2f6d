// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Map.h"
#include "StandIn/CppStructTraits.h"
#include "UObject/Object.h"

// Type objects: fields, structs and native structs; reach them through UObject/Class.h. Left out: script byte code, functions,
// user-defined structs, struct serialisation, hashes of structs.

class FField;
class FOutputDevice;
class FProperty;

/** Base of type objects. */
class COREUOBJECT_API UField : public UObject
{
	DECLARE_CLASS(UField, UObject, CLASS_Abstract | CLASS_Intrinsic, CASTCLASS_UField, TEXT("/Script/CoreUObject"), NO_API)
	DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER(UField)
	static void StaticRegisterNativesUField() {}
	static void __DefaultConstructor(const FObjectInitializer& X);

	UField(EStaticConstructor, EObjectFlags InFlags);
	explicit UField(const FObjectInitializer& ObjectInitializer);

	/** Metadata value of a key, or "". */
	const FString& GetMetaData(const TCHAR* Key) const;
	const FString& GetMetaData(const FName& Key) const;
	/** Metadata value of a key, or null. */
	const FString* FindMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const FName& Key) const;
	bool HasMetaData(const TCHAR* Key) const { return FindMetaData(Key) != nullptr; }
	bool HasMetaData(const FName& Key) const { return FindMetaData(Key) != nullptr; }
	/** True for a key with value "true" or with no value. */
	bool GetBoolMetaData(const TCHAR* Key) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue);
	/** The nearest outer that is a class, or null. */
	UClass* GetOwnerClass() const;

private:
	/** Keys and values in the order of their declaration. */
	TMap<FName, FString> TypeMetaData;

	friend struct FObjectSystemAccess;
};

/** A type with properties. */
class COREUOBJECT_API UStruct : public UField
{
	DECLARE_CLASS(UStruct, UField, CLASS_Intrinsic, CASTCLASS_UStruct, TEXT("/Script/CoreUObject"), NO_API)
	DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER(UStruct)
	static void StaticRegisterNativesUStruct() {}
	static void __DefaultConstructor(const FObjectInitializer& X);

	UStruct(EStaticConstructor, int32 InSize, int32 InMinAlignment, EObjectFlags InFlags);
	explicit UStruct(const FObjectInitializer& ObjectInitializer);
	virtual ~UStruct();

	UStruct* GetSuperStruct() const { return SuperStruct; }
	virtual void SetSuperStruct(UStruct* NewSuperStruct);
	UStruct* GetInheritanceSuper() const { return SuperStruct; }
	/** Says whether this is SomeBase or one of its children. */
	bool IsChildOf(const UStruct* SomeBase) const;
	/** Says whether this is T's type or one of its children. */
	template <class T>
	bool IsChildOf() const
	{
		return IsChildOf(T::StaticClass());
	}
	/** The property of this name (any spelling of case), own ones first, or null. */
	FProperty* FindPropertyByName(FName InName) const;
	/** Size of a value in bytes, aligned. */
	int32 GetStructureSize() const;
	int32 GetPropertiesSize() const { return PropertiesSize; }
	int32 GetMinAlignment() const { return MinAlignment; }
	/** The name with its prefix for C++. */
	FString GetPrefixedName() const;
	virtual const TCHAR* GetPrefixCPP() const { return TEXT("F"); }
	/** Chains the properties and works out their computed flags. */
	void StaticLink();
	/** Adds a property after the ones that are there. */
	void AddCppProperty(FProperty* Property);

	/** Constructs ArrayDim values. */
	virtual void InitializeStruct(void* Dest, int32 ArrayDim = 1) const;
	/** Destroys ArrayDim values. */
	virtual void DestroyStruct(void* Dest, int32 ArrayDim = 1) const;

	/** Own properties in the order of their declaration, linked by FField::Next. */
	FField* ChildProperties;
	/** All properties, own ones first, linked by FProperty::PropertyLinkNext. */
	FProperty* PropertyLink;
	/** Properties that hold object references, linked by FProperty::NextRef. */
	FProperty* RefLink;
	int32 PropertiesSize;
	int32 MinAlignment;

private:
	UStruct* SuperStruct;

	friend struct FObjectSystemAccess;
};

/** A native struct. */
class COREUOBJECT_API UScriptStruct : public UStruct
{
	DECLARE_CLASS(UScriptStruct, UStruct, CLASS_Intrinsic, CASTCLASS_UScriptStruct, TEXT("/Script/CoreUObject"), NO_API)
	DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER(UScriptStruct)
	static void StaticRegisterNativesUScriptStruct() {}
	static void __DefaultConstructor(const FObjectInitializer& X);

	/** What C++ knows about the struct; lives in the struct's binary. */
	struct COREUOBJECT_API ICppStructOps
	{
		ICppStructOps(int32 InSize, int32 InAlignment)
			: Size(InSize)
			, Alignment(InAlignment)
		{}
		virtual ~ICppStructOps() {}
		virtual bool HasZeroConstructor() = 0;
		/** Constructs in zeroed memory. */
		virtual void Construct(void* Dest) = 0;
		virtual bool HasDestructor() = 0;
		virtual void Destruct(void* Dest) = 0;
		virtual bool IsPlainOldData() = 0;
		/** Assigns ArrayDim values; false when memory may be copied instead. */
		virtual bool Copy(void* Dest, void const* Src, int32 ArrayDim) = 0;
		virtual bool HasIdentical() = 0;
		virtual bool Identical(const void* A, const void* B, uint32 PortFlags, bool& bOutResult) = 0;
		virtual bool HasAddStructReferencedObjects() = 0;
		typedef void (*TPointerToAddStructReferencedObjects)(void* A, FReferenceCollector& Collector);
		virtual TPointerToAddStructReferencedObjects AddStructReferencedObjects() = 0;
		int32 GetSize() const { return Size; }
		int32 GetAlignment() const { return Alignment; }

	private:
		const int32 Size;
		const int32 Alignment;
	};

	/** What C++ knows about one struct. */
	template <class CPPSTRUCT>
	struct TCppStructOps : public ICppStructOps
	{
		typedef TStructOpsTypeTraits<CPPSTRUCT> TTraits;
		static_assert(!TTraits::WithSerializer && !TTraits::WithNetSerializer && !TTraits::WithExportTextItem
				&& !TTraits::WithImportTextItem && !TTraits::WithPostSerialize,
			"not in this stand-in: native text or archive functions of structs");

		TCppStructOps()
			: ICppStructOps(int32(sizeof(CPPSTRUCT)), int32(alignof(CPPSTRUCT)))
		{}
		virtual bool HasZeroConstructor() override { return TTraits::WithZeroConstructor; }
		virtual void Construct(void* Dest) override { StandInPrivate::ConstructStruct<CPPSTRUCT>(Dest); }
		virtual bool HasDestructor() override { return !(TTraits::WithNoDestructor || std::is_trivially_destructible<CPPSTRUCT>::value); }
		virtual void Destruct(void* Dest) override { static_cast<CPPSTRUCT*>(Dest)->~CPPSTRUCT(); }
		virtual bool IsPlainOldData() override { return std::is_trivial<CPPSTRUCT>::value; }
		virtual bool Copy(void* Dest, void const* Src, int32 ArrayDim) override
		{
			return StandInPrivate::CopyStruct<CPPSTRUCT>(
				Dest, Src, ArrayDim, std::integral_constant<bool, std::is_copy_assignable<CPPSTRUCT>::value>());
		}
		virtual bool HasIdentical() override { return TTraits::WithIdentical || TTraits::WithIdenticalViaEquality; }
		virtual bool Identical(const void* A, const void* B, uint32 PortFlags, bool& bOutResult) override
		{
			return StandInPrivate::IdenticalStruct((const CPPSTRUCT*)A, (const CPPSTRUCT*)B, PortFlags, bOutResult,
				std::integral_constant < int,
				TTraits::WithIdentical                  ? 1
					: TTraits::WithIdenticalViaEquality ? 2
														: 0 > ());
		}
		virtual bool HasAddStructReferencedObjects() override { return TTraits::WithAddStructReferencedObjects; }
		virtual TPointerToAddStructReferencedObjects AddStructReferencedObjects() override
		{
			return StandInPrivate::StructReferences<CPPSTRUCT>(
				std::integral_constant<bool, bool(TTraits::WithAddStructReferencedObjects)>());
		}
	};

	UScriptStruct(EStaticConstructor, int32 InSize, int32 InAlignment, EObjectFlags InFlags);
	explicit UScriptStruct(const FObjectInitializer& ObjectInitializer);
	virtual ~UScriptStruct();

	/** Announces a struct's C++ operations by its name without prefix. */
	static void DeferCppStructOps(FName Target, ICppStructOps* InCppStructOps);
	/** Announces a struct's C++ operations by its name without prefix. */
	template <class CPPSTRUCT>
	static void DeferCppStructOps(FName Target)
	{
		DeferCppStructOps(Target, new TCppStructOps<CPPSTRUCT>);
	}
	ICppStructOps* GetCppStructOps() const { return CppStructOps; }
	/** Copies ArrayDim values over others. */
	void CopyScriptStruct(void* Dest, void const* Src, int32 ArrayDim = 1) const;
	/** Says whether two values are the same, property by property or by the struct's own comparison. */
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const;
	virtual void InitializeStruct(void* Dest, int32 ArrayDim = 1) const override;
	virtual void DestroyStruct(void* Dest, int32 ArrayDim = 1) const override;
	/** Sets one value back to its constructor's defaults. */
	void ClearScriptStruct(void* Dest, int32 ArrayDim = 1) const;
	/** Appends `(A=…,B=…)`; fields equal to Defaults (if given) are left out. */
	void ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags,
		UObject* ExportRootScope, bool bAllowNativeOverride = true) const;
	/** Reads `(A=…,B=…)` into a value; returns the text behind it, or null for text that breaks off or does not start with `(`. */
	const TCHAR* ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText,
		const FString& StructName, bool bAllowNativeOverride = true) const;
	FString GetStructCPPName() const { return GetPrefixedName(); }

	EStructFlags StructFlags;

private:
	ICppStructOps* CppStructOps;

	friend struct FObjectSystemAccess;
};
