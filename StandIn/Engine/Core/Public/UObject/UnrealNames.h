// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "HAL/Platform.h"

// Names known at compile time. Only the first few of the engine's list are here.

#define STANDIN_HARDCODED_NAMES(Entry) \
	Entry(0, None) Entry(1, ByteProperty) Entry(2, IntProperty) Entry(3, BoolProperty) Entry(4, FloatProperty) Entry(5, ObjectProperty) \
		Entry(6, NameProperty) Entry(7, DelegateProperty) Entry(8, DoubleProperty) Entry(9, ArrayProperty) Entry(10, StructProperty) \
			Entry(11, VectorProperty) Entry(12, RotatorProperty) Entry(13, StrProperty) Entry(14, TextProperty)

#define STANDIN_NAME_ENTRY(Number, Name) Name = Number,
/** Names known at compile time. */
enum class EName : uint32
{
	STANDIN_HARDCODED_NAMES(STANDIN_NAME_ENTRY) MaxHardcodedNameIndex
};
#undef STANDIN_NAME_ENTRY

#define STANDIN_NAME_ENTRY(Number, Name) constexpr EName NAME_##Name = EName::Name;
STANDIN_HARDCODED_NAMES(STANDIN_NAME_ENTRY)
#undef STANDIN_NAME_ENTRY
