// Copyright The Tintmill authors. All rights reserved.
#include "ClassSpecifiers.h"

#include "MetaSpecifiers.h"
#include "TextTools.h"

#include <algorithm>

namespace HeaderTool
{

namespace
{

struct FFlagWord
{
	const char* Word;
	std::uint32_t Set;
	std::uint32_t Clear;
};

const FFlagWord FlagWords[] = {
	{"abstract", ClassAbstract, 0},
	{"defaultconfig", ClassDefaultConfig, 0},
	{"editinlinenew", ClassEditInlineNew, 0},
	{"minimalapi", ClassMinimalApi, 0},
	{"nontransient", 0, ClassTransient},
	{"noteditinlinenew", 0, ClassEditInlineNew},
	{"notplaceable", ClassNotPlaceable, 0},
	{"perobjectconfig", ClassPerObjectConfig, 0},
	{"placeable", 0, ClassNotPlaceable},
	{"projectuserconfig", ClassProjectUserConfig, 0},
	{"transient", ClassTransient, 0},
};

/** Words that the engine knows and this tool has no use for. */
const char* const OtherWords[] = {"advancedclassdisplay", "autocollapsecategories", "autoexpandcategories", "classgroup",
	"collapsecategories", "componentwrapperclass", "const", "constructor", "conversionroot", "customconstructor", "customthunktemplates",
	"defaulttoinstanced", "dependson", "deprecated", "dontautocollapsecategories", "dontcollapsecategories", "earlyaccesspreview",
	"editoronly", "experimental", "globaluserconfig", "hidden", "hidedropdown", "hidefunctions", "interface", "intrinsic",
	"needsdeferreddependencyloading", "noexport", "prioritizecategories", "showcategories", "showfunctions", "sparseclassdatatype"};

const std::uint32_t HandedDown = ClassTransient | ClassDefaultConfig | ClassConfig | ClassProjectUserConfig | ClassNotPlaceable
	| ClassPerObjectConfig | ClassEditInlineNew;

}

FClassSpecifiers::FClassSpecifiers(FReflectedType& InType, const FTypeTable& InTable, FDiagnostics& InDiagnostics)
	: Type(InType)
	, Table(InTable)
	, Diagnostics(InDiagnostics)
{}

void FClassSpecifiers::Error(int Line, const std::string& Text)
{
	Diagnostics.Error(Type.Header->Path.generic_string(), Line, Text);
}

void FClassSpecifiers::Apply()
{
	InheritFromBase();
	Type.Flags |= ClassMatchedSerializers | ClassNative | (Type.bExported ? ClassRequiredApi : 0);
	for (const FSpecifier& Specifier : Type.Specifiers.Specifiers)
	{
		ApplyOne(Specifier);
	}
	ApplyMeta(Type.Specifiers, Type.MetaData, Type.Header->Path.generic_string(), Diagnostics);
	JoinHiddenCategories();
	if (!Type.ConfigName.empty())
	{
		Type.Flags |= ClassConfig;
	}
}

void FClassSpecifiers::InheritFromBase()
{
	if (Type.Base == nullptr)
	{
		return;
	}
	Type.Flags = Type.Base->Flags & HandedDown;
	Type.ConfigName = Type.Base->ConfigName;
	for (const char* Key : {"BlueprintType", "IsBlueprintBase"})
	{
		if (const std::string* Value = Type.Base->MetaData.Find(Key))
		{
			Type.MetaData.Set(Key, *Value);
		}
	}
}

void FClassSpecifiers::ApplyOne(const FSpecifier& Specifier)
{
	if (Specifier.Is("config"))
	{
		ApplyConfig(Specifier);
	}
	else if (Specifier.Is("within"))
	{
		ApplyWithin(Specifier);
	}
	else if (!ApplyFlag(Specifier) && !ApplyMetaData(Specifier))
	{
		const bool bKnown =
			std::any_of(std::begin(OtherWords), std::end(OtherWords), [&Specifier](const char* Word) { return Specifier.Is(Word); });
		Error(Specifier.Line,
			bKnown ? "The class specifier '" + Specifier.Name + "' is not in this header tool"
				   : "Unknown class specifier '" + Specifier.Name + "'");
	}
}

bool FClassSpecifiers::ApplyFlag(const FSpecifier& Specifier)
{
	for (const FFlagWord& Word : FlagWords)
	{
		if (Specifier.Is(Word.Word))
		{
			Type.Flags = (Type.Flags | Word.Set) & ~Word.Clear;
			return true;
		}
	}
	return false;
}

bool FClassSpecifiers::ApplyMetaData(const FSpecifier& Specifier)
{
	if (Specifier.Is("hidecategories") || Specifier.Is("displayname"))
	{
		if (!Specifier.bHasValue)
		{
			Error(Specifier.Line, "The specifier '" + Specifier.Name + "' must be given a value");
		}
		Type.MetaData.Set(Specifier.Is("displayname") ? "DisplayName" : "HideCategories", Specifier.GetJoinedValues());
	}
	else if (Specifier.Is("blueprintable") || Specifier.Is("notblueprintable"))
	{
		Type.MetaData.Set("IsBlueprintBase", Specifier.Is("blueprintable") ? "true" : "false");
		if (Specifier.Is("blueprintable"))
		{
			Type.MetaData.Set("BlueprintType", "true");
		}
	}
	else if (Specifier.Is("blueprinttype") || Specifier.Is("notblueprinttype"))
	{
		Type.MetaData.Set(Specifier.Is("blueprinttype") ? "BlueprintType" : "NotBlueprintType", "true");
	}
	else
	{
		return false;
	}
	return true;
}

void FClassSpecifiers::ApplyConfig(const FSpecifier& Specifier)
{
	const std::string Value = Specifier.GetJoinedValues();
	if (Value.empty())
	{
		Error(Specifier.Line, "The specifier '" + Specifier.Name + "' must be given a value");
	}
	else if (!EqualsIgnoreCase(Value, "inherit"))
	{
		Type.ConfigName = Value;
	}
	else if (Type.ConfigName.empty())
	{
		Error(Specifier.Line, "Cannot inherit config filename: parent class " + Type.BaseName + " is not marked config.");
	}
}

void FClassSpecifiers::ApplyWithin(const FSpecifier& Specifier)
{
	const FReflectedType* Within = Table.Find(Specifier.GetJoinedValues());
	if (Within == nullptr || Within->Kind != ETypeKind::Class)
	{
		Error(Specifier.Line, "Unrecognized type '" + Specifier.GetJoinedValues() + "' - type must be a UCLASS, USTRUCT or UENUM");
		return;
	}
	Type.WithinName = Within->CppName;
}

/** The class's own hidden categories come first, those of its bases behind them, repeats and all. */
void FClassSpecifiers::JoinHiddenCategories()
{
	const std::string* Inherited = Type.Base != nullptr ? Type.Base->MetaData.Find("HideCategories") : nullptr;
	if (Inherited != nullptr)
	{
		const std::string* Own = Type.MetaData.Find("HideCategories");
		Type.MetaData.Set("HideCategories", Own != nullptr ? *Own + " " + *Inherited : *Inherited);
	}
}

}
