// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/Properties/Property.h"
#include <new>
#include <type_traits>

// Properties whose value is one C++ type; part of UObject/UnrealType.h.

/** A property whose value has the C++ type TCppType. */
template <typename InTCppType, class TInheritedClass>
class TProperty : public TInheritedClass
{
public:
	typedef InTCppType TCppType;
	typedef TInheritedClass TypeSuper;

	TProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, FFieldClass* InClass, int32 InOffset,
		EPropertyFlags InFlags)
		: TInheritedClass(InOwner, InName, InObjectFlags, InClass, InOffset, InFlags, int32(sizeof(TCppType)))
	{}

	static const TCppType& GetPropertyValue(void const* Ptr) { return *(TCppType const*)Ptr; }
	static TCppType* GetPropertyValuePtr(void* Ptr) { return (TCppType*)Ptr; }
	static void SetPropertyValue(void* Ptr, TCppType const& Value) { *(TCppType*)Ptr = Value; }
	TCppType const& GetPropertyValue_InContainer(void const* Container, int32 ArrayIndex = 0) const
	{
		return GetPropertyValue(this->template ContainerPtrToValuePtr<void>(Container, ArrayIndex));
	}
	void SetPropertyValue_InContainer(void* Container, TCppType const& Value, int32 ArrayIndex = 0) const
	{
		SetPropertyValue(this->template ContainerPtrToValuePtr<void>(Container, ArrayIndex), Value);
	}

	virtual int32 GetMinAlignment() const override { return int32(alignof(TCppType)); }
	virtual void LinkInternal() override
	{
		this->PropertyFlags |= CPF_ZeroConstructor | (std::is_trivially_destructible<TCppType>::value ? CPF_NoDestructor : CPF_None)
			| (std::is_trivially_copyable<TCppType>::value ? CPF_IsPlainOldData : CPF_None);
	}

protected:
	virtual void CopyElement(void* Dest, void const* Src) const override { *(TCppType*)Dest = *(TCppType const*)Src; }
	virtual void InitializeElement(void* Dest) const override { ::new (Dest) TCppType(); }
	virtual void DestroyElement(void* Dest) const override { ((TCppType*)Dest)->~TCppType(); }
};
