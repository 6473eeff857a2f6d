// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include "Manifest.h"
#include "MetaData.h"
#include "PropertyType.h"
#include "Specifiers.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace HeaderTool
{

/** The access section in which a member stands. */
enum class EAccess
{
	Public,
	Protected,
	Private,
};

/** One UPROPERTY. */
struct FProperty
{
	std::string Name;
	/** The line of the declaration behind the macro. */
	int Line = 1;
	std::string Comment;
	FSpecifierSet Specifiers;
	FTypeExpression TypeExpression;
	EAccess Access = EAccess::Public;
	bool bFixedArray = false;
	bool bBitField = false;
	bool bEditorOnly = false;

	/** What the resolver finds out. */
	FPropertyType Type;
	std::uint64_t Flags = 0;
	FMetaData MetaData;
};

/** One value of a UENUM. */
struct FEnumerator
{
	std::string Name;
	FMetaData MetaData;
};

/** The three kinds of reflected types. */
enum class ETypeKind
{
	Class,
	Struct,
	Enum,
};

struct FHeader;

/** One reflected class, struct or enum. */
struct FReflectedType
{
	ETypeKind Kind = ETypeKind::Class;
	/** The name in the source, with its prefix. */
	std::string CppName;
	/** The header, or null for the classes that the object system makes by hand. */
	const FHeader* Header = nullptr;
	/** The export macro of the type's module. */
	std::string ModuleApi;
	/** Where the macro stands and where its parentheses end. */
	int MacroLine = 1;
	int MacroLastLine = 1;
	/** The line of the keyword class, struct or enum. */
	int Line = 1;
	std::string Comment;
	FSpecifierSet Specifiers;
	bool bExported = false;
	/** The type, or one of its bases, could not be read to its end; nothing more is said about what may be missing. */
	bool bBroken = false;

	/** Classes and structs: the base as written, then as found; the body macro; the members. */
	std::string BaseName;
	const FReflectedType* Base = nullptr;
	int BodyLine = 1;
	bool bLegacyBody = false;
	bool bDeclaresInitializerConstructor = false;
	bool bDeclaresDefaultConstructor = false;
	bool bDeclaresHelperConstructor = false;
	std::vector<FProperty> Properties;

	/** Enums: form and values. */
	bool bEnumClass = false;
	std::string UnderlyingType;
	std::vector<FEnumerator> Enumerators;

	/** What the resolver finds out. */
	std::uint32_t Flags = 0;
	std::string ConfigName;
	std::string WithinName;
	FMetaData MetaData;

	/** The name that the engine knows: without the prefix for classes and structs. */
	std::string GetEngineName() const;

	/** "class", "struct" or "enum". */
	const char* GetKindName() const;

	/** The function that constructs the type, "Z_Construct_...". */
	std::string GetConstructFunction() const;
};

/** One header with what it declares. */
struct FHeader
{
	std::filesystem::path Path;
	const FModule* Module = nullptr;
	/** The file name without its extension. */
	std::string Leaf;
	/** The path below the module's folder, with slashes. */
	std::string ModuleRelativePath;
	/** What CURRENT_FILE_ID becomes. */
	std::string FileId;
	/** In the order of the file. */
	std::vector<std::unique_ptr<FReflectedType>> Types;

	/** The relative path without a leading Public, Private or Classes folder. */
	std::string GetIncludePath() const;

	/** The types of one kind in the order of the file. */
	std::vector<const FReflectedType*> GetTypes(ETypeKind Kind) const;
};

}
