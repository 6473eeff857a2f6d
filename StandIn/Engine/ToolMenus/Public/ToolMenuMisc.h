// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Where an element goes relative to others. The enumerations and structures are not reflected here.

/** Kind of an insert position; there is no Last. */
enum class EToolMenuInsertType : uint8
{
	Default,
	Before,
	After,
	First
};

/** Insert position of a section among sections or an entry among entries. */
struct TOOLMENUS_API FToolMenuInsert
{
	/** Makes the default position: at the end. */
	FToolMenuInsert()
		: Position(EToolMenuInsertType::Default)
	{}

	/** Makes a position relative to a named element. */
	FToolMenuInsert(FName InName, EToolMenuInsertType InPosition)
		: Name(InName)
		, Position(InPosition)
	{}

	/** Element that Before and After refer to. */
	FName Name;

	/** Kind of the position. */
	EToolMenuInsertType Position;

	/** True if name and kind are the same. */
	bool operator==(const FToolMenuInsert& Other) const { return Name == Other.Name && Position == Other.Position; }

	/** True if name or kind differ. */
	bool operator!=(const FToolMenuInsert& Other) const { return !(*this == Other); }

	/** True if the position is the default one. */
	bool IsDefault() const { return Position == EToolMenuInsertType::Default; }

	/** True if the position refers to another element. */
	bool IsBeforeOrAfter() const { return Position == EToolMenuInsertType::Before || Position == EToolMenuInsertType::After; }
};
