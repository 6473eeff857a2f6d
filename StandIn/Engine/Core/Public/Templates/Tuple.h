// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Templates/UnrealTemplate.h"
#include <tuple>

// TTuple, and TPair: the tuple of two, with Key and Value.

/** A fixed row of values of different types. */
template <typename... Types>
struct TTuple
{
	TTuple() = default;

	/** Holds copies of the values. */
	template <typename... ArgTypes, typename = typename TEnableIf<sizeof...(ArgTypes) == sizeof...(Types) && sizeof...(Types) != 0>::Type>
	explicit TTuple(ArgTypes&&... Args)
		: Values(Forward<ArgTypes>(Args)...)
	{}

	/** The value at an index. */
	template <uint32 Index>
	typename std::tuple_element<Index, std::tuple<Types...>>::type& Get()
	{
		return std::get<Index>(Values);
	}

	/** The value at an index. */
	template <uint32 Index>
	const typename std::tuple_element<Index, std::tuple<Types...>>::type& Get() const
	{
		return std::get<Index>(Values);
	}

	/** Whether all values are equal. */
	friend bool operator==(const TTuple& A, const TTuple& B) { return A.Values == B.Values; }

	/** Whether any value differs. */
	friend bool operator!=(const TTuple& A, const TTuple& B) { return !(A == B); }

private:
	std::tuple<Types...> Values;
};

namespace StandIn
{
template <uint32 Index>
struct TPairAccess;

template <>
struct TPairAccess<0>
{
	template <typename PairType>
	static auto Get(PairType& Pair) -> decltype((Pair.Key))
	{
		return Pair.Key;
	}
};

template <>
struct TPairAccess<1>
{
	template <typename PairType>
	static auto Get(PairType& Pair) -> decltype((Pair.Value))
	{
		return Pair.Value;
	}
};
}

/** A key and a value. */
template <typename KeyType, typename ValueType>
struct TTuple<KeyType, ValueType>
{
	TTuple()
		: Key()
		, Value()
	{}

	/** Holds a key and a value. */
	template <typename KeyInitType, typename ValueInitType>
	explicit TTuple(KeyInitType&& InKey, ValueInitType&& InValue)
		: Key(Forward<KeyInitType>(InKey))
		, Value(Forward<ValueInitType>(InValue))
	{}

	TTuple(const TTuple&) = default;
	TTuple(TTuple&&) = default;
	TTuple& operator=(const TTuple&) = default;
	TTuple& operator=(TTuple&&) = default;

	/** The key (0) or the value (1). */
	template <uint32 Index>
	auto Get() -> decltype(StandIn::TPairAccess<Index>::Get(DeclVal<TTuple&>()))
	{
		return StandIn::TPairAccess<Index>::Get(*this);
	}

	/** The key (0) or the value (1). */
	template <uint32 Index>
	auto Get() const -> decltype(StandIn::TPairAccess<Index>::Get(DeclVal<const TTuple&>()))
	{
		return StandIn::TPairAccess<Index>::Get(*this);
	}

	/** Whether key and value are equal. */
	friend bool operator==(const TTuple& A, const TTuple& B) { return A.Key == B.Key && A.Value == B.Value; }

	/** Whether key or value differ. */
	friend bool operator!=(const TTuple& A, const TTuple& B) { return !(A == B); }

	KeyType Key;
	ValueType Value;
};

template <typename KeyType, typename ValueType>
using TPair = TTuple<KeyType, ValueType>;

/** Makes a tuple of the arguments' values. */
template <typename... Types>
TTuple<typename TDecay<Types>::Type...> MakeTuple(Types&&... Args)
{
	return TTuple<typename TDecay<Types>::Type...>(Forward<Types>(Args)...);
}

/** Hash of a pair. */
template <typename KeyType, typename ValueType>
uint32 GetTypeHash(const TTuple<KeyType, ValueType>& Pair)
{
	return HashCombine(GetTypeHash(Pair.Key), GetTypeHash(Pair.Value));
}
