// Copyright The Tintmill authors. All rights reserved.
#include "TypeResolver.h"

#include "ClassSpecifiers.h"
#include "MetaSpecifiers.h"
#include "PropertyResolver.h"
#include "TextTools.h"

namespace HeaderTool
{

namespace
{

const std::uint32_t StructNative = 0x1;
const std::uint32_t StructRequiredApi = 0x200;

}

FTypeResolver::FTypeResolver(const FTypeTable& InTable, FDiagnostics& InDiagnostics)
	: Table(InTable)
	, Diagnostics(InDiagnostics)
{}

void FTypeResolver::Error(const FReflectedType& Type, int Line, const std::string& Text)
{
	Diagnostics.Error(Type.Header->Path.generic_string(), Line, Text);
}

void FTypeResolver::Resolve(FReflectedType& Type)
{
	if (Type.Header == nullptr || Type.CppName.empty() || Type.bBroken || !Done.insert(&Type).second)
	{
		return;
	}
	if (Type.Kind == ETypeKind::Enum)
	{
		ResolveEnum(Type);
		return;
	}
	Running.insert(&Type);
	if (!ResolveBase(Type))
	{
		Type.Base = nullptr;
		Type.bBroken = true;
	}
	Running.erase(&Type);
	if (Type.Kind == ETypeKind::Class)
	{
		ResolveClass(Type);
	}
	else
	{
		ResolveStruct(Type);
	}
	ResolveProperties(Type);
}

bool FTypeResolver::ResolveBase(FReflectedType& Type)
{
	const bool bClass = Type.Kind == ETypeKind::Class;
	if (Type.BaseName.empty())
	{
		if (bClass)
		{
			Error(Type, Type.Line, "Class '" + Type.CppName + "' must inherit UObject or a UObject-derived class");
		}
		return !bClass;
	}
	Type.Base = Table.Find(Type.BaseName);
	if (Type.Base == nullptr || Type.Base->Kind != Type.Kind)
	{
		Error(Type, Type.Line,
			bClass ? "Couldn't find parent type for '" + Type.CppName + "' named '" + Type.BaseName
					+ "' in current module (Package: " + Type.Header->Module->GetPackageName() + ") or any other module parsed so far."
				   : "'struct': Can't find '" + Type.BaseName + "'");
		return false;
	}
	if (Running.count(Type.Base) > 0)
	{
		Error(Type, Type.Line, "Circular inheritance: '" + Type.CppName + "' is a base of its own base '" + Type.BaseName + "'");
		return false;
	}
	// Bases are resolved first: flags, config name and categories are handed down.
	Resolve(const_cast<FReflectedType&>(*Type.Base));
	Type.bBroken = Type.Base->bBroken;
	return true;
}

void FTypeResolver::ResolveClass(FReflectedType& Type)
{
	Type.MetaData.Set("IncludePath", Type.Header->GetIncludePath());
	Type.MetaData.Set("ModuleRelativePath", Type.Header->ModuleRelativePath);
	FClassSpecifiers(Type, Table, Diagnostics).Apply();
	if (Type.bDeclaresInitializerConstructor && !Type.bLegacyBody)
	{
		Type.MetaData.Set("ObjectInitializerConstructorDeclared", "");
	}
	Type.MetaData.AddComment(Type.Comment);
}

void FTypeResolver::ResolveStruct(FReflectedType& Type)
{
	Type.Flags = StructNative | (Type.bExported ? StructRequiredApi : 0);
	Type.MetaData.Set("ModuleRelativePath", Type.Header->ModuleRelativePath);
	ApplyMetaOnlySpecifiers(Type, "struct", Diagnostics);
	Type.MetaData.AddComment(Type.Comment);
}

void FTypeResolver::ResolveEnum(FReflectedType& Type)
{
	Type.MetaData.Set("ModuleRelativePath", Type.Header->ModuleRelativePath);
	ApplyMetaOnlySpecifiers(Type, "enum", Diagnostics);
	Type.MetaData.AddComment(Type.Comment);
	std::set<std::string> Names;
	for (const FEnumerator& Enumerator : Type.Enumerators)
	{
		if (!Names.insert(ToLower(Enumerator.Name)).second)
		{
			Error(Type, Type.Line, "Duplicate enumeration tag " + Enumerator.Name);
		}
		Type.MetaData.AddPrefixed(Enumerator.Name, Enumerator.MetaData);
	}
	if (Type.Enumerators.empty())
	{
		Error(Type, Type.Line, "Enumeration must contain at least one enumerator");
	}
}

void FTypeResolver::ResolveProperties(FReflectedType& Type)
{
	bool bConfig = false;
	for (std::size_t Index = 0; Index < Type.Properties.size(); ++Index)
	{
		FProperty& Property = Type.Properties[Index];
		CheckPropertyName(Type, Property, Index);
		try
		{
			FPropertyResolver(Type, Table).Resolve(Property);
		}
		catch (const FSyntaxError& Problem)
		{
			Error(Type, Problem.GetLine(), Problem.what());
		}
		bConfig = bConfig || (Property.Flags & CpfConfig) != 0;
	}
	if (bConfig && !Type.bBroken && Type.Kind == ETypeKind::Class && Type.ConfigName.empty())
	{
		Error(Type, Type.Line, "Classes with config / globalconfig member variables need to specify config file.");
	}
}

void FTypeResolver::CheckPropertyName(const FReflectedType& Type, const FProperty& Property, std::size_t Index)
{
	for (const FReflectedType* Scope = &Type; Scope != nullptr; Scope = Scope->Base)
	{
		const std::size_t Count = Scope == &Type ? Index : Scope->Properties.size();
		for (std::size_t Other = 0; Other < Count; ++Other)
		{
			if (EqualsIgnoreCase(Scope->Properties[Other].Name, Property.Name))
			{
				Error(Type, Property.Line,
					"Member variable declaration: '" + Property.Name + "' cannot be defined in '" + Type.GetEngineName()
						+ "' as it is already defined in scope '" + Scope->GetEngineName() + "' (shadowing is not allowed)");
				return;
			}
		}
	}
}

}
