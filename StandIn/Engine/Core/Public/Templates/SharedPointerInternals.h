// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTemplate.h"
#include "Templates/SharedPointerFwd.h"
#include "Misc/AssertionMacros.h"
#include <atomic>

// Reference counting behind the shared pointers.

namespace SharedPointerInternals
{
/** A plain or an atomic counter, by mode. */
template <ESPMode Mode>
struct TCounter
{
	int32 Value = 1;
	int32 Add(int32 Amount) { return Value += Amount; }
	int32 Get() const { return Value; }
	bool AddUnlessZero() { return Value != 0 && ++Value != 0; }
};

template <>
struct TCounter<ESPMode::ThreadSafe>
{
	std::atomic<int32> Value{1};
	int32 Add(int32 Amount) { return Value.fetch_add(Amount, std::memory_order_acq_rel) + Amount; }
	int32 Get() const { return Value.load(std::memory_order_acquire); }
	bool AddUnlessZero()
	{
		int32 Current = Value.load(std::memory_order_relaxed);
		while (Current != 0)
		{
			if (Value.compare_exchange_weak(Current, Current + 1, std::memory_order_acq_rel))
			{
				return true;
			}
		}
		return false;
	}
};

/** Counts the references to one object; all strong references together hold one weak one. */
template <ESPMode Mode>
class TReferenceController
{
public:
	virtual ~TReferenceController() {}
	virtual void DestroyObject() = 0;

	TCounter<Mode> Shared;
	TCounter<Mode> Weak;

	void ReleaseWeak()
	{
		if (Weak.Add(-1) == 0)
		{
			delete this;
		}
	}

	void ReleaseShared()
	{
		if (Shared.Add(-1) == 0)
		{
			DestroyObject();
			ReleaseWeak();
		}
	}
};

/** Controller of an object made elsewhere. */
template <typename ObjectType, typename DeleterType, ESPMode Mode>
class TReferenceControllerWithDeleter : public TReferenceController<Mode>
{
public:
	TReferenceControllerWithDeleter(ObjectType* InObject, DeleterType&& InDeleter)
		: Object(InObject)
		, Deleter(MoveTemp(InDeleter))
	{}

	virtual void DestroyObject() override { Deleter(Object); }

private:
	ObjectType* Object;
	DeleterType Deleter;
};

/** Controller with the object inside it, for MakeShared. */
template <typename ObjectType, ESPMode Mode>
class TIntrusiveReferenceController : public TReferenceController<Mode>
{
public:
	template <typename... ArgTypes>
	explicit TIntrusiveReferenceController(ArgTypes&&... Args)
	{
		new (static_cast<void*>(Storage)) ObjectType(Forward<ArgTypes>(Args)...);
	}

	ObjectType* GetObjectPtr() { return reinterpret_cast<ObjectType*>(Storage); }
	virtual void DestroyObject() override { GetObjectPtr()->~ObjectType(); }

private:
	alignas(ObjectType) unsigned char Storage[sizeof(ObjectType)];
};

/** Deletes with the static type of the pointer that was given. */
template <typename ObjectType>
struct TDefaultDeleter
{
	void operator()(ObjectType* Object) { delete Object; }
};

/** One strong reference. */
template <ESPMode Mode>
class TSharedReferencer
{
public:
	TSharedReferencer() {}
	explicit TSharedReferencer(TReferenceController<Mode>* InController)
		: Controller(InController)
	{}
	TSharedReferencer(const TSharedReferencer& Other)
		: Controller(Other.Controller)
	{
		if (Controller != nullptr)
		{
			Controller->Shared.Add(1);
		}
	}
	TSharedReferencer(TSharedReferencer&& Other)
		: Controller(Other.Controller)
	{
		Other.Controller = nullptr;
	}
	TSharedReferencer& operator=(TSharedReferencer Other)
	{
		Swap(Controller, Other.Controller);
		return *this;
	}
	~TSharedReferencer()
	{
		if (Controller != nullptr)
		{
			Controller->ReleaseShared();
		}
	}

	int32 GetCount() const { return Controller != nullptr ? Controller->Shared.Get() : 0; }

	TReferenceController<Mode>* Controller = nullptr;
};

/** One weak reference. */
template <ESPMode Mode>
class TWeakReferencer
{
public:
	TWeakReferencer() {}
	explicit TWeakReferencer(TReferenceController<Mode>* InController)
		: Controller(InController)
	{
		if (Controller != nullptr)
		{
			Controller->Weak.Add(1);
		}
	}
	TWeakReferencer(const TWeakReferencer& Other)
		: TWeakReferencer(Other.Controller)
	{}
	TWeakReferencer(TWeakReferencer&& Other)
		: Controller(Other.Controller)
	{
		Other.Controller = nullptr;
	}
	TWeakReferencer& operator=(TWeakReferencer Other)
	{
		Swap(Controller, Other.Controller);
		return *this;
	}
	~TWeakReferencer()
	{
		if (Controller != nullptr)
		{
			Controller->ReleaseWeak();
		}
	}

	bool IsValid() const { return Controller != nullptr && Controller->Shared.Get() > 0; }

	/** A strong reference if the object still lives. */
	TSharedReferencer<Mode> Pin() const
	{
		return Controller != nullptr && Controller->Shared.AddUnlessZero() ? TSharedReferencer<Mode>(Controller)
																		   : TSharedReferencer<Mode>();
	}

	TReferenceController<Mode>* Controller = nullptr;
};

/** What MakeShareable yields: an object on its way into a shared pointer. */
template <typename ObjectType, typename DeleterType>
struct TRawPtrProxy
{
	ObjectType* Object;
	mutable DeleterType Deleter;
};

/** Tag of the private constructors that cast. */
struct FCastTag
{};
}
