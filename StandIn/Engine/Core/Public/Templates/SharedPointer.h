// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Templates/SharedPointerInternals.h"

// Reference-counted pointers: TSharedPtr, TSharedRef (never null), TWeakPtr, TSharedFromThis. Dereferencing a null pointer is fatal.

/** A reference-counted pointer that is never null. */
template <class ObjectType, ESPMode Mode>
class TSharedRef
{
	template <class OtherType, ESPMode OtherMode>
	friend class TSharedRef;
	template <class OtherType, ESPMode OtherMode>
	friend class TSharedPtr;
	template <class OtherType, ESPMode OtherMode>
	friend class TWeakPtr;

public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode_ = Mode;

	/** Takes an object over; null is fatal. */
	template <typename OtherType, typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	explicit TSharedRef(OtherType* InObject)
		: Object(InObject)
	{
		check(InObject != nullptr);
		Counter = MakeCounter(InObject, SharedPointerInternals::TDefaultDeleter<OtherType>());
		LinkSharedFromThis(this, InObject, InObject);
	}

	/** Takes an object over with its deleter; null is fatal. */
	template <typename OtherType, typename DeleterType,
		typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TSharedRef(OtherType* InObject, DeleterType&& InDeleter)
		: Object(InObject)
	{
		check(InObject != nullptr);
		Counter = MakeCounter(InObject, typename TDecay<DeleterType>::Type(Forward<DeleterType>(InDeleter)));
		LinkSharedFromThis(this, InObject, InObject);
	}

	/** Takes over what MakeShareable was given; null is fatal. */
	template <typename OtherType, typename DeleterType,
		typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TSharedRef(const SharedPointerInternals::TRawPtrProxy<OtherType, DeleterType>& InProxy)
		: TSharedRef(InProxy.Object, MoveTemp(InProxy.Deleter))
	{}

	/** Shares a reference to a derived class. */
	template <typename OtherType, typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TSharedRef(const TSharedRef<OtherType, Mode>& InRef)
		: Object(InRef.Object)
		, Counter(InRef.Counter)
	{}

	/** Shares another reference's owner but points at another object. */
	template <typename OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& InRef, ObjectType* InObject)
		: Object(InObject)
		, Counter(InRef.Counter)
	{
		check(InObject != nullptr);
	}

	TSharedRef(const TSharedRef& InRef)
		: Object(InRef.Object)
		, Counter(InRef.Counter)
	{}

	/** Shares; the moved reference stays usable, as references are never null. */
	TSharedRef(TSharedRef&& InRef)
		: Object(InRef.Object)
		, Counter(InRef.Counter)
	{}

	TSharedRef& operator=(const TSharedRef& InRef)
	{
		// The other reference may live in the object that goes now.
		Object = InRef.Object;
		Counter = InRef.Counter;
		return *this;
	}

	TSharedRef& operator=(TSharedRef&& InRef)
	{
		Swap(Object, InRef.Object);
		Swap(Counter.Controller, InRef.Counter.Controller);
		return *this;
	}

	/** Takes over what MakeShareable was given. */
	template <typename OtherType, typename DeleterType>
	TSharedRef& operator=(const SharedPointerInternals::TRawPtrProxy<OtherType, DeleterType>& InProxy)
	{
		return *this = TSharedRef(InProxy);
	}

	/** The object. */
	ObjectType& Get() const
	{
		check(IsValid());
		return *Object;
	}

	/** The object. */
	ObjectType& operator*() const
	{
		check(IsValid());
		return *Object;
	}

	/** The object. */
	ObjectType* operator->() const
	{
		check(IsValid());
		return Object;
	}

	/** How many strong references there are. */
	int32 GetSharedReferenceCount() const { return Counter.GetCount(); }

	/** Whether this is the only strong reference. */
	bool IsUnique() const { return GetSharedReferenceCount() == 1; }

private:
	TSharedRef(ObjectType* InObject, SharedPointerInternals::TSharedReferencer<Mode>&& InCounter, SharedPointerInternals::FCastTag)
		: Object(InObject)
		, Counter(MoveTemp(InCounter))
	{
		check(InObject != nullptr);
	}

	template <typename OtherType, typename DeleterType>
	static SharedPointerInternals::TSharedReferencer<Mode> MakeCounter(OtherType* InObject, DeleterType&& InDeleter)
	{
		return SharedPointerInternals::TSharedReferencer<Mode>(
			new SharedPointerInternals::TReferenceControllerWithDeleter<OtherType, DeleterType, Mode>(InObject, MoveTemp(InDeleter)));
	}

	bool IsValid() const { return Object != nullptr; }

	template <class OtherType, ESPMode OtherMode, typename... ArgTypes>
	friend TSharedRef<OtherType, OtherMode> MakeSharedImpl(ArgTypes&&... Args);

	ObjectType* Object;
	SharedPointerInternals::TSharedReferencer<Mode> Counter;
};

/** A reference-counted pointer that may be null. */
template <class ObjectType, ESPMode Mode>
class TSharedPtr
{
	template <class OtherType, ESPMode OtherMode>
	friend class TSharedPtr;
	template <class OtherType, ESPMode OtherMode>
	friend class TWeakPtr;

public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode_ = Mode;

	/** A null pointer. */
	TSharedPtr(TYPE_OF_NULLPTR = nullptr) {}

	/** Takes an object over, or null. */
	template <typename OtherType, typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	explicit TSharedPtr(OtherType* InObject)
	{
		if (InObject != nullptr)
		{
			*this = TSharedPtr(TSharedRef<ObjectType, Mode>(InObject));
		}
	}

	/** Takes an object over with its deleter. */
	template <typename OtherType, typename DeleterType,
		typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TSharedPtr(OtherType* InObject, DeleterType&& InDeleter)
	{
		if (InObject != nullptr)
		{
			*this = TSharedPtr(TSharedRef<ObjectType, Mode>(InObject, Forward<DeleterType>(InDeleter)));
		}
	}

	/** Takes over what MakeShareable was given. */
	template <typename OtherType, typename DeleterType,
		typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TSharedPtr(const SharedPointerInternals::TRawPtrProxy<OtherType, DeleterType>& InProxy)
		: TSharedPtr(InProxy.Object, MoveTemp(InProxy.Deleter))
	{}

	/** Shares a reference. */
	template <typename OtherType, typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TSharedPtr(const TSharedRef<OtherType, Mode>& InRef)
		: Object(InRef.Object)
		, Counter(InRef.Counter)
	{}

	/** Shares a pointer to a derived class. */
	template <typename OtherType, typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& InPtr)
		: Object(InPtr.Object)
		, Counter(InPtr.Counter)
	{}

	/** Takes over a pointer to a derived class. */
	template <typename OtherType, typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TSharedPtr(TSharedPtr<OtherType, Mode>&& InPtr)
		: Object(InPtr.Object)
		, Counter(MoveTemp(InPtr.Counter))
	{
		InPtr.Object = nullptr;
	}

	/** Shares another pointer's owner but points at another object. */
	template <typename OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& InPtr, ObjectType* InObject)
		: Object(InObject)
		, Counter(InPtr.Counter)
	{}

	/** Shares a reference's owner but points at another object. */
	template <typename OtherType>
	TSharedPtr(const TSharedRef<OtherType, Mode>& InRef, ObjectType* InObject)
		: Object(InObject)
		, Counter(InRef.Counter)
	{}

	TSharedPtr(const TSharedPtr& InPtr)
		: Object(InPtr.Object)
		, Counter(InPtr.Counter)
	{}

	TSharedPtr(TSharedPtr&& InPtr)
		: Object(InPtr.Object)
		, Counter(MoveTemp(InPtr.Counter))
	{
		InPtr.Object = nullptr;
	}

	TSharedPtr& operator=(TYPE_OF_NULLPTR)
	{
		Reset();
		return *this;
	}

	TSharedPtr& operator=(const TSharedPtr& InPtr)
	{
		TSharedPtr Copy(InPtr);
		return *this = MoveTemp(Copy);
	}

	TSharedPtr& operator=(TSharedPtr&& InPtr)
	{
		if (this != &InPtr)
		{
			Object = InPtr.Object;
			InPtr.Object = nullptr;
			Counter = MoveTemp(InPtr.Counter);
		}
		return *this;
	}

	/** Takes over what MakeShareable was given. */
	template <typename OtherType, typename DeleterType>
	TSharedPtr& operator=(const SharedPointerInternals::TRawPtrProxy<OtherType, DeleterType>& InProxy)
	{
		return *this = TSharedPtr(InProxy);
	}

	/** Converts to a reference; null is fatal. */
	TSharedRef<ObjectType, Mode> ToSharedRef() const
	{
		check(IsValid());
		return TSharedRef<ObjectType, Mode>(
			Object, SharedPointerInternals::TSharedReferencer<Mode>(Counter), SharedPointerInternals::FCastTag());
	}

	/** The object or null. */
	ObjectType* Get() const { return Object; }

	/** Whether the pointer is not null. */
	explicit operator bool() const { return Object != nullptr; }

	/** Whether the pointer is not null. */
	bool IsValid() const { return Object != nullptr; }

	/** The object; null is fatal. */
	typename std::add_lvalue_reference<ObjectType>::type operator*() const
	{
		check(IsValid());
		return *Object;
	}

	/** The object; null is fatal. */
	ObjectType* operator->() const
	{
		check(IsValid());
		return Object;
	}

	/** Lets go of the object. */
	void Reset() { *this = TSharedPtr(); }

	/** How many strong references there are, 0 for null. */
	int32 GetSharedReferenceCount() const { return Counter.GetCount(); }

	/** Whether this is the only strong reference. */
	bool IsUnique() const { return GetSharedReferenceCount() == 1; }

private:
	TSharedPtr(ObjectType* InObject, SharedPointerInternals::TSharedReferencer<Mode>&& InCounter, SharedPointerInternals::FCastTag)
		: Object(InCounter.Controller != nullptr ? InObject : nullptr)
		, Counter(MoveTemp(InCounter))
	{}

	ObjectType* Object = nullptr;
	SharedPointerInternals::TSharedReferencer<Mode> Counter;
};

/** Points at a shared object without keeping it alive. */
template <class ObjectType, ESPMode Mode>
class TWeakPtr
{
	template <class OtherType, ESPMode OtherMode>
	friend class TWeakPtr;

public:
	using ElementType = ObjectType;

	/** A null pointer. */
	TWeakPtr(TYPE_OF_NULLPTR = nullptr) {}

	/** Points at a reference's object. */
	template <typename OtherType, typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TWeakPtr(const TSharedRef<OtherType, Mode>& InRef)
		: Object(InRef.Object)
		, Counter(InRef.Counter.Controller)
	{}

	/** Points at a pointer's object. */
	template <typename OtherType, typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TWeakPtr(const TSharedPtr<OtherType, Mode>& InPtr)
		: Object(InPtr.Object)
		, Counter(InPtr.Counter.Controller)
	{}

	/** Copies a weak pointer to a derived class. */
	template <typename OtherType, typename = typename TEnableIf<TPointerIsConvertibleFromTo<OtherType, ObjectType>::Value>::Type>
	TWeakPtr(const TWeakPtr<OtherType, Mode>& InPtr)
		: Object(InPtr.Object)
		, Counter(InPtr.Counter)
	{}

	TWeakPtr(const TWeakPtr&) = default;
	TWeakPtr& operator=(const TWeakPtr&) = default;

	TWeakPtr(TWeakPtr&& InPtr)
		: Object(InPtr.Object)
		, Counter(MoveTemp(InPtr.Counter))
	{
		InPtr.Object = nullptr;
	}

	TWeakPtr& operator=(TWeakPtr&& InPtr)
	{
		if (this != &InPtr)
		{
			Object = InPtr.Object;
			Counter = MoveTemp(InPtr.Counter);
			InPtr.Object = nullptr;
		}
		return *this;
	}

	/** A strong pointer to the object, null if it is gone. */
	TSharedPtr<ObjectType, Mode> Pin() const
	{
		return TSharedPtr<ObjectType, Mode>(Object, Counter.Pin(), SharedPointerInternals::FCastTag());
	}

	/** Whether the object still lives. */
	bool IsValid() const { return Object != nullptr && Counter.IsValid(); }

	/** Points at nothing. */
	void Reset() { *this = TWeakPtr(); }

	/** Whether the object still lives and is at this address. */
	bool HasSameObject(const void* InOther) const { return Pin().Get() == InOther; }

	/** Hash of the address, alike before and after the object's end. */
	uint32 GetWeakPtrTypeHash() const { return PointerHash(Object); }

private:
	ObjectType* Object = nullptr;
	SharedPointerInternals::TWeakReferencer<Mode> Counter;
};

/** Casts a reference statically. */
template <class CastToType, class CastFromType, ESPMode Mode>
TSharedRef<CastToType, Mode> StaticCastSharedRef(const TSharedRef<CastFromType, Mode>& InRef);

/** Base of classes whose objects find their own shared pointer. */
template <class ObjectType, ESPMode Mode>
class TSharedFromThis
{
public:
	/** A reference to this; fatal unless a shared pointer owns the object. */
	TSharedRef<ObjectType, Mode> AsShared()
	{
		TSharedPtr<ObjectType, Mode> SharedThis(WeakThis.Pin());
		check(SharedThis.Get() == this);
		return SharedThis.ToSharedRef();
	}

	/** A reference to this; fatal unless a shared pointer owns the object. */
	TSharedRef<const ObjectType, Mode> AsShared() const
	{
		TSharedPtr<const ObjectType, Mode> SharedThis(WeakThis.Pin());
		check(SharedThis.Get() == this);
		return SharedThis.ToSharedRef();
	}

	/** Whether a shared pointer owns the object now. */
	bool DoesSharedInstanceExist() const { return WeakThis.IsValid(); }

	/** Notes the first shared pointer that owns the object; called by the shared pointers only. */
	template <class SharedType, class OtherType>
	void UpdateWeakReferenceInternal(const TSharedRef<SharedType, Mode>* InRef, OtherType* InObject) const
	{
		if (!WeakThis.IsValid())
		{
			WeakThis = TSharedRef<ObjectType, Mode>(*InRef, const_cast<typename TRemoveConst<OtherType>::Type*>(InObject));
		}
	}

protected:
	TSharedFromThis() {}
	TSharedFromThis(const TSharedFromThis&) {}
	TSharedFromThis& operator=(const TSharedFromThis&) { return *this; }
	~TSharedFromThis() {}

	/** A reference of the derived type to this object. */
	template <class OtherType>
	static TSharedRef<OtherType, Mode> SharedThis(OtherType* ThisPtr)
	{
		return StaticCastSharedRef<OtherType>(ThisPtr->AsShared());
	}

	/** A reference of the derived const type to this object. */
	template <class OtherType>
	static TSharedRef<const OtherType, Mode> SharedThis(const OtherType* ThisPtr)
	{
		return StaticCastSharedRef<const OtherType>(ThisPtr->AsShared());
	}

private:
	mutable TWeakPtr<ObjectType, Mode> WeakThis;
};

/** Links an object that derives from TSharedFromThis with its owner. */
template <class SharedType, class ObjectType, class OtherType, ESPMode Mode>
void LinkSharedFromThis(
	const TSharedRef<SharedType, Mode>* InRef, ObjectType* InObject, const TSharedFromThis<OtherType, Mode>* InShareable)
{
	if (InShareable != nullptr)
	{
		InShareable->UpdateWeakReferenceInternal(InRef, InObject);
	}
}

/** Any other object needs no link. */
inline void LinkSharedFromThis(...) {}

/** Makes an object together with its reference counts. */
template <class ObjectType, ESPMode Mode, typename... ArgTypes>
TSharedRef<ObjectType, Mode> MakeSharedImpl(ArgTypes&&... Args)
{
	auto* Controller = new SharedPointerInternals::TIntrusiveReferenceController<ObjectType, Mode>(Forward<ArgTypes>(Args)...);
	ObjectType* Object = Controller->GetObjectPtr();
	TSharedRef<ObjectType, Mode> Result(
		Object, SharedPointerInternals::TSharedReferencer<Mode>(Controller), SharedPointerInternals::FCastTag());
	LinkSharedFromThis(&Result, Object, Object);
	return Result;
}

/** Makes an object and a reference to it; the constructor must be public. */
template <typename ObjectType, ESPMode Mode = ESPMode::Fast, typename... ArgTypes>
TSharedRef<ObjectType, Mode> MakeShared(ArgTypes&&... Args)
{
	return MakeSharedImpl<ObjectType, Mode>(Forward<ArgTypes>(Args)...);
}

/** Wraps a new object so that it converts to a shared pointer or reference. */
template <class ObjectType>
SharedPointerInternals::TRawPtrProxy<ObjectType, SharedPointerInternals::TDefaultDeleter<ObjectType>> MakeShareable(ObjectType* InObject)
{
	return {InObject, SharedPointerInternals::TDefaultDeleter<ObjectType>()};
}

/** Wraps a new object and its deleter. */
template <class ObjectType, class DeleterType>
SharedPointerInternals::TRawPtrProxy<ObjectType, typename TDecay<DeleterType>::Type> MakeShareable(
	ObjectType* InObject, DeleterType&& InDeleter)
{
	return {InObject, Forward<DeleterType>(InDeleter)};
}

/** Casts a reference statically. */
template <class CastToType, class CastFromType, ESPMode Mode>
TSharedRef<CastToType, Mode> StaticCastSharedRef(const TSharedRef<CastFromType, Mode>& InRef)
{
	return TSharedRef<CastToType, Mode>(InRef, static_cast<CastToType*>(&InRef.Get()));
}

/** Casts a pointer statically. */
template <class CastToType, class CastFromType, ESPMode Mode>
TSharedPtr<CastToType, Mode> StaticCastSharedPtr(const TSharedPtr<CastFromType, Mode>& InPtr)
{
	return TSharedPtr<CastToType, Mode>(InPtr, static_cast<CastToType*>(InPtr.Get()));
}

/** Casts a weak pointer statically. */
template <class CastToType, class CastFromType, ESPMode Mode>
TWeakPtr<CastToType, Mode> StaticCastWeakPtr(const TWeakPtr<CastFromType, Mode>& InPtr)
{
	return StaticCastSharedPtr<CastToType>(InPtr.Pin());
}

/** Casts const away from a reference. */
template <class CastToType, class CastFromType, ESPMode Mode>
TSharedRef<CastToType, Mode> ConstCastSharedRef(const TSharedRef<CastFromType, Mode>& InRef)
{
	return TSharedRef<CastToType, Mode>(InRef, const_cast<CastToType*>(&InRef.Get()));
}

/** Casts const away from a pointer. */
template <class CastToType, class CastFromType, ESPMode Mode>
TSharedPtr<CastToType, Mode> ConstCastSharedPtr(const TSharedPtr<CastFromType, Mode>& InPtr)
{
	return TSharedPtr<CastToType, Mode>(InPtr, const_cast<CastToType*>(InPtr.Get()));
}

#include "Templates/SharedPointerCompare.h"
