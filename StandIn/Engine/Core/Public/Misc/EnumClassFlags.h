// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <type_traits>

// Bit operations for scoped enumerations.

#define ENUM_CLASS_FLAGS(Enum) \
	inline Enum& operator|=(Enum& Lhs, Enum Rhs) \
	{ \
		return Lhs = (Enum)((std::underlying_type<Enum>::type)Lhs | (std::underlying_type<Enum>::type)Rhs); \
	} \
	inline Enum& operator&=(Enum& Lhs, Enum Rhs) \
	{ \
		return Lhs = (Enum)((std::underlying_type<Enum>::type)Lhs & (std::underlying_type<Enum>::type)Rhs); \
	} \
	inline Enum& operator^=(Enum& Lhs, Enum Rhs) \
	{ \
		return Lhs = (Enum)((std::underlying_type<Enum>::type)Lhs ^ (std::underlying_type<Enum>::type)Rhs); \
	} \
	inline constexpr Enum operator|(Enum Lhs, Enum Rhs) \
	{ \
		return (Enum)((std::underlying_type<Enum>::type)Lhs | (std::underlying_type<Enum>::type)Rhs); \
	} \
	inline constexpr Enum operator&(Enum Lhs, Enum Rhs) \
	{ \
		return (Enum)((std::underlying_type<Enum>::type)Lhs & (std::underlying_type<Enum>::type)Rhs); \
	} \
	inline constexpr Enum operator^(Enum Lhs, Enum Rhs) \
	{ \
		return (Enum)((std::underlying_type<Enum>::type)Lhs ^ (std::underlying_type<Enum>::type)Rhs); \
	} \
	inline constexpr bool operator!(Enum E) \
	{ \
		return !(std::underlying_type<Enum>::type)E; \
	} \
	inline constexpr Enum operator~(Enum E) \
	{ \
		return (Enum) ~(std::underlying_type<Enum>::type)E; \
	}

#define FRIEND_ENUM_CLASS_FLAGS(Enum) \
	friend Enum& operator|=(Enum& Lhs, Enum Rhs); \
	friend Enum& operator&=(Enum& Lhs, Enum Rhs); \
	friend Enum& operator^=(Enum& Lhs, Enum Rhs); \
	friend constexpr Enum operator|(Enum Lhs, Enum Rhs); \
	friend constexpr Enum operator&(Enum Lhs, Enum Rhs); \
	friend constexpr Enum operator^(Enum Lhs, Enum Rhs); \
	friend constexpr bool operator!(Enum E); \
	friend constexpr Enum operator~(Enum E);

/** Whether all bits of Contains are set in Flags. */
template <typename Enum>
constexpr bool EnumHasAllFlags(Enum Flags, Enum Contains)
{
	return ((typename std::underlying_type<Enum>::type)Flags & (typename std::underlying_type<Enum>::type)Contains)
		== (typename std::underlying_type<Enum>::type)Contains;
}

/** Whether any bit of Contains is set in Flags. */
template <typename Enum>
constexpr bool EnumHasAnyFlags(Enum Flags, Enum Contains)
{
	return ((typename std::underlying_type<Enum>::type)Flags & (typename std::underlying_type<Enum>::type)Contains) != 0;
}

/** Sets the bits of FlagsToAdd. */
template <typename Enum>
void EnumAddFlags(Enum& Flags, Enum FlagsToAdd)
{
	Flags = (Enum)((typename std::underlying_type<Enum>::type)Flags | (typename std::underlying_type<Enum>::type)FlagsToAdd);
}

/** Clears the bits of FlagsToRemove. */
template <typename Enum>
void EnumRemoveFlags(Enum& Flags, Enum FlagsToRemove)
{
	Flags = (Enum)((typename std::underlying_type<Enum>::type)Flags & ~(typename std::underlying_type<Enum>::type)FlagsToRemove);
}
