// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Containers/Set.h"

// TMap and TMultiMap over TSet, with its iteration order. FString keys compare without regard to case, as in the engine.

/** How a map finds a pair's key. */
template <typename KeyType_, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs
{
	typedef KeyType_ KeyType;
	typedef const KeyType_& KeyInitType;
	typedef const TPair<KeyType_, ValueType>& ElementInitType;
	enum
	{
		bAllowDuplicateKeys = bInAllowDuplicateKeys
	};

	/** The pair's key. */
	static const KeyType& GetSetKey(const TPair<KeyType_, ValueType>& Element) { return Element.Key; }

	/** Whether two keys are the same. */
	static bool Matches(const KeyType& A, const KeyType& B) { return A == B; }

	/** A key's hash. */
	static uint32 GetKeyHash(const KeyType& Key) { return GetTypeHash(Key); }
};

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
using TDefaultMapKeyFuncs = TDefaultMapHashableKeyFuncs<KeyType, ValueType, bInAllowDuplicateKeys>;

/** What TMap and TMultiMap have in common. */
template <typename KeyType, typename ValueType, typename SetAllocator, typename KeyFuncs>
class TMapBase
{
public:
	typedef TPair<KeyType, ValueType> ElementType;
	typedef TSet<ElementType, KeyFuncs, SetAllocator> ElementSetType;

	/** Walks over the pairs; Key and Value give their parts; can remove the one it stands at. */
	template <typename BaseIterator>
	class TPairIterator : public BaseIterator
	{
	public:
		/** Starts at the first pair of a set. */
		explicit TPairIterator(typename BaseIterator::SetType& InSet)
			: BaseIterator(InSet, 0)
		{}

		/** The pair's key. */
		const KeyType& Key() const { return (**this).Key; }

		/** The pair's value. */
		auto Value() const -> decltype((DeclVal<typename BaseIterator::ItType&>().Value)) { return (**this).Value; }
	};

	typedef TPairIterator<typename ElementSetType::TIterator> TIterator;
	typedef TPairIterator<typename ElementSetType::TConstIterator> TConstIterator;

	/** Removes all pairs and the memory. */
	void Empty(int32 ExpectedNumElements = 0) { Pairs.Empty(ExpectedNumElements); }

	/** Removes all pairs and keeps the memory. */
	void Reset() { Pairs.Reset(); }

	/** Gives back memory that is not used. */
	void Shrink() { Pairs.Shrink(); }

	/** Makes room for Number pairs. */
	void Reserve(int32 Number) { Pairs.Reserve(Number); }

	/** How many pairs there are. */
	int32 Num() const { return Pairs.Num(); }

	/** Whether both maps have the same pairs, in any order. */
	bool OrderIndependentCompareEqual(const TMapBase& Other) const
	{
		if (Num() != Other.Num())
		{
			return false;
		}
		for (const ElementType& Pair : Pairs)
		{
			const ElementType* Match = Other.Pairs.Find(Pair.Key);
			if (Match == nullptr || !(Match->Value == Pair.Value))
			{
				return false;
			}
		}
		return true;
	}

	/** Removes all pairs with a key; yields how many. */
	int32 Remove(const KeyType& InKey) { return Pairs.Remove(InKey); }

	/** The first key with a value, or null; looks at every pair. */
	const KeyType* FindKey(const ValueType& Value) const
	{
		for (const ElementType& Pair : Pairs)
		{
			if (Pair.Value == Value)
			{
				return &Pair.Key;
			}
		}
		return nullptr;
	}

	/** A key's value, or null. */
	ValueType* Find(const KeyType& Key)
	{
		ElementType* Pair = Pairs.Find(Key);
		return Pair != nullptr ? &Pair->Value : nullptr;
	}

	/** A key's value, or null. */
	const ValueType* Find(const KeyType& Key) const { return const_cast<TMapBase*>(this)->Find(Key); }

	/** A key's value, or a default one. */
	ValueType FindRef(const KeyType& Key) const
	{
		const ElementType* Pair = Pairs.Find(Key);
		return Pair != nullptr ? Pair->Value : ValueType();
	}

	/** Whether there is a pair with the key. */
	bool Contains(const KeyType& Key) const { return Pairs.Contains(Key); }

	/** A key's value, added as a default one if it is missing. */
	ValueType& FindOrAdd(const KeyType& Key)
	{
		ElementType* Pair = Pairs.Find(Key);
		return Pair != nullptr ? Pair->Value : EmplaceImpl(Key, ValueType());
	}

	/** A key's value, added as a default one if it is missing. */
	ValueType& FindOrAdd(KeyType&& Key)
	{
		ElementType* Pair = Pairs.Find(Key);
		return Pair != nullptr ? Pair->Value : EmplaceImpl(MoveTempIfPossible(Key), ValueType());
	}

	/** A key's value, added as Value if it is missing. */
	ValueType& FindOrAdd(const KeyType& Key, const ValueType& Value)
	{
		ElementType* Pair = Pairs.Find(Key);
		return Pair != nullptr ? Pair->Value : EmplaceImpl(Key, Value);
	}

	/** Adds a pair. */
	ValueType& Add(const KeyType& InKey, const ValueType& InValue) { return EmplaceImpl(InKey, InValue); }
	/** Adds a pair. */
	ValueType& Add(const KeyType& InKey, ValueType&& InValue) { return EmplaceImpl(InKey, MoveTempIfPossible(InValue)); }
	/** Adds a pair. */
	ValueType& Add(KeyType&& InKey, const ValueType& InValue) { return EmplaceImpl(MoveTempIfPossible(InKey), InValue); }
	/** Adds a pair. */
	ValueType& Add(KeyType&& InKey, ValueType&& InValue) { return EmplaceImpl(MoveTempIfPossible(InKey), MoveTempIfPossible(InValue)); }
	/** Adds a pair with a default value. */
	ValueType& Add(const KeyType& InKey) { return EmplaceImpl(InKey, ValueType()); }
	/** Adds a pair with a default value. */
	ValueType& Add(KeyType&& InKey) { return EmplaceImpl(MoveTempIfPossible(InKey), ValueType()); }
	/** Adds a pair. */
	ValueType& Add(const ElementType& InPair) { return EmplaceImpl(InPair.Key, InPair.Value); }

	/** Builds and adds a pair. */
	template <typename InitKeyType, typename InitValueType>
	ValueType& Emplace(InitKeyType&& InKey, InitValueType&& InValue)
	{
		return EmplaceImpl(Forward<InitKeyType>(InKey), Forward<InitValueType>(InValue));
	}

	/** Builds and adds a pair with a default value. */
	template <typename InitKeyType>
	ValueType& Emplace(InitKeyType&& InKey)
	{
		return EmplaceImpl(Forward<InitKeyType>(InKey), ValueType());
	}

	/** Each different key once; yields how many. */
	template <typename Allocator>
	int32 GetKeys(TArray<KeyType, Allocator>& OutKeys) const
	{
		OutKeys.Reset();
		TSet<KeyType> Seen;
		for (const ElementType& Pair : Pairs)
		{
			bool bAlreadySeen = false;
			Seen.Add(Pair.Key, &bAlreadySeen);
			if (!bAlreadySeen)
			{
				OutKeys.Add(Pair.Key);
			}
		}
		return OutKeys.Num();
	}

	/** All keys, in order of iteration. */
	template <typename Allocator>
	void GenerateKeyArray(TArray<KeyType, Allocator>& OutArray) const
	{
		OutArray.Empty(Num());
		for (const ElementType& Pair : Pairs)
		{
			OutArray.Add(Pair.Key);
		}
	}

	/** All values, in order of iteration. */
	template <typename Allocator>
	void GenerateValueArray(TArray<ValueType, Allocator>& OutArray) const
	{
		OutArray.Empty(Num());
		for (const ElementType& Pair : Pairs)
		{
			OutArray.Add(Pair.Value);
		}
	}

	/** Orders the pairs by a predicate on the keys. */
	template <typename PREDICATE_CLASS>
	void KeySort(const PREDICATE_CLASS& Predicate)
	{
		Pairs.Sort([&Predicate](const ElementType& A, const ElementType& B) { return Predicate(A.Key, B.Key); });
	}

	/** Orders the pairs by a predicate on the keys; equal ones keep their order. */
	template <typename PREDICATE_CLASS>
	void KeyStableSort(const PREDICATE_CLASS& Predicate)
	{
		Pairs.StableSort([&Predicate](const ElementType& A, const ElementType& B) { return Predicate(A.Key, B.Key); });
	}

	/** Orders the pairs by a predicate on the values. */
	template <typename PREDICATE_CLASS>
	void ValueSort(const PREDICATE_CLASS& Predicate)
	{
		Pairs.Sort([&Predicate](const ElementType& A, const ElementType& B) { return Predicate(A.Value, B.Value); });
	}

	/** An iterator that may remove. */
	TIterator CreateIterator() { return TIterator(Pairs); }

	/** An iterator. */
	TConstIterator CreateConstIterator() const { return TConstIterator(Pairs); }

	/** Start of a ranged-for loop. */
	typename ElementSetType::TRangedForIterator begin() { return Pairs.begin(); }
	/** Start of a ranged-for loop. */
	typename ElementSetType::TRangedForConstIterator begin() const { return Pairs.begin(); }
	/** End of a ranged-for loop. */
	typename ElementSetType::TRangedForIterator end() { return Pairs.end(); }
	/** End of a ranged-for loop. */
	typename ElementSetType::TRangedForConstIterator end() const { return Pairs.end(); }

protected:
	TMapBase() {}
	TMapBase(const TMapBase&) = default;
	TMapBase(TMapBase&&) = default;
	TMapBase& operator=(const TMapBase&) = default;
	TMapBase& operator=(TMapBase&&) = default;
	~TMapBase() {}

	template <typename InitKeyType, typename InitValueType>
	ValueType& EmplaceImpl(InitKeyType&& InKey, InitValueType&& InValue)
	{
		return Pairs[Pairs.Emplace(ElementType(Forward<InitKeyType>(InKey), Forward<InitValueType>(InValue)))].Value;
	}

	ElementSetType Pairs;
};

/** A map from keys to one value each. */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMap : public TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>
{
	typedef TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs> Super;

public:
	typedef InKeyType KeyType;
	typedef InValueType ValueType;

	TMap() {}

	TMap(std::initializer_list<TPair<KeyType, ValueType>> InitList)
	{
		for (const TPair<KeyType, ValueType>& Pair : InitList)
		{
			this->Add(Pair);
		}
	}

	TMap(const TMap&) = default;
	TMap(TMap&&) = default;
	TMap& operator=(const TMap&) = default;
	TMap& operator=(TMap&&) = default;

	/** A key's value; a missing key is fatal. */
	ValueType& FindChecked(const KeyType& Key)
	{
		TPair<KeyType, ValueType>* Pair = this->Pairs.Find(Key);
		check(Pair != nullptr);
		return Pair->Value;
	}

	/** A key's value; a missing key is fatal. */
	const ValueType& FindChecked(const KeyType& Key) const { return const_cast<TMap*>(this)->FindChecked(Key); }

	/** A key's value; a missing key is fatal. */
	ValueType& operator[](const KeyType& Key) { return FindChecked(Key); }

	/** A key's value; a missing key is fatal. */
	const ValueType& operator[](const KeyType& Key) const { return FindChecked(Key); }

	/** Removes a pair and moves its value out; yields whether the key was there. */
	bool RemoveAndCopyValue(const KeyType& Key, ValueType& OutRemovedValue)
	{
		ValueType* Value = this->Find(Key);
		if (Value == nullptr)
		{
			return false;
		}
		OutRemovedValue = MoveTempIfPossible(*Value);
		this->Remove(Key);
		return true;
	}

	/** Removes a pair and yields its value; a missing key is fatal. */
	ValueType FindAndRemoveChecked(const KeyType& Key)
	{
		ValueType Result = MoveTempIfPossible(FindChecked(Key));
		this->Remove(Key);
		return Result;
	}

	/** Adds another map's pairs. */
	void Append(const TMap& OtherMap)
	{
		for (const TPair<KeyType, ValueType>& Pair : OtherMap)
		{
			this->Add(Pair);
		}
	}
};

/** A map from keys to any number of values. */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMultiMap : public TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>
{
public:
	typedef InKeyType KeyType;
	typedef InValueType ValueType;
	typedef TPair<KeyType, ValueType> ElementType;

	TMultiMap() {}
	TMultiMap(const TMultiMap&) = default;
	TMultiMap(TMultiMap&&) = default;
	TMultiMap& operator=(const TMultiMap&) = default;
	TMultiMap& operator=(TMultiMap&&) = default;

	/** Adds copies of a key's values to an array: the last added first, or in order of adding. */
	template <typename Allocator>
	void MultiFind(const KeyType& InKey, TArray<ValueType, Allocator>& OutValues, bool bMaintainOrder = false) const
	{
		const int32 Start = OutValues.Num();
		this->Pairs.ForEachMatch(InKey, [&OutValues](const ElementType& Pair) { OutValues.Add(Pair.Value); });
		if (bMaintainOrder)
		{
			StandIn::ReverseRange(OutValues.GetData() + Start, OutValues.Num() - Start);
		}
	}

	/** Adds addresses of a key's values to an array: the last added first, or in order of adding. */
	template <typename Allocator>
	void MultiFindPointer(const KeyType& InKey, TArray<const ValueType*, Allocator>& OutValues, bool bMaintainOrder = false) const
	{
		const int32 Start = OutValues.Num();
		this->Pairs.ForEachMatch(InKey, [&OutValues](const ElementType& Pair) { OutValues.Add(&Pair.Value); });
		if (bMaintainOrder)
		{
			StandIn::ReverseRange(OutValues.GetData() + Start, OutValues.Num() - Start);
		}
	}

	/** Adds a pair unless an equal one is there. */
	ValueType& AddUnique(const KeyType& InKey, const ValueType& InValue)
	{
		ValueType* Existing = FindPair(InKey, InValue);
		return Existing != nullptr ? *Existing : this->Add(InKey, InValue);
	}

	/** The value of an equal pair, or null. */
	ValueType* FindPair(const KeyType& Key, const ValueType& Value)
	{
		ValueType* Found = nullptr;
		this->Pairs.ForEachMatch(Key, [&Found, &Value](const ElementType& Pair) {
			if (Found == nullptr && Pair.Value == Value)
			{
				Found = const_cast<ValueType*>(&Pair.Value);
			}
		});
		return Found;
	}

	using TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>::Remove;

	/** Removes all pairs with a key and a value; yields how many. */
	int32 Remove(const KeyType& InKey, const ValueType& InValue) { return RemovePairs(InKey, InValue, false); }

	/** Removes one pair with a key and a value; yields how many. */
	int32 RemoveSingle(const KeyType& InKey, const ValueType& InValue) { return RemovePairs(InKey, InValue, true); }

	/** How many values a key has. */
	int32 Num(const KeyType& Key) const
	{
		int32 Count = 0;
		this->Pairs.ForEachMatch(Key, [&Count](const ElementType&) { ++Count; });
		return Count;
	}

	using TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>::Num;

private:
	int32 RemovePairs(const KeyType& InKey, const ValueType& InValue, bool bOnlyOne)
	{
		int32 NumRemoved = 0;
		for (auto It = this->CreateIterator(); It && !(bOnlyOne && NumRemoved == 1); ++It)
		{
			if (KeyFuncs::Matches(It.Key(), InKey) && It.Value() == InValue)
			{
				It.RemoveCurrent();
				++NumRemoved;
			}
		}
		return NumRemoved;
	}
};
