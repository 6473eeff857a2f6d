// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace HeaderTool
{

struct FReflectedType;

/** A type as it is written in front of a member's name. */
struct FTypeExpression
{
	std::string Name;
	int Line = 1;
	int Pointers = 0;
	bool bConst = false;
	bool bReference = false;
	std::vector<FTypeExpression> Arguments;
};

/** What a property holds. */
enum class EPropertyKind
{
	/** A type that needs nothing beyond its name: numbers, names, strings, texts. */
	Plain,
	Bool,
	Byte,
	Enum,
	Struct,
	Object,
	Class,
	WeakObject,
	Array,
};

/** A type as the generated code has to describe it. */
struct FPropertyType
{
	EPropertyKind Kind = EPropertyKind::Plain;
	/** The params struct in UE4CodeGen_Private, "FNamePropertyParams". */
	std::string Params;
	/** The value of EPropertyGenFlags, "Name". */
	std::string GenFlag;
	/** The type as written, for sizeof of booleans. */
	std::string CppName;
	/** The enum, struct or class that the property refers to, else null. */
	const FReflectedType* Reference = nullptr;
	/** Arrays: the element; enums: the underlying number; else null. */
	std::shared_ptr<FPropertyType> Inner;
	/** The element is held in a wrapper such as TSubclassOf. */
	bool bWrapped = false;
};

/** A type that is known by its name alone. */
struct FPlainType
{
	const char* Name;
	EPropertyKind Kind;
	const char* Params;
	const char* GenFlag;
};

/** The known type of that name or null. */
const FPlainType* FindPlainType(const std::string& Name);

/** A property of a known type. */
FPropertyType MakePlainType(const FPlainType& Plain);

/** A property whose params are "F<Word>PropertyParams" and whose flag is the word. */
FPropertyType MakeType(EPropertyKind Kind, const std::string& Word, const FReflectedType* Reference);

}
