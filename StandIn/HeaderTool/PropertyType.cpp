// Copyright The Tintmill authors. All rights reserved.
#include "PropertyType.h"

#include <algorithm>

namespace HeaderTool
{

namespace
{

const FPlainType PlainTypes[] = {
	{"bool", EPropertyKind::Bool, "FBoolPropertyParams", "Bool"},
	{"int8", EPropertyKind::Plain, "FInt8PropertyParams", "Int8"},
	{"int16", EPropertyKind::Plain, "FInt16PropertyParams", "Int16"},
	{"int32", EPropertyKind::Plain, "FIntPropertyParams", "Int"},
	{"int64", EPropertyKind::Plain, "FInt64PropertyParams", "Int64"},
	{"uint8", EPropertyKind::Byte, "FBytePropertyParams", "Byte"},
	{"uint16", EPropertyKind::Plain, "FFInt16PropertyParams", "UInt16"},
	{"uint32", EPropertyKind::Plain, "FUInt32PropertyParams", "UInt32"},
	{"uint64", EPropertyKind::Plain, "FFInt64PropertyParams", "UInt64"},
	{"float", EPropertyKind::Plain, "FFloatPropertyParams", "Float"},
	{"double", EPropertyKind::Plain, "FDoublePropertyParams", "Double"},
	{"FName", EPropertyKind::Plain, "FNamePropertyParams", "Name"},
	{"FString", EPropertyKind::Plain, "FStrPropertyParams", "Str"},
	{"FText", EPropertyKind::Plain, "FTextPropertyParams", "Text"},
};

}

const FPlainType* FindPlainType(const std::string& Name)
{
	const auto Found =
		std::find_if(std::begin(PlainTypes), std::end(PlainTypes), [&Name](const FPlainType& Type) { return Type.Name == Name; });
	return Found == std::end(PlainTypes) ? nullptr : Found;
}

FPropertyType MakeType(EPropertyKind Kind, const std::string& Word, const FReflectedType* Reference)
{
	FPropertyType Type;
	Type.Kind = Kind;
	Type.Params = "F" + Word + "PropertyParams";
	Type.GenFlag = Word;
	Type.Reference = Reference;
	return Type;
}

FPropertyType MakePlainType(const FPlainType& Plain)
{
	FPropertyType Type;
	Type.Kind = Plain.Kind;
	Type.Params = Plain.Params;
	Type.GenFlag = Plain.GenFlag;
	Type.CppName = Plain.Name;
	return Type;
}

}
