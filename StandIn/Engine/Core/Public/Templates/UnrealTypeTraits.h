// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Templates/EnableIf.h"
#include <type_traits>

// Compile-time facts about types, under the engine's names, on top of the standard library's. All of the engine's small trait headers
// are here; their own paths forward to this file where the stand-in has them.

/** Value tells whether two types are the same. */
template <typename A, typename B>
struct TIsSame
{
	enum
	{
		Value = std::is_same < A,
		B > ::value
	};
};

/** Value tells whether two types are the same; older name. */
template <typename A, typename B>
struct TAreTypesEqual
{
	enum
	{
		Value = std::is_same < A,
		B > ::value
	};
};

/** Value (and IsDerived) tells whether DerivedType is BaseType or derives from it. */
template <typename DerivedType, typename BaseType>
struct TIsDerivedFrom
{
	enum
	{
		Value = std::is_base_of < BaseType,
		DerivedType > ::value,
		IsDerived = Value
	};
};

/** Value tells whether From* converts to To* implicitly. */
template <typename From, typename To>
struct TPointerIsConvertibleFromTo
{
	enum
	{
		Value = std::is_convertible < From*,
		To* > ::value
	};
};

/** Value tells whether a From converts to a To implicitly. */
template <typename From, typename To>
struct TIsConvertible
{
	enum
	{
		Value = std::is_convertible < From,
		To > ::value
	};
};

#define STANDIN_DEFINE_TRAIT(Trait, StdTrait) \
	template <typename T> \
	struct Trait \
	{ \
		enum \
		{ \
			Value = StdTrait<T>::value \
		}; \
	};
STANDIN_DEFINE_TRAIT(TIsPointer, std::is_pointer)
STANDIN_DEFINE_TRAIT(TIsEnum, std::is_enum)
STANDIN_DEFINE_TRAIT(TIsClass, std::is_class)
STANDIN_DEFINE_TRAIT(TIsAbstract, std::is_abstract)
STANDIN_DEFINE_TRAIT(TIsConst, std::is_const)
STANDIN_DEFINE_TRAIT(TIsArithmetic, std::is_arithmetic)
STANDIN_DEFINE_TRAIT(TIsIntegral, std::is_integral)
STANDIN_DEFINE_TRAIT(TIsFloatingPoint, std::is_floating_point)
STANDIN_DEFINE_TRAIT(TIsFunction, std::is_function)
STANDIN_DEFINE_TRAIT(TIsArray, std::is_array)
STANDIN_DEFINE_TRAIT(TIsReferenceType, std::is_reference)
STANDIN_DEFINE_TRAIT(TIsLValueReferenceType, std::is_lvalue_reference)
STANDIN_DEFINE_TRAIT(TIsRValueReferenceType, std::is_rvalue_reference)
STANDIN_DEFINE_TRAIT(TIsVoidType, std::is_void)
STANDIN_DEFINE_TRAIT(TIsTrivial, std::is_trivial)
STANDIN_DEFINE_TRAIT(TIsTriviallyCopyConstructible, std::is_trivially_copy_constructible)
STANDIN_DEFINE_TRAIT(TIsTriviallyDestructible, std::is_trivially_destructible)
STANDIN_DEFINE_TRAIT(TIsPODType, std::is_trivially_copyable)
STANDIN_DEFINE_TRAIT(TIsMemberPointer, std::is_member_pointer)
#undef STANDIN_DEFINE_TRAIT

/** Value tells whether a type is one of the character types. */
template <typename T>
struct TIsCharType
{
	enum
	{
		Value = std::is_same < T,
		ANSICHAR > ::value || std::is_same < T,
		WIDECHAR > ::value
	};
};

/** Value is true when all arguments' Values are. */
template <typename... Types>
struct TAnd
{
	enum
	{
		Value = 1
	};
};

template <typename First, typename... Rest>
struct TAnd<First, Rest...>
{
	enum
	{
		Value = First::Value && TAnd<Rest...>::Value
	};
};

/** Value is true when any argument's Value is. */
template <typename... Types>
struct TOr
{
	enum
	{
		Value = 0
	};
};

template <typename First, typename... Rest>
struct TOr<First, Rest...>
{
	enum
	{
		Value = First::Value || TOr<Rest...>::Value
	};
};

/** Value is the opposite of the argument's. */
template <typename Type>
struct TNot
{
	enum
	{
		Value = !Type::Value
	};
};

/** Type is the first type if the condition holds, else the second. */
template <bool bPredicate, typename TrueClass, typename FalseClass>
struct TChooseClass
{
	typedef typename std::conditional<bPredicate, TrueClass, FalseClass>::type Result;
};

/** Type as it is passed by value: without reference, const, and with arrays and functions as pointers. */
template <typename T>
struct TDecay
{
	typedef typename std::decay<T>::type Type;
};

/** Type without its reference. */
template <typename T>
struct TRemoveReference
{
	typedef typename std::remove_reference<T>::type Type;
};

/** Type without its pointer. */
template <typename T>
struct TRemovePointer
{
	typedef typename std::remove_pointer<T>::type Type;
};

/** Type without const. */
template <typename T>
struct TRemoveConst
{
	typedef typename std::remove_const<T>::type Type;
};

/** Type without const and volatile. */
template <typename T>
struct TRemoveCV
{
	typedef typename std::remove_cv<T>::type Type;
};

/** How a type is best taken as an argument. */
template <typename T>
struct TCallTraits
{
	typedef T ValueType;
	typedef T& Reference;
	typedef const T& ConstReference;
	typedef typename std::conditional<std::is_arithmetic<T>::value || std::is_pointer<T>::value, const T, const T&>::type ParamType;
	typedef const T& ConstPointerType;
};

/** Type of a pointer to a member function of Class with the given signature. */
template <bool bConst, typename Class, typename FuncType>
struct TMemFunPtrType;

template <typename Class, typename RetType, typename... ArgTypes>
struct TMemFunPtrType<false, Class, RetType(ArgTypes...)>
{
	typedef RetType (Class::*Type)(ArgTypes...);
};

template <typename Class, typename RetType, typename... ArgTypes>
struct TMemFunPtrType<true, Class, RetType(ArgTypes...)>
{
	typedef RetType (Class::*Type)(ArgTypes...) const;
};
