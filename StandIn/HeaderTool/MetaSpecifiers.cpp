// Copyright The Tintmill authors. All rights reserved.
#include "MetaSpecifiers.h"

#include <map>

namespace HeaderTool
{

void ApplyMeta(const FSpecifierSet& Specifiers, FMetaData& MetaData, const std::string& File, FDiagnostics& Diagnostics)
{
	std::map<std::string, std::string, FMetaDataKeyLess> Seen;
	for (const FSpecifier& Pair : Specifiers.Meta)
	{
		const std::string Value = Pair.GetJoinedValues();
		const auto [Place, bNew] = Seen.emplace(Pair.Name, Value);
		if (!bNew && Place->second != Value)
		{
			Diagnostics.Error(
				File, Pair.Line, "Metadata key '" + Pair.Name + "' first seen with value '" + Place->second + "' then '" + Value + "'");
		}
		MetaData.Set(Pair.Name, Value);
	}
}

void ApplyMetaOnlySpecifiers(FReflectedType& Type, const std::string& What, FDiagnostics& Diagnostics)
{
	const std::string File = Type.Header->Path.generic_string();
	for (const FSpecifier& Specifier : Type.Specifiers.Specifiers)
	{
		if (Specifier.Is("blueprinttype"))
		{
			Type.MetaData.Set("BlueprintType", "true");
		}
		else if (Specifier.Is("displayname") && Specifier.bHasValue)
		{
			Type.MetaData.Set("DisplayName", Specifier.GetJoinedValues());
		}
		else
		{
			const bool bKnown = Specifier.Is("atomic") || Specifier.Is("immutable") || Specifier.Is("noexport")
				|| Specifier.Is("blueprintinternaluseonly") || Specifier.Is("flags");
			Diagnostics.Error(File, Specifier.Line,
				bKnown ? "The " + What + " specifier '" + Specifier.Name + "' is not in this header tool"
					   : "Unknown " + What + " specifier '" + Specifier.Name + "'");
		}
	}
	ApplyMeta(Type.Specifiers, Type.MetaData, File, Diagnostics);
}

}
