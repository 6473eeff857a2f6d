// Copyright The Tintmill authors. All rights reserved.
#include "PropertyResolver.h"

#include "Diagnostics.h"

#include <algorithm>

namespace HeaderTool
{

namespace
{

/** Property types of the engine that the runtime stand-in does not have. */
const char* const OtherTypes[] = {"TMap", "TSet", "TSoftObjectPtr", "TSoftClassPtr", "TLazyObjectPtr", "TScriptInterface", "TFieldPath",
	"FScriptDelegate", "FMulticastScriptDelegate"};

[[noreturn]] void ThrowUnrecognized(const FTypeExpression& Expression)
{
	throw FSyntaxError(Expression.Line, "Unrecognized type '" + Expression.Name + "' - type must be a UCLASS, USTRUCT or UENUM");
}

void RequireNoPointer(const FTypeExpression& Expression)
{
	if (Expression.Pointers > 0)
	{
		throw FSyntaxError(Expression.Line,
			"Inappropriate '*' on variable of type '" + Expression.Name + "', cannot have an exposed pointer to this type.");
	}
}

}

FPropertyResolver::FPropertyResolver(const FReflectedType& InOwner, const FTypeTable& InTable)
	: Owner(InOwner)
	, Table(InTable)
{}

void FPropertyResolver::Resolve(FProperty& Property) const
{
	ApplySpecifiers(Property);
	const FTypeExpression& Expression = Property.TypeExpression;
	Property.Type = ResolveType(Expression, false);
	if (Property.bBitField)
	{
		const std::string& Name = Expression.Name;
		if (Name != "bool" && Name != "uint8" && Name != "uint16" && Name != "uint32" && Name != "uint64")
		{
			throw FSyntaxError(Property.Line, "Bad or missing bit field size for '" + Property.Name + "', must be 1.");
		}
		Property.Type = MakeType(EPropertyKind::Bool, "Bool", nullptr);
		Property.Type.CppName = Name;
	}
	const FPropertyType* Innermost = Property.Type.Kind == EPropertyKind::Array ? Property.Type.Inner.get() : &Property.Type;
	Property.Flags |= Innermost->bWrapped ? CpfObjectWrapper : 0;
	CheckRules(Property);
	ApplyMetaData(Property);
}

FPropertyType FPropertyResolver::ResolveType(const FTypeExpression& Expression, bool bElement) const
{
	if (Expression.bReference)
	{
		throw FSyntaxError(Expression.Line, "Missing variable name");
	}
	if (Expression.bConst)
	{
		throw FSyntaxError(Expression.Line, "Const properties are not supported.");
	}
	for (const char* Name : OtherTypes)
	{
		if (Expression.Name == Name)
		{
			throw FSyntaxError(Expression.Line, "Properties of type '" + Expression.Name + "' are not in this header tool");
		}
	}
	if (Expression.Arguments.empty())
	{
		if (const FPlainType* Plain = FindPlainType(Expression.Name))
		{
			RequireNoPointer(Expression);
			return MakePlainType(*Plain);
		}
		return ResolveReference(Expression);
	}
	RequireNoPointer(Expression);
	return Expression.Name == "TArray" ? ResolveContainer(Expression, bElement) : ResolveWrapper(Expression);
}

FPropertyType FPropertyResolver::ResolveContainer(const FTypeExpression& Expression, bool bElement) const
{
	if (bElement)
	{
		throw FSyntaxError(Expression.Line, "Nested containers are not supported.");
	}
	if (Expression.Arguments.size() != 1)
	{
		throw FSyntaxError(Expression.Line, "Missing '>' in TArray");
	}
	FPropertyType Type = MakeType(EPropertyKind::Array, "Array", nullptr);
	Type.Inner = std::make_shared<FPropertyType>(ResolveType(Expression.Arguments[0], true));
	return Type;
}

FPropertyType FPropertyResolver::ResolveWrapper(const FTypeExpression& Expression) const
{
	const bool bKnown = Expression.Name == "TSubclassOf" || Expression.Name == "TWeakObjectPtr" || Expression.Name == "TEnumAsByte";
	if (!bKnown || Expression.Arguments.size() != 1)
	{
		ThrowUnrecognized(Expression);
	}
	const FTypeExpression& Argument = Expression.Arguments[0];
	RequireNoPointer(Argument);
	if (Expression.Name == "TEnumAsByte")
	{
		const FReflectedType* Enum = Table.Find(Argument.Name);
		if (Enum == nullptr || Enum->Kind != ETypeKind::Enum)
		{
			ThrowUnrecognized(Argument);
		}
		return MakeType(EPropertyKind::Byte, "Byte", Enum);
	}
	const bool bClass = Expression.Name == "TSubclassOf";
	FPropertyType Type =
		MakeType(bClass ? EPropertyKind::Class : EPropertyKind::WeakObject, bClass ? "Class" : "WeakObject", &RequireClass(Argument));
	Type.bWrapped = true;
	return Type;
}

const FReflectedType& FPropertyResolver::RequireClass(const FTypeExpression& Expression) const
{
	const FReflectedType* Class = Table.Find(Expression.Name);
	if (Class == nullptr || Class->Kind != ETypeKind::Class || !Expression.Arguments.empty())
	{
		ThrowUnrecognized(Expression);
	}
	return *Class;
}

FPropertyType FPropertyResolver::ResolveReference(const FTypeExpression& Expression) const
{
	const FReflectedType* Found = Table.Find(Expression.Name);
	if (Found == nullptr)
	{
		ThrowUnrecognized(Expression);
	}
	if (Found->Kind == ETypeKind::Class)
	{
		if (Expression.Pointers == 0)
		{
			throw FSyntaxError(Expression.Line, "Missing '*' in Expected a pointer type");
		}
		if (Expression.Pointers > 1)
		{
			RequireNoPointer(Expression);
		}
		// A plain UClass* may point to any class.
		return Found->CppName == "UClass" ? MakeType(EPropertyKind::Class, "Class", Table.Find("UObject"))
										  : MakeType(EPropertyKind::Object, "Object", Found);
	}
	RequireNoPointer(Expression);
	if (Found->Kind == ETypeKind::Struct)
	{
		return MakeType(EPropertyKind::Struct, "Struct", Found);
	}
	const FPlainType* Underlying = FindPlainType(Found->UnderlyingType);
	const bool bNumber =
		Underlying != nullptr && (Underlying->Kind == EPropertyKind::Byte || Underlying->Name[0] == 'i' || Underlying->Name[0] == 'u');
	if (!Found->bEnumClass || !bNumber)
	{
		throw FSyntaxError(Expression.Line,
			"You cannot use the raw enum name as a type for member variables, instead use TEnumAsByte or a C++11 enum class with an explicit "
			"underlying type.");
	}
	FPropertyType Type = MakeType(EPropertyKind::Enum, "Enum", Found);
	Type.Inner = std::make_shared<FPropertyType>(MakePlainType(*Underlying));
	return Type;
}

}
