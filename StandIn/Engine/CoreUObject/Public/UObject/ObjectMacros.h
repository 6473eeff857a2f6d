// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Misc/EnumClassFlags.h"
#include "StandIn/ReflectionFlags.h"
#include "UObject/UObjectHierarchyFwd.h"
#include <cstddef>

// The words that reflected headers and generated code are written in. The flags are in StandIn/ReflectionFlags.h.
// Left out: sparse class data, script (VM) functions, interfaces, serializers (DECLARE_SERIALIZER declares nothing) and hot reload.

class FObjectInitializer;
class FReferenceCollector;
class FVTableHelper;

/** Chooses the operator new that constructs in given memory. */
enum EInternal
{
	EC_InternalUseOnlyConstructor
};

/** Chooses the constructor of type objects that are made by static data of a binary. */
enum EStaticConstructor
{
	EC_StaticConstructor
};

#ifndef NO_API
#define NO_API
#endif
#ifndef WITH_METADATA
#define WITH_METADATA WITH_EDITORONLY_DATA
#endif
#ifndef WITH_HOT_RELOAD
#define WITH_HOT_RELOAD 0
#endif

// Offsets into classes with virtual functions are what reflection lives on; the engine's own build is silent about them, too.
#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif
#ifndef STRUCT_OFFSET
#define STRUCT_OFFSET(struc, member) offsetof(struc, member)
#endif
#define CPP_ARRAY_DIM(ArrayName, ClassName) (sizeof(((ClassName*)0)->ArrayName) / sizeof(((ClassName*)0)->ArrayName[0]))

#if WITH_METADATA
#define METADATA_PARAMS(x, y) x, y,
#else
#define METADATA_PARAMS(x, y)
#endif

// What the header tool looks for. The generated header gives CURRENT_FILE_ID and the bodies their meaning.
#define BODY_MACRO_COMBINE_INNER(A, B, C, D) A##B##C##D
#define BODY_MACRO_COMBINE(A, B, C, D) BODY_MACRO_COMBINE_INNER(A, B, C, D)
#define UPROPERTY(...)
#define UFUNCTION(...)
#define USTRUCT(...)
#define UENUM(...)
#define UMETA(...)
#define UPARAM(...)
#define UCLASS(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _PROLOG)
#define GENERATED_BODY_LEGACY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY_LEGACY)
#define GENERATED_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY)
#define GENERATED_USTRUCT_BODY(...) GENERATED_BODY()
#define GENERATED_UCLASS_BODY(...) GENERATED_BODY_LEGACY()
#define RESULT_DECL void* const RESULT_PARAM

#define COMPILED_IN_FLAGS(TStaticFlags) ((TStaticFlags) | CLASS_Intrinsic)

#define DECLARE_CLASS(TClass, TSuperClass, TStaticFlags, TStaticCastFlags, TPackage, TRequiredAPI) \
private: \
	TClass& operator=(TClass&&); \
	TClass& operator=(const TClass&); \
	TRequiredAPI static UClass* GetPrivateStaticClass(); \
\
public: \
	/** The class's flags as declared. */ \
	enum : uint32 \
	{ \
		StaticClassFlags = uint32(TStaticFlags) \
	}; \
	typedef TSuperClass Super; \
	typedef TClass ThisClass; \
	/** The class object. */ \
	inline static UClass* StaticClass() \
	{ \
		return GetPrivateStaticClass(); \
	} \
	/** Name of the package that the class lives in. */ \
	inline static const TCHAR* StaticPackage() \
	{ \
		return TPackage; \
	} \
	/** Cast bits of the class. */ \
	inline static EClassCastFlags StaticClassCastFlags() \
	{ \
		return TStaticCastFlags; \
	} \
	/** Constructs in the memory of an object that is being made. */ \
	inline void* operator new(const size_t InSize, EInternal* InMem) \
	{ \
		(void)InSize; \
		return (void*)InMem; \
	}

// Objects are not written to archives here.
#define DECLARE_SERIALIZER(TClass)

#define DECLARE_WITHIN(TWithinClass) \
	typedef class TWithinClass WithinClass; \
	TWithinClass* GetOuter##TWithinClass() const \
	{ \
		return (TWithinClass*)GetOuter(); \
	}

#define DEFINE_DEFAULT_CONSTRUCTOR_CALL(TClass) \
	static void __DefaultConstructor(const FObjectInitializer& X) \
	{ \
		new ((EInternal*)X.GetObj()) TClass; \
	}
#define DEFINE_DEFAULT_OBJECT_INITIALIZER_CONSTRUCTOR_CALL(TClass) \
	static void __DefaultConstructor(const FObjectInitializer& X) \
	{ \
		new ((EInternal*)X.GetObj()) TClass(X); \
	}
#define DEFINE_FORBIDDEN_DEFAULT_CONSTRUCTOR_CALL(TClass) \
	static_assert(sizeof(TClass) == 0, \
		"You have to define " #TClass "::" #TClass "() or " #TClass "::" #TClass \
		"(const FObjectInitializer&). This is required by UObject system to work correctly.");
#define DEFINE_ABSTRACT_DEFAULT_CONSTRUCTOR_CALL(TClass) DEFINE_DEFAULT_CONSTRUCTOR_CALL(TClass)
#define DEFINE_ABSTRACT_DEFAULT_OBJECT_INITIALIZER_CONSTRUCTOR_CALL(TClass) DEFINE_DEFAULT_OBJECT_INITIALIZER_CONSTRUCTOR_CALL(TClass)

#define DECLARE_VTABLE_PTR_HELPER_CTOR(API, TClass) API TClass(FVTableHelper& Helper);
#define DEFINE_VTABLE_PTR_HELPER_CTOR(TClass) \
	TClass::TClass(FVTableHelper& Helper) \
		: Super(Helper) \
	{}
#define DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER_DUMMY() \
	static UObject* __VTableCtorCaller(FVTableHelper& Helper) \
	{ \
		(void)Helper; \
		return nullptr; \
	}
#define DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER(TClass) DEFINE_VTABLE_PTR_HELPER_CTOR_CALLER_DUMMY()

/** Defines a reflected class's class object; used by generated code. */
#define IMPLEMENT_CLASS(TClass, TClassCrc) \
	static TClassCompiledInDefer<TClass> AutoInitialize##TClass(TEXT(#TClass), sizeof(TClass), TClassCrc); \
	UClass* TClass::GetPrivateStaticClass() \
	{ \
		static UClass* PrivateStaticClass = nullptr; \
		if (!PrivateStaticClass) \
		{ \
			GetPrivateStaticClassBody(StaticPackage(), &TEXT(#TClass)[1], PrivateStaticClass, StaticRegisterNatives##TClass, \
				sizeof(TClass), alignof(TClass), (EClassFlags)TClass::StaticClassFlags, TClass::StaticClassCastFlags(), \
				TClass::StaticConfigName(), (UClass::ClassConstructorType)InternalConstructor<TClass>, \
				(UClass::ClassVTableHelperCtorCallerType)InternalVTableHelperCtorCaller<TClass>, &TClass::AddReferencedObjects, \
				&TClass::Super::StaticClass, &TClass::WithinClass::StaticClass); \
		} \
		return PrivateStaticClass; \
	}

/** The class object of a reflected class; specialised by generated code. */
template <typename ClassType>
UClass* StaticClass();

/** The struct object of a reflected struct; specialised by generated code. */
template <typename StructType>
UScriptStruct* StaticStruct();

/** The enumeration object of a reflected enumeration; specialised by generated code. */
template <typename EnumType>
UEnum* StaticEnum();
